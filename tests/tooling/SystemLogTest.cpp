#include "app/language/Languages.h"
#include "platform/Closing.h"
#include "tests/store/StoreFixture.h"
#include "tooling/SystemLogExport.h"
#include "tooling/SystemLogModel.h"

#include <QSqlQuery>
#include <gtest/gtest.h>

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
        ASSERT_TRUE(QSqlQuery(databases.LogConn->database())
                        .exec(u"WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i+1 FROM n) INSERT INTO SystemLog "
                              "SELECT %1+i, 'u', 'row '||i FROM n LIMIT %2"_s.arg(kNoon)
                                  .arg(rows)));
    }
    QByteArray bytes(const QString& file)
    {
        QFile handle(file);
        return handle.open(QIODevice::ReadOnly) ? handle.readAll() : QByteArray("missing");
    }
    QString folder() { return AppPath(); }
    QStringList left(const QString& pattern) { return QDir(folder()).entryList({pattern}); }
    // What is asked of the model, once it is on show: whether the log could be read.
    static bool drawn(SystemLogModel& model, const std::function<void()>& ask)
    {
        std::optional<bool> result;
        const auto connection =
            QObject::connect(&model, &SystemLogModel::drawn, &model, [&result](bool ok) { result = ok; });
        ask();
        while (!result)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QObject::disconnect(connection);
        return *result;
    }
    bool search(SystemLogModel& model, const SystemLogQuery& query)
    {
        return drawn(model, [&] { model.search(query); });
    }
    struct Ended
    {
        SystemLogExport::Outcome outcome;
        QString file;
        qint64 told;
    };
    Ended exported(SystemLogExport::Kind kind, const QString& stem, const std::function<void()>& meanwhile = {})
    {
        SystemLogExport work(databases, everything, kind, target, stem);
        std::optional<Ended> ended;
        qint64 told = 0;
        QObject::connect(&work, &SystemLogExport::progress, &work, [&](qint64 written) {
            told = written;
            if (meanwhile)
                meanwhile();
        });
        QObject::connect(&work, &SystemLogExport::finished, &work, [&](SystemLogExport::Outcome outcome) {
            ended = {outcome, work.file(), told};
        });
        work.start();
        while (!ended)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return *ended;
    }
    QString target = AppPath();
    const SystemLogQuery everything{0, 2147483647, {}};
};

using Kind = SystemLogExport::Kind;
using Outcome = SystemLogExport::Outcome;

TEST_F(SystemLogTest, PagesOfEleven)
{
    const std::tuple<int, const char*, qint32, int> cases[] = {{0, "1/0", 0, 0},  {1, "1/0", 0, 1},  {11, "1/1", 0, 11},
                                                               {12, "1/1", 1, 1}, {13, "1/2", 1, 2}, {22, "1/2", 1, 11},
                                                               {23, "1/2", 2, 1}, {24, "1/3", 2, 2}};
    for (const auto& [rows, label, last, lastRows] : cases) {
        SCOPED_TRACE(rows);
        QSqlQuery(databases.LogConn->database()).exec(u"DELETE FROM SystemLog"_s);
        addMany(rows);
        SystemLogModel model(databases);
        ASSERT_TRUE(search(model, everything));
        EXPECT_EQ(model.pageText(), QString::fromLatin1(label));
        model.pageControl(SystemLogModel::Back);
        EXPECT_EQ(model.m_SysPage(), 0);
        for (int i = 0; i < 5; ++i)
            model.pageControl(SystemLogModel::On);
        EXPECT_EQ(model.m_SysPage(), last);
        EXPECT_EQ(model.rowCount(), lastRows);
        model.pageControl(SystemLogModel::First);
        model.pageControl(SystemLogModel::Last);
        EXPECT_EQ(model.m_SysPage(), last);
    }
}

TEST_F(SystemLogTest, SearchFilterRefreshCopy)
{
    add(kNoon, u"O'Brien"_s, u"100% done"_s);
    add(kNoon + 10, u"amy"_s, u"Modify Setting of NVR"_s);
    add(kNoon + 20, u"amy"_s, u"Close Rigging Desk"_s);
    SystemLogModel model(databases);
    search(model, {kNoon, kNoon + 10, {}});
    EXPECT_EQ(model.found(), 2) << "both ends belong to the span";
    EXPECT_EQ(model.data(model.index(0, SystemLogModel::Time), Qt::DisplayRole), u"11/24 13:00:10"_s);
    EXPECT_EQ(model.copyText({1}), u"2026/11/24 13:00:00\tO'Brien\t100% done\n"_s);
    search(model, {0, 2147483647, u"O'Brien"_s});
    EXPECT_EQ(model.found(), 1);
    search(model, everything);
    for (const auto& [filter, rows] :
         {std::pair{u"NVR"_s, 1}, {u"modify"_s, 1}, {u"%"_s, 1}, {u"_"_s, 0}, {u"AMY"_s, 2}}) {
        drawn(model, [&] { model.setFilter(filter); });
        EXPECT_EQ(model.found(), rows) << filter.toStdString();
    }
    add(kNoon + 30, u"amy"_s, u"new"_s);
    const auto refresh = [&model] { model.pageControl(SystemLogModel::Refresh); };
    drawn(model, refresh);
    EXPECT_EQ(model.found(), 3);
    QSqlQuery(databases.LogConn->database()).exec(u"DROP TABLE SystemLog"_s);
    EXPECT_FALSE(drawn(model, refresh));
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_GE(logLines("Module_DB_Access - GetSystemLog"), 1);
}

TEST_F(SystemLogTest, TextExport)
{
    // Both sides of the end of summer time: 02:30 comes twice.
    add(1792888200, u"Zoë"_s, u"a,\"b\""_s);
    add(1792891800, u""_s, u"c"_s);
    const Ended ended = exported(Kind::Csv, u"log"_s);
    const QByteArray expected = QByteArray("Date,Time,User,Description\n2026/10/25,02:30:00,,c\n"
                                           "2026/10/25,02:30:00,Zo\xc3\xab,a,\"b\"\n");
    EXPECT_EQ(bytes(ended.file), expected);
    EXPECT_EQ(ended.told, 2);
    exported(Kind::Csv, u"log"_s);
    EXPECT_EQ(bytes(ended.file), expected + expected) << "appended";
    target += u"/none"_s;
    EXPECT_EQ(exported(Kind::Csv, u"log"_s).outcome, Outcome::Failed);
}

TEST_F(SystemLogTest, DatabaseExport)
{
    add(kNoon, u"O'Brien"_s, u"it's"_s);
    const QString file = exported(Kind::Mdb, u"log"_s).file;
    Connection connection;
    connection.setConnectionString(DatabaseConnectionString(file));
    connection.openAsIs();
    QSqlQuery query(connection.database());
    ASSERT_TRUE(query.exec(u"SELECT LogTime||'|'||LoginUser||'|'||Description FROM SYSTEMLOG"_s) && query.next());
    EXPECT_EQ(query.value(0).toString(), u"2026/11/24 13:00:00|O'Brien|it's"_s);
    const QByteArray before = bytes(file);
    EXPECT_EQ(exported(Kind::Mdb, u"log"_s).outcome, Outcome::Failed);
    EXPECT_EQ(bytes(file), before) << "a file that is there is never touched";
}

// The clock was set back twice, and rows are missing: newest first all the same, on show and in the files.
TEST_F(SystemLogTest, RowsOutOfOrder)
{
    for (const int hour : {5, 6, 7, 1, 2, 9, 3, 3})
        add(kNoon + hour * 3600, {}, QString::number(hour));
    QSqlQuery(databases.LogConn->database()).exec(u"UPDATE SystemLog SET rowid=rowid+70000 WHERE rowid>4"_s);
    const QByteArray expected = "9,7,6,5,3,3,2,1";
    SystemLogModel model(databases);
    search(model, everything);
    QByteArrayList shown;
    for (int row = 0; row < model.rowCount(); ++row)
        shown << model.data(model.index(row, SystemLogModel::Description), Qt::DisplayRole).toByteArray();
    EXPECT_EQ(shown.join(','), expected);
    QByteArrayList lines = bytes(exported(Kind::Csv, u"log"_s).file).trimmed().split('\n').mid(1);
    for (QByteArray& line : lines)
        line = line.mid(line.lastIndexOf(',') + 1);
    EXPECT_EQ(lines.join(','), expected);
}

TEST_F(SystemLogTest, ABrokenExportLeavesNothingBehind)
{
    addMany(100000);
    write(folder() + u"/mine.csv"_s, "mine\n");
    for (const auto& [kind, stem] : {std::pair{Kind::Csv, u"mine"_s}, {Kind::Csv, u"new"_s}, {Kind::Mdb, u"new"_s}}) {
        EXPECT_EQ(exported(kind, stem, [] { SetClosing(true); }).outcome, Outcome::Stopped);
        SetClosing(false);
    }
    EXPECT_EQ(bytes(folder() + u"/mine.csv"_s), QByteArray("mine\n"));
    EXPECT_EQ(exported(Kind::Mdb, u"new"_s,
                       [this] { QSqlQuery(databases.LogConn->database()).exec(u"DROP TABLE SystemLog"_s); })
                  .outcome,
              Outcome::Failed);
    EXPECT_EQ(left(u"new*"_s), QStringList());
}

TEST_F(SystemLogTest, AFullDiskHarmsNothing)
{
    addMany(4000);
    write(folder() + u"/mine.csv"_s, "mine\n");
    {
        const FullDisk full(90000);
        for (const QString& stem : {u"mine"_s, u"new"_s})
            EXPECT_EQ(exported(Kind::Csv, stem).outcome, Outcome::Failed);
        EXPECT_EQ(exported(Kind::Mdb, u"new"_s).outcome, Outcome::Failed);
    }
    EXPECT_EQ(bytes(folder() + u"/mine.csv"_s), QByteArray("mine\n"));
    EXPECT_EQ(left(u"new*"_s), QStringList());
    EXPECT_EQ(exported(Kind::Mdb, u"new"_s).outcome, Outcome::Whole);
}

TEST_F(SystemLogTest, ANewFileHasItsNameWhenItIsWhole)
{
    addMany(1000);
    for (const Kind kind : {Kind::Csv, Kind::Mdb}) {
        const QString file = exported(kind, u"new"_s, [&] { EXPECT_EQ(left(u"new.???"_s), QStringList()); }).file;
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
    const std::pair<const char*, QByteArray> cases[] = {{"missing", {}}, // the file is gone
                                                        {"foreign", "Date,Time,User,Description\n"},
                                                        {"damaged", damaged},
                                                        {"cut short", whole.first(whole.size() / 2)},
                                                        {"locked", whole}};
    for (const auto& [what, content] : cases) {
        SCOPED_TRACE(what);
        databases.LogConn->close();
        QFile::remove(file);
        if (!content.isEmpty())
            write(file, content);
        Connection other;
        if (content == whole) {
            other.setConnectionString(DatabaseConnectionString(file));
            other.openAsIs();
            QSqlQuery query(other.database());
            ASSERT_TRUE(query.exec(u"PRAGMA locking_mode=EXCLUSIVE"_s) && query.exec(u"BEGIN EXCLUSIVE"_s));
        }
        SystemLogModel model(databases);
        EXPECT_FALSE(search(model, everything));
        EXPECT_EQ(model.found(), 0);
        EXPECT_EQ(model.rowCount(), 0);
        EXPECT_EQ(exported(Kind::Csv, u"new"_s).outcome, Outcome::Unreadable);
        EXPECT_EQ(left(u"new*"_s), QStringList());
        other.close();
        databases.LogConn->close();
        write(file, whole); // what it was again: the next search finds it
        EXPECT_TRUE(search(model, everything));
        EXPECT_EQ(model.found(), 3000);
    }
}

} // namespace
