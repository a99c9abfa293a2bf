#pragma once

#include "store/Databases.h"
#include "store/RecordFamily.h"
#include "store/records/UserRecords.h"

#include <array>

struct GroupSet
{
    GroupSet(); // numbers the groups: a row that cannot be read keeps its number

    std::array<GroupPrivilegeRecord, kGroups> stored;
    std::array<GroupPrivilegeRecord, kGroups> edit;
};

// Which recorder slots (from 0) are in use: their rights texts are written.
using SlotInUse = std::function<bool(int slot)>;

// All answer 1, or 0 when the table cannot be read to its end or not be written. A row whose ids are out of range costs
// one log line.
qint16 GetGroupPrivilege(Databases& databases, GroupSet& set);
qint16 GetNVRPrivilege(Databases& databases, GroupSet& set);
qint16 SaveGroupPrivilege(Databases& databases, const GroupSet& set);
qint16 SaveNVRPrivilege(Databases& databases, const GroupSet& set, const SlotInUse& inUse);

// Every right on every channel of a slot for all groups, in both generations: what a new recorder starts with.
void GrantNewRecorder(GroupSet& set, int slot);

RecordFamily GroupFamily(Databases& databases, GroupSet& set, SlotInUse inUse);
