#include "users/UserStore.h"

#include "store/TableAccess.h"
#include "store/records/ScreenRecords.h"
#include "store/tables/Tables.h"

#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kStartPanes = 64; // panes of the viewer's layout at last exit

bool Names(const std::vector<UserRecord>& users, const QString& name)
{
    return !name.isEmpty() &&
           std::any_of(users.begin(), users.end(), [&](const UserRecord& user) { return user.sUser == name; });
}

void DeleteOrphans(Databases& databases, const UserSet& set, const QString& table, QLatin1String source)
{
    if (OpenRecset(databases, table) == 0)
        return;
    Trapped(source, [&] {
        Recordset& rows = *databases.DBRec;
        const int owner = rows.fieldIndex(u"sOwner"_s);
        while (!rows.eof()) {
            if (Names(set.stored, TextField(rows.value(owner))))
                rows.moveNext();
            else
                rows.deleteRow();
        }
    });
    Trapped(source, [&] { databases.DBRec->close(); });
}

DefaultStartTableRow FirstStart(const QString& owner, int monitors)
{
    DefaultStartTableRow row;
    row.sOwner = owner;
    row.bFixStart = false;
    row.bSEQStart = false;
    row.MVChannel = QStringList(kStartPanes, u"-1"_s).join(u',');
    row.sForm_FullScreen = QStringList(std::max(1, monitors), u"0:0"_s).join(u',');
    return row;
}

} // namespace

qint16 GetUser(Databases& databases, UserSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetUser");
    set.stored.assign(1, {});
    set.AdminCount = 0;
    bool ok = OpenRecset(databases, u"UserData"_s) == 1;
    if (ok) {
        ok = Trapped(source, [&] {
            Recordset& rows = *databases.DBRec;
            const qint64 count = rows.recordCount();
            if (count > 0)
                set.stored.assign(static_cast<std::size_t>(count), {});
            TableAccess<UserRecord> access(rows, UserColumns, source);
            for (qint64 i = 0; i < count; ++i) {
                rows.moveFirst();
                rows.move(i);
                UserRecord& user = At(set.stored, i);
                // A group that cannot be read must not make an administrator.
                user.iGroup = -1;
                access.read(user);
                if (user.iGroup == 0)
                    ++set.AdminCount;
                Trapped(source, [&] {
                    if (user.iGroup < 0 || user.iGroup >= kGroups)
                        throw StoreError(u"User '%1' is in no group: %2"_s.arg(user.sUser).arg(user.iGroup));
                });
            }
        });
        Trapped(source, [&] { databases.DBRec->close(); });
    }
    set.edit.resize(set.stored.size());
    return ok ? 1 : 0;
}

qint16 DELUser(Databases& databases, const UserSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - DELUser");
    bool ok = OpenRecset(databases, u"UserData"_s) == 1;
    if (ok) {
        ok = Trapped(source, [&] {
            for (databases.DBRec->moveFirst(); !databases.DBRec->eof();)
                databases.DBRec->deleteRow();
        });
        Trapped(source, [&] { databases.DBRec->close(); });
    }
    DeleteOrphans(databases, set, u"DefaultStart"_s, source);
    DeleteOrphans(databases, set, u"Pattern"_s, source);
    return ok ? 1 : 0;
}

qint16 SaveUser(Databases& databases, const UserSet& set, int monitors)
{
    constexpr QLatin1String source("Module_DB_Access - SaveUser");
    bool ok = OpenRecset(databases, u"UserData"_s) == 1;
    if (ok) {
        ok = Trapped(source, [&] {
            TableAccess<UserRecord> access(*databases.DBRec, UserColumns, source);
            for (const UserRecord& user : set.stored) {
                if (user.sUser.isEmpty())
                    continue;
                Trapped(source, [&] {
                    databases.DBRec->addNew();
                    access.write(user);
                    databases.DBRec->update();
                });
            }
        });
        Trapped(source, [&] { databases.DBRec->close(); });
    }
    if (OpenRecset(databases, u"DefaultStart"_s) == 0)
        return 0;
    ok = Trapped(source,
                 [&] {
                     Recordset& rows = *databases.DBRec;
                     QSet<QString> owners;
                     for (; !rows.eof(); rows.moveNext())
                         owners << TextField(rows.value(u"sOwner"_s));
                     TableAccess<DefaultStartTableRow> access(rows, DefaultStartColumns, source);
                     for (const UserRecord& user : set.stored) {
                         if (user.sUser.isEmpty() || owners.contains(user.sUser))
                             continue;
                         owners << user.sUser;
                         Trapped(source, [&] {
                             rows.addNew();
                             access.write(FirstStart(user.sUser, monitors));
                             rows.update();
                         });
                     }
                 }) &&
         ok;
    Trapped(source, [&] { databases.DBRec->close(); });
    return ok ? 1 : 0;
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

RecordFamily UserFamily(Databases& databases, UserSet& set, std::function<int()> monitors)
{
    return {FamilyOrder::User, 3,
            [&set] {
                return std::any_of(set.edit.begin(), set.edit.end(),
                                   [](const UserRecord& user) { return user.bChanged; });
            },
            [&databases, &set, monitors = std::move(monitors)] {
                for (UserRecord& user : set.edit)
                    user.bChanged = false;
                set.stored = set.edit;
                DELUser(databases, set);
                SaveUser(databases, set, monitors());
            },
            [&set] { set.edit = set.stored; }};
}
