#include "store/Databases.h"

#include "app/log/Module_Log.h"
#include "platform/AppPath.h"
#include "platform/DatabaseFile.h"
#include "store/Template.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kInitialSource("Module_DB_Access - InitialDB");

// The audit log has no backup and no template file: it is made anew where it is missing.
void ProvideSystemLog(const QString& file)
{
    const FileState state = ProbeDatabase(file);
    if (state == FileState::Damaged)
        LogTrap(kInitialSource, u"The audit log is damaged and kept as "_s + SetDatabaseAside(file));
    if (state == FileState::Damaged || state == FileState::Missing)
        CreateSystemLog(file);
}

} // namespace

qint16 InitialDB(Databases& databases)
{
    databases.DBRec = std::make_unique<Recordset>();
    databases.LogRec = std::make_unique<Recordset>();
    databases.DBConn = std::make_unique<Connection>();
    databases.LogConn = std::make_unique<Connection>();
    databases.DBConn->setConnectionString(DatabaseConnectionString(StationPath(kDatabaseFile)));
    databases.LogConn->setConnectionString(DatabaseConnectionString(StationPath(kSystemLogFile)));
    const bool ok = Trapped(kInitialSource, [&] { databases.DBConn->open(); });
    // An audit log that cannot be opened now is tried again with each of its lines.
    if (ok) {
        Trapped(kInitialSource, [&] {
            ProvideSystemLog(StationPath(kSystemLogFile));
            databases.LogConn->open();
        });
    }
    return ok ? 1 : 0;
}

void CloseDatabases(Databases& databases)
{
    databases.DBRec.reset();
    databases.LogRec.reset();
    databases.DBConn.reset();
    databases.LogConn.reset();
}

void CloseDB(Databases& databases)
{
    Trapped("Module_DB_Access - CloseDB", [&] {
        if (databases.DBRec && databases.DBRec->isOpen())
            databases.DBRec->close();
        if (databases.DBConn && databases.DBConn->isOpen())
            databases.DBConn->close();
    });
}

qint16 OpenRecset(Databases& databases, const QString& table)
{
    const bool ok = Trapped("Module_DB_Access - OpenRecset", [&] {
        if (!databases.DBConn)
            throw StoreError(u"Object variable not set"_s);
        if (!databases.DBConn->isOpen())
            databases.DBConn->open();
        databases.DBRec->close();
        databases.DBRec->open(table, *databases.DBConn, CursorType::Keyset, LockType::Optimistic, CommandType::Table);
    });
    return ok ? 1 : 0;
}

void OpenStatement(Databases& databases, const QString& statement, LockType lock, const QVariantList& values,
                   CursorType cursor)
{
    if (!databases.DBConn)
        throw StoreError(u"Object variable not set"_s);
    databases.DBRec->close();
    databases.DBRec->open(statement, *databases.DBConn, cursor, lock, CommandType::Text, values);
}
