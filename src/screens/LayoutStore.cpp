#include "screens/LayoutStore.h"

#include "screens/ScreenLists.h"
#include "store/Family.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPage = 7;
constexpr int kCaption = 458; // "Screen Layout"
constexpr QLatin1String kGetSource("Module_DB_Access - GetScreenLayout");
constexpr QLatin1String kSaveSource("Module_DB_Access - SaveScreenLayout");
constexpr qint16 kFirstWallScreen = 2; // screen 1 is never a wall's

std::size_t WallsFor(std::size_t monitors)
{
    return std::clamp<std::size_t>(monitors - 1, 1, kWallLimit);
}

void ReadLists(ScreenLayoutRow& row, std::size_t monitors)
{
    row.aFullScreen = ToNumbers(row.Form_FullScreen, 0, static_cast<qsizetype>(monitors), kGetSource);
    row.aFullScreen.resize(monitors, 0);
    row.aVideoWall.assign(1, kNoScreen);
    if (monitors < 2)
        return;
    const std::size_t walls = WallsFor(monitors);
    row.aVideoWall = ToNumbers(row.Form_VideoWall, kNoScreen, static_cast<qsizetype>(walls), kGetSource);
    row.aVideoWall.resize(walls, kNoScreen);
    for (qint16& screen : row.aVideoWall) {
        if (screen < kFirstWallScreen)
            screen = kNoScreen;
    }
}

// A surface that the list does not name opens on the screen of its own number; that is no repair.
void FillSurfaces(ScreenLayoutRow& row)
{
    const auto named = row.Form_FullScreen.isEmpty() ? 0 : row.Form_FullScreen.count(u',') + 1;
    for (std::size_t i = static_cast<std::size_t>(named); i < row.aFullScreen.size(); ++i)
        row.aFullScreen[i] = static_cast<qint16>(i + 1);
}

bool RepairScreens(ScreenLayoutRow& row, qint16 monitors)
{
    bool repaired = false;
    const auto repair = [&](qint16& screen, bool wrong, qint16 instead) {
        if (wrong)
            screen = instead;
        repaired = repaired || wrong;
    };
    const auto isNone = [&](qint16 screen) { return screen < kFirstScreen || screen > monitors; };
    for (qint16* screen : {&row.Form_MainViewer, &row.Form_EventMonitor, &row.Form_EMapView, &row.Form_PlayBack,
                           &row.Form_Console, &row.Form_SVDConsole})
        repair(*screen, isNone(*screen), kFirstScreen);
    for (std::size_t i = 0; i < row.aFullScreen.size(); ++i)
        repair(row.aFullScreen[i], isNone(row.aFullScreen[i]), static_cast<qint16>(i + 1));
    for (auto wall = row.aVideoWall.begin(); wall != row.aVideoWall.end(); ++wall) {
        const bool twice = *wall != kNoScreen && std::find(row.aVideoWall.begin(), wall, *wall) != wall;
        repair(*wall, *wall > monitors || twice, kNoScreen);
    }
    return repaired;
}

ScreenLayoutTableRow TableRow(const ScreenLayoutRow& layout)
{
    ScreenLayoutTableRow row = layout;
    row.Form_FullScreen = ToList(layout.aFullScreen);
    row.Form_VideoWall = ToList(layout.aVideoWall);
    return row;
}

} // namespace

bool GetScreenLayout(Databases& databases, ScreenSet& set)
{
    ScreenLayoutRow layout;
    bool found = false;
    const auto take = [&](ScreenLayoutTableRow&& row) {
        if (found)
            return;
        found = true;
        static_cast<ScreenLayoutTableRow&>(layout) = std::move(row);
        ReadLists(layout, static_cast<std::size_t>(set.iMonitorCount));
        FillSurfaces(layout);
    };
    const bool read = ReadTable(databases, u"ScreenLayout"_s, u"Select * From ScreenLayout"_s, ScreenLayoutColumns,
                                kGetSource, take) == 1;
    if (read && !found) {
        ReadLists(layout, static_cast<std::size_t>(set.iMonitorCount));
        FillSurfaces(layout);
    }
    layout.bChanged = RepairScreens(layout, set.iMonitorCount);
    if (layout.bChanged)
        LogTrap(kGetSource, u"Screens that are not there were replaced"_s);
    set.layoutRepaired = layout.bChanged;
    set.layoutStored = std::move(layout);
    return read;
}

bool SaveScreenLayout(Databases& databases, const ScreenSet& set)
{
    return AsOneStep(databases, kSaveSource, [&]() -> qint16 {
               if (OpenRecset(databases, u"ScreenLayout"_s) == 0)
                   return 0;
               Recordset& rows = *databases.DBRec;
               TableAccess<ScreenLayoutTableRow> access(rows, ScreenLayoutColumns, kSaveSource);
               rows.moveFirst();
               if (rows.eof())
                   throw StoreError(u"ScreenLayout has no row"_s);
               access.write(TableRow(set.layoutStored));
               rows.update();
               rows.close();
               return 1;
           }) == 1;
}

RecordFamily ScreenLayoutFamily(Databases& databases, ScreenSet& set)
{
    const auto row = [](const ScreenLayoutRow& layout) {
        return std::vector<FamilyRow<ScreenLayoutTableRow>>{{u"1"_s, {}, TableRow(layout)}};
    };
    return MakeFamily(
        databases, {FamilyOrder::ScreenLayout, kPage, kCaption, {u"ScreenLayout"_s}, kSaveSource},
        Generations<ScreenLayoutRow>{set.layoutStored, set.layoutEdit},
        [&databases, &set]() -> qint16 { return SaveScreenLayout(databases, set); },
        [&set, row](auto& list) { Compare(list, row(set.layoutStored), row(set.layoutEdit), ScreenLayoutColumns); });
}
