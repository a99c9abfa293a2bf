#include "users/UserStore.h"

#include "store/Family.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList StoredNames(const UserSet& set)
{
    QStringList names;
    for (const UserRecord& user : set.stored) {
        if (!user.sUser.isEmpty())
            names << user.sUser;
    }
    return names;
}

} // namespace

qint16 GetUser(Databases& databases, UserSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetUser");
    std::vector<UserRecord> users;
    qint32 admins = 0;
    UserRecord fresh;
    fresh.iGroup = -1; // a group that cannot be read must not make an administrator
    const auto take = [&](UserRecord&& row) {
        const UserRecord& user = users.emplace_back(std::move(row));
        if (user.iGroup == 0)
            ++admins;
        if (user.iGroup < 0 || user.iGroup >= kGroups)
            throw StoreError(u"User '%1' is in no group: %2"_s.arg(user.sUser).arg(user.iGroup));
    };
    set.read = ReadTable(databases, u"UserData"_s, u"Select * From UserData"_s, UserColumns, source, take, fresh) == 1;
    if (!set.read)
        return 0;
    if (users.empty())
        users.emplace_back();
    set.stored = std::move(users);
    set.AdminCount = admins;
    set.edit.resize(set.stored.size());
    return 1;
}

qint16 DELUser(Databases& databases, const UserSet& set, const RecorderEvents& events)
{
    constexpr QLatin1String source("Module_DB_Access - DELUser");
    return AsOneStep(databases, source, [&]() -> qint16 {
        if (ReplaceRows(databases, u"UserData"_s, u"Delete * From UserData"_s, source, [](Recordset&) {}) == 0)
            return 0;
        events.usersGone.sendInStep(StoredNames(set));
        return 1;
    });
}

qint16 SaveUser(Databases& databases, const UserSet& set, const RecorderEvents& events)
{
    constexpr QLatin1String source("Module_DB_Access - SaveUser");
    return AsOneStep(databases, source, [&]() -> qint16 {
        if (OpenRecset(databases, u"UserData"_s) == 0)
            return 0;
        AddRows(*databases.DBRec, UserColumns, source, [&](auto&& add) {
            for (const UserRecord& user : set.stored) {
                if (!user.sUser.isEmpty())
                    add(user);
            }
        });
        databases.DBRec->close();
        events.usersSaved.sendInStep(StoredNames(set));
        return 1;
    });
}

LoginResult CheckLogin(const std::vector<UserRecord>& users, const QString& name, const QString& password,
                       quint32& index)
{
    for (std::size_t i = 0; i < users.size(); ++i) {
        if (users[i].sUser != name)
            continue;
        if (users[i].sPSWD != password)
            return LoginResult::WrongPassword;
        index = static_cast<quint32>(i);
        return LoginResult::Ok;
    }
    return LoginResult::Unknown;
}

bool IsFreshStation(const UserSet& set)
{
    return set.read && std::all_of(set.stored.begin(), set.stored.end(),
                                   [](const UserRecord& user) { return user.sUser.isEmpty(); });
}

bool IsListedUser(const UserRecord& user)
{
    return !user.sUser.isEmpty() && user.sUser != "Empty"_L1;
}

int SetUser_TotalNum(const UserSet& set)
{
    return static_cast<int>(
        std::count_if(set.edit.begin(), set.edit.end(), [](const UserRecord& user) { return !user.sUser.isEmpty(); }));
}

qint16 SetUser_CheckName(const UserSet& set, const QString& name)
{
    for (std::size_t i = 0; i < set.edit.size(); ++i) {
        const bool own = set.EditUserIndex != kNewUser && i == set.EditUserIndex;
        if (!own && set.edit[i].sUser == name)
            return 0;
    }
    return -1;
}

void SetUser_Delete(UserSet& set, int index)
{
    UserRecord& user = At(set.edit, index);
    const bool enabled = user.bEnable;
    user = {};
    user.bEnable = enabled;
    user.bChanged = true;
}

void SetUser_Modify(UserSet& set, const UserFields& fields)
{
    if (set.EditUserIndex == kNewUser) {
        if (set.edit.size() > 1 || !set.edit.front().sUser.isEmpty()) {
            set.edit.emplace_back();
            set.stored.emplace_back();
        }
        set.EditUserIndex = static_cast<quint16>(set.edit.size() - 1);
    }
    UserRecord& user = At(set.edit, set.EditUserIndex);
    user.sUser = fields.sUser;
    user.sPSWD = fields.sPSWD;
    user.sCorp = fields.sCorp;
    user.sPhone = fields.sPhone;
    user.sMainEmail = fields.sMainEmail;
    user.sSubEmail = fields.sSubEmail;
    user.sMobile = fields.sMobile;
    user.sPhoto = fields.sPhoto;
    user.iGroup = fields.iGroup;
    user.bChanged = true;
    set.EditUserIndex = kNewUser;
}

bool IsLastAdmin(const UserSet& set, int index)
{
    return set.AdminCount == 1 && At(set.edit, index).iGroup == 0;
}

RecordFamily UserFamily(Databases& databases, UserSet& set, const RecorderEvents& events)
{
    const auto name = [](const UserRecord& user) { return user.sUser; };
    return MakeFamily(
        databases, {FamilyOrder::User, 3, 465, {u"UserData"_s}, "Module_DB_Access - SaveUser"_L1},
        Generations<std::vector<UserRecord>>{set.stored, set.edit},
        [&databases, &set, &events]() -> qint16 {
            return DELUser(databases, set, events) == 1 ? SaveUser(databases, set, events) : qint16(0);
        },
        [&set, name](auto& list) {
            Compare(list, RowsByPlace(set.stored, name), RowsByPlace(set.edit, name), UserColumns);
        });
}
