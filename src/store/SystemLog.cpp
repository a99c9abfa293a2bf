#include "store/SystemLog.h"

#include "platform/AppPath.h"
#include "platform/DatabaseFile.h"
#include "store/TableAccess.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSaveSource("Module_DB_Access - SaveSystemLog");

void OpenLogTable(Databases& databases)
{
    databases.LogRec->open(u"SystemLog"_s, *databases.LogConn, CursorType::Keyset, LockType::Optimistic,
                           CommandType::Table);
}

// Makes room: the oldest rows go, and the file is compacted.
void CompactSystemLog(Databases& databases, int count)
{
    databases.LogRec->close();
    databases.LogRec->open(u"Delete SystemLog From (Select TOP %1 * From SystemLog)"_s.arg(count - 100000),
                           *databases.LogConn, CursorType::Static, LockType::Optimistic, CommandType::Text);
    databases.LogConn->close();
    const QString file = StationPath(kSystemLogFile);
    const QString done = StationPath(kSystemLogDoneFile);
    CompactDatabase(file, done);
    DeleteDatabase(file);
    RenameDatabase(done, file);
    databases.LogConn->open();
    OpenLogTable(databases);
}

} // namespace

qint16 SaveSystemLog(Databases& databases, qint32 timeStamp, const QString& user, const QString& description)
{
    const bool opened = Trapped(kSaveSource, [&] {
        if (!databases.LogConn)
            throw StoreError(u"Object variable not set"_s);
        if (!databases.LogConn->isOpen())
            databases.LogConn->open();
        databases.LogRec->close();
        OpenLogTable(databases);
    });
    if (!opened)
        return 0;
    qint16 count = 0;
    Trapped(kSaveSource, [&] { count = Int16Field(databases.LogRec->recordCount()); });
    // A count of 16 bits never passes this; the compaction waits for a wider one.
    const qint32 rows = count;
    if (rows > 150000)
        Trapped(kSaveSource, [&] { CompactSystemLog(databases, count); });
    const bool added = Trapped(kSaveSource, [&] {
        databases.LogRec->addNew();
        TableAccess<SystemLogRow>(*databases.LogRec, SystemLogColumns, kSaveSource)
            .write({timeStamp, user, description});
        databases.LogRec->update();
    });
    databases.LogRec->close();
    return added ? 1 : 0;
}

qint16 GetSystemLog(Databases& databases, qint32 from, qint32 to, const QString& user, std::vector<SystemLogRow>& rows)
{
    constexpr QLatin1String source("Module_DB_Access - GetSystemLog");
    rows.clear();
    const bool ok = Trapped(source, [&] {
        if (!databases.LogConn)
            throw StoreError(u"Object variable not set"_s);
        if (!databases.LogConn->isOpen())
            databases.LogConn->open();
        databases.LogRec->close();
        QString condition = u"(TimeStamp >= ? And TimeStamp <= ?)"_s;
        QVariantList values{from, to};
        if (!user.isEmpty()) {
            condition = u"(TimeStamp >= ? And TimeStamp <= ? And User = ?)"_s;
            values << user;
        }
        databases.LogRec->open(u"Select * From SystemLog  WHERE "_s + condition + u" order by TimeStamp DESC"_s,
                               *databases.LogConn, CursorType::ForwardOnly, LockType::ReadOnly, CommandType::Text,
                               values);
        TableAccess<SystemLogRow> access(*databases.LogRec, SystemLogColumns, source);
        for (; !databases.LogRec->eof(); databases.LogRec->moveNext())
            access.read(rows.emplace_back());
    });
    if (databases.LogRec)
        databases.LogRec->close();
    return ok ? 1 : 0;
}

qint16 GetSystemLogUser(Databases& databases, QStringList& users)
{
    users.clear();
    const bool ok = Trapped("Module_DB_Access - GetSystemLogUser", [&] {
        if (!databases.LogConn)
            throw StoreError(u"Object variable not set"_s);
        if (!databases.LogConn->isOpen())
            databases.LogConn->open();
        databases.LogRec->close();
        databases.LogRec->open(u"Select DISTINCT User From SystemLog"_s, *databases.LogConn, CursorType::ForwardOnly,
                               LockType::ReadOnly, CommandType::Text);
        for (; !databases.LogRec->eof(); databases.LogRec->moveNext())
            users << TextField(databases.LogRec->value(0));
    });
    if (databases.LogRec)
        databases.LogRec->close();
    return ok ? 1 : 0;
}
