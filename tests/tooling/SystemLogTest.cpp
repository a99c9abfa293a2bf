#include "app/language/Languages.h"
#include "tests/store/StoreFixture.h"
#include "tooling/SystemLogExport.h"

#include <QSqlQuery>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 kNoon = 1795521600; // 2026/11/24 12:00 UTC

// An audit log in a zone with a summer time.
class SystemLogTest : public StoreFixture
{
protected:
    SystemLogTest()
    {
        qputenv("TZ", "Europe/Berlin");
        tzset();
        SetLanguage(1);
        open();
    }
    ~SystemLogTest() override
    {
        qunsetenv("TZ");
        tzset();
    }
    void add(qint32 time, const QString& user, const QString& text)
    {
        QSqlQuery query(databases.LogConn->database());
        query.prepare(u"INSERT INTO SystemLog VALUES(?,?,?)"_s);
        query.addBindValue(time);
        query.addBindValue(user);
        query.addBindValue(text);
        ASSERT_TRUE(query.exec());
    }
    void addMany(int rows)
    {
        QSqlDatabase log = databases.LogConn->database();
        log.transaction();
        for (int i = 0; i < rows; ++i)
            add(kNoon + i, u"u"_s, u"row %1"_s.arg(i));
        EXPECT_TRUE(log.commit());
    }
    QByteArray bytes(const QString& file)
    {
        QFile handle(file);
        return handle.open(QIODevice::ReadOnly) ? handle.readAll() : QByteArray("missing");
    }
    QString folder() { return AppPath(); }
    QStringList left(const QString& pattern) { return QDir(folder()).entryList({pattern}); }
    const SystemLogQuery everything{0, 2147483647, {}};
};

// As long as it lives no file grows beyond a size: the disk is full in the middle of a file.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
};

TEST_F(SystemLogTest, PagesOfEleven)
{
    const struct
    {
        int rows;
        const char* label;
        qint32 last;
        int lastRows;
    } cases[]{{0, "1/0", 0, 0},  {1, "1/0", 0, 1},   {11, "1/1", 0, 11}, {12, "1/1", 1, 1},
              {13, "1/2", 1, 2}, {22, "1/2", 1, 11}, {23, "1/2", 2, 1},  {24, "1/3", 2, 2}};
    for (const auto& test : cases) {
        SCOPED_TRACE(test.rows);
        QSqlQuery(databases.LogConn->database()).exec(u"DELETE FROM SystemLog"_s);
        addMany(test.rows);
        SystemLogModel model(databases);
        ASSERT_TRUE(model.search(everything));
        EXPECT_EQ(model.pageText(), QString::fromLatin1(test.label));
        model.pageControl(SystemLogModel::Back);
        EXPECT_EQ(model.m_SysPage(), 0);
        for (int i = 0; i < 5; ++i)
            model.pageControl(SystemLogModel::On);
        EXPECT_EQ(model.m_SysPage(), test.last);
        EXPECT_EQ(model.rowCount(), test.lastRows);
        model.pageControl(SystemLogModel::First);
        model.pageControl(SystemLogModel::Last);
        EXPECT_EQ(model.m_SysPage(), test.last);
    }
}

TEST_F(SystemLogTest, SearchFilterRefreshCopy)
{
    add(kNoon, u"O'Brien"_s, u"100% done"_s);
    add(kNoon + 10, u"amy"_s, u"Modify Setting of NVR"_s);
    add(kNoon + 20, u"amy"_s, u"Close Rigging Desk"_s);
    SystemLogModel model(databases);
    model.search({kNoon, kNoon + 10, {}});
    EXPECT_EQ(model.found(), 2) << "both ends belong to the span";
    EXPECT_EQ(model.data(model.index(0, SystemLogModel::Time), Qt::DisplayRole), u"11/24 13:00:10"_s);
    EXPECT_EQ(model.copyText({1}), u"2026/11/24 13:00:00\tO'Brien\t100% done\n"_s);
    model.search({0, 2147483647, u"O'Brien"_s});
    EXPECT_EQ(model.found(), 1);
    model.search(everything);
    for (const auto& [filter, rows] :
         {std::pair{u"NVR"_s, 1}, {u"modify"_s, 1}, {u"%"_s, 1}, {u"_"_s, 0}, {u"AMY"_s, 2}}) {
        model.setFilter(filter);
        EXPECT_EQ(model.found(), rows) << filter.toStdString();
    }
    add(kNoon + 30, u"amy"_s, u"new"_s);
    model.pageControl(SystemLogModel::Refresh);
    EXPECT_EQ(model.found(), 3);
    QSqlQuery(databases.LogConn->database()).exec(u"DROP TABLE SystemLog"_s);
    EXPECT_FALSE(model.pageControl(SystemLogModel::Refresh));
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_GE(logLines("Module_DB_Access - GetSystemLog"), 1);
}

TEST_F(SystemLogTest, TextExport)
{
    // Both sides of the end of summer time: 02:30 comes twice.
    add(1792888200, u"Zoë"_s, u"a,\"b\""_s);
    add(1792891800, u""_s, u"c"_s);
    qint64 told = 0;
    const QString file = ExportSystemLogCsv(databases, everything, folder(), u"log"_s, [&](qint64 rows) {
        told = rows;
        return true;
    });
    const QByteArray expected = QByteArray("Date,Time,User,Description\n2026/10/25,02:30:00,,c\n"
                                           "2026/10/25,02:30:00,Zo\xc3\xab,a,\"b\"\n");
    EXPECT_EQ(bytes(file), expected);
    EXPECT_EQ(told, 2);
    ExportSystemLogCsv(databases, everything, folder(), u"log"_s, {});
    EXPECT_EQ(bytes(file), expected + expected) << "appended";
    EXPECT_THROW(ExportSystemLogCsv(databases, everything, folder() + u"/none"_s, u"log"_s, {}), std::runtime_error);
}

TEST_F(SystemLogTest, DatabaseExport)
{
    add(kNoon, u"O'Brien"_s, u"it's"_s);
    const QString file = ExportSystemLogMdb(databases, everything, folder(), u"log"_s, {});
    Connection connection;
    connection.setConnectionString(DatabaseConnectionString(file));
    connection.openAsIs();
    QSqlQuery query(connection.database());
    ASSERT_TRUE(query.exec(u"SELECT LogTime||'|'||LoginUser||'|'||Description FROM SYSTEMLOG"_s) && query.next());
    EXPECT_EQ(query.value(0).toString(), u"2026/11/24 13:00:00|O'Brien|it's"_s);
    const QByteArray before = bytes(file);
    EXPECT_THROW(ExportSystemLogMdb(databases, everything, folder(), u"log"_s, {}), std::runtime_error);
    EXPECT_EQ(bytes(file), before) << "a file that is there is never touched";
}

TEST_F(SystemLogTest, ABrokenExportLeavesNothingBehind)
{
    addMany(2000);
    write(folder() + u"/mine.csv"_s, "mine\n");
    const auto stop = [](qint64 rows) { return rows < 1024; };
    EXPECT_EQ(ExportSystemLogCsv(databases, everything, folder(), u"mine"_s, stop), QString());
    EXPECT_EQ(bytes(folder() + u"/mine.csv"_s), QByteArray("mine\n"));
    EXPECT_EQ(ExportSystemLogCsv(databases, everything, folder(), u"new"_s, stop), QString());
    EXPECT_EQ(ExportSystemLogMdb(databases, everything, folder(), u"new"_s, stop), QString());

    QSqlQuery(databases.LogConn->database()).exec(u"DROP TABLE SystemLog"_s);
    EXPECT_THROW(ExportSystemLogMdb(databases, everything, folder(), u"new"_s, {}), std::runtime_error);
    EXPECT_EQ(left(u"new*"_s), QStringList());
}

TEST_F(SystemLogTest, AFullDiskHarmsNothing)
{
    addMany(4000);
    write(folder() + u"/mine.csv"_s, "mine\n");
    {
        const FullDisk full(90000);
        for (const QString& stem : {u"mine"_s, u"new"_s})
            EXPECT_THROW(ExportSystemLogCsv(databases, everything, folder(), stem, {}), std::runtime_error);
        EXPECT_THROW(ExportSystemLogMdb(databases, everything, folder(), u"new"_s, {}), std::runtime_error);
    }
    EXPECT_EQ(bytes(folder() + u"/mine.csv"_s), QByteArray("mine\n"));
    EXPECT_EQ(left(u"new*"_s), QStringList());
    EXPECT_NO_THROW(ExportSystemLogMdb(databases, everything, folder(), u"new"_s, {}));
}

TEST_F(SystemLogTest, ANewFileHasItsNameWhenItIsWhole)
{
    addMany(1000);
    for (const auto& write : {ExportSystemLogCsv, ExportSystemLogMdb}) {
        const QString file = write(databases, everything, folder(), u"new"_s, [&](qint64 rows) {
            EXPECT_EQ(left(u"new.???"_s), QStringList()) << rows;
            return true;
        });
        EXPECT_EQ(left(u"new*"_s), QStringList{QFileInfo(file).fileName()});
        QFile::remove(file);
    }
}

TEST_F(SystemLogTest, ALogThatCannotBeRead)
{
    addMany(3000);
    const QString file = path(kSystemLogFile);
    databases.LogConn->close();
    const QByteArray whole = bytes(file);
    QByteArray damaged = whole;
    damaged.replace(whole.size() / 2, 4096, QByteArray(4096, '\xff'));
    const struct
    {
        const char* what;
        QByteArray content; // nothing: the file is gone
        bool locked = false;
    } cases[]{{"missing", {}},
              {"foreign", "Date,Time,User,Description\n"},
              {"damaged", damaged},
              {"cut short", whole.first(whole.size() / 2)},
              {"locked", whole, true}};
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        databases.LogConn->close();
        QFile::remove(file);
        if (!test.content.isEmpty())
            write(file, test.content);
        Connection other;
        if (test.locked) {
            other.setConnectionString(DatabaseConnectionString(file));
            other.openAsIs();
            QSqlQuery query(other.database());
            ASSERT_TRUE(query.exec(u"PRAGMA locking_mode=EXCLUSIVE"_s) && query.exec(u"BEGIN EXCLUSIVE"_s));
        }
        SystemLogModel model(databases);
        EXPECT_FALSE(model.search(everything));
        EXPECT_EQ(model.found(), 0);
        EXPECT_EQ(model.rowCount(), 0);
        EXPECT_THROW(ExportSystemLogCsv(databases, everything, folder(), u"new"_s, {}), std::runtime_error);
        EXPECT_EQ(left(u"new*"_s), QStringList());
        other.close();
        databases.LogConn->close();
        write(file, whole); // what it was again: the next search finds it
        EXPECT_TRUE(model.search(everything));
        EXPECT_EQ(model.found(), 3000);
    }
}

} // namespace
