#include "store/SystemLog.h"

#include "platform/AppPath.h"
#include "platform/DatabaseFile.h"
#include "platform/RowStream.h"
#include "store/TableAccess.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSaveSource("Module_DB_Access - SaveSystemLog");

constexpr QLatin1String kGetSource("Module_DB_Access - GetSystemLog");

// Opens the log where it is closed and does some reading; 1 or 0.
template <class Work>
qint16 WithLog(Databases& databases, QLatin1String source, Work&& work)
{
    const bool ok = Trapped(source, [&] {
        if (!databases.LogConn)
            throw StoreError(u"Object variable not set"_s);
        if (!databases.LogConn->isOpen())
            databases.LogConn->open();
        databases.LogRec->close();
        work();
    });
    if (databases.LogRec)
        databases.LogRec->close();
    return ok ? 1 : 0;
}

struct Condition
{
    Condition(qint32 from, qint32 to, const QString& user)
        : text(user.isEmpty() ? u"(TimeStamp >= ? And TimeStamp <= ?)"_s
                              : u"(TimeStamp >= ? And TimeStamp <= ? And User = ?)"_s)
        , values{from, to}
    {
        if (!user.isEmpty())
            values << user;
    }
    QString text;
    QVariantList values;
};

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
    rows.clear();
    return WithLog(databases, kGetSource, [&] {
        const Condition condition(from, to, user);
        databases.LogRec->open(u"Select * From SystemLog  WHERE "_s + condition.text + u" order by TimeStamp DESC"_s,
                               *databases.LogConn, CursorType::ForwardOnly, LockType::ReadOnly, CommandType::Text,
                               condition.values);
        TableAccess<SystemLogRow> access(*databases.LogRec, SystemLogColumns, kGetSource);
        for (; !databases.LogRec->eof(); databases.LogRec->moveNext())
            access.read(rows.emplace_back());
    });
}

qint16 FetchSystemLog(Databases& databases, std::span<const SystemLogEntry> entries, std::vector<SystemLogRow>& rows)
{
    rows.clear();
    return WithLog(databases, kGetSource, [&] {
        for (const SystemLogEntry& entry : entries) {
            RowStream stream(*databases.LogConn,
                             u"SELECT User, Description FROM SystemLog WHERE rowid = ? AND TimeStamp = ?"_s,
                             {entry.rowId, entry.TimeStamp});
            if (stream.next())
                rows.push_back({entry.TimeStamp, QString::fromUtf8(stream.text(0)), QString::fromUtf8(stream.text(1))});
        }
    });
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
