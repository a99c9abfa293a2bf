#include "users/GroupStore.h"

#include "store/TableAccess.h"
#include "store/TableRows.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Opens the table's whole selection and hands it to `eachRow`.
template <class EachRow>
qint16 ReadAll(Databases& databases, const QString& table, QLatin1String source, EachRow&& eachRow)
{
    return ReadRows(databases, table, u"Select * From "_s + table, source, std::forward<EachRow>(eachRow));
}

// Deletes every row, then lets `addRows` write the new ones.
template <class AddRows>
qint16 ReplaceAll(Databases& databases, const QString& table, QLatin1String source, AddRows&& addRows)
{
    return ReplaceRows(
        databases, table, source, [&] { DeleteAllRows(databases, table); }, std::forward<AddRows>(addRows));
}

} // namespace

qint16 GetGroupPrivilege(Databases& databases, GroupSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetGroupPrivilege");
    return ReadAll(databases, u"GroupPrivilege"_s, source, [&](Recordset& rows) {
        TableAccess<GroupPrivilegeRecord> access(rows, GroupPrivilegeColumns, source);
        for (; !rows.eof(); rows.moveNext()) {
            Trapped(source, [&] {
                GroupPrivilegeRecord& record = At(set.stored, Int16Field(rows.value(u"GroupID"_s)) - 1);
                access.read(record);
                record.bChanged = false;
            });
        }
    });
}

qint16 GetNVRPrivilege(Databases& databases, GroupSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetNVRPrivilege");
    return ReadAll(databases, u"NVRPrivilege"_s, source, [&](Recordset& rows) {
        TableAccess<NVRPrivilegeRow> access(rows, NVRPrivilegeColumns, source);
        for (; !rows.eof(); rows.moveNext()) {
            Trapped(source, [&] {
                NVRPrivilegeRow row;
                access.read(row);
                At(At(set.stored, row.GroupID - 1).CHPrivilege, row.NVRID - 1) = row.CHPrivilege;
            });
        }
    });
}

qint16 SaveGroupPrivilege(Databases& databases, const GroupSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - SaveGroupPrivilege");
    return ReplaceAll(databases, u"GroupPrivilege"_s, source, [&](Recordset& rows) {
        TableAccess<GroupPrivilegeRecord> access(rows, GroupPrivilegeColumns, source);
        for (const GroupPrivilegeRecord& record : set.stored) {
            Trapped(source, [&] {
                rows.addNew();
                access.write(record);
                rows.update();
            });
        }
    });
}

qint16 SaveNVRPrivilege(Databases& databases, const GroupSet& set, const SlotInUse& inUse)
{
    constexpr QLatin1String source("Module_DB_Access - SaveNVRPrivilege");
    return ReplaceAll(databases, u"NVRPrivilege"_s, source, [&](Recordset& rows) {
        TableAccess<NVRPrivilegeRow> access(rows, NVRPrivilegeColumns, source);
        for (int group = 0; group < kGroups; ++group) {
            for (int slot = 0; slot < kMaxSVR; ++slot) {
                if (!inUse(slot))
                    continue;
                Trapped(source, [&] {
                    rows.addNew();
                    access.write({group + 1, slot + 1, At(At(set.stored, group).CHPrivilege, slot)});
                    rows.update();
                });
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

RecordFamily GroupFamily(Databases& databases, GroupSet& set, SlotInUse inUse)
{
    return {FamilyOrder::GroupPrivilege, 3,
            [&set] {
                return std::any_of(set.edit.begin(), set.edit.end(),
                                   [](const GroupPrivilegeRecord& record) { return record.bChanged; });
            },
            [&databases, &set, inUse = std::move(inUse)] {
                for (GroupPrivilegeRecord& record : set.edit)
                    record.bChanged = false;
                set.stored = set.edit;
                SaveGroupPrivilege(databases, set);
                SaveNVRPrivilege(databases, set, inUse);
            },
            [&set] { set.edit = set.stored; }};
}
