#include "device/bridge/Form_COM.h"
#include "events/EventTests.h"
#include "events/Form_SendEvent.h"
#include "platform/AppPath.h"
#include "platform/Clock.h"
#include "platform/Sound.h"
#include "tests/LoopWatch.h"
#include "tests/device/ScriptedServer.h"
#include "tests/events/LineServer.h"
#include "tests/events/Servers.h"

#include <QDir>
#include <QJsonArray>
#include <QTemporaryDir>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

class DispatchTest : public testing::Test
{
protected:
    DispatchTest()
    {
        SetAppPath(m_folder.path());
        servers = EventServerSet();
        queue = std::make_unique<Form_SendEvent>(servers, handling, com);
    }
    ~DispatchTest() override
    {
        PinClock(QDateTime());
        SetSoundHandler(nullptr);
    }

    void useMail(int server, int port)
    {
        ListenServerRec& record = servers.stored[static_cast<std::size_t>(server)];
        record.sMailFrom = u"desk%1@site.org"_s.arg(server + 1);
        record.sMailServer = u"127.0.0.1"_s;
        record.lMailPort = port;
        handling.stored.bTriActMail = true;
        handling.stored.strMailAddress = u"guard@site.org"_s;
    }
    void useFtp(int server, int port)
    {
        ListenServerRec& record = servers.stored[static_cast<std::size_t>(server)];
        record.sFTPserverIP = u"127.0.0.1"_s;
        record.iFTPPort = port;
        record.sFTPUser = u"operator"_s;
        record.sFTPPassword = u"pass wörd"_s;
        handling.stored.bTriActFTP = true;
    }
    // Takes items until all have been sent.
    bool drain(double seconds = 40)
    {
        return WaitUntil(
            [this] {
                queue->CheckNeedToSend();
                return queue->pendingItems() + queue->sendsUnderWay() == 0;
            },
            seconds);
    }
    QByteArray log() const
    {
        QByteArray lines;
        const QDir folder(StationPath(u"\\log"));
        for (const QString& name : folder.entryList({u"LogRecord-*"_s})) {
            QFile file(folder.filePath(name));
            if (file.open(QIODevice::ReadOnly))
                lines += file.readAll();
        }
        return lines;
    }
    QStringList listenFiles() const { return QDir(StationPath(u"\\log\\Listen")).entryList(QDir::Files); }

    QTemporaryDir m_folder;
    EventServerSet servers;
    EventHandlingSet handling;
    Form_COM com;
    std::unique_ptr<Form_SendEvent> queue;
};

} // namespace

TEST_F(DispatchTest, AnEventBecomesAMailThatARealServerTakes)
{
    Server server({u"smtp"_s});
    useMail(0, server.port);
    handling.stored.strMailAddress = u"guard@site.org,, office@site.org "_s;
    PinClock(QDateTime(QDate(2026, 11, 6), QTime(8, 5, 3)));
    queue->CurrentSnapshot = u"shot.jpg"_s;
    QDir().mkpath(m_folder.filePath(u"Img_tmp"_s));
    QFile shot(m_folder.filePath(u"Img_tmp/shot.jpg"_s));
    ASSERT_TRUE(shot.open(QIODevice::WriteOnly) && shot.write("picture") == 7);
    shot.close();
    queue->SendQueueStr_Set(u"Gate <open>"_s, true);
    EXPECT_EQ(queue->sends(EventAction::Mail, 0).waiting, 2);
    ASSERT_TRUE(drain());
    for (const char16_t* addressee : {u"guard", u"office"}) {
        const QJsonObject mail = server.mail();
        EXPECT_EQ(mail[u"recipients"_s].toArray(),
                  (QJsonArray{QString(QString::fromUtf16(addressee) + u"@site.org"_s)}));
        const QJsonArray parts = mail[u"parts"_s].toArray();
        ASSERT_EQ(parts.size(), 2);
        const QByteArray page = QByteArray::fromBase64(parts[0][u"content"_s].toString().toLatin1());
        EXPECT_THAT(page.toStdString(),
                    testing::HasSubstr("<p class=MsoNormal><b>Gate &lt;open&gt;</b></p>\r\n<br>\r\n"));
        EXPECT_THAT(page.toStdString(), testing::HasSubstr("Trigger timestamp is 2026/11/6 8:5:3</b>"));
        EXPECT_EQ(parts[1][u"file"_s], u"shot.jpg"_s);
    }
    const ServerSends sends = queue->sends(EventAction::Mail, 0);
    EXPECT_TRUE(sends.lastSuccess.isValid() && !sends.lastFailure.isValid() && !sends.restsUntil.isValid());
}

TEST_F(DispatchTest, ServersAreFailOversAndRestAfterAFailure)
{
    std::array<LineServer, 3> servers3;
    for (int i = 0; i < 3; ++i)
        useMail(i, servers3[static_cast<std::size_t>(i)].serverPort());
    servers3[0].answers["mail"] = "550 not you\r\n";
    const QDateTime noon(QDate(2026, 11, 6), QTime(12, 0));
    struct Step
    {
        const char* name;
        qint64 secondsFromNoon;
        std::array<int, 3> connections; // by then
    };
    const auto expectAll = [&](std::initializer_list<Step> steps) {
        for (const Step& step : steps) {
            SCOPED_TRACE(step.name);
            PinClock(noon.addSecs(step.secondsFromNoon));
            queue->SendQueueStr_Set(u"event"_s, false);
            ASSERT_TRUE(drain());
            for (std::size_t i = 0; i < 3; ++i)
                EXPECT_EQ(servers3[i].connections, step.connections[i]);
        }
    };
    expectAll({{"the second takes what the first refuses", 0, {1, 1, 0}}, {"the first rests", 600, {1, 2, 0}}});
    const ServerSends first = queue->sends(EventAction::Mail, 0);
    EXPECT_EQ(first.answer, u"550 not you"_s);
    EXPECT_EQ(first.step, u"Error on setting set send from"_s);
    EXPECT_EQ(first.restsUntil, noon.addSecs(600));
    servers3[1].answers["mail"] = servers3[2].answers["mail"] = "451 later\r\n";
    expectAll({{"nobody takes it: it is lost", 601, {2, 3, 1}}});
    EXPECT_EQ(queue->pendingItems(), 0);
    EXPECT_TRUE(log().contains("No server left for the mail to guard@site.org: event"));
    servers3[0].answers["mail"] = "250 ok\r\n";
    expectAll({{"two stamps are cleared together", 700, {3, 3, 1}}});
    servers3[0].answers["mail"] = "550 no\r\n";
    servers3[1].answers["mail"] = "250 ok\r\n";
    expectAll({{"a new failure", 10000, {4, 4, 1}}, {"the clock was set back", 2000, {5, 5, 1}}});
    servers3[1].answers["quit"] = "!";
    expectAll({{"taken, whatever the farewell", 2010, {5, 6, 1}}});
    EXPECT_EQ(queue->sends(EventAction::Mail, 2).restsUntil, QDateTime());
}

TEST_F(DispatchTest, AsManyAsMayBeAreUnderWayAndNoneIsLost)
{
    LineServer server;
    useMail(0, server.serverPort());
    handling.stored.strMailAddress = QStringList(200, u"guard@site.org"_s).join(u',');
    queue->SendQueueStr_Set(u"moved, twice"_s, false); // the comma shifts the fields behind it
    int most = 0;
    ASSERT_TRUE(WaitUntil(
        [&] {
            for (int i = 0; i < 12; ++i)
                queue->CheckNeedToSend();
            most = qMax(most, queue->sendsUnderWay());
            return queue->pendingItems() + queue->sendsUnderWay() == 0;
        },
        30));
    EXPECT_EQ(most, 11);
    EXPECT_EQ(server.mails.size(), 200);
    EXPECT_TRUE(server.mails[0].contains("<b>moved</b>") && server.mails[0].contains("is 1970/1/1 0:0:0<"));
}

TEST_F(DispatchTest, FilesReachARealServerUnderTheirPathsByteForByte)
{
    const QString target = m_folder.filePath(u"ftp"_s);
    for (const QString& folder : {u"in"_s, u"a b#%c"_s, u"back\\slash"_s})
        QDir(target).mkpath(folder);
    Server server({u"ftp"_s, target});
    PinClock(QDateTime(QDate(2026, 11, 6), QTime(8, 5, 3)));
    for (const QString& path : {u" in "_s, u"/in/"_s, u"a b#%c"_s, u"back\\slash"_s}) {
        SCOPED_TRACE(path.toStdString());
        useFtp(0, server.port);
        useFtp(2, server.port);
        handling.stored.strFTPUploadPath = path;
        queue->SendQueueStr_Set(u"first event"_s, false);
        queue->SendQueueStr_Set(u"second event"_s, false);
        EXPECT_EQ(listenFiles(),
                  (QStringList{u"Message-202611060805031_FTP.txt"_s, u"Message-202611060805033_FTP.txt"_s}));
        ASSERT_TRUE(drain());
        EXPECT_EQ(listenFiles(), QStringList()) << "deleted when no other item names it";
        const QString folder = target + u'/' + path.trimmed();
        for (const QString& name : {u"Message-202611060805031_FTP.txt"_s, u"Message-202611060805033_FTP.txt"_s}) {
            QFile file(folder + u'/' + name);
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            const QByteArray text = file.readAll();
            EXPECT_TRUE(text.contains("The trigger is first event\r\n") &&
                        text.contains("The trigger is second event\r\n"));
            file.remove();
        }
    }
    EXPECT_EQ(queue->sends(EventAction::FTP, 0).answer, QString())
        << queue->sends(EventAction::FTP, 0).answer.toStdString();
    Work work;
    ListenServerRec wrong = servers.stored[0];
    wrong.sFTPPassword = u"wrong"_s;
    SendOutcome outcome = Await(FTP_test(wrong, work));
    EXPECT_TRUE(outcome.sent && outcome.refused) << "a refusal in time counts as sent";
    EXPECT_EQ(outcome.answer.left(4), u"530 "_s);
    EXPECT_EQ(outcome.step, u"PASS"_s);
    servers.stored[0].sFTPPath = u"nowhere"_s;
    outcome = Await(FTP_test(servers.stored[0], work));
    EXPECT_TRUE(outcome.refused && outcome.answer.startsWith("550 "_L1)) << outcome.answer.toStdString();
    EXPECT_EQ(listenFiles(), QStringList());
}

namespace {

// An upload server that answers up to a command and then behaves as told.
class FtpFaults : public QTcpServer
{
public:
    std::map<QByteArray, QByteArray> answers{{"", "220 hi\r\n"},     {"USER", "331 pass\r\n"},
                                             {"PASS", "230 in\r\n"}, {"PWD", "257 \"/\"\r\n"},
                                             {"TYPE", "200 ok\r\n"}, {"STOR", "150 go\r\n"}};
    QByteArrayList commands;
    bool readsData = true;
    bool says226 = true;

    FtpFaults()
    {
        listen(QHostAddress(u"127.0.0.1"_s));
        m_data.listen(QHostAddress(u"127.0.0.1"_s));
        answers["EPSV"] = "229 Entering (|||" + QByteArray::number(m_data.serverPort()) + "|)\r\n";
        connect(this, &QTcpServer::newConnection, this, [this] {
            m_control = nextPendingConnection();
            m_control->write(answers[""]);
            connect(m_control, &QTcpSocket::readyRead, this, [this] {
                while (m_control->canReadLine()) {
                    const QByteArray line = m_control->readLine().trimmed();
                    commands << line;
                    m_control->write(answers[line.split(' ').first()]);
                }
            });
        });
        connect(&m_data, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* const data = m_data.nextPendingConnection();
            if (!readsData)
                data->setReadBufferSize(1);
            connect(data, &QTcpSocket::readyRead, data, [this, data] {
                if (readsData)
                    data->readAll();
            });
            connect(data, &QTcpSocket::disconnected, this, [this] {
                if (says226)
                    m_control->write("226 done\r\n");
            });
        });
    }

private:
    QTcpServer m_data;
    QTcpSocket* m_control = nullptr;
};

} // namespace

// Each of them would hold the thread up that talks to it: none holds up this one.
TEST_F(DispatchTest, SilentUploadServersCostNothingButTheirUpload)
{
    struct SilenceCase
    {
        const char* name;
        const char* silentAt; // command
        bool readsData;
        bool says226;
        bool ends; // by itself; else it is stopped
        const char* step;
    };
    const SilenceCase cases[] = {{"no greeting", "", true, true, false, ""},
                                 {"a farewell without an answer", "QUIT", true, true, true, "STOR"},
                                 {"refused, then silent", "QUIT", true, true, true, "PASS"},
                                 {"stalls at half", "QUIT", false, true, false, "STOR"},
                                 {"says nothing to the end of the file", "QUIT", true, false, false, "STOR"}};
    QFile file(m_folder.filePath(u"large.bin"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(30'000'000));
    for (const SilenceCase& silence : cases) {
        SCOPED_TRACE(silence.name);
        FtpFaults server;
        server.answers[silence.silentAt] = "";
        server.readsData = silence.readsData;
        server.says226 = silence.says226;
        if (qstrcmp(silence.step, "PASS") == 0)
            server.answers["PASS"] = "530 no\r\n";
        FTPClient client;
        client.ServerName = u"127.0.0.1"_s;
        client.ServerPort = server.serverPort();
        client.UserName = u"operator"_s;
        client.FilePath = file.fileName();
        client.setRemotePath({});
        Work work;
        bool done = false;
        LoopWatch watch;
        ASSERT_TRUE(work.start([&]() -> QCoro::Task<> { co_await client.SendFileNow(work); }, [&] { done = true; }));
        if (silence.ends) {
            ASSERT_TRUE(WaitUntil([&] { return done; }, 20));
            EXPECT_TRUE(!client.Taken() || WaitUntil([&] { return server.commands.last() == "QUIT"; }, 5));
        } else {
            const auto reached = [&] {
                return *silence.step ? server.commands.join(' ').contains(silence.step) : server.isListening();
            };
            WaitUntil(reached, 10);
            WaitUntil([&] { return done; }, 0.5);
            EXPECT_FALSE(done);
            work.stop();
        }
        EXPECT_LT(watch.longest(), 1000); // on a busy machine too; bench measures it
        EXPECT_EQ(client.ErrorStr(), silence.ends ? QString() : u"Error on sending file"_s);
        EXPECT_EQ(client.Step(), QString::fromLatin1(silence.step));
    }
}

TEST_F(DispatchTest, AlertsCountAsSentWhenTheServerAnswers)
{
    struct AlertCase
    {
        const char* url;
        ScriptedServer::Answer answer;
        bool sent;
        const char16_t* said;
        const char* target;
    };
    const std::vector<AlertCase> cases{
        {"/alarm?a=1,2", {ScriptedServer::page("OK")}, true, u"", "/alarm?a=1,2"},
        {"http://elsewhere.org/on", {ScriptedServer::page("OK")}, true, u"", "/on"},
        {"/gone", {ScriptedServer::page("no", "404 Not Found")}, true, u"HTTP 404", "/gone"},
        {"/moved", {ScriptedServer::page("", "302 Found", "Location: /x\r\n")}, true, u"HTTP 302", "/moved"},
        {"/cut", {"HTTP/1.1 200 OK\r\nConte", true}, false, u"The connection broke off", "/cut"}};
    for (const AlertCase& alert : cases) {
        SCOPED_TRACE(alert.url);
        ScriptedServer device;
        device.answer = [&](const ScriptedServer::Seen&) { return alert.answer; };
        ListenServerRec& record = servers.stored[1];
        record.sAlertIP = u"127.0.0.1"_s;
        record.iAlertPort = device.serverPort();
        record.sAlertUser = u"admin"_s;
        EventHandlingRecord page;
        page.strHttpMsgContent = QString::fromLatin1(alert.url);
        queue->SendEventTest(page, EventAction::Alert, u"not sent"_s);
        EXPECT_EQ(queue->sends(EventAction::Alert, 1).waiting, 1);
        const qsizetype failures = log().count("Alert to server 2");
        ASSERT_TRUE(drain());
        EXPECT_EQ(device.lastTarget(), alert.target);
        EXPECT_EQ(log().count("Alert to server 2") - failures, alert.sent ? 0 : 1);
        Work work;
        const SendOutcome outcome = Await(SendAlert(com.web, AlertServer(record), page.strHttpMsgContent, work));
        EXPECT_EQ(outcome.sent, alert.sent);
        EXPECT_EQ(outcome.answer, QString::fromUtf16(alert.said));
    }
    EXPECT_EQ(queue->sends(EventAction::Alert, 1).answer, u"The connection broke off"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(com.AlertRequests.size(), 1) << "the slot is free again each time";
    EXPECT_EQ(com.AlertRequests[0].RequestID, -1);
}

TEST_F(DispatchTest, EachSoundPlaysOnceAndTheStationsOwnOnlyAlone)
{
    QStringList played;
    SetSoundHandler([&](const QString& file, const SoundEnded& ended) {
        played << file;
        ended(file.startsWith("bad"_L1) ? u"no sound"_s : QString());
    });
    handling.stored.bTriActSound = true;
    queue->SendQueueStr_Set(u"event"_s, false);
    EXPECT_EQ(played, QStringList{DefaultWarningPath()});
    played.clear();
    servers.stored[1].sWarningPath = servers.stored[2].sWarningPath = u"bad.wav"_s;
    queue->SendQueueStr_Set(u"event"_s, false);
    EXPECT_EQ(played, QStringList{u"bad.wav"_s});
    EXPECT_EQ(queue->sends(EventAction::Sound, 1).answer, u"no sound"_s);
    EXPECT_TRUE(log().contains("Sound bad.wav: no sound"));
}
