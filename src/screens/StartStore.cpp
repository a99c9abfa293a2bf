#include "screens/StartStore.h"

#include "screens/OwnedRow.h"
#include "screens/ScreenLists.h"
#include "store/Family.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPage = 8;
constexpr int kCaption = 39; // "Startup assign setting"
constexpr QLatin1String kGetSource("Module_DB_Access - GetDefaultStart");
constexpr QLatin1String kSaveSource("Module_DB_Access - SaveDefaultStart");
constexpr QLatin1String kSelection("Select * From DefaultStart Where sOwner=?");

// "mark:mode" an entry; what is no number reads as 0 and costs the list one log line.
void ReadSurfaces(DefaultStartRow& start, std::size_t monitors)
{
    start.aFullScreen.assign(monitors, 0);
    start.aFullScreenMode.assign(monitors, 0);
    if (start.sForm_FullScreen.isEmpty())
        return;
    bool told = false;
    std::size_t i = 0;
    for (const QStringView entry : QStringView(start.sForm_FullScreen).tokenize(u',')) {
        if (i >= monitors)
            break;
        const qsizetype colon = entry.indexOf(u':');
        TrappedOnce(told, kGetSource, [&] { start.aFullScreen[i] = ToInt16(colon < 0 ? entry : entry.left(colon)); });
        if (colon >= 0)
            TrappedOnce(told, kGetSource, [&] { start.aFullScreenMode[i] = ToInt16(entry.mid(colon + 1)); });
        ++i;
    }
}

bool NothingStarts(const DefaultStartRow& start)
{
    return start.iForm_MainViewer == 0 && start.iForm_EventMonitor == 0 && start.iForm_EMapView == 0 &&
           start.iForm_PlayBack == 0 && start.iForm_Console == 0 && start.iForm_SVDConsole == 0 &&
           std::all_of(start.aFullScreen.begin(), start.aFullScreen.end(), [](qint16 mark) { return mark == 0; });
}

} // namespace

DefaultStartRow FirstStart(const QString& user, int monitors)
{
    DefaultStartRow start;
    start.sOwner = user;
    start.MVChannel = EmptyPanes(kMostPanes);
    start.aFullScreen.assign(static_cast<std::size_t>(std::max(1, monitors)), 0);
    start.aFullScreenMode = start.aFullScreen;
    return start;
}

DefaultStartTableRow TableRowOf(const DefaultStartRow& start)
{
    DefaultStartTableRow row = start;
    QStringList surfaces;
    for (std::size_t i = 0; i < start.aFullScreen.size(); ++i)
        surfaces << u"%1:%2"_s.arg(start.aFullScreen[i]).arg(start.aFullScreenMode[i]);
    row.sForm_FullScreen = surfaces.join(u',');
    return row;
}

bool GetDefaultStart(Databases& databases, ScreenSet& set, const QString& user)
{
    DefaultStartRow start = FirstStart(user, set.iMonitorCount);
    int found = 0;
    const auto take = [&](DefaultStartTableRow&& row) {
        if (found++ > 0)
            return;
        static_cast<DefaultStartTableRow&>(start) = std::move(row);
        ReadSurfaces(start, static_cast<std::size_t>(set.iMonitorCount));
    };
    const bool read = ReadTable(databases, u"DefaultStart"_s, kSelection, DefaultStartColumns, kGetSource, take,
                                static_cast<const DefaultStartTableRow&>(start), {Bound(user)}) == 1;
    if (found > 1)
        LogTrap(kGetSource, u"DefaultStart holds %1 rows of one owner; the first one counts"_s.arg(found));
    const DefaultStartRow fresh = start;
    Trapped("Module_DB_Access - CheckDefaultStartValue", [&] { CheckDefaultStartValue(start); });
    if (set.layoutRepaired) { // what stood on the screens that are gone starts no more
        start.iForm_MainViewer = 1;
        std::fill(start.aFullScreen.begin(), start.aFullScreen.end(), qint16(0));
        std::fill(start.aFullScreenMode.begin(), start.aFullScreenMode.end(), qint16(0));
        start.bChanged = true;
    }
    if (read && found == 0)
        WriteOwnedRow(databases, u"DefaultStart"_s, kSelection, {Bound(user)}, DefaultStartColumns, kGetSource,
                      TableRowOf(fresh));
    start.bChanged = start.bChanged || found > 1;
    set.startStored = std::move(start);
    return read;
}

bool SaveDefaultStart(Databases& databases, const ScreenSet& set, const QString& user)
{
    DefaultStartTableRow row = TableRowOf(set.startStored);
    row.sOwner = user;
    return WriteOwnedRow(databases, u"DefaultStart"_s, kSelection, {Bound(user)}, DefaultStartColumns, kSaveSource,
                         row) == 1;
}

void CheckDefaultStartValue(DefaultStartRow& start)
{
    if (!start.bFixStart && !start.bSEQStart)
        start.bFixStart = true;
    if (start.iLastSplit == 0)
        start.iLastSplit = kUsualSplit;
    if (start.MVChannel.isEmpty())
        start.MVChannel = EmptyPanes(kMostPanes);
    if (start.sStartPatternName == "N/A"_L1)
        start.sStartPatternName.clear();
    if (NothingStarts(start))
        start.iForm_MainViewer = 1;
}

RecordFamily DefaultStartFamily(Databases& databases, ScreenSet& set)
{
    const auto row = [](const DefaultStartRow& start) {
        return std::vector<FamilyRow<DefaultStartTableRow>>{{u"1"_s, start.sOwner, TableRowOf(start)}};
    };
    return MakeFamily(
        databases, {FamilyOrder::DefaultStart, kPage, kCaption, {u"DefaultStart"_s}, kSaveSource},
        Generations<DefaultStartRow>{set.startStored, set.startEdit},
        [&databases, &set]() -> qint16 { return SaveDefaultStart(databases, set, CurrentUser()); },
        [&set, row](auto& list) { Compare(list, row(set.startStored), row(set.startEdit), DefaultStartColumns); });
}

namespace {

constexpr QLatin1String kSurface(" Where UserName=? AND FullscreenID=?");

// Calls `work` with the table's columns and the ends of its procedures' names.
template <class Work>
bool WithColumns(int mode, Work&& work)
{
    switch (mode) {
    case SequenceByChannel:
        return work(FullscreenSEQByChannelColumns, "Module_DB_Access - GetMyFullscreenSEQByCH"_L1,
                    "Module_DB_Access - SaveFullscreenSEQByCH"_L1);
    case SequenceByNVR:
        return work(FullscreenSEQByNVRColumns, "Module_DB_Access - GetMyFullscreenSEQByNVR"_L1,
                    "Module_DB_Access - SaveFullscreenSEQByNVR"_L1);
    default:
        return work(FullscreenSEQPatternColumns, "Module_DB_Access - GetMyFullscreenSEQByPattern"_L1,
                    "Module_DB_Access - SaveFullscreenSEQByNVR"_L1);
    }
}

} // namespace

const SequenceTable& SequenceTableOf(int mode)
{
    return At(kSequenceTables, mode - SequenceByChannel);
}

bool GetMyFullscreenSEQ(Databases& databases, int mode, const QString& user, int surface, FullscreenSEQRow& row)
{
    const QString table(SequenceTableOf(mode).name);
    row = {};
    row.ID = -1;
    row.UserName = user;
    row.FullscreenID = static_cast<qint16>(surface);
    return WithColumns(mode, [&](const auto& columns, QLatin1String source, QLatin1String) {
        int found = 0;
        const auto take = [&](FullscreenSEQRow&& read) {
            if (found++ == 0)
                row = std::move(read);
        };
        FullscreenSEQRow fresh = row;
        fresh.ID = 1;
        const bool ok = ReadTable(databases, table, u"Select * From "_s + table + kSurface, columns, source, take,
                                  fresh, {Bound(user), surface}) == 1;
        if (found > 1)
            LogTrap(source, u"%1 holds %2 rows of one surface; the first one counts"_s.arg(table).arg(found));
        return ok;
    });
}

bool SaveFullscreenSEQ(Databases& databases, int mode, const FullscreenSEQRow& row)
{
    const QString table(SequenceTableOf(mode).name);
    return WithColumns(mode, [&](const auto& columns, QLatin1String, QLatin1String source) {
        if (databases.unread.contains(table)) {
            LogTrap(source, table + u" could not be read and is not written over"_s);
            return false;
        }
        FullscreenSEQRow written = row;
        written.ID = row.ID < 0 ? qint16(1) : row.ID;
        return WriteOwnedRow(databases, table, u"Select * From "_s + table + kSurface,
                             {Bound(row.UserName), row.FullscreenID}, columns, source, written) == 1;
    });
}

bool HasContent(const QString& list, bool displayAll)
{
    return displayAll || IsSequence(list);
}

bool CheckFSSEQContent(Databases& databases, int mode, const QString& user, int surface)
{
    FullscreenSEQRow row;
    GetMyFullscreenSEQ(databases, mode, user, surface, row);
    return HasContent(row.*SequenceTableOf(mode).list, row.DisplayAll);
}
