#include "users/GroupStore.h"

#include "store/Family.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

GroupSet::GroupSet()
{
    for (std::size_t i = 0; i < stored.size(); ++i)
        stored[i].GroupID = static_cast<qint16>(i + 1);
    edit = stored;
}

qint16 GetGroupPrivilege(Databases& databases, GroupSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetGroupPrivilege");
    return ReadTable(databases, u"GroupPrivilege"_s, u"Select * From GroupPrivilege"_s, GroupPrivilegeColumns, source,
                     [&](GroupPrivilegeRecord&& row) {
                         GroupPrivilegeRecord& record = At(set.stored, row.GroupID - 1);
                         row.CHPrivilege = std::move(record.CHPrivilege);
                         record = std::move(row);
                     });
}

qint16 GetNVRPrivilege(Databases& databases, GroupSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetNVRPrivilege");
    return ReadTable(databases, u"NVRPrivilege"_s, u"Select * From NVRPrivilege"_s, NVRPrivilegeColumns, source,
                     [&](NVRPrivilegeRow&& row) {
                         At(At(set.stored, row.GroupID - 1).CHPrivilege, row.NVRID - 1) = row.CHPrivilege;
                     });
}

qint16 SaveGroupPrivilege(Databases& databases, const GroupSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - SaveGroupPrivilege");
    return ReplaceTable(databases, u"GroupPrivilege"_s, u"Delete * From GroupPrivilege"_s, GroupPrivilegeColumns,
                        source, [&](auto&& add) { std::for_each(set.stored.begin(), set.stored.end(), add); });
}

qint16 SaveNVRPrivilege(Databases& databases, const GroupSet& set, const SlotInUse& inUse)
{
    constexpr QLatin1String source("Module_DB_Access - SaveNVRPrivilege");
    return ReplaceTable(databases, u"NVRPrivilege"_s, u"Delete * From NVRPrivilege"_s, NVRPrivilegeColumns, source,
                        [&](auto&& add) {
                            for (int group = 0; group < kGroups; ++group) {
                                for (int slot = 0; slot < kMaxSVR; ++slot) {
                                    if (inUse(slot))
                                        add({group + 1, slot + 1, At(At(set.stored, group).CHPrivilege, slot)});
                                }
                            }
                        });
}

void GrantNewRecorder(GroupSet& set, int slot)
{
    const QString text = u"1:"_s + QStringList(kMaxChannel, u"15"_s).join(u',');
    for (auto* generation : {&set.stored, &set.edit}) {
        for (GroupPrivilegeRecord& group : *generation)
            At(group.CHPrivilege, slot) = text;
    }
}

namespace {

using Groups = std::array<GroupPrivilegeRecord, kGroups>;

std::vector<FamilyRow<NVRPrivilegeRow>> RightsRows(const Groups& groups)
{
    std::vector<FamilyRow<NVRPrivilegeRow>> rows;
    for (int group = 0; group < kGroups; ++group) {
        const GroupPrivilegeRecord& record = At(groups, group);
        for (int slot = 0; slot < kMaxSVR; ++slot)
            rows.push_back({u"%1/%2"_s.arg(group).arg(slot),
                            record.Name + u", NVR "_s + QString::number(slot + 1),
                            {group + 1, slot + 1, At(record.CHPrivilege, slot)}});
    }
    return rows;
}

} // namespace

RecordFamily GroupFamily(Databases& databases, GroupSet& set, SlotInUse inUse)
{
    const auto name = [](const GroupPrivilegeRecord& group) { return group.Name; };
    return MakeFamily(
        databases,
        {FamilyOrder::GroupPrivilege,
         3,
         423,
         {u"GroupPrivilege"_s, u"NVRPrivilege"_s},
         "Module_DB_Access - SaveGroupPrivilege"_L1},
        Generations<Groups>{set.stored, set.edit},
        [&databases, &set, inUse = std::move(inUse)]() -> qint16 {
            return SaveGroupPrivilege(databases, set) == 1 ? SaveNVRPrivilege(databases, set, inUse) : qint16(0);
        },
        [&set, name](auto& list) {
            Compare(list, RowsByPlace(set.stored, name), RowsByPlace(set.edit, name), GroupPrivilegeColumns);
            Compare(list, RightsRows(set.stored), RightsRows(set.edit), NVRPrivilegeColumns);
        });
}
