#include "app/CloseSequence.h"
#include "app/StartUp.h"
#include "app/language/Languages.h"
#include "platform/Autostart.h"
#include "platform/Clock.h"
#include "platform/DatabaseFile.h"
#include "platform/MsgBox.h"
#include "platform/Wait.h"
#include "recorders/data/SVRStore.h"
#include "store/SystemLog.h"
#include "tests/store/StoreFixture.h"

#include <QProcess>
#include <QThread>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A station folder as it may be found at start, and the station that opens it.
class StationTest : public StoreFixture
{
protected:
    StationTest()
    {
        qputenv("XDG_CONFIG_HOME", path(u"\\config").toUtf8());
        qputenv("XDG_CONFIG_DIRS", path(u"\\machine").toUtf8());
        SetMsgBoxHandler([this](const QString& text, qint32, const QString& title) {
            boxes << text;
            EXPECT_EQ(title, u"Information"_s);
            return answers.isEmpty() ? MsgResult::No : answers.takeFirst();
        });
        SetLanguage(1);
    }
    ~StationTest() override
    {
        SetMsgBoxHandler(nullptr);
        SetClosing(false);
    }
    // A database whose system name tells it from others.
    void makeDatabase(QStringView literal, const QString& name)
    {
        QFile::remove(path(literal));
        ASSERT_TRUE(QFile::copy(path(kTemplateFile), path(literal)));
        Connection connection;
        connection.setConnectionString(DatabaseConnectionString(path(literal)));
        connection.openAsIs();
        QSqlQuery query(connection.database());
        ASSERT_TRUE(query.exec(u"UPDATE BasicDefault SET iLanguage=1, sSystemName='%1'"_s.arg(name)));
    }
    QString nameIn(QStringView literal)
    {
        Connection connection;
        connection.setConnectionString(DatabaseConnectionString(path(literal)));
        connection.openAsIs();
        QSqlQuery query(connection.database());
        return query.exec(u"SELECT sSystemName FROM BasicDefault"_s) && query.next() ? query.value(0).toString()
                                                                                     : QString();
    }
    void start()
    {
        fresh = std::make_unique<Station>();
        OpenDatabases(*fresh);
        UpdateWatcher watcher;
        ReadDefaults(*fresh, watcher);
        LoadRecords(*fresh);
        fresh->basicDefault.edit = fresh->basicDefault.stored;
        fresh->families.InitialSetValue();
        fresh->Loading = false;
    }
    QStringList audit()
    {
        std::vector<SystemLogRow> rows;
        GetSystemLog(fresh->databases, 0, 2147483647, {}, rows);
        QStringList texts;
        for (const SystemLogRow& row : rows)
            texts << row.Description;
        return texts;
    }

    QStringList boxes;
    QList<MsgResult> answers;
    std::unique_ptr<Station> fresh;
};

} // namespace

TEST_F(StationTest, AMissingDatabaseComesFromTheNewestBackupWhichStays)
{
    makeDatabase(kBackup1File, u"newest"_s);
    makeDatabase(kBackup2File, u"second"_s);
    start();
    EXPECT_EQ(fresh->basicDefault.stored.sSystemName, u"newest"_s);
    EXPECT_EQ(nameIn(kBackup1File), u"newest"_s);
    EXPECT_EQ(nameIn(kBackup2File), u"second"_s);

    fresh.reset();
    QFile::remove(path(kDatabaseFile));
    QFile::remove(path(kBackup1File));
    start();
    EXPECT_EQ(fresh->basicDefault.stored.sSystemName, u"second"_s);
    EXPECT_EQ(nameIn(kBackup2File), u"second"_s);
}

TEST_F(StationTest, WithoutBackupsTheTemplateReplacesEvenADamagedDatabase)
{
    write(path(kDatabaseFile), "damaged");
    start();
    EXPECT_EQ(fresh->basicDefault.stored.sSystemName, u"CMS_Core"_s);
    EXPECT_EQ(fresh->basicDefault.stored.iLanguage, GetOsLang());
    EXPECT_EQ(logLines("Module_DB_Access - InitialDB"), 1);
}

TEST_F(StationTest, ADamagedDatabaseNeverCostsTheBackup)
{
    makeDatabase(kBackup1File, u"newest"_s);
    write(path(kDatabaseFile), "damaged");
    start();
    EXPECT_EQ(nameIn(kBackup1File), u"newest"_s);
    EXPECT_EQ(read(kDatabaseFile), "damaged");
    EXPECT_EQ(logLines("Module_DB_Access - InitialDB"), 2);
    EXPECT_GE(logLines("Form_Initial - Form_Load"), 2);
    EXPECT_EQ(fresh->recorders.iSVR_MaxChannelAll, 0) << "the reads fail one by one, the start goes on";
}

TEST_F(StationTest, EachTouchedPageIsSavedOnceAndAudited)
{
    makeDatabase(kDatabaseFile, u"x"_s);
    start();
    SaveCheck(*fresh);
    EXPECT_FALSE(fresh->m_bDataSaved);
    EXPECT_FALSE(fresh->families.ExitCheck());

    SVRRecord& work = fresh->recorders.SVRWorkList[0];
    work.sSVR_Name = u"a"_s;
    work.sSVR_IP = u"10.0.0.1"_s;
    work.iSVR_Num = 1;
    work.iSVR_Maxchannel = 1;
    work.channels[0].sSub_CH_IP = u"10.0.0.9"_s;
    work.channels[0].iSub_Channel = 1;
    work.bSVR_Changed = true;
    fresh->basicDefault.edit.sSystemName = u"renamed"_s;
    fresh->basicDefault.edit.bStartup = true;
    fresh->basicDefault.edit.bChanged = true;
    fresh->groups.edit[2].Name = u"Night"_s;
    fresh->groups.edit[2].bChanged = true;
    EXPECT_TRUE(fresh->families.ExitCheck());
    QFile::remove(path(u"\\machine\\autostart\\CMS_Core.desktop"));
    SetAutostart(AutostartScope::Machine, u"CMS_Core"_s, u"old"_s);
    SaveCheck(*fresh);
    EXPECT_TRUE(fresh->m_bDataSaved);
    EXPECT_FALSE(fresh->families.ExitCheck());
    QStringList texts = audit();
    texts.sort();
    EXPECT_EQ(texts, (QStringList{u"Modify Setting of NVR"_s, u"Modify Setting of System"_s,
                                  u"Modify Setting of User Group"_s}));
    EXPECT_EQ(AutostartCommand(AutostartScope::User, u"CMS_Core"_s), u'"' + ProgramPath(u"CMS_Core"_s) + u'"');
    EXPECT_EQ(AutostartCommand(AutostartScope::Machine, u"CMS_Core"_s), QString());

    start(); // another run on the same files
    EXPECT_EQ(fresh->basicDefault.stored.sSystemName, u"renamed"_s);
    EXPECT_EQ(fresh->recorders.SVRWorkList[0].sSVR_Name, u"a"_s);
    EXPECT_EQ(fresh->groups.edit[2].Name, u"Night"_s);
    fresh->basicDefault.edit.bStartup = false;
    fresh->basicDefault.edit.bChanged = true;
    SaveCheck(*fresh);
    EXPECT_EQ(AutostartCommand(AutostartScope::User, u"CMS_Core"_s), QString());
}

TEST_F(StationTest, RevertingAPageBringsBackItsStoredRecordsOnly)
{
    makeDatabase(kDatabaseFile, u"x"_s);
    start();
    fresh->basicDefault.edit.sSystemName = u"y"_s;
    fresh->groups.edit[0].Name = u"z"_s;
    fresh->families.revertPage(3);
    EXPECT_EQ(fresh->groups.edit[0].Name, u"Administrator"_s);
    EXPECT_EQ(fresh->basicDefault.edit.sSystemName, u"y"_s);
}

TEST_F(StationTest, ANewRecorderGetsEveryRightInAllGroups)
{
    makeDatabase(kDatabaseFile, u"x"_s);
    start();
    SVRRecord& work = fresh->recorders.SVRWorkList[4];
    work.sSVR_Name = u"a"_s;
    work.sSVR_IP = u"10.0.0.1"_s;
    work.iSVR_Num = 5;
    work.bSVR_Changed = true;
    FinishNewRecorders(*fresh);
    start();
    for (const GroupPrivilegeRecord& group : fresh->groups.stored) {
        EXPECT_TRUE(group.CHPrivilege[4].startsWith("1:15,15,"_L1));
        EXPECT_EQ(group.CHPrivilege[4].count(u','), 63);
        EXPECT_EQ(group.CHPrivilege[3], QString());
    }
}

TEST_F(StationTest, BackupsRotateAfterARunThatSaved)
{
    makeDatabase(kDatabaseFile, u"one"_s);
    RotateBackups();
    EXPECT_EQ(nameIn(kBackup1File), u"one"_s);
    makeDatabase(kDatabaseFile, u"two"_s);
    RotateBackups();
    makeDatabase(kDatabaseFile, u"three"_s);
    RotateBackups();
    EXPECT_EQ(nameIn(kBackup1File), u"three"_s);
    EXPECT_EQ(nameIn(kBackup2File), u"two"_s);
}

namespace {

// Notes what the close sequence does to windows, and a queue that still holds items.
class NotedHost : public CloseHost, public NotificationQueue
{
public:
    void disableWindows() override { steps << u"disable"_s; }
    void closeCalledOff() override { steps << u"stay"_s; }
    void showProgress(int maximum, const QString& count) override { steps << u"show %1 %2"_s.arg(maximum).arg(count); }
    void updateProgress(int done, const QString& count) override { steps << u"update %1 %2"_s.arg(done).arg(count); }
    bool progressCancelled() const override { return cancelled; }
    void closeProgressAndHide() override { steps << u"hide"_s; }
    void unloadAll() override { steps << u"unload"_s; }

    void SendQueueStr_Set(const QString&, bool) override {}
    int pendingItems() const override { return items; }
    int sendsUnderWay() const override { return underWay; }
    void startTimer() override { stopped = false; }
    void stopTimer() override { stopped = true; }
    bool timerStopped() const override { return stopped; }
    void CheckNeedToSend() override { items = qMax(0, items - 1); }

    QStringList steps;
    bool cancelled = false;
    bool stopped = false;
    int items = 0;
    int underWay = 0;
};

} // namespace

class CloseTest : public StationTest
{
protected:
    void begin()
    {
        makeDatabase(kDatabaseFile, u"x"_s);
        start();
        auto owned = std::make_unique<NotedHost>();
        host = owned.get();
        fresh->notifications = std::move(owned);
        sequence = std::make_unique<CloseSequence>(*fresh, *host);
    }
    QList<int> statesUntilEnd()
    {
        QList<int> states;
        sequence->start();
        for (int i = 0; i < 20 && !sequence->finished(); ++i) {
            states << sequence->m_CloseState();
            sequence->tick();
        }
        return states;
    }
    NotedHost* host = nullptr;
    std::unique_ptr<CloseSequence> sequence;
};

TEST_F(CloseTest, WalksItsStatesAndOffersTheViewer)
{
    begin();
    sequence->tick(); // idle
    answers = {MsgResult::Yes};
    EXPECT_EQ(statesUntilEnd(), (QList<int>{1, 2, 3, 5, 7, 6, 8}));
    EXPECT_EQ(boxes, QStringList{GetLangString(508)});
    EXPECT_TRUE(sequence->m_bOpenMainViewer());
    EXPECT_EQ(host->steps, (QStringList{u"disable"_s, u"show 1 "_s, u"hide"_s, u"unload"_s}));
    EXPECT_FALSE(fresh->databases.DBConn);
    InitialDB(fresh->databases);
    EXPECT_EQ(audit(), QStringList{u"Close Rigging Desk"_s});
}

TEST_F(CloseTest, UnsavedChangesAreAskedAboutAndTheRunningViewerNamed)
{
    begin();
    fresh->basicDefault.edit.sSystemName = u"kept"_s;
    fresh->basicDefault.edit.bChanged = true;
    write(path(u"\\Running.txt"), {});
    answers = {MsgResult::Cancel, MsgResult::Yes};
    sequence->start();
    sequence->tick();
    EXPECT_EQ(sequence->m_CloseState(), 0) << "Cancel stays";
    EXPECT_EQ(host->steps, QStringList{u"stay"_s});
    EXPECT_FALSE(Closing() || host->stopped || fresh->m_bDataSaved);
    boxes.clear();
    statesUntilEnd();
    EXPECT_EQ(boxes, (QStringList{GetLangString(514), GetLangString(772)}));
    EXPECT_EQ(nameIn(kDatabaseFile), u"kept"_s);
    EXPECT_TRUE(fresh->m_bDataSaved);
}

TEST_F(CloseTest, WaitsForTheQueueUntilItIsEmptyOrCancelled)
{
    begin();
    host->items = 2;
    host->underWay = 1;
    sequence->start();
    for (int i = 0; i < 6; ++i)
        sequence->tick();
    EXPECT_EQ(sequence->m_CloseState(), 5);
    EXPECT_TRUE(host->steps.contains(u"show 2 [2]"_s));
    EXPECT_TRUE(host->steps.contains(u"update 2 [0]"_s));
    host->cancelled = true;
    sequence->tick();
    EXPECT_EQ(sequence->m_CloseState(), 5) << "a send under way is waited for even then";
    host->underWay = 0;
    sequence->tick();
    EXPECT_EQ(sequence->m_CloseState(), 7);
}

TEST_F(StationTest, AProcessKilledWhileItSavesLeavesFilesThatOpen)
{
    makeDatabase(kDatabaseFile, u"x"_s);
    // The same program, saving without end (see SavingChild).
    for (int milliseconds : {40, 90, 160}) {
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"SAVING_CHILD_STATION"_s, AppPath());
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(), {u"--gtest_filter=SavingChild.Runs"_s});
        ASSERT_TRUE(child.waitForStarted());
        QByteArray output;
        while (!output.contains("saving")) {
            ASSERT_TRUE(child.waitForReadyRead(20000));
            output += child.readAllStandardOutput();
        }
        QThread::msleep(static_cast<unsigned long>(milliseconds));
        child.kill();
        child.waitForFinished();
        start();
        EXPECT_EQ(logLines("Module_DB_Access - InitialDB"), 0) << allLogs().toStdString();
        EXPECT_TRUE(fresh->basicDefault.stored.sSystemName.startsWith(u'x')) << "the row is whole";
        fresh.reset();
    }
}

TEST(SavingChild, Runs)
{
    const QString folder = qEnvironmentVariable("SAVING_CHILD_STATION");
    if (folder.isEmpty())
        GTEST_SKIP() << "only as the child of another test";
    SetAppPath(folder);
    auto station = std::make_unique<Station>();
    OpenDatabases(*station);
    UpdateWatcher watcher;
    ReadDefaults(*station, watcher);
    LoadRecords(*station);
    station->families.InitialSetValue();
    SVRRecord& work = station->recorders.SVRWorkList[0];
    work.sSVR_IP = u"10.0.0.1"_s;
    work.iSVR_Num = 1;
    work.iSVR_Maxchannel = 64;
    for (std::size_t channel = 0; channel < kMaxChannel; ++channel) {
        work.channels[channel].sSub_CH_IP = u"10.0.0.9"_s;
        work.channels[channel].iSub_Channel = static_cast<qint16>(channel + 1);
    }
    std::puts("saving");
    std::fflush(stdout);
    for (int i = 0;; ++i) {
        work.bSVR_Changed = true;
        station->basicDefault.edit.sSystemName = u"x%1"_s.arg(i);
        station->basicDefault.edit.bChanged = true;
        SaveCheck(*station);
    }
}
