#include "events/SMTPClient.h"
#include "platform/AppPath.h"
#include "platform/Clock.h"
#include "tests/LoopWatch.h"
#include "tests/events/LineServer.h"
#include "tests/events/Servers.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QTemporaryDir>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

class MailTest : public testing::Test
{
protected:
    MailTest() { SetAppPath(m_folder.path()); }
    ~MailTest() override { PinClock(QDateTime()); }

    static void fill(SMTPClient& client, int port)
    {
        client.ServerName = u"127.0.0.1"_s;
        client.ServerPort = QString::number(port);
        client.SendFrom = u"desk<desk@site.org>"_s;
        client.Subject = u"Ünusual\r\nX-Injected: 1"_s;
        client.AddSendTo(u"guard@site.org"_s, u"The \"guard\""_s);
        client.Body = u"Motion at the gate"_s;
    }
    QString file(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }
    static bool send(SMTPClient& client)
    {
        Work work;
        return Await(client.SendMailNow(work));
    }

    QTemporaryDir m_folder;
};

QByteArray Content(const QJsonValue& part)
{
    return QByteArray::fromBase64(part[u"content"_s].toString().toLatin1());
}

} // namespace

TEST_F(MailTest, AServerReadsBackTextsRecipientsAndFilesOfEveryLength)
{
    Server server({u"smtp"_s});
    SMTPClient client;
    fill(client, server.port);
    client.HTMLBody = u"<p>Grüße</p>"_s;
    client.HTMLCharset = u"UTF-8"_s;
    client.AddCopyTo(u"copy@site.org"_s, {});
    client.AddBlindCopyTo(u"blind@site.org"_s, u"unseen"_s);
    client.AddSendTo({}, u"nobody"_s);
    QByteArrayList contents;
    for (const int length : {0, 1, 2, 3, 45, 46, 200000}) {
        QByteArray bytes(length, '\0');
        for (int i = 0; i < length; ++i)
            bytes[i] = static_cast<char>(i * 7 + i / 256);
        contents << bytes;
        client.AddAttachment(file(u"f%1.bin"_s.arg(length), bytes), length == 3 ? u"named.txt"_s : QString());
    }
    client.AddAttachment(m_folder.filePath(u"missing"_s), {});
    client.AddAttachment(m_folder.path(), {});
    ASSERT_TRUE(send(client)) << client.ErrorStr().toStdString() << client.Answer().toStdString();

    const QJsonObject mail = server.mail();
    EXPECT_EQ(mail[u"from"_s], u"desk@site.org"_s);
    EXPECT_EQ(mail[u"recipients"_s].toArray(),
              (QJsonArray{u"blind@site.org"_s, u"copy@site.org"_s, u"guard@site.org"_s}));
    EXPECT_EQ(mail[u"defects"_s].toArray(), QJsonArray());
    QStringList headers;
    for (const QJsonValue& header : mail[u"headers"_s].toArray())
        headers << header[0].toString() + u": "_s + header[1].toString();
    EXPECT_TRUE(headers.takeFirst().startsWith("Date: "_L1));
    EXPECT_EQ(headers.value(0), u"From: \"desk\" <desk@site.org>"_s);
    EXPECT_TRUE(headers.contains(u"CC: copy@site.org"_s));
    EXPECT_TRUE(headers.contains(u"To: \"The \\\"guard\\\"\" <guard@site.org>"_s));
    EXPECT_TRUE(headers.contains(u"X-Mailer: SMTP"_s) && headers.filter(u"blind"_s).isEmpty());
    EXPECT_TRUE(headers.filter(u"X-Injected"_s).value(0).startsWith("Subject"_L1)) << "line ends are dropped";
    const QJsonArray parts = mail[u"parts"_s].toArray();
    ASSERT_EQ(parts.size(), 2 + contents.size());
    EXPECT_EQ(Content(parts[0]).trimmed(), "Motion at the gate");
    EXPECT_EQ(parts[1][u"charset"_s], u"utf-8"_s);
    EXPECT_EQ(QString::fromUtf8(Content(parts[1])).trimmed(), client.HTMLBody);
    for (int i = 0; i < contents.size(); ++i) {
        SCOPED_TRACE(contents[i].size());
        EXPECT_EQ(Content(parts[i + 2]), contents[i]);
        EXPECT_EQ(parts[i + 2][u"longest"_s].toInt(), contents[i].size() < 45 ? (contents[i].size() + 2) / 3 * 4 : 60);
        EXPECT_EQ(parts[i + 2][u"file"_s],
                  contents[i].size() == 3 ? u"named.txt"_s : u"f%1.bin"_s.arg(contents[i].size()));
    }
}

TEST_F(MailTest, LoginTakesTheRightPasswordOnly)
{
    Server server({u"smtp"_s, u"login"_s});
    for (const QString& password : {u"pass wörd"_s, u"wrong"_s}) {
        SMTPClient client;
        fill(client, server.port);
        client.UserName = u"operator"_s;
        client.Password = password;
        const bool good = password != "wrong"_L1;
        EXPECT_EQ(send(client), good) << client.ErrorStr().toStdString();
        EXPECT_EQ(client.ErrorStr(), good ? QString() : u"Error on authencating password"_s);
        EXPECT_EQ(client.Answer().left(4), good ? QString() : u"535 "_s);
        if (good) {
            EXPECT_EQ(server.mail()[u"from"_s], u"desk@site.org"_s);
        }
    }
}

namespace {

struct FaultCase
{
    const char* name;
    std::map<QByteArray, QByteArray> answers;
    const char* error;
    const char* answer;
    std::map<QByteArray, QByteArray> second = {};
    bool byteByByte = false;
    bool takesNoData = false;
};

// "*" stands for the words of the network.
const std::vector<FaultCase>& FaultCases()
{
    static const QByteArray many = "220-one\r\n220-two\r\n220 three\r\n";
    static const QByteArray endless(200000, 'x');
    static const std::vector<FaultCase> cases{
        {"all is well", {}, "", ""},
        {"many lines", {{"", many}}, "", ""},
        {"byte by byte", {{"", many}}, "", "", {}, true},
        {"no greeting", {{"", ""}}, "Error hand shaking with SMTP server : 127.0.0.1", ""},
        {"endless line", {{"", "220 " + endless}}, "Error hand shaking with SMTP server : 127.0.0.1", "220 xx"},
        {"NUL", {{"", QByteArray("\0\0\0\r\n", 5)}}, "Error hand shaking with SMTP server : 127.0.0.1", ""},
        {"busy", {{"", "421 too many\r\n!"}}, "Error hand shaking with SMTP server : 127.0.0.1", "421 too many"},
        {"greets and leaves", {{"", "220 hi\r\n!"}}, "Error connect to SMTP server : 127.0.0.1", "*"},
        {"HELO refused", {{"HELO", "500 what\r\n"}}, "Error connect to SMTP server : 127.0.0.1", "500 what"},
        {"no login there", {{"AUTH", "502 no\r\n"}}, "", ""},
        {"login unknown", {{"AUTH", "500 no\r\n"}}, "Error unknown error when perform authencation", "500 no"},
        {"another prompt",
         {{"AUTH", "334 VXNlcg==\r\n"}},
         "Error unknown error when perform authencation",
         "334 VXNlcg=="},
        {"user refused", {{"user", "535 no\r\n"}}, "Error on authencating user", "535 no"},
        {"password refused", {{"pass", "535 no\r\n"}}, "Error on authencating password", "535 no"},
        {"wants brackets",
         {{"mail", "501 syntax\r\n"}, {"rcpt", "555 syntax\r\n"}},
         "",
         "",
         {{"mail", "250 ok\r\n"}, {"rcpt", "250 ok\r\n"}}},
        {"sender refused", {{"mail", "550 you\r\n"}}, "Error on setting set send from", "550 you"},
        {"one of many refused", {}, "Error set To recipients", "550 not here", {{"rcpt", "550 not here\r\n"}}},
        {"no mail now", {{"data", "451 later\r\n"}}, "Error starting send body", "451 later"},
        {"leaves in the mail", {{"data", "354 go\r\n!"}}, "Error on finishing sending mail", "*"},
        {"mail refused", {{".", "554 spam\r\n"}}, "Error on finishing sending mail", "554 spam"},
        {"silent at the end", {{".", ""}}, "Error on finishing sending mail", ""},
        {"silent at quit", {{"quit", ""}}, "Error on quit connection", ""},
        {"leaves at quit without a line end", {{"quit", "221 bye!"}}, "", ""}};
    return cases;
}

} // namespace

// All of them at once: none waits for another.
TEST_F(MailTest, EveryFaultOfAServerEndsWithItsStepAndItsAnswer)
{
    struct Run
    {
        LineServer server;
        SMTPClient client;
        QList<bool> ends;
    };
    std::vector<std::unique_ptr<Run>> runs;
    EventQueueBusy busy;
    LoopWatch watch;
    for (const FaultCase& fault : FaultCases()) {
        auto run = std::make_unique<Run>();
        for (const auto& [word, answer] : fault.answers)
            run->server.answers[word] = answer;
        run->server.second = fault.second;
        run->server.byteByByte = fault.byteByByte;
        fill(run->client, run->server.serverPort());
        run->client.UserName = u"operator"_s;
        run->client.Password = u"pass"_s;
        run->client.AddSendTo(u"second@site.org"_s, {});
        QObject::connect(&run->client, &SMTPClient::Completed,
                         [&ends = run->ends](SMTPClient*, bool sent) { ends << sent; });
        EXPECT_TRUE(run->client.SendMail());
        EXPECT_FALSE(run->client.SendMail()) << "one at a time";
        runs.push_back(std::move(run));
    }
    const auto over = [&] {
        return std::all_of(runs.begin(), runs.end(), [](const auto& run) { return !run->client.busy(); });
    };
    ASSERT_TRUE(WaitUntil(over, 25));
    EXPECT_LT(watch.longest(), 2000); // all of them and their servers on one busy thread
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const FaultCase& fault = FaultCases()[i];
        SCOPED_TRACE(fault.name);
        const Run& run = *runs[i];
        EXPECT_EQ(run.client.ErrorStr(), QString::fromLatin1(fault.error));
        const QString answer = QString::fromLatin1(fault.answer);
        const QString said = run.client.Answer();
        EXPECT_TRUE(answer == "*"_L1   ? !said.isEmpty()
                    : answer.isEmpty() ? said.isEmpty()
                                       : said.startsWith(answer))
            << said.toStdString();
        EXPECT_EQ(run.ends, QList<bool>{run.client.ErrorStr().isEmpty()});
    }
    EXPECT_EQ(busy.mails, 0);
    const QByteArrayList brackets = runs[14]->server.commands;
    EXPECT_TRUE(brackets.contains("mail from: desk@site.org") && brackets.contains("mail from: <desk@site.org>"));
    EXPECT_TRUE(brackets.contains("rcpt to: <guard@site.org>"));
    EXPECT_EQ(runs[9]->server.commands.count("quit"), 1) << "502: the mail goes without a login";
}

TEST_F(MailTest, StopAndTheEndOfAClientEndASendAtOnce)
{
    LineServer server;
    server.answers["data"] = "354 go\r\n";
    server.takesNoData = true;
    EventQueueBusy busy;
    auto client = std::make_unique<SMTPClient>(&busy);
    fill(*client, server.serverPort());
    client->AddAttachment(file(u"large"_s, QByteArray(20'000'000, 'x')), {});
    const auto inData = [&] { return server.commands.contains("data"); };
    Work work;
    bool sent = true;
    ASSERT_TRUE(work.start([&]() -> QCoro::Task<> { sent = co_await client->SendMailNow(work); }));
    ASSERT_TRUE(WaitUntil(inData, 5));
    EXPECT_EQ(busy.mails, 1);
    work.stop();
    EXPECT_FALSE(sent);
    EXPECT_EQ(client->ErrorStr(), u"Error on finishing sending mail"_s);
    EXPECT_EQ(busy.mails, 0);

    LineServer mute;
    mute.answers[""] = "";
    int told = 0;
    client->ServerPort = QString::number(mute.serverPort());
    QObject::connect(client.get(), &SMTPClient::Completed, [&] { ++told; });
    ASSERT_TRUE(client->SendMail());
    ASSERT_TRUE(WaitUntil([&] { return mute.connections == 1; }, 5));
    client.reset();
    EXPECT_EQ(busy.mails, 0);
    EXPECT_EQ(told, 0);
}

TEST_F(MailTest, DateLineTellsTheZoneAsHours)
{
    struct ZoneCase
    {
        const char* zone;
        const char* date;
    };
    PinClock(QDateTime(QDate(2026, 11, 16), QTime(8, 5, 3)));
    for (const ZoneCase& zone : {ZoneCase{"UTC", "(UTC-.0)"},
                                 {"Asia/Taipei", "(UTC+8.0)"},
                                 {"Asia/Kolkata", "(UTC+5.5)"},
                                 {"America/St_Johns", "(UTC-3.5)"}}) {
        SCOPED_TRACE(zone.zone);
        qputenv("TZ", zone.zone);
        LineServer server;
        SMTPClient client;
        fill(client, server.serverPort());
        EXPECT_TRUE(send(client)) << client.ErrorStr().toStdString();
        EXPECT_EQ(server.mails.value(0).left(server.mails.value(0).indexOf("\r\n")),
                  "Date: Mon, 16 Nov 2026 08:05:03 " + QByteArray(zone.date));
    }
    qunsetenv("TZ");
}
