#include "platform/Autostart.h"
#include "platform/Clock.h"
#include "platform/DatabaseFile.h"
#include "recorders/data/SVRStore.h"
#include "tests/app/StationFixture.h"
#include "users/AccountStore.h"

#include <QProcess>
#include <QSqlDriver>

#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

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

TEST_F(StationTest, ADamagedDatabaseIsKeptAsideAndReplaced)
{
    makeDatabase(kDatabaseFile, u"mine"_s);
    const QByteArray whole = read(kDatabaseFile);
    for (const QByteArray& damaged : {QByteArray(), QByteArray("damaged"), whole.left(60), whole.left(40960)}) {
        for (const bool backup : {false, true}) {
            SCOPED_TRACE(std::to_string(damaged.size()) + (backup ? " with a backup" : ""));
            write(path(kDatabaseFile), damaged);
            QFile::remove(path(kBackup1File));
            write(path(kBackup2File), "a backup that is none");
            if (backup)
                makeDatabase(kBackup1File, u"saved"_s);
            start();
            EXPECT_EQ(fresh->basicDefault.stored.sSystemName, backup ? u"saved"_s : u"CMS_Core"_s);
            EXPECT_EQ(QFile::exists(path(kBackup1File)), backup);
            EXPECT_EQ(read(kBackup2File), "a backup that is none");
            const QStringList files = aside();
            ASSERT_EQ(files.size(), 1);
            EXPECT_EQ(station.read(QString(u"\\Database\\" + files.first())), damaged);
            QFile::remove(path(QString(u"\\Database\\" + files.first())));
            fresh.reset();
        }
    }
    EXPECT_EQ(boxes, QStringList());
}

TEST_F(StationTest, ALockedDatabaseIsAskedAboutAndNeverReplaced)
{
    makeDatabase(kDatabaseFile, u"mine"_s);
    makeDatabase(kBackup1File, u"saved"_s);
    Connection other;
    other.setConnectionString(DatabaseConnectionString(path(kDatabaseFile)));
    other.openAsIs();
    QSqlQuery lock(other.database());
    ASSERT_TRUE(lock.exec(u"BEGIN EXCLUSIVE"_s));
    start(); // the answer is No
    EXPECT_EQ(boxes.first(), GetLangString(981));
    EXPECT_FALSE(IsFreshStation(fresh->users));
    EXPECT_FALSE(fresh->users.read);

    const MsgBoxHandler handler = SetMsgBoxHandler([&](const QString&, qint32, const QString&) {
        lock.exec(u"ROLLBACK"_s);
        return MsgResult::Yes;
    });
    start();
    SetMsgBoxHandler(handler);
    EXPECT_EQ(fresh->basicDefault.stored.sSystemName, u"mine"_s);
    EXPECT_TRUE(IsFreshStation(fresh->users));
    EXPECT_EQ(aside(), QStringList());
}

TEST_F(StationTest, ACheckpointCutShortIsReadWithItsLog)
{
    makeDatabase(kDatabaseFile, u"mine"_s);
    const qint64 size = QFileInfo(path(kDatabaseFile)).size();
    QByteArray log;
    {
        Connection connection;
        connection.setConnectionString(DatabaseConnectionString(path(kDatabaseFile)));
        connection.open();
        QSqlQuery query(connection.database());
        for (const QString& statement :
             {u"PRAGMA wal_autocheckpoint=0"_s, u"PRAGMA wal_checkpoint(TRUNCATE)"_s,
              u"INSERT INTO UserData (sUser,sCorp) VALUES ('chief', hex(zeroblob(40000)))"_s})
            ASSERT_TRUE(query.exec(statement));
        log = read(u"\\Database\\Database.mdb-wal");
    }
    const QByteArray whole = read(kDatabaseFile);
    ASSERT_GT(whole.size(), size + 4096);
    write(path(kDatabaseFile), whole.left(size)); // its header tells of the pages that are not there yet
    write(path(u"\\Database\\Database.mdb-wal"), log);
    start();
    EXPECT_EQ(fresh->users.stored.front().sUser, u"chief"_s);
    EXPECT_EQ(aside(), QStringList());
}

TEST_F(StationTest, ALockedAuditLogIsLeftAloneAndWrittenLater)
{
    makeDatabase(kDatabaseFile, u"mine"_s);
    CreateSystemLog(path(kSystemLogFile));
    Connection other;
    other.setConnectionString(DatabaseConnectionString(path(kSystemLogFile)));
    other.openAsIs();
    QSqlQuery lock(other.database());
    ASSERT_TRUE(lock.exec(u"BEGIN EXCLUSIVE"_s));
    start();
    EXPECT_EQ(fresh->basicDefault.stored.sSystemName, u"mine"_s);
    lock.exec(u"ROLLBACK"_s);
    EXPECT_EQ(SaveSystemLog(fresh->databases, 1, {}, u"later"_s), 1);
    EXPECT_EQ(audit(), QStringList(u"later"_s));
    EXPECT_EQ(QDir(path(u"\\Database")).entryList({u"*.SystemLog.mdb"_s}), QStringList());
}

TEST_F(StationTest, RightsOfWhatIsThereAreTightened)
{
    makeDatabase(kDatabaseFile, u"mine"_s);
    const QStringList files{path(kDatabaseFile), path(kTemplateFile), path(u"\\log\\LogSys-20200101.txt"),
                            path(u"\\log\\Listen\\Message.txt"), path(u"\\DetailExport-20200101.txt")};
    QStringList all = files;
    ASSERT_TRUE(QDir().mkpath(path(u"\\log\\Listen")));
    for (const QString& file : files) {
        QFile(file).open(QIODevice::Append);
        all << QFileInfo(file).path();
    }
    all.removeAll(AppPath());
    const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther;
    for (const QString& file : std::as_const(all))
        QFile::setPermissions(file, QFile::permissions(file) | others);
    start();
    for (const QString& file : std::as_const(all))
        EXPECT_EQ(QFile::permissions(file) & others, QFile::Permissions()) << file.toStdString();
}

TEST_F(StationTest, WhatCouldNotBeReadIsNotWrittenOver)
{
    const QStringList tables{u"SVR"_s,      u"UserData"_s,   u"GroupPrivilege"_s, u"NVRPrivilege"_s,    u"EMapGroup"_s,
                             u"EMapIcon"_s, u"NVRAccount"_s, u"MotionSettings"_s, u"TripwireSettings"_s};
    for (const QString& table : tables) {
        SCOPED_TRACE(table.toStdString());
        makeDatabase(kDatabaseFile, u"x"_s);
        run(u"INSERT INTO %1 DEFAULT VALUES"_s.arg(table));
        const QString column = ask(u"SELECT name FROM pragma_table_info('%1') ORDER BY cid DESC LIMIT 1"_s.arg(table));
        run(u"ALTER TABLE %1 RENAME COLUMN \"%2\" TO gone"_s.arg(table, column));
        const QString before = ask(u"SELECT COUNT(*)||'|'||SUM(rowid) FROM "_s + table);
        boxes.clear();
        start();
        EXPECT_FALSE(CheckRecords(*fresh));
        EXPECT_EQ(boxes, QStringList(GetLangString(983).arg(table)));
        EXPECT_FALSE(IsFreshStation(fresh->users) && table == "UserData"_L1);
        changeEverything();
        SaveCheck(*fresh);
        AddAccount(fresh->accounts, u"root"_s, u"x"_s);
        SaveMyAccount(fresh->databases, fresh->accounts);
        EXPECT_EQ(ask(u"SELECT COUNT(*)||'|'||SUM(rowid) FROM "_s + table), before);
        EXPECT_EQ(fresh->families.ExitCheck(), table != "NVRAccount"_L1) << "what was not saved stays marked";
        fresh.reset();
    }
}

TEST_F(StationTest, WhoIsFresh)
{
    const QString named = u"INSERT INTO UserData (sUser,sPSWD) VALUES ('',''),('a','p'),('b','p')"_s;
    const struct
    {
        QString statement;
        bool fresh;
    } cases[]{{u"SELECT 1"_s, true},
              {u"INSERT INTO UserData (sUser) VALUES ('')"_s, true},
              {named, false},
              {u"DROP TABLE UserData"_s, false},
              {u"ALTER TABLE UserData DROP COLUMN sUser"_s, false}};
    for (const auto& test : cases) {
        makeDatabase(kDatabaseFile, u"x"_s);
        run(test.statement);
        start();
        EXPECT_EQ(IsFreshStation(fresh->users), test.fresh) << test.statement.toStdString();
        fresh.reset();
    }
}

TEST_F(StationTest, ASaveThatFailsLeavesTheOldRowsWholeAndIsTriedAgain)
{
    const QString rows = u"SELECT group_concat(sUser) FROM UserData"_s;
    const QString owners = u"SELECT group_concat(sOwner) FROM DefaultStart"_s;
    for (const QString& obstacle : {u"delete"_s, u"lock"_s, u"disk"_s, u"insert"_s}) {
        SCOPED_TRACE(obstacle.toStdString());
        makeDatabase(kDatabaseFile, u"x"_s);
        run(u"INSERT INTO UserData (sUser,iGroup) VALUES ('a',0),('b',1),('c',1)"_s);
        run(u"INSERT INTO DefaultStart (sOwner) VALUES ('a'),('b'),('c')"_s);
        if (obstacle == "delete"_L1)
            run(u"CREATE TRIGGER t BEFORE DELETE ON UserData BEGIN SELECT RAISE(FAIL,'no'); END"_s);
        if (obstacle == "insert"_L1)
            run(u"CREATE TRIGGER t BEFORE INSERT ON UserData WHEN NEW.sUser='d' BEGIN SELECT RAISE(FAIL,'no'); END"_s);
        start();
        for (UserRecord& user : fresh->users.edit)
            user.sCorp = QString(30000, u'x');
        fresh->users.edit[1].sUser = u"d"_s;
        fresh->users.edit[1].bChanged = true;
        Connection other;
        other.setConnectionString(DatabaseConnectionString(path(kDatabaseFile)));
        other.open();
        QSqlQuery lock(other.database());
        if (obstacle == "lock"_L1) {
            ASSERT_TRUE(lock.exec(u"BEGIN IMMEDIATE"_s));
        }
        {
            const FullDisk full(obstacle == "disk"_L1 ? 60000 : RLIM_INFINITY);
            SaveCheck(*fresh);
        }
        lock.exec(u"ROLLBACK"_s);
        other.close();
        const bool rowOnly = obstacle == "insert"_L1; // one bad row costs itself
        EXPECT_EQ(ask(rows), rowOnly ? u"a,c"_s : u"a,b,c"_s);
        EXPECT_EQ(ask(owners), rowOnly ? u"a,c,d"_s : u"a,b,c"_s);
        EXPECT_EQ(fresh->families.ExitCheck(), !rowOnly);
        EXPECT_EQ(fresh->users.stored[1].sUser, rowOnly ? u"d"_s : u"b"_s);
        run(u"DROP TRIGGER IF EXISTS t"_s);
        fresh->users.edit[1].bChanged = true;
        SaveCheck(*fresh);
        EXPECT_EQ(ask(rows), u"a,d,c"_s);
        EXPECT_FALSE(fresh->families.ExitCheck());
        fresh.reset();
    }
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
    EXPECT_EQ(AutostartProgram(AutostartScope::User, u"CMS_Core"_s), ProgramPath(u"CMS_Core"_s));
    EXPECT_EQ(AutostartProgram(AutostartScope::Machine, u"CMS_Core"_s), QString());

    start(); // another run on the same files
    EXPECT_EQ(fresh->basicDefault.stored.sSystemName, u"renamed"_s);
    EXPECT_EQ(fresh->recorders.SVRWorkList[0].sSVR_Name, u"a"_s);
    EXPECT_EQ(fresh->groups.edit[2].Name, u"Night"_s);
    fresh->basicDefault.edit.bStartup = false;
    fresh->basicDefault.edit.bChanged = true;
    SaveCheck(*fresh);
    EXPECT_EQ(AutostartProgram(AutostartScope::User, u"CMS_Core"_s), QString());
}

TEST_F(StationTest, EveryFamilyTellsWhatASaveWouldChange)
{
    makeDatabase(kDatabaseFile, u"x"_s);
    run(u"INSERT INTO UserData (sUser) VALUES ('ann')"_s);
    start();
    const auto told = [&] {
        QStringList lines;
        for (const Difference& one : fresh->families.differences())
            lines << QStringList{one.record, one.field, one.before.toString(), one.after.toString(),
                                 QString::number(one.caption)}
                         .join(u'|');
        return lines;
    };
    fresh->basicDefault.edit.sSystemName = u"Harbour"_s;
    SVRRecord& work = fresh->recorders.SVRWorkList[2];
    work.sSVR_Name = u"Gate"_s;
    work.channels[1].sSub_CH_Name = u"Hall"_s;
    work.bSVR_Changed = true;
    fresh->groups.edit[2].Name = u"Night"_s;
    fresh->groups.edit[2].CHPrivilege[3] = u"1:15"_s;
    fresh->users.edit[0].sCorp = u"Quay"_s;
    fresh->users.edit.emplace_back().sUser = u"bob"_s;
    fresh->emap.edit[0].sName = u"Root"_s;
    fresh->emap.iconsEdit[2].channels[1].dMapX = 0.5;
    fresh->channelEvents.edit[0].channels[4].iTripwireSensitivity = 60;
    const QStringList all{u"Harbour|sSystemName|x|Harbour|331"_s,
                          u"Gate: 1|sSVR_Name||Gate|283"_s,
                          u"Gate: Hall|sSub_CH_Name||Hall|579"_s,
                          u"1/5, TripwireSettings|Sensitivity|80|60|398"_s,
                          u"Night|Name|User|Night|362"_s,
                          u"Night, NVR 4|CHPrivilege||1:15|784"_s,
                          u"ann|sCorp||Quay|417"_s,
                          u"bob|sUser||bob|649"_s,
                          u"Root|sName|MainMap|Root|362"_s,
                          u"Gate: Hall|dMapX|0|0.5|433"_s};
    EXPECT_EQ(told(), all);
    EXPECT_EQ(fresh->families.differences(3).size(), 4u);
    fresh->families.revertPage(3);
    EXPECT_EQ(told().size(), all.size() - 4);
    fresh->families.InitialSetValue();
    EXPECT_EQ(told(), QStringList());
}

TEST(FamilyRegister, SavesWhatDoesNotCountAtTheClose)
{
    bool loading = true;
    int saved = 0;
    FamilyRegister families;
    for (const FamilyOrder order : {FamilyOrder::VideoWall, FamilyOrder::Pattern}) {
        RecordFamily family{order, 8, {}, [] { return true; }, {}, {}, [&] { return ++saved > 0; }, {}, {}};
        family.countsAtExit = [&loading, order] { return order == FamilyOrder::Pattern && !loading; };
        families.add(family);
    }
    EXPECT_FALSE(families.ExitCheck());
    loading = false;
    EXPECT_TRUE(families.ExitCheck());
    EXPECT_TRUE(families.SaveCheck([](int) {}));
    EXPECT_EQ(saved, 2);
}

TEST_F(StationTest, AutostartOfAnyPathIsEscaped)
{
    const QString program = u"/opt/50% \"off\"/$a\\b`c\nd"_s;
    ASSERT_TRUE(SetAutostart(AutostartScope::User, u"Odd"_s, program));
    EXPECT_EQ(AutostartProgram(AutostartScope::User, u"Odd"_s), program);
    EXPECT_EQ(read(u"\\config\\autostart\\Odd.desktop"), "[Desktop Entry]\nType=Application\nName=Odd\n"
                                                         R"(Exec="/opt/50%% \\"off\\"/\\$a\\\\b\\`c\nd")"
                                                         "\n");
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

TEST_F(StationTest, ServersOfEventsComeFromTheirRowsWhateverStandsThere)
{
    struct RowsCase
    {
        const char* name;
        const char* rows; // aID, sMailFrom, lMailPort, sWarningPath
        QStringList from;
        const char* saved; // aID and sender of every row after server 2 was changed
    };
    const RowsCase cases[] = {
        {"none", "", {{}, {}, {}}, "2=new"},
        {"two", "(3,'c',25,''),(1,'a',25,'')", {u"a"_s, {}, u"c"_s}, "1=a,2=new,3=c"},
        {"five",
         "(1,'a',1,''),(2,'b',2,''),(3,'c',3,''),(4,'d',4,''),(0,'e',5,'')",
         {u"a"_s, u"b"_s, u"c"_s},
         "0=e,1=a,2=new,3=c,4=d"},
        {"the same number twice", "(2,'b',2,''),(2,'other',2,'')", {{}, u"b"_s, {}}, "2=new,2=other"},
        {"null ports and sounds", "(1,'a',NULL,NULL),(2,NULL,NULL,'x.wav')", {u"a"_s, {}, {}}, "1=a,2=new"}};
    for (const RowsCase& rows : cases) {
        SCOPED_TRACE(rows.name);
        makeDatabase(kDatabaseFile, u"x"_s);
        run(u"DELETE FROM ListenServer"_s);
        if (*rows.rows)
            run(u"INSERT INTO ListenServer (aID, sMailFrom, lMailPort, sWarningPath) VALUES "_s +
                QString::fromLatin1(rows.rows));
        start();
        EventServerSet& servers = fresh->eventServers;
        QStringList from;
        for (const ListenServerRec& server : servers.edit)
            from << server.sMailFrom;
        EXPECT_EQ(from, rows.from);
        EXPECT_EQ(servers.stored[0].sWarningPath, StationPath(u"\\wav\\alert.wav"));
        EXPECT_FALSE(CheckListenSetup(servers, EventAction::FTP));
        servers.edit[1].sMailFrom = u"new"_s;
        servers.edit[0].sFTPserverIP = u"unmarked"_s;
        servers.edit[1].bChanged = true;
        fresh->eventHandling.edit.strMailAddress = u"a@b.c"_s;
        fresh->eventHandling.edit.bChanged = true;
        EXPECT_TRUE(SaveCheck(*fresh));
        EXPECT_TRUE(CheckListenSetup(servers, EventAction::Mail));
        EXPECT_EQ(ask(u"SELECT group_concat(aID||'='||sMailFrom) FROM (SELECT * FROM ListenServer ORDER BY aID)"_s),
                  QString::fromLatin1(rows.saved));
        EXPECT_EQ(ask(u"SELECT count(*)||group_concat(strMailAddress) FROM EventHandling"_s), u"1a@b.c"_s);
    }
}

TEST(EventTexts, MailAddresses)
{
    for (const char* good : {"a@b.c", "john.doe@site.org", " a@b.c "})
        EXPECT_TRUE(CheckMail(QString::fromLatin1(good))) << good;
    for (const char* bad :
         {"", "a@b", "a.b@c", "@b.c", "a@.c", "a@b..c", "a@b@c.d", "a b@c.d", "a;b@c.d", "a@b.c,d@e.f"})
        EXPECT_FALSE(CheckMail(QString::fromLatin1(bad))) << bad;
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

TEST_F(StationTest, KilledAtAnyWriteOfASaveTheOldRowsOrTheNewOnesAreThere)
{
    bool killed = true;
    int kills = 0;
    for (int last = 1; killed; ++last) {
        SCOPED_TRACE(last);
        makeDatabase(kDatabaseFile, u"x"_s);
        run(u"INSERT INTO UserData (sUser,sPSWD) VALUES ('a','old'),('b','old'),('c','old'),('d','old')"_s);
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"SAVING_CHILD_STATION"_s, AppPath());
        environment.insert(u"SAVING_CHILD_LAST"_s, QString::number(last));
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(), {u"--gtest_filter=SavingChild.Runs"_s});
        ASSERT_TRUE(child.waitForFinished(60000));
        killed = child.exitStatus() == QProcess::CrashExit;
        kills += killed;
        const QString state = ask(u"SELECT (SELECT group_concat(sPSWD) FROM UserData)||'|'||"
                                  "(SELECT COUNT(*) FROM DefaultStart)||'|'||(SELECT COUNT(*) FROM SVR)"_s);
        EXPECT_EQ(state, killed ? u"old,old,old,old|0|%1"_s.arg(last > 16 ? 16 : 0) : u"new,new,new,new|4|16"_s);
    }
    EXPECT_GE(kills, 24) << "sixteen rows of a recorder, four users, four first starts";
}

namespace {

int g_writesLeft = 0;

void CountWrite(void*, int, const char*, const char*, sqlite3_int64)
{
    if (--g_writesLeft == 0)
        std::raise(SIGKILL);
}

} // namespace

TEST(SavingChild, Runs)
{
    const QString folder = qEnvironmentVariable("SAVING_CHILD_STATION");
    if (folder.isEmpty())
        GTEST_SKIP() << "only as the child of another test";
    SetAppPath(folder);
    const std::unique_ptr<Station> station = StartedStation();
    SVRRecord& work = station->recorders.SVRWorkList[0];
    work.sSVR_IP = u"10.0.0.1"_s;
    work.iSVR_Num = 1;
    work.iSVR_Maxchannel = 16;
    for (SVRChannel& channel : work.channels)
        channel.sSub_CH_IP = u"10.0.0.9"_s;
    work.bSVR_Changed = true;
    for (UserRecord& user : station->users.edit) {
        user.sPSWD = u"new"_s;
        user.bChanged = true;
    }
    g_writesLeft = qEnvironmentVariableIntValue("SAVING_CHILD_LAST");
    const QVariant handle = station->databases.DBConn->database().driver()->handle();
    sqlite3_update_hook(*static_cast<sqlite3* const*>(handle.data()), CountWrite, nullptr);
    SaveCheck(*station);
}
