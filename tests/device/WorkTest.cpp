#include "app/log/StartWork.h"
#include "device/bridge/ModuleCGI.h"
#include "platform/Closing.h"
#include "platform/HttpDigest.h"
#include "support/HostNames.h"
#include "tests/device/ScriptedDevice.h"

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

namespace {

using WorkTest = ScriptedDevice;

// The work of a window: asks device after device and notes how it ended.
QCoro::Task<> AskThrice(Form_COM& com, DeviceAddress device, Work& work, QStringList& notes)
{
    for (int i = 0; i < 3; ++i) {
        const WebReply reply = co_await com.web.Get(device, u"/"_s + QString::number(i), 60, work);
        notes += reply.text + QString::number(reply.status);
    }
    work.say(u"over"_s, 100);
}

TEST_F(WorkTest, ATaskRunsOnTheEventLoopAndTellsTheWindow)
{
    server.answer = [](const Seen& seen) { return Answer{ScriptedServer::page(seen.line.split(' ').value(1))}; };
    QStringList notes;
    std::vector<bool> held;
    QObject::connect(&work, &Work::runningChanged, &work, [&](bool running) { held.push_back(running); });
    const auto body = [&] { return AskThrice(com, device(), work, notes); };
    ASSERT_TRUE(StartWork(work, "Test - Ask"_L1, body));
    EXPECT_TRUE(notes.isEmpty());
    EXPECT_FALSE(StartWork(work, "Test - Ask"_L1, body)); // one at a time
    EXPECT_TRUE(WaitUntil([&] { return !work.running(); }, 5));
    EXPECT_EQ(notes, (QStringList{u"/00"_s, u"/10"_s, u"/20"_s}));
    EXPECT_EQ(work.step(), u"over"_s);
    EXPECT_THAT(held, ElementsAre(true, false));

    // What a task throws is one line of the log, and its work can be started again.
    ASSERT_TRUE(StartWork(work, "Test - Fault"_L1, [&]() -> QCoro::Task<> {
        const WebReply reply = co_await com.web.Get(device(), u"/x"_s, 60, work);
        throw std::runtime_error(reply.text.toStdString());
    }));
    EXPECT_TRUE(WaitUntil([&] { return !work.running(); }, 5));
    EXPECT_TRUE(station.logs().contains("Test - Fault"));
}

TEST_F(WorkTest, AStopEndsEverythingAtOnceWhateverTheDeviceDoes)
{
    server.fallSilent();
    const QStringList stoppedThrice{u"-9"_s, u"-9"_s, u"-9"_s};
    enum
    {
        ByStop,
        WithItsWindow,
        Closing
    };
    for (const auto how : {ByStop, WithItsWindow, Closing}) {
        SCOPED_TRACE(how);
        QStringList notes;
        auto window = std::make_unique<Work>();
        ASSERT_TRUE(window->start([&, running = window.get()] { return AskThrice(com, device(), *running, notes); }));
        const std::size_t asked = server.requests.size();
        EXPECT_TRUE(WaitUntil([&] { return server.requests.size() > asked; }, 5));
        EXPECT_TRUE(notes.isEmpty());
        if (how == ByStop)
            window->stop();
        else if (how == WithItsWindow)
            window.reset();
        else
            SetClosing(true);
        EXPECT_EQ(notes, stoppedThrice); // already, and the later requests were not sent
        EXPECT_EQ(com.http.open(), 0);
        if (how == Closing) {
            EXPECT_FALSE(window->start([&] { return AskThrice(com, device(), *window, notes); }));
        }
        SetClosing(false);
        EXPECT_EQ(server.requests.size(), asked + 1);
    }
}

TEST_F(WorkTest, CommandsOfAStoppedWorkFailLikeATransport)
{
    server.fallSilent();
    QStringList results;
    ASSERT_TRUE(work.start([&]() -> QCoro::Task<> {
        QCoro::Task<QString> command = com.web.SendCmdXml(device(), u"<CMD/>"_s, work);
        QCoro::Task<ChannelParams> groups = CgiGetChannelParams(com.web, device(), 1, true, work);
        QCoro::Task<LoginReply> login = CgiLogin(com.web, device(), work);
        QCoro::Task<std::optional<RecorderChannel>> channel = com.device.GetChannel(device(), 1, work);
        QCoro::Task<bool> passed = [](Work& waiting) -> QCoro::Task<bool> {
            Pause pause(waiting, 60'000);
            const bool over = co_await pause;
            co_return over;
        }(work);
        results += co_await command;
        const ChannelParams read = co_await groups;
        results += read.Image + read.Ptz + read.Onvif;
        const LoginReply logged = co_await login;
        results += QString::number(logged.result);
        const std::optional<RecorderChannel> none = co_await channel;
        results += none ? u"a channel"_s : u"none"_s;
        const bool slept = co_await passed;
        results += slept ? u"slept"_s : u"woken"_s;
        results += co_await GetIpByName(u"localhost"_s, work);
    }));
    EXPECT_TRUE(WaitUntil([&] { return server.requests.size() == 6; }, 5));
    EXPECT_TRUE(StopsAtOnce(work));
    EXPECT_EQ(results, (QStringList{{}, {}, u"404"_s, u"none"_s, u"woken"_s, {}}));
    EXPECT_EQ(com.http.open(), 0);
}

TEST_F(WorkTest, TogetherKeepsTheOrderAndTheLimit)
{
    int open = 0;
    int most = 0;
    server.answer = [&](const Seen& seen) {
        most = qMax(most, ++open);
        Answer answer{ScriptedServer::page(seen.line.split(' ').value(1))};
        answer.delay = seen.line.contains("/0") ? 60 : 10; // the first comes last
        answer.silent = seen.line.contains("/never");
        return answer;
    };
    using Ask = std::function<QCoro::Task<QString>()>;
    const auto ask = [&](const QString& url, bool faulty = false) -> Ask {
        return [&, url, faulty]() -> QCoro::Task<QString> {
            const QString reply = co_await CgiGet(com.web, device(), url, work);
            --open;
            if (faulty)
                throw std::runtime_error(url.toStdString());
            co_return reply;
        };
    };
    std::vector<std::optional<QString>> got;
    const auto run = [&](std::vector<Ask> tasks) {
        ASSERT_TRUE(StartWork(work, "Test - Together"_L1, [&, tasks]() -> QCoro::Task<> {
            QCoro::Task<std::vector<std::optional<QString>>> all = Together<QString>(work, tasks, 3);
            got = co_await all;
        }));
    };
    run({ask(u"/0"_s), ask(u"/1"_s), ask(u"/2"_s), ask(u"/3"_s), ask(u"/4"_s)});
    EXPECT_TRUE(WaitUntil([&] { return !work.running(); }, 5));
    EXPECT_THAT(got, ElementsAre(u"/0"_s, u"/1"_s, u"/2"_s, u"/3"_s, u"/4"_s));
    EXPECT_EQ(most, 3);

    // A fault is told once all have ended; a stop begins no more of them.
    got.clear();
    run({ask(u"/0"_s, true), ask(u"/1"_s, true), ask(u"/2"_s)});
    EXPECT_TRUE(WaitUntil([&] { return !work.running(); }, 5));
    EXPECT_EQ(open, 0);
    EXPECT_TRUE(got.empty());
    EXPECT_TRUE(station.logs().contains("/0"));
    const std::size_t asked = server.requests.size();
    run({ask(u"/5"_s), ask(u"/never"_s), ask(u"/never"_s), ask(u"/never"_s), ask(u"/6"_s)});
    EXPECT_TRUE(WaitUntil([&] { return server.requests.size() == asked + 4; }, 5));
    work.stop();
    EXPECT_THAT(got, ElementsAre(u"/5"_s, QString(), QString(), QString(), std::nullopt));
}

TEST(HttpDigest, AnswersTheChallengesOfTheStandards)
{
    const DigestLogin mufasa{"Mufasa", "Circle of Life"};
    const struct
    {
        QByteArray field; // WWW-Authenticate
        DigestLogin login;
        QByteArray clientNonce;
        QByteArray response; // empty: nothing to answer
        bool basic = false;
    } cases[] = {
        // RFC 7616, 3.9.1
        {"Digest realm=\"http-auth@example.org\", qop=\"auth, auth-int\", algorithm=MD5, "
         "nonce=\"7ypf/xlj9XXwfDPEoM4URrv/xwf94BcCAzFZH4GiTo0v\", "
         "opaque=\"FQhe/qaU925kfnzjCev0ciny7QMkPqMAFRtzCUYo5tdS\"",
         mufasa, "f2/wE4q74E6zIJEtWaHKaf5wv/H5QzzpXusqGemxURZJ", "8ca523f5e9506fed4657c9700eebdbec"},
        {"Basic realm=\"x, Digest nonce=no\", digest Realm = \"http-auth@example.org\",qop=auth,algorithm=sha-256, "
         "nonce=\"7ypf/xlj9XXwfDPEoM4URrv/xwf94BcCAzFZH4GiTo0v\"",
         mufasa, "f2/wE4q74E6zIJEtWaHKaf5wv/H5QzzpXusqGemxURZJ",
         "753927fa0e85d155564e2e272a28d1802ca10daf4496794697cf8db5856cb6c1", true},
        {"Digest realm=\"r\", nonce=\"n\", algorithm=SHA-512-256", mufasa, "c", {}},
        {"Digest realm=\"r\", nonce=\"n\", qop=\"auth-int\"", mufasa, "c", {}},
        {"Digest realm=\"open", mufasa, "c", {}},
        {"Negotiate abc==, Basic realm=\"r\"", mufasa, "c", {}, true},
        {"\"=,==", mufasa, "c", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.field.constData());
        const Challenges read = ReadChallenges({c.field});
        EXPECT_EQ(read.basic, c.basic);
        ASSERT_EQ(read.digest.has_value(), !c.response.isEmpty());
        if (!read.digest)
            continue;
        const QByteArray answer = DigestAnswer(*read.digest, c.login, "GET", "/dir/index.html", 1, c.clientNonce);
        EXPECT_TRUE(answer.contains(QByteArray("response=\"" + c.response + '"'))) << answer.constData();
        EXPECT_TRUE(answer.contains("nc=00000001"));
    }
    EXPECT_TRUE(DigestAnswer({}, {"a\"b\\", {}}, "GET", "/", 1, {}).contains("username=\"a\\\"b\\\\\""));
}

} // namespace
