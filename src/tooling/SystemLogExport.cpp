#include "tooling/SystemLogExport.h"

#include "app/log/Module_Log.h"
#include "platform/AppPath.h"
#include "platform/Clock.h"
#include "platform/Closing.h"
#include "platform/DatabaseFile.h"
#include "tooling/LogTimes.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

// A file that gets its name by keep() when it is whole; without that all is as it was before.
class SystemLogFile
{
public:
    SystemLogFile() = default;
    virtual ~SystemLogFile() = default;
    SystemLogFile(const SystemLogFile&) = delete;
    SystemLogFile& operator=(const SystemLogFile&) = delete;
    // Both throw StoreError.
    virtual void write(qint32 time, QByteArrayView user, QByteArrayView description) = 0;
    virtual void keep() = 0;
};

namespace {

constexpr QLatin1String kExportSource("Form_Tooling - Cmd_SystemExport_Click");
constexpr QLatin1String kReadSource("Module_DB_Access - GetSystemLog");
constexpr qsizetype kBlock = 1 << 16;      // bytes gathered before they are written
constexpr std::size_t kFetchTogether = 64; // rows read by their places

QString PartName(const QString& name)
{
    return name + u".part"_s;
}

// What a file of that name held stays in front.
class CsvFile : public SystemLogFile
{
public:
    explicit CsvFile(const QString& name)
        : m_name(name)
        , m_appends(QFile::exists(name))
        , m_file(m_appends ? name : PartName(name))
        , m_size(m_appends ? m_file.size() : 0)
    {
        if (!m_file.open((m_appends ? QIODevice::Append : QIODevice::WriteOnly) | QIODevice::Unbuffered))
            fail();
        OwnerOnly(m_file.fileName());
        m_block.reserve(kBlock + 1024);
        m_block = "Date,Time,User,Description\n";
    }
    ~CsvFile() override
    {
        if (m_kept || !m_file.isOpen())
            return;
        if (m_appends)
            m_file.resize(m_size);
        else
            m_file.remove();
    }

    void write(qint32 time, QByteArrayView user, QByteArrayView description) override
    {
        m_times.append(m_block, time, ',');
        m_block += ',';
        m_block += user;
        m_block += ',';
        m_block += description;
        m_block += '\n';
        if (m_block.size() >= kBlock)
            flush();
    }
    void keep() override
    {
        flush();
        if (!m_appends && !m_file.rename(m_name))
            fail();
        m_kept = true;
    }

private:
    void flush()
    {
        if (m_file.write(m_block) != m_block.size())
            fail();
        m_block.resize(0);
    }
    [[noreturn]] void fail() { throw StoreError(u"Cannot write '%1': %2"_s.arg(m_name, m_file.errorString())); }
    QString m_name;
    bool m_appends;
    QFile m_file;
    qint64 m_size; // before the first write
    bool m_kept = false;
    QByteArray m_block;
    LogTimes m_times;
};

// A file of that name is never touched: that is a failure.
class MdbFile : public SystemLogFile
{
public:
    explicit MdbFile(const QString& name)
        : m_name(name)
        , m_part(PartName(name))
    {
        if (QFileInfo::exists(name))
            throw StoreError(u"Cannot create '%1': it already exists"_s.arg(name));
        DeleteDatabase(m_part);
        CreateDatabase(m_part, u"CREATE TABLE SYSTEMLOG(LogTime CHAR(50),LoginUser CHAR(50),Description CHAR(255))"_s);
        try {
            m_connection.setConnectionString(DatabaseConnectionString(m_part));
            m_connection.openAsIs();
            m_insert = QSqlQuery(m_connection.database());
            // Nobody reads the file before it is whole, and one that does not get whole is removed: no journal is kept,
            // and the rows go to the disk as they come instead of all at the end.
            run(u"PRAGMA journal_mode=OFF"_s);
            run(u"PRAGMA synchronous=OFF"_s);
            run(u"BEGIN"_s);
            require(m_insert.prepare(u"INSERT INTO SYSTEMLOG VALUES (?,?,?)"_s));
        } catch (...) {
            discard();
            throw;
        }
    }
    ~MdbFile() override { discard(); }

    void write(qint32 time, QByteArrayView user, QByteArrayView description) override
    {
        m_insert.bindValue(0, m_times.longText(time));
        m_insert.bindValue(1, QString::fromUtf8(user));
        m_insert.bindValue(2, QString::fromUtf8(description));
        require(m_insert.exec());
    }
    void keep() override
    {
        run(u"COMMIT"_s);
        close();
        RenameDatabase(m_part, m_name);
        m_kept = true;
    }

private:
    void run(const QString& statement) { require(m_insert.exec(statement)); }
    void require(bool ok) const
    {
        if (!ok)
            throw StoreError(u"Cannot write '%1'"_s.arg(m_part), m_insert.lastError());
    }
    void close()
    {
        m_insert = QSqlQuery();
        m_connection.close();
    }
    void discard()
    {
        close();
        if (!m_kept)
            Trapped(kExportSource, [this] { DeleteDatabase(m_part); });
    }

    QString m_name;
    QString m_part;
    Connection m_connection;
    QSqlQuery m_insert;
    LogTimes m_times;
    bool m_kept = false;
};

std::unique_ptr<SystemLogFile> MakeFile(SystemLogExport::Kind kind, const QString& name)
{
    if (kind == SystemLogExport::Kind::Csv)
        return std::make_unique<CsvFile>(name);
    return std::make_unique<MdbFile>(name);
}

} // namespace

QString SystemLogExportStem()
{
    return u"Systemlog_Export_"_s + Now().toString(u"yyyyMMddhhmmss"_s);
}

SystemLogExport::SystemLogExport(Databases& databases, const SystemLogQuery& query, Kind kind, const QString& folder,
                                 const QString& stem, QObject* parent)
    : QObject(parent)
    , m_databases(databases)
    , m_reader(databases, query)
    , m_kind(kind)
    , m_name(QDir(folder).filePath(stem + (kind == Kind::Csv ? u".csv"_s : u".mdb"_s)))
{
    connect(&m_slices, &QTimer::timeout, this, &SystemLogExport::slice);
}

SystemLogExport::~SystemLogExport() = default;

void SystemLogExport::start()
{
    m_slices.start(0);
}

void SystemLogExport::slice()
{
    if (Closing())
        return end(Outcome::Stopped);
    const bool writing = m_step == Step::Write;
    const QLatin1String source(writing ? kExportSource : kReadSource);
    const bool ok = Trapped(source, [&] {
        try {
            switch (m_step) {
            case Step::Count:
                count();
                break;
            case Step::Collect:
                collect();
                break;
            case Step::Write:
                write();
                break;
            }
        } catch (const std::exception& error) {
            m_failure = QString::fromUtf8(error.what());
            throw;
        }
    });
    if (!ok)
        end(writing ? Outcome::Failed : Outcome::Unreadable);
}

void SystemLogExport::count()
{
    const bool more = m_reader.read(u"TimeStamp"_s, [this](const RowStream& row) {
        const auto time = static_cast<qint32>(row.integer(0));
        m_inOrder = m_inOrder && (m_rows == 0 || time <= m_last);
        m_last = time;
        ++m_rows;
    });
    if (more)
        return;
    if (m_rows == 0)
        return end(Outcome::Nothing);
    m_reader.rewind();
    m_step = m_inOrder ? Step::Write : Step::Collect;
}

void SystemLogExport::collect()
{
    if (!m_reader.readPlaces(m_entries))
        m_step = Step::Write;
}

void SystemLogExport::write()
{
    if (!m_file)
        m_file = MakeFile(m_kind, m_name);
    bool more = false;
    if (m_inOrder) {
        more = m_reader.read(u"TimeStamp, User, Description"_s, [this](const RowStream& row) {
            m_file->write(static_cast<qint32>(row.integer(0)), row.text(1), row.text(2));
            ++m_written;
        });
    } else {
        QElapsedTimer slice;
        slice.start();
        std::vector<SystemLogRow> rows;
        const auto left = [this] { return m_entries.size() - static_cast<std::size_t>(m_written); };
        while (left() > 0 && slice.elapsed() < SystemLogReader::kSlice) {
            const auto next = std::span(m_entries).last(left()).first(std::min(left(), kFetchTogether));
            if (FetchSystemLog(m_databases, next, rows) != 1)
                throw StoreError(u"The audit log could not be read"_s);
            for (const SystemLogRow& row : rows)
                m_file->write(row.TimeStamp, row.User.toUtf8(), row.Description.toUtf8());
            m_written += static_cast<qint64>(next.size());
        }
        more = left() > 0;
    }
    emit progress(m_written, m_rows);
    if (more)
        return;
    m_file->keep();
    end(Outcome::Whole);
}

void SystemLogExport::end(Outcome outcome)
{
    m_slices.stop();
    m_file.reset();
    emit finished(outcome);
}
