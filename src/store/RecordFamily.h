#pragma once

#include <array>
#include <functional>
#include <utility>
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

// A record family lives twice: stored (what the table holds) and edit (what the windows change).
struct RecordFamily
{
    FamilyOrder order;
    int page;                       // 0 to 10
    std::function<bool()> isMarked; // any record of the edit copy carries its modification flag
    std::function<bool()> save;     // marked records: edit to stored, flags cleared, table written; see SaveMarked
    std::function<void()> revert;   // stored to edit
};

// All families of the station, walked in FamilyOrder whatever the order of registration.
class FamilyRegister
{
public:
    void add(RecordFamily family);

    // Anything marked? The first hit ends the scan.
    bool ExitCheck() const;
    // Every edit copy from its stored one: once at start-up.
    void InitialSetValue() const;
    // The one road to the database: saves each marked family, then calls `pageSaved` for each touched page in page
    // order. A failed save logs by itself and counts as touched.
    void SaveCheck(const std::function<void(int page)>& pageSaved) const;
    // Every family of a page back from its stored copy.
    void revertPage(int page) const;

private:
    std::vector<RecordFamily> m_families;
};

inline constexpr auto kClearMark = [](auto& record) { record.bChanged = false; };

// The save of a family whose generations are `stored` and `edit`; `clear` takes a record's mark away. `write` writes
// the stored generation, which is the edit one by then. When that fails both are as before, so the change stays marked,
// is asked about at the close and is tried again with the next save. True when it was written.
template <class Records, class Write, class Clear = decltype(kClearMark)>
bool SaveMarked(Records& stored, Records& edit, Write&& write, const Clear& clear = kClearMark)
{
    Records before = std::exchange(stored, edit);
    for (auto& record : stored)
        clear(record);
    if (write() == 0) {
        stored = std::move(before);
        return false;
    }
    edit = stored;
    return true;
}
