#include "device/bridge/ConnectionWatch.h"
#include "platform/Closing.h"
#include "tests/device/ScriptedDevice.h"

using namespace Qt::StringLiterals;

namespace {

using ParameterBridge = ScriptedDevice;

SVRRecord Recorder(const ScriptedServer& at, const QString& family = u"TXR632"_s)
{
    SVRRecord svr;
    svr.sSVR_IP = u"127.0.0.1"_s;
    svr.iSVR_HttpPort = at.serverPort();
    svr.sSVR_DeviceType = family;
    return svr;
}

} // namespace

TEST_F(ParameterBridge, ReadsFactsAndChannelsOfARecorder)
{
    server.answerWith("OK\r\nsystem.videoport=8016\r\nsystem.timezone=31\r\nsystem.summertime=-1\r\n");
    const RecorderFacts facts = Await(com.device.GetSystemFacts(device(), work)).value();
    EXPECT_EQ(server.lastTarget(), "/param.cgi?action=get&group=system");
    EXPECT_EQ(facts.VideoPort, 8016);
    EXPECT_EQ(facts.TimeZone, 31);
    EXPECT_EQ(facts.SummerTime, -1);

    server.answerWith("camera_c12.device.name=%u4E2Dx\r\ncamera_c12.device.ip=10.0.0.7\r\n"
                      "camera_c1.device.ip=9.9.9.9\r\ncamera_c12.device.httpport=80a\r\n"
                      "camera_c12.device.username=root\r\ncamera_c12.device.password=a=b=\r\n"
                      "camera_c12.device.format=1024\r\ncamera_c12.device.resolution=1920x1080\r\n"
                      "camera_c12.device.brand=55\r\n");
    RecorderChannel channel = Await(com.device.GetChannel(device(), 12, work)).value();
    EXPECT_EQ(server.lastTarget(), "/param.cgi?action=get&group=camera_c12.device");
    EXPECT_EQ(channel.Name, u"%u4E2Dx"_s); // still escaped
    EXPECT_EQ(channel.IP, u"10.0.0.7"_s);
    EXPECT_FALSE(channel.HttpPort); // no number: logged
    EXPECT_EQ(channel.Password, u"a=b="_s);
    EXPECT_EQ(channel.Format, 1024);
    EXPECT_EQ(channel.Brand, 55);

    server.answerWith("camera_c3.device.name=\r\ncamera_c3.device.ip=\r\ncamera_c3.device.httpport=\r\n");
    channel = Await(com.device.GetChannel(device(), 3, work)).value();
    EXPECT_EQ(channel.IP, QString());

    server.answerWith("ERROR\r\nRET=\"7\"\r\n");
    EXPECT_FALSE(Await(com.device.GetChannel(device(), 3, work)));
    EXPECT_FALSE(Await(com.device.GetSystemFacts(device(), work)));
}

TEST_F(ParameterBridge, WritesAChannelInItsTwoForms)
{
    ChannelParameters settings{u"%u4E2Dx"_s, u"10.0.0.7"_s,  u"80"_s, u"root"_s, u"a&b=c d%"_s, {}, {},
                               u"1024"_s,    u"1920x1080"_s, {},      {},        u"6"_s,        {}};
    const QByteArray camera = "/param.cgi?action=set&camera_c64.device.name=%u4E2Dx&camera_c64.device.ip=10.0.0.7"
                              "&camera_c64.device.httpport=80&camera_c64.device.username=root"
                              "&camera_c64.device.password=a%26b%3Dc%20d%25&camera_c64.device.brand=";
    server.answerWith("OK\r\nRET=\"0\"\r\n");
    EXPECT_TRUE(
        DeviceBridge::DeviceTook(Await(com.device.SetChannel(device(), 64, settings, ChannelForm::Simple, work))));
    EXPECT_EQ(server.lastTarget(), camera);
    Await(com.device.SetChannel(device(), 64, settings, ChannelForm::Both, work));
    EXPECT_EQ(server.lastTarget(), QByteArray(camera + "&camera_c64.device.format=1024"
                                                       "&camera_c64.device.resolution=1920x1080"
                                                       "&camera_c64.device.bitrate=6"));
    server.answerWith("ERROR\r\nRET=\"10\"\r\n");
    EXPECT_FALSE(
        DeviceBridge::DeviceTook(Await(com.device.SetChannel(device(), 64, settings, ChannelForm::Both, work))));

    const std::size_t sent = server.requests.size();
    settings.Password = u"a\"b"_s;
    EXPECT_THROW(Await(com.device.SetChannel(device(), 64, settings, ChannelForm::Both, work)), std::invalid_argument);
    EXPECT_EQ(server.requests.size(), sent);
}

TEST_F(ParameterBridge, PresetsAndMovementAskThePtzPath)
{
    DeviceBridge& bridge = com.device;
    server.answerWith("OK\r\nRET=\"0\"\r\n");
    const std::pair<std::function<bool()>, QByteArray> cases[] = {
        {[&] { return Await(bridge.GotoPreset(device(), 3, 8, 5, work)); }, "channel=3&action=goto&preset=8&speed=5"},
        {[&] { return Await(bridge.SetPreset(device(), 3, 1, u"Tor \u4e2d"_s, work)); },
         "channel=3&action=setpreset&preset=1&name=Tor%20%u4E2D"},
        {[&] { return Await(bridge.MovePtz(device(), 3, PtzAction::Move, 7, 2, work)); },
         "channel=3&action=move&direction=7&speed=2"},
        {[&] { return Await(bridge.MovePtz(device(), 3, PtzAction::Iris, 0, 1, work)); },
         "channel=3&action=iris&direction=0&speed=1"},
        {[&] { return Await(bridge.StopPtz(device(), 3, work)); }, "channel=3&action=stop"},
    };
    for (const auto& [call, query] : cases) {
        EXPECT_TRUE(call());
        EXPECT_EQ(server.lastTarget(), QByteArray("/ptz.cgi?" + query));
    }
    server.answerWith("camera_c2.fisheye.mode=2P\r\n");
    EXPECT_EQ(Await(bridge.GetFishEyeMode(device(), 2, work)), u"2P"_s);
    EXPECT_FALSE(Await(bridge.StopPtz(device(), 3, work)));
}

TEST_F(ParameterBridge, ServicesFollowTheirDevice)
{
    com.poller.SetInterval(20);
    const auto status = [&](qint16 svr) {
        const qint16 row = com.FindServiceSlot(svr);
        return row < 0 ? -1 : com.Services[static_cast<std::size_t>(row)].Status;
    };
    ScriptedServer other;
    std::vector<SVRRecord> list(17);
    list[1] = Recorder(server);
    list[2] = Recorder(server, u"OmluPro"_s);
    list[15] = Recorder(other);
    list[16] = Recorder(server); // beyond the station's slots
    EXPECT_EQ(com.FindServiceSlot(1), -1);
    com.SetProToDeviceBridge(list);
    EXPECT_EQ(com.Services.size(), 2u);
    EXPECT_TRUE(WaitUntil([&] { return status(1) > 0 && status(15) > 0; }, 5));

    // A service is registered anew at its recorder's present address; nobody asks the old one any more.
    other.answerWith("no");
    EXPECT_TRUE(WaitUntil([&] { return status(15) == 0; }, 5));
    ScriptedServer moved;
    list[1] = Recorder(moved);
    list[15] = Recorder(moved);
    com.SetProToDeviceBridge(list);
    EXPECT_TRUE(WaitUntil([&] { return status(1) > 0 && status(15) > 0; }, 5));
    EXPECT_EQ(com.FindServiceSlot(15), 1);
    const std::size_t asked = other.requests.size() + server.requests.size();
    const std::size_t askedMoved = moved.requests.size();
    com.SetProToDeviceBridge(list); // and those that are connected stay
    EXPECT_TRUE(WaitUntil([&] { return moved.requests.size() > askedMoved + 4; }, 5));
    EXPECT_EQ(other.requests.size() + server.requests.size(), asked);

    // A slot that is free or has become another family is asked no more; its row serves the next recorder.
    list[1] = SVRRecord();
    list[15].sSVR_DeviceType = kFamilySVR;
    other.answerWith("OK\n");
    list[4] = Recorder(other);
    com.SetProToDeviceBridge(list);
    EXPECT_EQ(com.FindServiceSlot(1), -1);
    EXPECT_EQ(com.FindServiceSlot(15), -1);
    EXPECT_TRUE(WaitUntil([&] { return status(4) > 0; }, 5));
    const std::size_t before = server.requests.size() + moved.requests.size();
    const std::size_t rounds = other.requests.size() + 3;
    EXPECT_TRUE(WaitUntil([&] { return other.requests.size() > rounds; }, 5));
    EXPECT_EQ(server.requests.size() + moved.requests.size(), before);
}

// A list on show and a service want to know about the same recorder: it gets one question at a time.
TEST_F(ParameterBridge, AListAndAServiceShareTheQuestionsToARecorder)
{
    com.poller.SetInterval(5);
    ScriptedServer other;
    std::vector<SVRRecord> list(kMaxSVR);
    list[4] = Recorder(server);
    ConnectionWatch watch(com.poller, std::span<const SVRRecord, kMaxSVR>(list.data(), kMaxSVR));
    watch.refresh();
    EXPECT_EQ(com.http.open(), 0) << "a list that is not on show asks nobody";
    com.SetProToDeviceBridge(list);
    EXPECT_TRUE(WaitUntil([&] { return com.Services.at(0).Status == 1; }, 5));
    server.fallSilent();
    std::size_t asked = server.requests.size();
    EXPECT_TRUE(WaitUntil([&] { return server.requests.size() > asked; }, 5));
    watch.start(); // more impatient than the service
    EXPECT_EQ(watch.state(4).kind, ConnectionState::Kind::Connected) << "as it is known";
    EXPECT_EQ(com.http.open(), 1);
    EXPECT_TRUE(WaitUntil([&] { return watch.state(4).message == 959; }, 5));
    EXPECT_EQ(com.Services[0].Status, 1) << "sixty seconds of silence cost a service its status";
    server.answerWith("OK");
    EXPECT_TRUE(WaitUntil([&] { return watch.state(4).kind == ConnectionState::Kind::Connected; }, 5));

    list[4] = Recorder(other); // nobody says so
    EXPECT_TRUE(WaitUntil([&] { return other.requests.size() > 3; }, 5));
    list[4] = SVRRecord();
    watch.refresh();
    EXPECT_EQ(watch.state(4).kind, ConnectionState::Kind::None);
    com.SetProToDeviceBridge(list);
    EXPECT_EQ(com.http.open(), 0) << "removed: asked by nobody";

    list[4] = Recorder(other);
    list[5] = Recorder(server);
    server.answer = [](const Seen&) { return Answer{ScriptedServer::page({}, "401 No")}; };
    asked = server.requests.size(); // each wrong password may count towards a lock
    std::size_t rounds = other.requests.size() + 40;
    watch.refresh();
    EXPECT_EQ(watch.state(5).kind, ConnectionState::Kind::Checking);
    EXPECT_TRUE(WaitUntil([&] { return other.requests.size() > rounds; }, 5));
    EXPECT_EQ(watch.state(5).kind, ConnectionState::Kind::Refused);
    EXPECT_LT(server.requests.size() - asked, 12U);
    watch.start();
    const auto leaving = QObject::connect(&watch, &ConnectionWatch::changed, &watch, [&] { watch.stop(); });
    EXPECT_TRUE(WaitUntil([&] { return com.http.open() == 0; }, 5)) << "left at once, by its own news";
    QObject::disconnect(leaving);
    watch.start();
    EXPECT_EQ(com.http.open(), 2);
    SetClosing(true);
    EXPECT_EQ(com.http.open(), 0);
    SetClosing(false);

    HttpReply reply;
    for (const auto& [failure, message] :
         {std::pair{HttpFailure::NotResolved, 960}, {HttpFailure::BrokenOff, 962}, {HttpFailure::TooLarge, 962}}) {
        reply.failure = failure;
        EXPECT_EQ(ConnectionOf(reply).message, message);
    }
}

TEST_F(ParameterBridge, AStatusOfAnUnknownServiceIsAnErrorAndNoNewRow)
{
    emit com.device.OnNotifyServiceStatus(3, 1);
    EXPECT_TRUE(com.Services.empty());
    EXPECT_TRUE(station.logs().contains("Form_COM - DeviceBridge_OnNotifyServiceStatus"));
}
