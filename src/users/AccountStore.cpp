#include "users/AccountStore.h"

#include "store/TableAccess.h"
#include "store/tables/Tables.h"

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
