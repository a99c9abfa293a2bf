#include "tooling/SystemLogExport.h"

#include "platform/AppPath.h"
#include "platform/Clock.h"
#include "platform/DatabaseFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kBlock = 1 << 16; // bytes gathered before they are written
constexpr qint64 kReportEvery = 512;  // rows

// Walks over the rows; throws what stopped the writing, or that the log could not be read.
bool Walk(Databases& databases, const SystemLogQuery& query, const ExportProgress& progress,
          const std::function<void(qint32, QByteArrayView, QByteArrayView)>& write)
{
    qint64 rows = 0;
    bool stopped = false;
    std::exception_ptr failure;
    const qint16 read = WalkSystemLog(databases, query.from, query.to, query.user,
                                      [&](qint32 time, QByteArrayView user, QByteArrayView description) {
                                          try {
                                              write(time, user, description);
                                          } catch (...) {
                                              failure = std::current_exception();
                                              return false;
                                          }
                                          if (++rows % kReportEvery == 0 && progress && !progress(rows))
                                              stopped = true;
                                          return !stopped;
                                      });
    if (failure)
        std::rethrow_exception(failure);
    if (read != 1)
        throw StoreError(u"The audit log could not be read"_s);
    if (!stopped && progress)
        progress(rows);
    return !stopped;
}

QString PartName(const QString& name)
{
    return name + u".part"_s;
}

// A text file that gets its name when it is whole; what a file of that name held stays in front. Without keep() all is
// as it was before.
class TextFile
{
public:
    explicit TextFile(const QString& name)
        : m_name(name)
        , m_appends(QFile::exists(name))
        , m_file(m_appends ? name : PartName(name))
        , m_size(m_appends ? m_file.size() : 0)
    {
        if (!m_file.open((m_appends ? QIODevice::Append : QIODevice::WriteOnly) | QIODevice::Unbuffered))
            fail();
        OwnerOnly(m_file.fileName());
    }
    ~TextFile()
    {
        if (m_kept || !m_file.isOpen())
            return;
        if (m_appends)
            m_file.resize(m_size);
        else
            m_file.remove();
    }
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;

    void write(const QByteArray& bytes)
    {
        if (m_file.write(bytes) != bytes.size())
            fail();
    }
    void keep()
    {
        if (!m_appends && !m_file.rename(m_name))
            fail();
        m_kept = true;
    }

private:
    [[noreturn]] void fail() { throw StoreError(u"Cannot write '%1': %2"_s.arg(m_name, m_file.errorString())); }
    QString m_name;
    bool m_appends;
    QFile m_file;
    qint64 m_size; // before the first write
    bool m_kept = false;
};

// Puts the rows into the one table; false when `progress` stopped it.
bool FillDatabase(Databases& databases, const SystemLogQuery& query, const QString& file,
                  const ExportProgress& progress)
{
    Connection connection;
    connection.setConnectionString(DatabaseConnectionString(file));
    connection.openAsIs();
    QSqlQuery insert(connection.database());
    const auto require = [&](bool ok) {
        if (!ok)
            throw StoreError(u"Cannot write '%1'"_s.arg(file), insert.lastError());
    };
    require(insert.exec(u"BEGIN"_s));
    require(insert.prepare(u"INSERT INTO SYSTEMLOG VALUES (?,?,?)"_s));
    LogTimes times;
    const bool whole =
        Walk(databases, query, progress, [&](qint32 time, QByteArrayView user, QByteArrayView description) {
            insert.bindValue(0, times.longText(time));
            insert.bindValue(1, QString::fromUtf8(user));
            insert.bindValue(2, QString::fromUtf8(description));
            require(insert.exec());
        });
    require(insert.exec(whole ? u"COMMIT"_s : u"ROLLBACK"_s));
    return whole;
}

} // namespace

QString SystemLogExportStem()
{
    return u"Systemlog_Export_"_s + Now().toString(u"yyyyMMddhhmmss"_s);
}

QString ExportSystemLogCsv(Databases& databases, const SystemLogQuery& query, const QString& folder,
                           const QString& stem, const ExportProgress& progress)
{
    const QString name = QDir(folder).filePath(stem + u".csv"_s);
    TextFile file(name);
    LogTimes times;
    QByteArray block = "Date,Time,User,Description\n";
    block.reserve(kBlock + 1024);
    const bool whole =
        Walk(databases, query, progress, [&](qint32 time, QByteArrayView user, QByteArrayView description) {
            times.append(block, time, ',');
            block += ',';
            block += user;
            block += ',';
            block += description;
            block += '\n';
            if (block.size() >= kBlock) {
                file.write(block);
                block.resize(0);
            }
        });
    if (!whole)
        return {};
    file.write(block);
    file.keep();
    return name;
}

QString ExportSystemLogMdb(Databases& databases, const SystemLogQuery& query, const QString& folder,
                           const QString& stem, const ExportProgress& progress)
{
    const QString name = QDir(folder).filePath(stem + u".mdb"_s);
    if (QFileInfo::exists(name))
        throw StoreError(u"Cannot create '%1': it already exists"_s.arg(name));
    const QString part = PartName(name);
    DeleteDatabase(part);
    CreateDatabase(part, u"CREATE TABLE SYSTEMLOG(LogTime CHAR(50),LoginUser CHAR(50),Description CHAR(255))"_s);
    try {
        if (FillDatabase(databases, query, part, progress)) {
            RenameDatabase(part, name);
            return name;
        }
    } catch (...) {
        DeleteDatabase(part);
        throw;
    }
    DeleteDatabase(part);
    return {};
}
