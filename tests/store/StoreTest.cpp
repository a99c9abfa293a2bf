#include "platform/DatabaseFile.h"
#include "store/BasicDefault.h"
#include "store/SystemLog.h"
#include "store/TableAccess.h"
#include "store/tables/Tables.h"
#include "tests/store/StoreFixture.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

using StoreTest = StoreFixture;

TEST_F(StoreTest, OpensNothingThatIsNoDatabaseAndCreatesNothing)
{
    const QString file = path(u"\\Database\\x.mdb");
    const QByteArray good = read(kTemplateFile);
    ASSERT_GT(good.size(), 8192);
    QByteArray foreign = good;
    foreign.replace(0, 16, QByteArray(16, 'J'));
    const QList<std::pair<const char*, QByteArray>> cases{{"empty", {}},
                                                          {"foreign", foreign},
                                                          {"cut short", good.left(good.size() - 4096)},
                                                          {"cut in the header", good.left(60)}};
    for (const auto& [name, bytes] : cases) {
        write(file, bytes);
        Connection connection;
        connection.setConnectionString(DatabaseConnectionString(file));
        EXPECT_THROW(connection.open(), StoreError) << name;
        EXPECT_FALSE(connection.isOpen());
        EXPECT_EQ(ProbeDatabase(file), FileState::Damaged) << name;
    }
    QFile::remove(file);
    Connection connection;
    connection.setConnectionString(DatabaseConnectionString(file));
    EXPECT_THROW(connection.open(), StoreError);
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(StoreTest, RowsArePositionedChangedAddedAndDeleted)
{
    open();
    ASSERT_EQ(OpenRecset(databases, u"grouppRIVILEGE"_s), 1);
    Recordset& rows = *databases.DBRec;
    EXPECT_EQ(rows.recordCount(), 7);
    rows.moveFirst();
    rows.move(3);
    EXPECT_EQ(rows.value(u"name"_s).toString(), u"Operator 1"_s);
    rows.setValue(u"Name"_s, u"Gate's \"crew\""_s);
    rows.update();
    rows.moveFirst();
    rows.deleteRow();
    EXPECT_EQ(rows.recordCount(), 6);
    rows.moveFirst();
    EXPECT_EQ(rows.value(u"GroupID"_s).toInt(), 2);
    rows.addNew();
    rows.setValue(u"GroupID"_s, 9);
    rows.update();
    rows.addNew(); // dropped with the next move
    rows.setValue(u"GroupID"_s, 10);
    rows.moveFirst();
    rows.update();
    EXPECT_THROW(rows.value(u"NoSuch"_s), StoreError);
    rows.move(100);
    EXPECT_TRUE(rows.eof());
    EXPECT_THROW(rows.value(u"Name"_s), StoreError);
    EXPECT_THROW(rows.setValue(u"Name"_s, u"nowhere"_s), StoreError);
    EXPECT_NO_THROW(rows.update()) << "nothing is under way after the refusal";

    OpenStatement(databases, u"Select * From GroupPrivilege Where Name=? "_s, LockType::ReadOnly,
                  {u"Gate's \"crew\""_s});
    EXPECT_EQ(rows.recordCount(), 1);
    EXPECT_THROW(rows.addNew(), StoreError);
    OpenStatement(databases, u"Delete * From GroupPrivilege Where GroupID=2"_s, LockType::Optimistic);
    EXPECT_FALSE(rows.isOpen());
    ASSERT_EQ(OpenRecset(databases, u"GroupPrivilege"_s), 1);
    EXPECT_EQ(rows.recordCount(), 6);
    rows.moveFirst();
    rows.move(5);
    EXPECT_EQ(rows.value(u"GroupID"_s).toInt(), 9);
    EXPECT_EQ(rows.value(u"Live"_s).toInt(), 0) << "a field that was not set has the table's default";
}

TEST_F(StoreTest, OpeningByTableReopensAClosedConnectionAndReportsUnknownTables)
{
    open();
    CloseDB(databases);
    EXPECT_EQ(OpenRecset(databases, u"SVR"_s), 1);
    EXPECT_EQ(OpenRecset(databases, u"NoTable"_s), 0);
    EXPECT_EQ(logLines("Module_DB_Access - OpenRecset"), 1);
}

TEST_F(StoreTest, TemplateHoldsEveryTableAndTheRowsOfAFreshStation)
{
    open();
    const QList<std::pair<QString, int>> counts{
        {u"BasicDefault"_s, 1},   {u"ScreenLayout"_s, 1}, {u"EventHandling"_s, 1}, {u"ListenServer"_s, 3},
        {u"GroupPrivilege"_s, 7}, {u"EMapGroup"_s, 1},    {u"SVR"_s, 0},           {u"UserData"_s, 0}};
    for (const auto& [table, count] : counts) {
        ASSERT_EQ(OpenRecset(databases, table), 1) << table.toStdString();
        EXPECT_EQ(databases.DBRec->recordCount(), count) << table.toStdString();
    }
    EXPECT_EQ(AllTables().size(), 27u);
    for (const TableInfo& table : AllTables())
        EXPECT_EQ(OpenRecset(databases, table.name), 1) << table.name.toStdString();
    for (const char* column :
         {"sCH_Pro_BPSLower", "sSub_CH_Preset8", "iSub_CH_VideoIDCount", "lSub_CH_IntelligentID"}) {
        ASSERT_EQ(OpenRecset(databases, u"SVR"_s), 1);
        EXPECT_NO_THROW(databases.DBRec->fieldIndex(QString::fromLatin1(column))) << column;
    }
    ASSERT_EQ(OpenRecset(databases, u"MotionROI"_s), 1);
    EXPECT_EQ(databases.DBRec->fieldNames().size(), 27);
}

TEST_F(StoreTest, CopiesAreConsistentWhileAnotherHoldsTheFileAndCompanionsNeverMeetAnotherFile)
{
    open();
    execute(u"INSERT INTO UserData (sUser) VALUES ('held')"_s); // still in the write-ahead log
    const QString copy = path(kBackup1File);
    for (const QString& ending : {u"-wal"_s, u"-journal"_s})
        write(copy + ending, "stale");
    CopyDatabase(path(kDatabaseFile), copy);
    EXPECT_FALSE(QFile::exists(copy + u"-wal"_s));
    EXPECT_FALSE(QFile::exists(copy + u"-journal"_s));
    Connection connection;
    connection.setConnectionString(DatabaseConnectionString(copy));
    connection.openAsIs();
    Recordset rows;
    rows.open(u"UserData"_s, connection, CursorType::Static, LockType::ReadOnly, CommandType::Table);
    rows.moveFirst();
    EXPECT_EQ(rows.value(u"sUser"_s).toString(), u"held"_s);
    rows.close();
    connection.close();

    EXPECT_THROW(RenameDatabase(copy, path(kDatabaseFile)), StoreError)
        << "a standing target is never replaced by a rename";
    write(path(kBackup2File), "not a database");
    EXPECT_THROW(CopyDatabase(path(kBackup2File), copy), StoreError);
    EXPECT_TRUE(QFile::exists(copy)) << "a copy that fails leaves the target";
    EXPECT_EQ(QFile::permissions(copy) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

TEST_F(StoreTest, ALockedFileCostsLinesAndOnlyTheFirstWait)
{
    open();
    Connection other;
    other.setConnectionString(DatabaseConnectionString(path(kDatabaseFile)));
    other.open();
    QSqlQuery lock(other.database());
    ASSERT_TRUE(lock.exec(u"BEGIN IMMEDIATE"_s));
    ASSERT_EQ(OpenRecset(databases, u"UserData"_s), 1);
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 10; ++i) {
        databases.DBRec->addNew();
        databases.DBRec->setValue(u"sUser"_s, u"u%1"_s.arg(i));
        EXPECT_THROW(databases.DBRec->update(), StoreError);
    }
    EXPECT_LT(time.elapsed(), 4000);
    ASSERT_TRUE(lock.exec(u"ROLLBACK"_s));
    databases.DBRec->addNew();
    databases.DBRec->setValue(u"sUser"_s, u"after"_s);
    EXPECT_NO_THROW(databases.DBRec->update());
    EXPECT_EQ(databases.DBRec->recordCount(), 1);
}

TEST_F(StoreTest, AFullDiskFailsTheRowAndTheNextOneIsTried)
{
    open();
    execute(u"PRAGMA max_page_count=1"_s); // stands in for the full disk: the file may not grow
    ASSERT_EQ(OpenRecset(databases, u"UserData"_s), 1);
    Recordset& rows = *databases.DBRec;
    rows.addNew();
    rows.setValue(u"sUser"_s, QString(100000, u'x'));
    EXPECT_THROW(rows.update(), StoreError);
    rows.addNew();
    rows.setValue(u"sUser"_s, u"small"_s);
    EXPECT_NO_THROW(rows.update());
    EXPECT_EQ(rows.recordCount(), 1);
}

TEST_F(StoreTest, DefaultsRoundTripByBrandAndKeepWhatTheyMustNotTouch)
{
    open();
    execute(u"UPDATE BasicDefault SET iVideoWallStyle=3, iResolutionSum=7, sSystemName=NULL, iPollingTime=12"_s);
    execute(u"INSERT INTO BasicDefault (sBrand, sSystemName) VALUES ('Other', 'keep')"_s);
    BasicDefaultSet set;
    ASSERT_EQ(GetBasicDefault(databases, set), 1);
    EXPECT_EQ(set.stored.sSystemName, u"CMS_Core"_s);
    EXPECT_EQ(set.stored.iVideoWallStyle, 0);
    EXPECT_EQ(set.stored.iResolutionSum, 7);
    EXPECT_EQ(set.stored.iLanguage, 99);
    EXPECT_EQ(set.stored.sDBVer, u"1.0.2.1"_s);
    set.stored.sSystemName = u"Nordtor \"A\", 'B'"_s;
    set.stored.iResolutionSum = 99;
    set.stored.bStartup = true;
    ASSERT_EQ(SaveMyDefault(databases, set), 1);
    BasicDefaultSet again;
    GetBasicDefault(databases, again);
    EXPECT_EQ(again.stored.sSystemName, set.stored.sSystemName);
    EXPECT_TRUE(again.stored.bStartup);
    EXPECT_EQ(again.stored.iPollingTime, 12);
    EXPECT_EQ(value(u"SELECT iResolutionSum FROM BasicDefault WHERE sBrand='NoBrand'"_s).toInt(), 7);
    EXPECT_EQ(value(u"SELECT iVideoWallStyle FROM BasicDefault WHERE sBrand='NoBrand'"_s).toInt(), 0);
    EXPECT_EQ(value(u"SELECT sSystemName FROM BasicDefault WHERE sBrand='Other'"_s).toString(), u"keep"_s);

    set.stored.sBrand = u"Nobody"_s;
    set.stored.sSystemName = u"lost"_s;
    SaveMyDefault(databases, set);
    EXPECT_EQ(value(u"SELECT COUNT(*) FROM BasicDefault WHERE sSystemName='lost'"_s).toInt(), 0);

    execute(u"UPDATE BasicDefault SET sDBVer='1.0.2.225', iVideoWallStyle=4, iHttpPort=NULL, iSnapCount=70000"_s);
    BasicDefaultSet newer;
    newer.stored.iHttpPort = 8080;
    GetBasicDefault(databases, newer);
    EXPECT_EQ(newer.stored.iVideoWallStyle, 4);
    EXPECT_EQ(newer.stored.iHttpPort, 8080) << "a null number costs its field only";
    EXPECT_EQ(newer.stored.iSnapCount, 0);
    EXPECT_EQ(logLines("Module_DB_Access - GetBasicDefault"), 2);
}

TEST_F(StoreTest, AuditTrailStoresRowsBeyondItsSixteenBitCount)
{
    open();
    EXPECT_EQ(SaveSystemLog(databases, 1000, u"o'hara"_s, u"first"_s), 1);
    QSqlQuery fill(databases.LogConn->database());
    ASSERT_TRUE(fill.exec(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<32767) "
                          "INSERT INTO SystemLog SELECT 2000, 'x', 'row' FROM n"_s));
    EXPECT_EQ(SaveSystemLog(databases, 3000, u"o'hara"_s, u"last"_s), 1);
    EXPECT_EQ(logLines("Module_DB_Access - SaveSystemLog"), 1);
    std::vector<SystemLogRow> rows;
    EXPECT_EQ(GetSystemLog(databases, 1000, 3000, u"o'hara"_s, rows), 1);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].Description, u"last"_s);
    EXPECT_EQ(rows[1].TimeStamp, 1000);
    QStringList users;
    GetSystemLogUser(databases, users);
    EXPECT_EQ(users.size(), 2);
}

TEST_F(StoreTest, ADamagedAuditLogIsSetAsideAndNeverCostsTheConfiguration)
{
    write(path(kSystemLogFile), "garbage, but a user's garbage");
    open();
    EXPECT_EQ(SaveSystemLog(databases, 1, {}, u"x"_s), 1);
    const QStringList aside = QDir(path(u"\\Database")).entryList({u"*.SystemLog.mdb"_s});
    EXPECT_EQ(aside.size(), 1);
}

namespace {

// What a reader of a row sees of a record, column by column.
template <class Row, std::size_t N>
QVariantList Values(const std::array<Column<Row>, N>& columns, const Row& row)
{
    QVariantList values;
    for (const Column<Row>& column : columns) {
        if (column.put)
            values << column.write(row);
    }
    return values;
}

// A value other than the default for each column, through the store and back.
template <class Row, std::size_t N>
void ExpectRoundTrip(Databases& databases, const QString& table, const std::array<Column<Row>, N>& columns)
{
    Row row;
    int seed = 0;
    for (const Column<Row>& column : columns) {
        ++seed;
        if (!column.read)
            continue;
        const QMap<FieldType, QVariant> values{{FieldType::Text, u"Tür '%1' \"ß\""_s.arg(seed)},
                                               {FieldType::Bool, seed % 2},
                                               {FieldType::Int16, -32768 + seed},
                                               {FieldType::Int32, 2147483000 + seed},
                                               {FieldType::Real, 0.1234 * seed}};
        column.read(row, values[column.info.type]);
    }
    ASSERT_EQ(OpenRecset(databases, table), 1);
    databases.DBRec->addNew();
    TableAccess<Row>(*databases.DBRec, columns, QLatin1String("test")).write(row);
    databases.DBRec->update();
    ASSERT_EQ(OpenRecset(databases, table), 1);
    databases.DBRec->moveFirst();
    databases.DBRec->move(databases.DBRec->recordCount() - 1);
    Row back;
    TableAccess<Row>(*databases.DBRec, columns, QLatin1String("test")).read(back);
    EXPECT_EQ(Values(columns, back), Values(columns, row)) << table.toStdString();
}

} // namespace

TEST_F(StoreTest, EveryTableBringsBackWhatWasWritten)
{
    open();
    ExpectRoundTrip(databases, u"UserData"_s, UserColumns);
    ExpectRoundTrip(databases, u"NVRAccount"_s, NVRAccountColumns);
    ExpectRoundTrip(databases, u"GroupPrivilege"_s, GroupPrivilegeColumns);
    ExpectRoundTrip(databases, u"NVRPrivilege"_s, NVRPrivilegeColumns);
    ExpectRoundTrip(databases, u"ListenServer"_s, ListenServerColumns);
    ExpectRoundTrip(databases, u"EventHandling"_s, EventHandlingColumns);
    ExpectRoundTrip(databases, u"TripwireSettings"_s, ChannelSettingColumns);
    ExpectRoundTrip(databases, u"MotionROI"_s, MotionROIColumns);
    ExpectRoundTrip(databases, u"ObjectLossROI"_s, ObjectLossROIColumns);
    ExpectRoundTrip(databases, u"TripwireLine"_s, TripwireLineColumns);
    ExpectRoundTrip(databases, u"EMapGroup"_s, EMapGroupColumns);
    ExpectRoundTrip(databases, u"EMapIcon"_s, EMapIconColumns);
    ExpectRoundTrip(databases, u"ScreenLayout"_s, ScreenLayoutColumns);
    ExpectRoundTrip(databases, u"Pattern"_s, PatternColumns);
    ExpectRoundTrip(databases, u"DefaultStart"_s, DefaultStartColumns);
    ExpectRoundTrip(databases, u"FullscreenSEQByChannel"_s, FullscreenSEQByChannelColumns);
    ExpectRoundTrip(databases, u"FullscreenSEQByNVR"_s, FullscreenSEQByNVRColumns);
    ExpectRoundTrip(databases, u"FullscreenSEQPattern"_s, FullscreenSEQPatternColumns);
    ExpectRoundTrip(databases, u"VideoWall"_s, VideoWallColumns);
    ExpectRoundTrip(databases, u"SVD"_s, SVDColumns);
    ExpectRoundTrip(databases, u"SVD_CH"_s, SVD_CHColumns);
    ExpectRoundTrip(databases, u"SVD_Pattern"_s, SVD_PatternColumns);
}
