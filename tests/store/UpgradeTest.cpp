#include "app/StartUp.h"
#include "app/language/Languages.h"
#include "platform/Clock.h"
#include "store/DBConvert.h"
#include "store/DatabaseRepair.h"
#include "store/UpdateDatabase.h"
#include "tests/store/StoreFixture.h"

#include <QCoreApplication>
#include <QProcess>

#include <csignal>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Runs statements on a file, which is made when it is not there.
void Make(const QString& file, const QStringList& statements)
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"old"_s);
        database.setDatabaseName(file);
        ASSERT_TRUE(database.open());
        for (const QString& statement : statements) {
            QSqlQuery query(database);
            EXPECT_TRUE(query.exec(statement)) << statement.toStdString() << query.lastError().text().toStdString();
        }
        database.close();
    }
    QSqlDatabase::removeDatabase(u"old"_s);
}

QString Version(const QString& version, const QString& name)
{
    return u"INSERT INTO BasicDefault VALUES('%1','Omlu',7,'%2',1234)"_s.arg(version, name);
}

// A layout of long ago: fewer fields and tables, some that are gone, groups by name, the old region table.
QStringList OldLayout(const QString& version, const QString& name)
{
    return {
        u"CREATE TABLE BasicDefault(sDBVer TEXT, sBrand TEXT, iLanguage INTEGER, sSystemName TEXT, lGone INTEGER)"_s,
        Version(version, name),
        u"CREATE TABLE GroupPrivilege(GroupID INTEGER, Name TEXT)"_s,
        u"INSERT INTO GroupPrivilege VALUES(1,'Chiefs'),(2,'Guards')"_s,
        u"CREATE TABLE ListenServer(aID INTEGER)"_s,
        u"INSERT INTO ListenServer VALUES(1),(2),(3),(4),(5)"_s,
        u"CREATE TABLE SVR(iSVR_Num INTEGER, sSVR_Name TEXT, iSub_Channel INTEGER, lSub_CH_IntelligentID INTEGER, "
        "bSub_CH_MD_Enable INTEGER)"_s,
        u"INSERT INTO SVR VALUES(1,'O''Brien',1,11,1),(1,'O''Brien',2,12,0),(2,NULL,1,21,1)"_s,
        u"CREATE TABLE Gone(x INTEGER)"_s,
        u"CREATE TABLE SVD_P(x INTEGER)"_s,
        u"CREATE TABLE MDROI(iSVR INTEGER, iCH INTEGER, iRow INTEGER, iCol INTEGER, sROI TEXT, iMD_Sen INTEGER)"_s,
        u"INSERT INTO MDROI VALUES(1,1,2,4,'11110101',4000),(1,2,30,2,'%1',1000),(2,1,1,25,'%2',3000),"
        "(9,9,1,4,'1',2000)"_s.arg(QString(60, u'1'), QString(25, u'1')),
    };
}

class UpgradeTest : public StoreFixture
{
protected:
    UpgradeTest() { SetLanguage(1); }
    void start()
    {
        UpdateWatcher watcher;
        auto fresh = std::make_unique<Station>();
        OpenDatabases(*fresh);
        ReadDefaults(*fresh, watcher);
    }
    QString now(const QString& statement) { return FileRows(path(kDatabaseFile), statement); }
    // Files under their seconds names.
    QStringList aside() const
    {
        QStringList files;
        const QStringList names = QDir(path(u"\\Database")).entryList({u"*.Database.mdb"_s}, QDir::Files);
        for (const QString& name : names)
            files << path(u"\\Database\\") + name;
        return files;
    }
};

TEST_F(UpgradeTest, OldDataIsCarriedOverByName)
{
    PinClock(QDateTime(QDate(2026, 11, 24), QTime(12, 0)));
    Make(path(kDatabaseFile), OldLayout(u"1.0.1.9"_s, u"Harbour"_s));
    start();
    PinClock(QDateTime());

    EXPECT_EQ(now(u"SELECT sDBVer,sBrand,sSystemName,iLanguage,iHttpPort,iSnapCount FROM BasicDefault"_s),
              u"1.0.2.1|Omlu|Harbour|7|80|1"_s);
    EXPECT_EQ(now(u"SELECT Name,Live FROM GroupPrivilege LIMIT 3"_s), u"Chiefs|1\nGuards|1\nUser|1"_s);
    EXPECT_EQ(now(u"SELECT COUNT(*) FROM GroupPrivilege"_s), u"7"_s) << "the rest of the template's rows stays";
    EXPECT_EQ(now(u"SELECT group_concat(aID) FROM ListenServer"_s), u"1,2,3,4,5"_s) << "further rows are added";
    EXPECT_EQ(now(u"SELECT sSVR_Name,lSub_CH_IntelligentID FROM SVR"_s), u"O'Brien|11\nO'Brien|12\n|21"_s);
    EXPECT_EQ(now(u"SELECT COUNT(*) FROM sqlite_master WHERE name IN ('Gone','SVD_P','MDROI')"_s), u"0"_s);
    EXPECT_EQ(logLines("clsDBConvert - ConvertDB"), 1) << "only the table that is part of a longer name fails";
    ASSERT_EQ(aside(), QStringList{path(u"\\Database\\1795521600.Database.mdb")});
    EXPECT_EQ(FileRows(aside().first(), u"SELECT x FROM Gone"_s), QString());
    EXPECT_EQ(FileRows(aside().first(), u"SELECT sDBVer FROM BasicDefault"_s), u"1.0.1.9"_s);
    EXPECT_FALSE(QFile::exists(path(kConvertFile)));

    start();
    EXPECT_EQ(aside().size(), 1) << "the next start finds the present version";
}

TEST_F(UpgradeTest, RegionsBecomeMotionRows)
{
    Make(path(kDatabaseFile), OldLayout(u"1.0.1.9"_s, u"x"_s));
    start();
    const QString none(22, u'0');
    EXPECT_EQ(now(u"SELECT Channel,ROI_00,ROI_01,ROI_02,ROI_23 FROM MotionROI"_s),
              u"11|1111%1|0101%1|%2|%2\n12|11%3|11%3|11%3|11%3\n21|%4|%2|%2|%2\n0|1%5|%2|%2|%2"_s.arg(
                  QString(18, u'0'), none, QString(20, u'0'), QString(25, u'1'), QString(21, u'0')));
    EXPECT_EQ(now(u"SELECT Channel,Enable,Sensitivity FROM MotionSettings"_s), u"11|1|30\n12|0|80\n21|1|50\n0|0|50"_s);
}

TEST_F(UpgradeTest, VersionsCompareAsText)
{
    const std::tuple<const char*, const char*, int> cases[] = {
        {"1.0.2.1", "Old", 0},      {"1.0.10.0", "Old", 1},     {"", "Old", 1},
        {"0.9", "Old", 1},          {"1.0.3.0", "CMS_Core", 1}, {"2", "CMS_Core", 1},
        {"1.0.2.1 ", "CMS_Core", 1}};
    for (const auto& [version, name, replaced] : cases) {
        SCOPED_TRACE(version);
        QDir(path(u"\\Database")).removeRecursively();
        CreateTemplate(path(kTemplateFile));
        Make(path(kDatabaseFile), OldLayout(QString::fromLatin1(version), u"Old"_s));
        start();
        EXPECT_EQ(now(u"SELECT sSystemName FROM BasicDefault"_s), QString::fromLatin1(name));
        EXPECT_EQ(aside().size(), replaced);
    }
}

TEST_F(UpgradeTest, NothingIsReplacedWhenTheNewFileCannotBeMade)
{
    Make(path(kDatabaseFile), OldLayout(u"1.0.1.9"_s, u"Harbour"_s));
    ASSERT_TRUE(QFile::remove(path(kTemplateFile)));
    Make(path(kConvertFile), {u"CREATE TABLE Stale(x INTEGER)"_s});
    start();
    EXPECT_EQ(now(u"SELECT sSystemName,lGone FROM BasicDefault"_s), u"Harbour|1234"_s);
    EXPECT_EQ(aside(), QStringList());
    EXPECT_EQ(logLines("Module_DB_Access - UpdateDatabase"), 1);

    CreateTemplate(path(kTemplateFile));
    start();
    EXPECT_EQ(now(u"SELECT sSystemName FROM BasicDefault"_s), u"Harbour"_s);
    EXPECT_EQ(aside().size(), 1);
}

TEST_F(UpgradeTest, AFullDiskLeavesTheOldDatabaseInUse)
{
    QStringList layout = OldLayout(u"1.0.1.9"_s, u"Harbour"_s);
    layout << u"WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i+1 FROM n) INSERT INTO SVR "
              "SELECT 3,replace(hex(zeroblob(4000)),'0','x'),i,i,0 FROM n LIMIT 600"_s;
    Make(path(kDatabaseFile), layout);
    {
        const FullDisk full(static_cast<rlim_t>(QFileInfo(path(kTemplateFile)).size()) + 1000000);
        start();
    }
    EXPECT_EQ(now(u"SELECT sSystemName,(SELECT COUNT(*) FROM SVR) FROM BasicDefault"_s), u"Harbour|603"_s);
    EXPECT_EQ(aside(), QStringList());
    EXPECT_FALSE(QFile::exists(path(kConvertFile)));
    EXPECT_LE(logLines("clsDBConvert - ConvertDB"), 3) << "one row tells it, not all";
    start();
    EXPECT_EQ(now(u"SELECT sDBVer,(SELECT COUNT(*) FROM SVR) FROM BasicDefault"_s), u"1.0.2.1|603"_s);
}

TEST_F(UpgradeTest, AReadErrorInTheMiddleLeavesTheOldDatabaseInUse)
{
    QStringList layout = OldLayout(u"1.0.1.9"_s, u"Harbour"_s);
    layout << u"WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i+1 FROM n) INSERT INTO SVR "
              "SELECT 3,hex(zeroblob(400)),i,i,0 FROM n LIMIT 600"_s;
    Make(path(kDatabaseFile), layout);
    const int page = FileRows(path(kDatabaseFile), u"SELECT MAX(pageno) FROM dbstat WHERE name='SVR'"_s).toInt();
    const QByteArray whole = read(kDatabaseFile);
    QByteArray damaged = whole;
    ASSERT_GT(page, 0);
    damaged.replace((page - 1) * 4096, 4096, QByteArray(4096, 'x'));
    write(path(kDatabaseFile), damaged);
    start();
    EXPECT_EQ(now(u"SELECT sSystemName,lGone FROM BasicDefault"_s), u"Harbour|1234"_s);
    EXPECT_EQ(aside(), QStringList());
    EXPECT_FALSE(QFile::exists(path(kConvertFile)));
    EXPECT_EQ(logLines("Module_DB_Access - UpdateDatabase"), 1);
}

// Another start carries out the update while this one waits.
class OtherStart final : public UpdateWatcher
{
public:
    OtherStart() { EXPECT_TRUE(m_lock->acquire(0)); }
    void waiting() override
    {
        if (++waits == 1)
            Make(StationPath(kDatabaseFile), {u"UPDATE BasicDefault SET sDBVer='1.0.2.1', sSystemName='Done'"_s});
        else
            m_lock.reset();
    }
    int waits = 0;

private:
    std::unique_ptr<ReplaceLock> m_lock = std::make_unique<ReplaceLock>();
};

TEST_F(UpgradeTest, TwoStartsConvertOnce)
{
    Make(path(kDatabaseFile), OldLayout(u"1.0.1.9"_s, u"Harbour"_s));
    Make(path(kConvertFile), {u"CREATE TABLE OfTheOther(x INTEGER)"_s});
    OtherStart watcher;
    const auto second = std::make_unique<Station>();
    OpenDatabases(*second);
    ReadDefaults(*second, watcher);
    EXPECT_EQ(watcher.waits, 2);
    EXPECT_EQ(second->basicDefault.stored.sSystemName, u"Done"_s);
    EXPECT_TRUE(QFile::exists(path(kConvertFile))) << "what the other works on is not touched";
    EXPECT_EQ(aside(), QStringList());
}

TEST_F(UpgradeTest, EventTriggersComeInTheOrderOfTheirNumbers)
{
    const QString old = path(u"\\old.mdb");
    const QString fresh = path(u"\\fresh.mdb");
    Make(old, {u"CREATE TABLE EventTrigger(SN INTEGER, sText TEXT)"_s,
               u"INSERT INTO EventTrigger VALUES(3,'c'),(1,'a'),(2,'b')"_s});
    Make(fresh, {u"CREATE TABLE EventTrigger(SN INTEGER PRIMARY KEY, sText TEXT)"_s});
    EXPECT_TRUE(clsDBConvert().ConvertDB(old, fresh));
    EXPECT_EQ(FileRows(fresh, u"SELECT group_concat(sText) FROM EventTrigger"_s), u"a,b,c"_s);
    Make(old, {u"ALTER TABLE EventTrigger DROP COLUMN SN"_s});
    EXPECT_TRUE(clsDBConvert().ConvertDB(old, fresh));
    EXPECT_EQ(FileRows(fresh, u"SELECT group_concat(sText) FROM EventTrigger"_s), u"c,a,b"_s);
}

TEST_F(UpgradeTest, ABadValueCostsItsRowOnly)
{
    QStringList layout = OldLayout(u"1.0.1.9"_s, u"x"_s);
    layout << u"UPDATE MDROI SET iRow=NULL WHERE iSVR=1 AND iCH=1"_s;
    Make(path(kDatabaseFile), layout);
    start();
    EXPECT_EQ(now(u"SELECT COUNT(*) FROM MotionROI"_s), u"3"_s);
    EXPECT_EQ(now(u"SELECT COUNT(*) FROM MotionSettings"_s), u"4"_s);
    EXPECT_EQ(logLines("clsDBConvert - ConvertMDROI"), 1);
}

// Dies for good at the n-th thing it is told.
class KillingWatcher final : public UpdateWatcher
{
public:
    explicit KillingWatcher(int last)
        : m_left(last)
    {
    }
    void begin() override { count(); }
    void row(const QString&, qint64, qint64) override { count(); }
    void step() override { count(); }
    void end() override { count(); }

private:
    void count()
    {
        if (--m_left == 0)
            std::raise(SIGKILL);
    }
    int m_left;
};

TEST(UpgradeChild, Runs)
{
    const QString folder = qEnvironmentVariable("UPGRADE_CHILD_STATION");
    if (folder.isEmpty())
        GTEST_SKIP() << "only as the child of another test";
    SetAppPath(folder);
    KillingWatcher watcher(qEnvironmentVariableIntValue("UPGRADE_CHILD_LAST"));
    auto station = std::make_unique<Station>();
    OpenDatabases(*station);
    ReadDefaults(*station, watcher);
}

TEST_F(UpgradeTest, KilledAtAnyStepTheDataIsStillThere)
{
    bool killed = true;
    int last = 1;
    int converted = 0;
    const QString prepared = path(u"\\Prepared");
    ASSERT_TRUE(QDir().mkdir(prepared));
    QFile::copy(path(kTemplateFile), prepared + u"/template"_s);
    Make(prepared + u"/old"_s, OldLayout(u"1.0.1.9"_s, u"Harbour"_s));
    Make(prepared + u"/saved"_s, OldLayout(u"1.0.1.9"_s, u"Saved"_s));
    for (; killed; ++last) {
        for (const bool backup : {true, false}) {
            SCOPED_TRACE(u"killed at %1, backup %2"_s.arg(last).arg(backup).toStdString());
            QDir database(path(u"\\Database"));
            database.removeRecursively();
            database.mkpath(u"."_s);
            ASSERT_TRUE(QFile::copy(prepared + u"/template"_s, path(kTemplateFile)));
            ASSERT_TRUE(QFile::copy(prepared + u"/old"_s, path(kDatabaseFile)));
            if (backup) {
                ASSERT_TRUE(QFile::copy(prepared + u"/saved"_s, path(kBackup1File)));
            }

            QProcess child;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(u"UPGRADE_CHILD_STATION"_s, AppPath());
            environment.insert(u"UPGRADE_CHILD_LAST"_s, QString::number(last));
            child.setProcessEnvironment(environment);
            child.start(QCoreApplication::applicationFilePath(), {u"--gtest_filter=UpgradeChild.Runs"_s});
            ASSERT_TRUE(child.waitForFinished(60000));
            killed = child.exitStatus() == QProcess::CrashExit;
            if (!killed) {
                ASSERT_EQ(child.exitCode(), 0) << child.readAll().toStdString();
            }

            start();
            EXPECT_EQ(now(u"SELECT sDBVer FROM BasicDefault"_s), u"1.0.2.1"_s);
            EXPECT_EQ(now(u"PRAGMA integrity_check"_s), u"ok"_s);
            int old = 0; // the user's file, whole, under its seconds name
            const QStringList files = aside();
            for (const QString& file : files)
                old += FileRows(file, u"SELECT sSystemName,(SELECT COUNT(*) FROM MDROI) FROM BasicDefault"_s) ==
                       "Harbour|4"_L1;
            EXPECT_EQ(old, 1);
            EXPECT_EQ(now(u"SELECT sSystemName,(SELECT COUNT(*) FROM MotionSettings) FROM BasicDefault"_s),
                      u"Harbour|4"_s)
                << "also when it is killed between the two renames";
            ++converted;
        }
    }
    EXPECT_GT(converted, 40) << "every row was a step";
}

} // namespace
