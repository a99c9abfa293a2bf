#pragma once

#include <QVariant>
#include <array>
#include <functional>
#include <vector>

// The fixed order in which marked families reach the database.
enum class FamilyOrder
{
    BasicDefault,
    MotionROI,
    SVR,
    ObjectLossROI,
    TripwireLine,
    EventSettings,
    ScreenLayout,
    DefaultStart,
    Pattern,
    GroupPrivilege,
    User,
    EMapGroup,
    EMapIcon,
    VideoWall,
    ListenServer,
    SVD,
    EventHandling
};

inline constexpr int kSettingPages = 11; // pages 0 to 10 have records behind them

// One field in which the edit copy differs from the stored one.
struct Difference
{
    FamilyOrder family;
    QString record;      // what tells it from the family's other records: its name, else its number
    QLatin1String field; // its column
    QVariant before;     // stored
    QVariant after;      // edit
    int caption;         // number of the message that names the field, else the one that names the family's records
};

// A record family lives twice: stored (what the table holds) and edit (what the windows change). MakeFamily gives one
// (see Family.h).
struct RecordFamily
{
    FamilyOrder order;
    int page;                       // 0 to 10
    std::function<bool()> wasRead;  // all that its tables hold is known
    std::function<bool()> isMarked; // any record of the edit copy carries its modification flag
    std::function<std::vector<Difference>()> differences;
    std::function<void()> commit; // edit to stored, flags cleared, nothing written
    // Edit to stored and to the tables as one step, then the flags are cleared. False when that fails, or when what the
    // tables hold is not known: then both copies and the flags are as before, so the change is asked about at the close
    // and tried again with the next save.
    std::function<bool()> save;
    std::function<void()> revert;            // stored to edit
    std::function<bool()> countsAtExit = {}; // a marked family is asked about at the close; empty: always
};

// All families of the station, walked in FamilyOrder whatever the order of registration.
class FamilyRegister
{
public:
    void add(RecordFamily family);

    // Anything marked that counts at the close? The first hit ends the scan.
    bool ExitCheck() const;
    // Every edit copy from its stored one: once at start-up.
    void InitialSetValue() const;
    // The one road to the database: saves each marked family, then calls `pageSaved` for each touched page in page
    // order. A failed save logs by itself and counts as touched. True when all saves went through.
    bool SaveCheck(const std::function<void(int page)>& pageSaved) const;
    // Every family of a page back from its stored copy.
    void revertPage(int page) const;
    // What a save would change, of all families or of those of one page.
    std::vector<Difference> differences(int page = -1) const;

private:
    std::vector<RecordFamily> m_families;
};
