#include "screens/ScreenRules.h"

#include "screens/ScreenLists.h"
#include "support/Conversions.h"
#include "support/TileText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint16 kFirstWallScreen = 2;

qint16& ScreenIn(ScreenLayoutRow& layout, const ScreenItem& item)
{
    if (item.program >= 0)
        return layout.*At(kScreenPrograms, item.program).screen;
    return At(layout.aFullScreen, item.surface);
}

// What does not start any more: true when it did, or when a surface had a sequence.
bool ClearMark(DefaultStartRow& start, const ScreenItem& item, bool mode)
{
    if (item.program >= 0)
        return std::exchange(start.*At(kScreenPrograms, item.program).mark, qint16(0)) != 0;
    const bool started = std::exchange(At(start.aFullScreen, item.surface), qint16(0)) != 0;
    return (mode && std::exchange(At(start.aFullScreenMode, item.surface), qint16(0)) != 0) || started;
}

} // namespace

ScreenItem ItemOfKey(const QString& key)
{
    for (std::size_t i = 0; i < kScreenPrograms.size(); ++i) {
        if (key == kScreenPrograms[i].key)
            return {static_cast<int>(i), -1};
    }
    const std::optional<qint16> surface =
        key.startsWith(kSurfaceKey) ? NumberOf(QStringView(key).mid(kSurfaceKey.size())) : std::nullopt;
    return {-1, surface && *surface >= 0 ? *surface : -1};
}

QString KeyOf(const ScreenItem& item)
{
    return item.program >= 0 ? QString(At(kScreenPrograms, item.program).key)
                             : kSurfaceKey + QString::number(item.surface);
}

qint16 ScreenOfKey(const QString& key, qint16 monitors)
{
    const std::optional<qint16> screen =
        key.startsWith(kScreenKey) ? NumberOf(QStringView(key).mid(kScreenKey.size())) : std::nullopt;
    return screen && *screen >= kFirstScreen && *screen <= monitors ? *screen : qint16(0);
}

std::vector<ScreenItem> AllItems(const ScreenLayoutRow& layout)
{
    std::vector<ScreenItem> items;
    for (int program = 0; program < static_cast<int>(kScreenPrograms.size()); ++program)
        items.push_back({program, -1});
    for (int surface = 0; surface < static_cast<int>(layout.aFullScreen.size()); ++surface)
        items.push_back({-1, surface});
    return items;
}

qint16 ScreenOf(const ScreenLayoutRow& layout, const ScreenItem& item)
{
    return item.program >= 0 ? layout.*At(kScreenPrograms, item.program).screen : At(layout.aFullScreen, item.surface);
}

qint16 ShownScreenOf(const ScreenLayoutRow& layout, const ScreenItem& item)
{
    const qint16 screen = ScreenOf(layout, item);
    return WallOnScreen(layout, screen) < 0 ? screen : kFirstScreen;
}

bool Starts(const DefaultStartRow& start, const ScreenItem& item)
{
    if (item.program >= 0)
        return start.*At(kScreenPrograms, item.program).mark > 0;
    return item.surface < static_cast<int>(start.aFullScreen.size()) && At(start.aFullScreen, item.surface) > 0;
}

int WallOnScreen(const ScreenLayoutRow& layout, qint16 screen)
{
    const auto wall = std::find(layout.aVideoWall.begin(), layout.aVideoWall.end(), screen);
    return wall == layout.aVideoWall.end() || screen < kFirstWallScreen
               ? -1
               : static_cast<int>(wall - layout.aVideoWall.begin());
}

bool CheckFristScrHasForm(const ScreenLayoutRow& layout, const DefaultStartRow& start)
{
    const std::vector<ScreenItem> items = AllItems(layout);
    return std::any_of(items.begin(), items.end(), [&](const ScreenItem& item) {
        return ScreenOf(layout, item) == kFirstScreen && Starts(start, item);
    });
}

void KeepFirstScreen(ScreenSet& set)
{
    if (CheckFristScrHasForm(set.layoutEdit, set.startEdit))
        return;
    set.startEdit.iForm_MainViewer = 1;
    set.startEdit.bChanged = true;
}

DropAnswer CanMove(const ScreenSet& set, const ScreenItem& item, qint16 screen)
{
    if (item.isNone() || item.surface >= static_cast<int>(set.layoutEdit.aFullScreen.size()) || screen < kFirstScreen ||
        screen > set.iMonitorCount)
        return DropAnswer::Nothing;
    if (WallOnScreen(set.layoutEdit, screen) >= 0)
        return DropAnswer::WallScreen;
    if (item.program >= 0 && At(kScreenPrograms, item.program).firstScreenOnly && screen != kFirstScreen)
        return DropAnswer::FirstScreenOnly;
    return DropAnswer::Allowed;
}

bool MoveToScreen(ScreenSet& set, const ScreenItem& item, qint16 screen)
{
    if (CanMove(set, item, screen) != DropAnswer::Allowed || ScreenOf(set.layoutEdit, item) == screen)
        return false;
    ScreenIn(set.layoutEdit, item) = screen;
    set.layoutEdit.bChanged = true;
    if (item.program < 0 || !At(kScreenPrograms, item.program).firstScreenOnly) {
        ClearMark(set.startEdit, item, true);
        set.startEdit.bChanged = true;
    }
    if (screen != kFirstScreen)
        KeepFirstScreen(set);
    return true;
}

qint16 GetNewScreenID(const ScreenLayoutRow& layout, qint16 monitors)
{
    for (qint16 screen = kFirstWallScreen; screen <= monitors; ++screen) {
        if (WallOnScreen(layout, screen) < 0)
            return screen;
    }
    return kNoScreen;
}

bool CheckScreenLayout(ScreenSet& set, qint16 screen)
{
    bool moved = false;
    for (const ScreenItem& item : AllItems(set.layoutEdit)) {
        if (ScreenOf(set.layoutEdit, item) != screen)
            continue;
        ScreenIn(set.layoutEdit, item) = kFirstScreen;
        set.layoutEdit.bChanged = moved = true;
        if (ClearMark(set.startEdit, item, false))
            set.startEdit.bChanged = true;
    }
    return moved;
}

qint16 SwitchWallOn(ScreenSet& set, int wall, bool& moved)
{
    moved = false;
    const qint16 screen = GetNewScreenID(set.layoutEdit, set.iMonitorCount);
    if (screen == kNoScreen)
        return kNoScreen;
    At(set.layoutEdit.aVideoWall, wall) = screen;
    set.layoutEdit.bChanged = true;
    VideoWallRow& row = At(set.wallsEdit, wall);
    if (!IsTile(TileOfText(row.sScreenPosition)))
        row.sScreenPosition = TextOfTile(QRectF(wall / qreal(kWallLimit), 0, 1 / qreal(kWallLimit), 1));
    row.bChanged = true;
    moved = CheckScreenLayout(set, screen);
    return screen;
}

void SwitchWallOff(ScreenSet& set, int wall)
{
    At(set.layoutEdit.aVideoWall, wall) = kNoScreen;
    set.layoutEdit.bChanged = true;
    VideoWallRow& row = At(set.wallsEdit, wall);
    row.aChannel.clear();
    row.bChanged = true;
    if (WallsOn(set.layoutEdit) > 0)
        return;
    if (std::exchange(set.startEdit.iForm_Console, qint16(0)) != 0)
        set.startEdit.bChanged = true;
    KeepFirstScreen(set);
}

int WallsOn(const ScreenLayoutRow& layout)
{
    return static_cast<int>(std::count_if(layout.aVideoWall.begin(), layout.aVideoWall.end(),
                                          [](qint16 screen) { return screen != kNoScreen; }));
}
