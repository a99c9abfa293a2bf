#include "store/UpdateDatabase.h"

#include "app/log/Module_Log.h"
#include "platform/AppPath.h"
#include "platform/Clock.h"
#include "platform/DatabaseFile.h"
#include "store/DBConvert.h"
#include "support/TimeSeconds.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSource("Module_DB_Access - UpdateDatabase");
constexpr auto kConvertFile = u"\\Database\\Database_Convert.mdb";

// The name under which the old file is kept; two updates within a second keep two files.
QString AsideFile()
{
    for (qint64 seconds = TimeToSeconds(Now());; ++seconds) {
        const QString file = StationPath(u"\\Database\\") + QString::number(seconds) + u".Database.mdb"_s;
        if (!QFileInfo::exists(file))
            return file;
    }
}

void ReplaceDatabase(bool convert, UpdateWatcher& watcher)
{
    const QString database = StationPath(kDatabaseFile);
    const QString working = StationPath(kConvertFile);
    watcher.step();
    DeleteDatabase(working); // what a broken-off update may have left
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
    watcher.step();
    RenameDatabase(database, AsideFile());
    watcher.step();
    RenameDatabase(working, database);
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
