#include "emap/EMapStore.h"

#include "store/Family.h"
#include "store/tables/Tables.h"

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPage = 6;
constexpr int kCaption = 433; // "Map"
constexpr QLatin1String kGroupSource("Module_DB_Access - SaveEMapGroup");
constexpr QLatin1String kIconSource("Module_DB_Access - SaveEMapIcon");

bool OnPicture(double fraction)
{
    return fraction >= 0 && fraction <= 1;
}

// Tells of positions outside the picture; they are kept and drawn at its edge.
void TellPositions(QLatin1String source, int outside)
{
    if (outside > 0)
        LogTrap(source, u"%1 positions are outside the picture"_s.arg(outside));
}

// What the tree takes for granted: the root stands first, a recorder has one map, numbers of groups and of sub-maps
// are given once.
void SettleMaps(std::vector<EMapGroupRow>& maps, QLatin1String source)
{
    if (maps.empty() || maps.front().iMap_Type != kMapRoot)
        maps.insert(maps.begin(), RootMap());
    std::set<std::pair<qint16, qint16>> numbers;
    std::erase_if(maps, [&](EMapGroupRow& map) {
        if (numbers.emplace(map.iMap_Type, map.iMap_ID).second)
            return false;
        LogTrap(source, u"Two maps have the level %1 and the number %2"_s.arg(map.iMap_Type).arg(map.iMap_ID));
        if (map.iMap_Type != kMapGroup && map.iMap_Type != kMapSub)
            return true;
        map.iMap_ID = NextMapNumber(maps);
        numbers.emplace(map.iMap_Type, map.iMap_ID);
        return false;
    });
}

EMapIcon& IconOf(EMapIconTable& table, const EMapIconRow& row)
{
    return At(At(table, row.iSVR - 1).channels, row.iChannel - 1);
}

EMapIconRow IconRow(const EMapIconTable& table, int slot, int channel)
{
    return {At(At(table, slot).channels, channel), static_cast<qint16>(slot + 1), static_cast<qint16>(channel + 1)};
}

} // namespace

bool GetEMapGroup(Databases& databases, EMapSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetEMapGroup");
    std::vector<EMapGroupRow> maps;
    if (ReadTable(databases, u"EMapGroup"_s, u"Select * From EMapGroup  ORDER BY iMap_Type,iMap_ID ASC"_s,
                  EMapGroupColumns, source, [&](EMapGroupRow&& map) { maps.push_back(std::move(map)); }) == 0)
        return false;
    SettleMaps(maps, source);
    TellPositions(source, static_cast<int>(std::count_if(maps.begin(), maps.end(), [](const EMapGroupRow& map) {
                      return !OnPicture(map.dMapX) || !OnPicture(map.dMapY) || !OnPicture(map.dSMapX) ||
                             !OnPicture(map.dSMapY) || !OnPicture(map.dInfoX) || !OnPicture(map.dInfoY);
                  })));
    set.stored = maps;
    set.edit = std::move(maps);
    return true;
}

bool SaveEMapGroup(Databases& databases, const EMapSet& set)
{
    return ReplaceTable(databases, u"EMapGroup"_s, u"Delete * From EMapGroup "_s, EMapGroupColumns, kGroupSource,
                        [&](auto&& add) { std::for_each(set.stored.begin(), set.stored.end(), add); }) == 1;
}

bool GetEMapIconEx(Databases& databases, EMapSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetEMapIconEx");
    int outside = 0;
    const qint16 read = ReadTable(databases, u"EMapIcon"_s, u"Select * From EMapIcon"_s, EMapIconColumns, source,
                                  [&](EMapIconRow&& row) {
                                      IconOf(set.iconsStored, row) = row;
                                      outside += !OnPicture(row.dMapX) || !OnPicture(row.dMapY) ||
                                                 !OnPicture(row.dInfoX) || !OnPicture(row.dInfoY);
                                  });
    TellPositions(source, outside);
    return read == 1;
}

bool SaveEMapIcon(Databases& databases, const EMapSet& set, const RecorderSet& recorders)
{
    return ReplaceTable(
               databases, u"EMapIcon"_s, u"Delete * From EMapIcon"_s, EMapIconColumns, kIconSource, [&](auto&& add) {
                   for (int slot = 0; slot < kMaxSVR; ++slot) {
                       const SVRRecord& recorder = At(recorders.SVRList, slot);
                       for (int channel = 0; channel < kMaxChannel && !recorder.sSVR_Name.isEmpty(); ++channel) {
                           if (!At(recorder.channels, channel).sSub_CH_Name.isEmpty())
                               add(IconRow(set.iconsStored, slot, channel));
                       }
                   }
               }) == 1;
}

namespace {

// Keyed by level and number: places in the list move when maps come and go.
std::vector<FamilyRow<EMapGroupRow>> MapRows(const std::vector<EMapGroupRow>& maps)
{
    std::vector<FamilyRow<EMapGroupRow>> rows;
    for (const EMapGroupRow& map : maps)
        rows.push_back({QString::number(map.iMap_Type) + u'/' + QString::number(map.iMap_ID), map.sName, map});
    return rows;
}

std::vector<FamilyRow<EMapIconRow>> IconRows(const EMapIconTable& icons, const RecorderSet& recorders)
{
    std::vector<FamilyRow<EMapIconRow>> rows;
    ForEachChannel([&](int slot, int channel) {
        const QString label = ChannelLabel(recorders, slot, channel);
        rows.push_back({ChannelKey(slot, channel), label, IconRow(icons, slot, channel)});
    });
    return rows;
}

} // namespace

RecordFamily EMapGroupFamily(Databases& databases, EMapSet& set)
{
    return MakeFamily(
        databases, {FamilyOrder::EMapGroup, kPage, kCaption, {u"EMapGroup"_s}, kGroupSource},
        Generations<std::vector<EMapGroupRow>>{set.stored, set.edit},
        [&databases, &set]() -> qint16 { return SaveEMapGroup(databases, set); },
        [&set](auto& list) { Compare(list, MapRows(set.stored), MapRows(set.edit), EMapGroupColumns); });
}

RecordFamily EMapIconFamily(Databases& databases, EMapSet& set, const RecorderSet& recorders)
{
    return MakeFamily(
        databases, {FamilyOrder::EMapIcon, kPage, kCaption, {u"EMapIcon"_s}, kIconSource},
        Generations<EMapIconTable>{set.iconsStored, set.iconsEdit},
        [&databases, &set, &recorders]() -> qint16 { return SaveEMapIcon(databases, set, recorders); },
        [&set, &recorders](auto& list) {
            Compare(list, IconRows(set.iconsStored, recorders), IconRows(set.iconsEdit, recorders), EMapIconColumns);
        });
}
