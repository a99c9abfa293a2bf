#include "platform/Connection.h"

#include <QFileInfo>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

namespace {

constexpr int kBusyMilliseconds = 2000;
constexpr int kImpatientMilliseconds = 50;
constexpr int kDamagedCode = 26; // SQLITE_NOTADB

QString DataSource(const QString& connectionString)
{
    const QStringList parts = connectionString.split(u';');
    for (const QString& part : parts) {
        if (part.startsWith("Data Source="_L1))
            return part.mid(12);
    }
    return connectionString;
}

} // namespace

QString DatabaseConnectionString(const QString& file)
{
    return u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + file +
           u";Persist Security Info=False;Jet OLEDB:Database Password=51304926"_s;
}

Connection::~Connection()
{
    close();
}

void Connection::setConnectionString(const QString& text)
{
    m_connectionString = text;
}

void Connection::open(bool writeAheadLog)
{
    close();
    const QString file = DataSource(m_connectionString);
    if (!QFileInfo::exists(file))
        throw StoreError(u"Could not find file '%1'"_s.arg(file));

    static int serial = 0;
    m_name = u"desk%1"_s.arg(++serial);
    m_database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_name);
    m_database.setDatabaseName(file);
    m_database.setConnectOptions(
        u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(m_impatient ? kImpatientMilliseconds : kBusyMilliseconds));
    m_depth = 0;
    try {
        if (!m_database.open())
            throw StoreError(u"Cannot open '%1'"_s.arg(file), m_database.lastError());
        QSqlQuery query(m_database);
        // Fails on a foreign file and on one cut short; on a folder that cannot be written the journal stays as it is.
        if (!query.exec(u"SELECT (SELECT COUNT(*) FROM sqlite_master), page_count FROM pragma_page_count"_s) ||
            !query.next()) {
            noteResult(query.lastError());
            throw StoreError(u"Cannot read '%1'"_s.arg(file), query.lastError());
        }
        noteResult({});
        if (query.value(1).toInt() == 0)
            throw StoreError(u"'%1' is empty"_s.arg(file), kDamagedCode);
        query.finish();
        if (writeAheadLog)
            pragma(u"journal_mode=WAL"_s);
        pragma(u"synchronous=NORMAL"_s);
    } catch (const StoreError&) {
        close();
        throw;
    }
}

void Connection::close()
{
    if (m_name.isEmpty())
        return;
    if (m_database.isOpen())
        m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
    m_name.clear();
}

void Connection::pragma(const QString& text)
{
    QSqlQuery query(m_database);
    query.exec(u"PRAGMA "_s + text);
}

void Connection::noteResult(const QSqlError& error)
{
    const bool busy = StoreError({}, error).locked();
    if (busy == m_impatient)
        return;
    m_impatient = busy;
    pragma(u"busy_timeout=%1"_s.arg(busy ? kImpatientMilliseconds : kBusyMilliseconds));
}

void Connection::execute(const QString& sql)
{
    QSqlQuery query(m_database);
    query.exec(sql);
    noteResult(query.lastError());
    if (query.lastError().isValid())
        throw StoreError(sql, query.lastError());
}

Transaction::Transaction(Connection& connection)
    : m_connection(connection)
    , m_level(connection.m_depth)
{
    connection.execute(m_level == 0 ? u"BEGIN IMMEDIATE"_s : u"SAVEPOINT "_s + savepoint());
    ++connection.m_depth;
}

Transaction::~Transaction()
{
    if (m_done)
        return;
    m_connection.m_depth = m_level;
    // A full disk may have ended it already: then there is nothing to take back.
    QSqlQuery query(m_connection.m_database);
    if (m_level == 0) {
        query.exec(u"ROLLBACK"_s);
        return;
    }
    query.exec(u"ROLLBACK TO "_s + savepoint());
    query.exec(u"RELEASE "_s + savepoint());
}

void Transaction::commit()
{
    m_connection.execute(m_level == 0 ? u"COMMIT"_s : u"RELEASE "_s + savepoint());
    m_connection.m_depth = m_level;
    m_done = true;
}

QString Transaction::savepoint() const
{
    return u"step%1"_s.arg(m_level);
}
