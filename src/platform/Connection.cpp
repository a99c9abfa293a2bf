#include "platform/Connection.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

constexpr int kBusyMilliseconds = 2000;
constexpr int kImpatientMilliseconds = 50;
constexpr auto kBusyCode = "5"_L1; // SQLITE_BUSY

QString DataSource(const QString& connectionString)
{
    const QStringList parts = connectionString.split(u';');
    for (const QString& part : parts) {
        if (part.startsWith("Data Source="_L1))
            return part.mid(12);
    }
    return connectionString;
}

// The header of a database file holds its size in pages; a file cut short would only show when the lost page is asked
// for.
void CheckHeader(const QString& file)
{
    if (!QFileInfo::exists(file))
        throw StoreError(u"Could not find file '%1'"_s.arg(file));
    QFile raw(file);
    if (!raw.open(QIODevice::ReadOnly))
        throw StoreError(u"Cannot open '%1': %2"_s.arg(file, raw.errorString()));
    const QByteArray header = raw.read(100);
    if (header.size() < 100 || !header.startsWith("SQLite format 3"))
        throw StoreError(u"Unrecognized database format '%1'"_s.arg(file));
    const auto* bytes = reinterpret_cast<const uchar*>(header.constData());
    qint64 pageSize = qFromBigEndian<quint16>(bytes + 16);
    if (pageSize == 1)
        pageSize = 65536;
    const qint64 pages = qFromBigEndian<quint32>(bytes + 28);
    const bool sizeIsValid = qFromBigEndian<quint32>(bytes + 24) == qFromBigEndian<quint32>(bytes + 92);
    if (sizeIsValid && raw.size() < pages * pageSize)
        throw StoreError(u"Database '%1' is cut short"_s.arg(file));
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
    CheckHeader(file);

    static int serial = 0;
    m_name = u"desk%1"_s.arg(++serial);
    m_database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_name);
    m_database.setDatabaseName(file);
    m_database.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(kBusyMilliseconds));
    try {
        if (!m_database.open())
            throw StoreError(u"Cannot open '%1'"_s.arg(file), m_database.lastError());
        QSqlQuery query(m_database);
        // Fails on a foreign or damaged file; on a folder that cannot be written the journal stays as it is.
        if (!query.exec(u"SELECT COUNT(*) FROM sqlite_master"_s))
            throw StoreError(u"Cannot read '%1'"_s.arg(file), query.lastError());
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
    m_impatient = false;
}

void Connection::pragma(const QString& text)
{
    QSqlQuery query(m_database);
    query.exec(u"PRAGMA "_s + text);
}

void Connection::noteResult(const QSqlError& error)
{
    const bool busy = error.nativeErrorCode() == kBusyCode;
    if (busy == m_impatient)
        return;
    m_impatient = busy;
    pragma(u"busy_timeout=%1"_s.arg(busy ? kImpatientMilliseconds : kBusyMilliseconds));
}
