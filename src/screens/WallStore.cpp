#include "screens/WallStore.h"

#include "screens/OwnedRow.h"
#include "screens/ScreenLists.h"
#include "store/Family.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPage = 9;
constexpr int kCaption = 752; // "Video Wall"
constexpr QLatin1String kGetSource("Module_DB_Access - GetVideoWall");
constexpr QLatin1String kSaveSource("Module_DB_Access - SaveVideoWall");

VideoWallTableRow TableRow(const VideoWallRow& wall)
{
    VideoWallTableRow row = wall;
    row.Channel = ToList(wall.aChannel);
    return row;
}

} // namespace

bool GetVideoWall(Databases& databases, ScreenSet& set, const QString& user)
{
    set.wallsStored.clear();
    if (set.iMonitorCount < 2)
        return true;
    std::vector<bool> found(set.layoutStored.aVideoWall.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        VideoWallRow& wall = set.wallsStored.emplace_back();
        wall.sLoginUser = user;
        wall.VideoWallIndex = static_cast<qint16>(i + 1);
        wall.iSplit = wall.iLastSplit = kUsualSplit;
    }
    int twice = 0;
    const auto take = [&](VideoWallTableRow&& row) {
        const auto place = static_cast<std::size_t>(row.VideoWallIndex - 1);
        if (row.VideoWallIndex < 1 || place >= found.size())
            return; // of a wall that this station has no monitor for
        twice += found[place];
        if (found[place])
            return;
        found[place] = true;
        VideoWallRow& wall = set.wallsStored[place];
        static_cast<VideoWallTableRow&>(wall) = std::move(row);
        wall.aChannel = ToNumbers(wall.Channel, kEmptyPane, kMostPanes, kGetSource);
        for (qint16& channel : wall.aChannel)
            channel = channel < kChannelsOfStation ? std::max(channel, kEmptyPane) : kEmptyPane;
    };
    const bool read = ReadTable(databases, u"VideoWall"_s, u"Select * From VideoWall Where sLoginUser=?"_s,
                                VideoWallColumns, kGetSource, take, {}, {Bound(user)}) == 1;
    if (twice > 0)
        LogTrap(kGetSource, u"VideoWall holds rows of one wall twice; the first one counts"_s);
    return read;
}

qint16 SaveVideoWall(Databases& databases, const VideoWallRow& wall, const QString& user)
{
    VideoWallTableRow row = TableRow(wall);
    row.sLoginUser = user;
    return WriteOwnedRow(databases, u"VideoWall"_s,
                         u"Select * From VideoWall Where sLoginUser=? and VideoWallIndex=?"_s,
                         {Bound(user), wall.VideoWallIndex}, VideoWallColumns, kSaveSource, row);
}

RecordFamily VideoWallFamily(Databases& databases, ScreenSet& set)
{
    const auto name = [](const VideoWallRow& wall) { return u"#%1"_s.arg(wall.VideoWallIndex); };
    const auto rows = [name](const std::vector<VideoWallRow>& walls) {
        std::vector<FamilyRow<VideoWallTableRow>> list;
        for (const VideoWallRow& wall : walls)
            list.push_back({QString::number(wall.VideoWallIndex), name(wall), TableRow(wall)});
        return list;
    };
    RecordFamily family = MakeFamily(
        databases, {FamilyOrder::VideoWall, kPage, kCaption, {u"VideoWall"_s}, kSaveSource},
        Generations<std::vector<VideoWallRow>>{set.wallsStored, set.wallsEdit},
        [&databases, &set]() -> qint16 {
            for (std::size_t i = 0; i < set.wallsStored.size(); ++i) {
                if (At(set.wallsEdit, i).bChanged && SaveVideoWall(databases, set.wallsStored[i], CurrentUser()) == 0)
                    return 0;
            }
            return 1;
        },
        [&set, rows](auto& list) { Compare(list, rows(set.wallsStored), rows(set.wallsEdit), VideoWallColumns); });
    family.countsAtExit = [] { return false; };
    return family;
}
