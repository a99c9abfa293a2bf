#pragma once

#include "device/bridge/Form_COM.h"
#include "recorders/data/RecorderEvents.h"
#include "recorders/data/RecorderSet.h"
#include "store/records/UserRecords.h"

#include <functional>
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
    std::function<bool()> stopped = {};            // the operator wants no more: the run ends at its next step
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
// Blanks round name and address do not count. Resolves a host name, so it may wait (at most 10 seconds).
ManualFault ValidateManualNVR(const QString& name, const QString& address, const QString& port);

// Those names of `items` that another item or another occupied slot of the working generation has too, each once. An
// item's own slot does not count.
QStringList DoubleNames(const RecorderSet& recorders, const std::vector<NVRDetectItem>& items);

// Logs in to a recorder, reads what it can do and its channels, and fills the slot or edit record. A recorder that is
// read anew keeps what it does not mention, and so does each channel whose camera has the same address; one with
// another camera starts fresh. True on success; on failure nothing is changed and the report's last message says why.
// The last report of a success is message 297, or 833 for Modify. Waits on the device's replies (platform/Wait.h); ends
// early when Closing is set or the operator stops it.
bool DetectNVR(const DetectContext& context, const NVRDetectItem& item, const DetectReport& report,
               DetectMode mode = DetectMode::Add);

// Whether the login reply's level and group allow this user for a family ("securitylevel=" and "group=" digits).
bool LoginLevelPasses(const QString& loginReply, const QString& family);
