#include "users/AccountStore.h"

#include "store/TableAccess.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

qint16 GetMyAccount(Databases& databases, std::vector<NVRAccountRecord>& accounts)
{
    constexpr QLatin1String source("Module_DB_Access - GetMyAccount");
    accounts.assign(1, {});
    const bool ok = Trapped(source, [&] {
        OpenStatement(databases, u"Select * From NVRAccount"_s, LockType::ReadOnly);
        Recordset& rows = *databases.DBRec;
        const qint64 count = rows.recordCount();
        if (count > 0)
            accounts.assign(static_cast<std::size_t>(count), {});
        TableAccess<NVRAccountRecord> access(rows, NVRAccountColumns, source);
        for (qint64 i = 0; i < count; ++i) {
            rows.moveFirst();
            rows.move(i);
            access.read(At(accounts, i));
        }
    });
    return ok ? 1 : 0;
}

qint16 SaveMyAccount(Databases& databases, const std::vector<NVRAccountRecord>& accounts)
{
    constexpr QLatin1String source("Module_DB_Access - SaveMyAccount");
    Trapped(source, [&] {
        OpenStatement(databases, u"Select * From NVRAccount"_s, LockType::Optimistic);
        for (databases.DBRec->moveFirst(); !databases.DBRec->eof();)
            databases.DBRec->deleteRow();
    });
    if (OpenRecset(databases, u"NVRAccount"_s) == 0)
        return 0;
    const bool ok = Trapped(source, [&] {
        TableAccess<NVRAccountRecord> access(*databases.DBRec, NVRAccountColumns, source);
        for (std::size_t i = 0; i < accounts.size(); ++i) {
            NVRAccountRecord account = accounts[i];
            if (account.sUser.isEmpty() && account.sPass.isEmpty())
                continue;
            account.iIndex = static_cast<qint16>(i);
            Trapped(source, [&] {
                databases.DBRec->addNew();
                access.write(account);
                databases.DBRec->update();
            });
        }
    });
    Trapped(source, [&] { databases.DBRec->close(); });
    return ok ? 1 : 0;
}

bool HasAccount(const std::vector<NVRAccountRecord>& accounts, const QString& user, const QString& password)
{
    return std::any_of(accounts.begin(), accounts.end(), [&](const NVRAccountRecord& account) {
        return account.sUser == user && account.sPass == password;
    });
}

void AddAccount(std::vector<NVRAccountRecord>& accounts, const QString& user, const QString& password)
{
    if (accounts.empty() || !accounts.front().sUser.isEmpty())
        accounts.emplace_back();
    accounts.back().sUser = user;
    accounts.back().sPass = password;
}

void RemoveAccount(std::vector<NVRAccountRecord>& accounts, int index)
{
    At(accounts, index);
    accounts.erase(accounts.begin() + index);
    if (accounts.empty())
        accounts.emplace_back();
}
