#include "emap/EMapStore.h"

#include "store/TableAccess.h"
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
    const qint16 read =
        ReadRows(databases, u"EMapGroup"_s, u"Select * From EMapGroup  ORDER BY iMap_Type,iMap_ID ASC"_s, source,
                 [&](Recordset& rows) {
                     TableAccess<EMapGroupRow> access(rows, EMapGroupColumns, source);
                     for (; !rows.eof(); rows.moveNext())
                         access.read(maps.emplace_back());
                 });
    if (read == 0)
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
    return ReplaceRows(
               databases, u"EMapGroup"_s, source,
               [&] { OpenStatement(databases, u"Delete * From EMapGroup "_s, LockType::Optimistic); },
               [&](Recordset& rows) {
                   TableAccess<EMapGroupRow> access(rows, EMapGroupColumns, source);
                   for (const EMapGroupRow& map : set.stored) {
                       Trapped(source, [&] {
                           rows.addNew();
                           access.write(map);
                           rows.update();
                       });
                   }
               }) == 1;
}

void GetEMapIconEx(Databases& databases, EMapSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetEMapIconEx");
    ReadRows(databases, u"EMapIcon"_s, u"Select * From EMapIcon"_s, source, [&](Recordset& rows) {
        TableAccess<EMapIconRow> access(rows, EMapIconColumns, source);
        for (; !rows.eof(); rows.moveNext()) {
            Trapped(source, [&] {
                EMapIconRow row;
                access.read(row);
                IconOf(set.iconsStored, row) = row;
            });
        }
    });
}

void SaveEMapIcon(Databases& databases, const EMapSet& set, const RecorderSet& recorders)
{
    constexpr QLatin1String source("Module_DB_Access - SaveEMapIcon");
    ReplaceRows(
        databases, u"EMapIcon"_s, source,
        [&] { OpenStatement(databases, u"Delete * From EMapIcon"_s, LockType::Optimistic); },
        [&](Recordset& rows) {
            TableAccess<EMapIconRow> access(rows, EMapIconColumns, source);
            for (int slot = 0; slot < kMaxSVR; ++slot) {
                const SVRRecord& recorder = At(recorders.SVRList, slot);
                for (int channel = 0; channel < kMaxChannel && !recorder.sSVR_Name.isEmpty(); ++channel) {
                    if (At(recorder.channels, channel).sSub_CH_Name.isEmpty())
                        continue;
                    Trapped(source, [&] {
                        rows.addNew();
                        access.write({At(At(set.iconsStored, slot).channels, channel), static_cast<qint16>(slot + 1),
                                      static_cast<qint16>(channel + 1)});
                        rows.update();
                    });
                }
            }
        });
}

RecordFamily EMapGroupFamily(Databases& databases, EMapSet& set)
{
    return {FamilyOrder::EMapGroup, kPage,
            [&set] {
                return std::any_of(set.edit.begin(), set.edit.end(),
                                   [](const EMapGroupRow& map) { return map.bChanged; });
            },
            [&databases, &set] {
                for (EMapGroupRow& map : set.edit)
                    map.bChanged = false;
                set.stored = set.edit;
                SaveEMapGroup(databases, set);
            },
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
                for (EMapIconRecord& icons : set.iconsEdit)
                    icons.bChanged = false;
                set.iconsStored = set.iconsEdit;
                SaveEMapIcon(databases, set, recorders);
            },
            [&set] { set.iconsEdit = set.iconsStored; }};
}
