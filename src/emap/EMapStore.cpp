#include "emap/EMapStore.h"

#include "store/TableRows.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPage = 6;

EMapIcon& IconOf(EMapIconTable& table, const EMapIconRow& row)
{
    return At(At(table, row.iSVR - 1).channels, row.iChannel - 1);
}

} // namespace

bool GetEMapGroup(Databases& databases, EMapSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetEMapGroup");
    std::vector<EMapGroupRow> maps;
    if (ReadTable(databases, u"EMapGroup"_s, u"Select * From EMapGroup  ORDER BY iMap_Type,iMap_ID ASC"_s,
                  EMapGroupColumns, source, [&](EMapGroupRow&& map) { maps.push_back(std::move(map)); }) == 0)
        return false;
    if (maps.empty() || maps.front().iMap_Type != kMapRoot)
        maps.insert(maps.begin(), RootMap());
    set.stored = maps;
    set.edit = std::move(maps);
    return true;
}

bool SaveEMapGroup(Databases& databases, const EMapSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - SaveEMapGroup");
    return ReplaceTable(databases, u"EMapGroup"_s, u"Delete * From EMapGroup "_s, EMapGroupColumns, source,
                        [&](auto&& add) { std::for_each(set.stored.begin(), set.stored.end(), add); }) == 1;
}

bool GetEMapIconEx(Databases& databases, EMapSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetEMapIconEx");
    return ReadTable(databases, u"EMapIcon"_s, u"Select * From EMapIcon"_s, EMapIconColumns, source,
                     [&](EMapIconRow&& row) { IconOf(set.iconsStored, row) = row; }) == 1;
}

bool SaveEMapIcon(Databases& databases, const EMapSet& set, const RecorderSet& recorders)
{
    constexpr QLatin1String source("Module_DB_Access - SaveEMapIcon");
    return ReplaceTable(
               databases, u"EMapIcon"_s, u"Delete * From EMapIcon"_s, EMapIconColumns, source, [&](auto&& add) {
                   for (int slot = 0; slot < kMaxSVR; ++slot) {
                       const SVRRecord& recorder = At(recorders.SVRList, slot);
                       for (int channel = 0; channel < kMaxChannel && !recorder.sSVR_Name.isEmpty(); ++channel) {
                           if (!At(recorder.channels, channel).sSub_CH_Name.isEmpty())
                               add({At(At(set.iconsStored, slot).channels, channel), static_cast<qint16>(slot + 1),
                                    static_cast<qint16>(channel + 1)});
                       }
                   }
               }) == 1;
}

RecordFamily EMapGroupFamily(Databases& databases, EMapSet& set)
{
    return {
        FamilyOrder::EMapGroup, kPage,
        [&set] {
            return std::any_of(set.edit.begin(), set.edit.end(), [](const EMapGroupRow& map) { return map.bChanged; });
        },
        [&databases, &set] { return SaveMarked(set.stored, set.edit, [&] { return SaveEMapGroup(databases, set); }); },
        [&set] { set.edit = set.stored; }};
}

RecordFamily EMapIconFamily(Databases& databases, EMapSet& set, const RecorderSet& recorders)
{
    return {FamilyOrder::EMapIcon, kPage,
            [&set] {
                return std::any_of(set.iconsEdit.begin(), set.iconsEdit.end(),
                                   [](const EMapIconRecord& icons) { return icons.bChanged; });
            },
            [&databases, &set, &recorders] {
                return SaveMarked(set.iconsStored, set.iconsEdit,
                                  [&] { return SaveEMapIcon(databases, set, recorders); });
            },
            [&set] { set.iconsEdit = set.iconsStored; }};
}
