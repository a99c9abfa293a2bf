#pragma once

#include "device/bridge/Form_COM.h"
#include "recorders/data/RecorderEvents.h"
#include "recorders/data/RecorderSet.h"
#include "store/records/UserRecords.h"

#include <functional>
#include <optional>
#include <set>
#include <vector>

inline constexpr int kRecorderNameLength = 31; // characters that a recorder's name field takes

// A recorder to be detected. Blanks round name and address do not count; without a name it takes its address.
struct NVRDetectItem
{
    qint16 iSlot = -1; // target slot from 0; -1: the first free one at detection time
    QString sName;
    QString sIP; // empty: the item is skipped
    QString sModel;
    qint32 iPort = 0;
    QString sUser;
    QString sPassword;
};

// Message of a detection that the operator, or the end of the program, has broken off.
inline constexpr int kDetectStopped = 963;

// Where a detection stands. `message` is a message number of the catalogue.
struct DetectStatus
{
    int message = 0;
    int percent = 0; // of the steps of this recorder, 0 to 100
    enum class State
    {
        Running,
        Done,
        Failed
    } state = State::Running;
    QString suffix; // stands behind the message's text
    int slot = -1;  // from 0, once it is Done
};
using DetectReport = std::function<void(const DetectStatus&)>;

enum class DetectMode
{
    Add,   // fills a free slot of the working generation
    Modify // reads the recorder of the edit record anew, into the edit record; its slot must be given
};

// What a detection works on.
struct DetectContext
{
    Form_COM& com;
    RecorderSet& recorders;
    const std::vector<NVRAccountRecord>& accounts; // tried in order when no login is given; never empty
    const RecorderEvents& events;                  // told what the pages do to recorders
};

enum class ManualField
{
    Name,
    Address,
    Port,
    User,
    Password
};

// What is wrong with a typed recorder, in the order of the checks: the message number and the field to go to.
struct ManualFault
{
    int message = 0; // 0: nothing is wrong
    ManualField field = ManualField::Name;
};
// Blanks round name and address do not count. Awaits the resolver for a host name, at most 10 seconds.
QCoro::Task<ManualFault> ValidateManualNVR(QString name, QString address, QString port, Work& work);

// The order of recorders that are detected side by side: what one leaves for the next (slots, known addresses, the
// number of channels) is looked at in its turn, when all before it have ended.
class DetectOrder
{
public:
    explicit DetectOrder(Work& work)
        : m_work(work)
    {
    }
    // Until the turn of a row (from 0), or until the work is stopped.
    QCoro::Task<> turn(std::size_t row);
    void ended(std::size_t row); // once for every row, in any order

private:
    class Turn;
    bool reached(std::size_t row) const { return row <= m_next; }

    Work& m_work;
    std::size_t m_next = 0; // the first row that has not ended
    std::set<std::size_t> m_ended;
    std::vector<Turn*> m_waiting;
};

// Those names of `items` that another item or another occupied slot of the working generation has too, each once. An
// item's own slot does not count.
QStringList DoubleNames(const RecorderSet& recorders, const std::vector<NVRDetectItem>& items);

// Logs in to a recorder, reads what it can do and its channels, and fills the slot or edit record. A recorder that is
// read anew keeps what it does not mention, and so does each channel whose camera has the same address; one with
// another camera starts fresh. True on success; on failure nothing is changed and the report's last message says why.
// The last report of a success is message 297, or 833 for Modify. Awaits the device's replies; a stop of the work ends
// it early. With an order its result is that of row `row`, and the end of the row is the caller's to tell.
QCoro::Task<bool> DetectNVR(DetectContext context, NVRDetectItem item, DetectReport report, Work& work,
                            DetectMode mode = DetectMode::Add, DetectOrder* order = nullptr, std::size_t row = 0);

// How a row of a list stands; the row counts from 0.
using ListReport = std::function<void(std::size_t row, const DetectStatus& status)>;

// Detects the recorders of a list side by side, a device with one request at a time. Slots, limits, repeated adds and
// messages come out as if one were detected after the other, in the list's order. Rows without an address are passed
// over. Result: for each row whether it was added, none where it was not begun.
QCoro::Task<std::vector<std::optional<bool>>> DetectList(DetectContext context, std::vector<NVRDetectItem> items,
                                                         ListReport report, Work& work);

// Whether the login reply's level and group allow this user for a family ("securitylevel=" and "group=" digits).
bool LoginLevelPasses(const QString& loginReply, const QString& family);
