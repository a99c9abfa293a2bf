#include "users/AccountStore.h"

#include "store/TableRows.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

qint16 GetMyAccount(Databases& databases, std::vector<NVRAccountRecord>& accounts)
{
    constexpr QLatin1String source("Module_DB_Access - GetMyAccount");
    std::vector<NVRAccountRecord> found;
    const qint16 result = ReadTable(databases, u"NVRAccount"_s, u"Select * From NVRAccount"_s, NVRAccountColumns,
                                    source, [&](NVRAccountRecord&& account) { found.push_back(std::move(account)); });
    if (found.empty())
        found.emplace_back();
    accounts = std::move(found);
    return result;
}

qint16 SaveMyAccount(Databases& databases, const std::vector<NVRAccountRecord>& accounts)
{
    constexpr QLatin1String source("Module_DB_Access - SaveMyAccount");
    return ReplaceTable(databases, u"NVRAccount"_s, u"Delete * From NVRAccount"_s, NVRAccountColumns, source,
                        [&](auto&& add) {
                            for (std::size_t i = 0; i < accounts.size(); ++i) {
                                NVRAccountRecord account = accounts[i];
                                account.iIndex = static_cast<qint16>(i);
                                if (!account.sUser.isEmpty() || !account.sPass.isEmpty())
                                    add(account);
                            }
                        });
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
