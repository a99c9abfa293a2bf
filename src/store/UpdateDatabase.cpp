#include "store/UpdateDatabase.h"

#include "app/log/Module_Log.h"
#include "platform/AppPath.h"
#include "platform/DatabaseFile.h"
#include "store/DBConvert.h"
#include "store/DatabaseRepair.h"
#include "store/Template.h"
#include "support/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSource("Module_DB_Access - UpdateDatabase");
constexpr auto kWorkingFile = u"\\Database\\Database_Convert.mdb.new";
constexpr int kLockMilliseconds = 200;

// Another start may be at the same update: it is waited for.
void AcquireLock(ReplaceLock& lock, UpdateWatcher& watcher)
{
    while (!lock.acquire(kLockMilliseconds)) {
        if (!lock.heldByAnother())
            throw StoreError(u"The database is used as it is: its folder cannot be written"_s);
        watcher.waiting();
    }
}

QString VersionOf(const QString& file)
{
    Connection connection;
    connection.setConnectionString(DatabaseConnectionString(file));
    connection.openAsIs();
    Recordset rows;
    rows.open(u"BasicDefault"_s, connection, CursorType::Static, LockType::ReadOnly, CommandType::Table);
    rows.moveFirst();
    return rows.fieldNames().contains(u"sDBVer"_s, Qt::CaseInsensitive) && !rows.eof()
               ? TextField(rows.value(u"sDBVer"_s))
               : QString();
}

void ReplaceDatabase(bool convert, UpdateWatcher& watcher)
{
    ReplaceLock lock;
    AcquireLock(lock, watcher);
    const QString database = StationPath(kDatabaseFile);
    const QString working = StationPath(kWorkingFile);
    const QString converted = StationPath(kConvertFile);
    if (VersionOf(database) == kDatabaseVersion)
        return; // another start has just done it
    watcher.step();
    for (const QString& leftover : {working, converted})
        DeleteDatabase(leftover); // of a broken-off update
    watcher.step();
    CopyDatabase(StationPath(kTemplateFile), working);
    watcher.step();
    if (convert) {
        clsDBConvert converter([&](const QString& table, qint64 row, qint64 rows) { watcher.row(table, row, rows); });
        if (!converter.ConvertDB(database, working)) {
            DeleteDatabase(working);
            throw StoreError(u"The database is used as it is: it could not be converted"_s);
        }
    }
    // From here on the new file is known by its name to be whole: a start that finds no database takes it.
    watcher.step();
    RenameDatabase(working, converted);
    watcher.step();
    SetDatabaseAside(database);
    watcher.step();
    RenameDatabase(converted, database);
    watcher.step();
}

} // namespace

qint16 UpdateDatabase(Databases& databases, BasicDefaultSet& set, bool bConvert, UpdateWatcher& watcher)
{
    Trapped(kSource, [&] { watcher.begin(); });
    CloseDB(databases);
    if (set.stored.iLanguage == 99)
        set.stored.iLanguage = 1;
    Trapped(kSource, [&] { ReplaceDatabase(bConvert, watcher); });
    InitialDB(databases);
    GetBasicDefault(databases, set);
    Trapped(kSource, [&] { watcher.end(); });
    return 1;
}
