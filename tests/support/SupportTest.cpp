#include "app/log/Module_Log.h"
#include "platform/Clock.h"
#include "platform/Closing.h"
#include "support/Conversions.h"
#include "support/HostNames.h"
#include "support/TimeSeconds.h"
#include "tests/Await.h"
#include "tests/TestMain.h"

#include <QDir>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Conversions, NothingWrapsOrPassesAsANumber)
{
    EXPECT_EQ(ToInt16(u" -32768 "), -32768);
    EXPECT_EQ(ToInt16(u"2.5"), 2); // half to even
    EXPECT_EQ(ToInt32(u"3.5"), 4);
    for (const QString& bad : {u""_s, u"x"_s, u"32768"_s, u"1e99"_s, u"nan"_s})
        EXPECT_THROW(ToInt16(bad), ConversionError) << bad.toStdString();
    EXPECT_THROW(Int16Field(QVariant()), ConversionError);
    EXPECT_THROW(Int16Field(QVariant(70000LL)), ConversionError);
    EXPECT_THROW(Int32Field(QVariant(u"3000000000"_s)), ConversionError);
    EXPECT_TRUE(BoolField(QVariant(-1)));
    EXPECT_FALSE(BoolField(QVariant(0)));
    EXPECT_EQ(TextField(QVariant()), QString());
}

TEST(Times, StampsAreWallClockSecondsAndAuditStampsAreUtc)
{
    const QDateTime local(QDate(2026, 11, 24), QTime(12, 0, 0));
    EXPECT_EQ(TimeToSeconds(local), 1795521600);
    EXPECT_EQ(SecondsToTime(1795521600), local);
    EXPECT_EQ(TimeToUtcSeconds(local), 1795521600 - local.offsetFromUtc());
    const QDateTime late(QDate(2039, 1, 1), QTime(0, 0));
    EXPECT_THROW(TimeToSeconds(late), ConversionError);
    EXPECT_EQ(TimeToUtcSeconds(late), 2147483647);
}

TEST(HostNames, ResolveToTheFirstIPv4Address)
{
    Work work;
    EXPECT_EQ(Await(GetIpByName(u"127.0.0.9"_s, work)), u"127.0.0.9"_s);
    EXPECT_EQ(Await(GetIpByName(u"localhost"_s, work)), u"127.0.0.1"_s);
    for (const QString& nowhere : {u"no-such-host.invalid"_s, u"8080"_s})
        EXPECT_EQ(Await(GetIpByName(nowhere, work)), QString());
}

class Logs : public ::testing::Test
{
protected:
    void SetUp() override { PinClock(QDateTime(QDate(2026, 11, 16), QTime(8, 5, 9))); }
    void TearDown() override { PinClock(QDateTime()); }
    void write(const QString& literal, qint64 size)
    {
        QDir().mkpath(station.path(u"\\log"));
        QFile file(station.path(literal));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.resize(size));
    }
    TemporaryStation station;
};

TEST_F(Logs, ATrapWritesOneQuotedLineUnderItsSource)
{
    SetCurrentUser(u"op"_s);
    EXPECT_FALSE(Trapped("Module_X - Do", [] { throw ConversionError(u"say \"no\""_s); }));
    const QByteArray line = station.read(u"\\log\\LogSys-20261116.txt");
    EXPECT_TRUE(line.endsWith(R"("CMS_Core","op","say ""no""","Module_X - Do")"
                              "\r\n"))
        << line.toStdString();
    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_TRUE(Trapped("Module_X - Do", [] {}));
    SetCurrentUser(QString());
}

TEST_F(Logs, FilesRollOverAtTenMegabytesAndTheDaysStayApart)
{
    constexpr qint64 full = 10 * 1024 * 1024;
    LogSave(CMS_Core, LogSys, {}, {}, u"a"_s);
    write(u"\\log\\LogSys-20261116.txt"_s, full - 1);
    write(u"\\log\\LogSys-20261115_7.txt"_s, full);
    write(u"\\log\\LogUser-20261116_4.txt"_s, 5);
    LogSave(CMS_Core, LogSys, {}, {}, u"b"_s);
    EXPECT_GT(station.read(u"\\log\\LogSys-20261116.txt").size(), full - 1);
    write(u"\\log\\LogSys-20261116.txt"_s, full);
    LogSave(CMS_Core, LogSys, {}, {}, u"c"_s);
    EXPECT_EQ(station.read(u"\\log\\LogSys-20261116_1.txt").count('\n'), 1);
    write(u"\\log\\LogSys-20261116_12.txt"_s, full);
    LogSave(CMS_Core, LogSys, {}, {}, u"d"_s);
    EXPECT_EQ(station.read(u"\\log\\LogSys-20261116_13.txt").count('\n'), 1);
}

TEST_F(Logs, AFolderThatCannotBeWrittenLosesTheLineOnly)
{
    QFile blocker(station.path(u"\\log"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    EXPECT_FALSE(LogSave(CMS_Core, LogSys, {}, {}, u"a"_s));
}

TEST_F(Logs, RunningMarkerAppearsAndGoesInAnyCase)
{
    EXPECT_TRUE(LogSave(CMS_Core, Running, {}, {}, u"shutdown"_s));
    EXPECT_TRUE(LogSave(CMS_Core, Running, {}, {}, u"up"_s));
    EXPECT_TRUE(QFile::exists(station.path(u"\\Running.txt")));
    EXPECT_TRUE(LogSave(CMS_Core, Running, {}, {}, u"ShutDown"_s));
    EXPECT_FALSE(QFile::exists(station.path(u"\\Running.txt")));
}

TEST_F(Logs, ListenFileHoldsTheSixLines)
{
    const QString name = ListenTxtFile(u"Motion"_s, u"App"_s, u"10.0.0.1"_s, u"op"_s, u"_TEST"_s);
    EXPECT_EQ(name, u"Message-20261116080509_TEST.txt"_s);
    EXPECT_EQ(station.read(QString(u"\\log\\Listen\\"_s + name)),
              "This is event message \r\nThe trigger is Motion\r\nApplication Name : App\r\nServer IP :10.0.0.1\r\n"
              "Trigger timestamp is : 2026/11/16 08:05:09\r\nThe operator is : op\r\n");
}
