#include "simulators/SimulatorThread.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTcpSocket>
#include <QTimer>
#include <gmock/gmock.h>
#include <pugixml.hpp>

// A simulator that lies makes every test above it worthless: what is written must be there, what is refused must not,
// and a fault must happen in the very bytes. A plain socket is the client here.

using namespace Qt::StringLiterals;
using namespace simulators;

namespace {

const QByteArray kAdmin = "Authorization: Basic " + QByteArray("admin:admin").toBase64() + "\r\n";

// Everything that comes back until the other side closes or nothing has come for `quietMs`.
QByteArray talk(const Device& device, const QByteArray& bytes, int quietMs = 5000)
{
    QTcpSocket socket;
    QEventLoop loop;
    QByteArray all;
    QTimer quiet;
    quiet.setSingleShot(true);
    QObject::connect(&quiet, &QTimer::timeout, &loop, &QEventLoop::quit);
    QObject::connect(&socket, &QTcpSocket::disconnected, &loop, &QEventLoop::quit);
    QObject::connect(&socket, &QTcpSocket::errorOccurred, &loop, &QEventLoop::quit);
    QObject::connect(&socket, &QTcpSocket::connected, &socket, [&] { socket.write(bytes); });
    QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [&] {
        all += socket.readAll();
        quiet.start(quietMs);
    });
    quiet.start(quietMs);
    socket.connectToHost(device.address(), device.port());
    loop.exec();
    return all + socket.readAll();
}

QByteArray get(const Device& device, const QByteArray& target, const QByteArray& authorization = kAdmin)
{
    return talk(device, "GET " + target + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\n" + authorization + "\r\n");
}

QByteArray bodyOf(const QByteArray& reply)
{
    return reply.mid(reply.indexOf("\r\n\r\n") + 4);
}

QByteArray post(const Device& device, const QByteArray& xml, const QByteArray& authorization = kAdmin)
{
    const QByteArray body = "type=action&xml=" + xml;
    return bodyOf(talk(device, "POST /cmd.cgi HTTP/1.1\r\nConnection: close\r\nContent-Type: application/"
                               "x-www-form-urlencoded\r\nContent-Length: " +
                                   QByteArray::number(body.size()) + "\r\n" + authorization + "\r\n" + body));
}

QByteArray tagged(int id, const QByteArray& param, const QByteArray& userData = "CMS_Core")
{
    return "<CMD ID=\"" + QByteArray::number(id) + "\"><UserData>" + userData + "</UserData><Param>" + param +
           "</Param></CMD>";
}

int retOf(const QByteArray& reply)
{
    pugi::xml_document document;
    document.load_buffer(reply.constData(), static_cast<size_t>(reply.size()));
    return document.child("RESPONSE").attribute("RET").as_int(-999);
}

QByteArray channelXml(const QByteArray& size, const QByteArray& fps = "10", const QByteArray& password = "p1")
{
    return tagged(24581,
                  "<CH>2</CH><Name>T%FCr%u9580</Name><IP>192.168.10.22</IP><HTTPPort>8088</HTTPPort>"
                  "<UserName>op</UserName><Password>" +
                      password +
                      "</Password><VideoNumber>1</VideoNumber><BrandCode>7</BrandCode><Model>M</Model>"
                      "<MACAddress>00</MACAddress><RtspPort>554</RtspPort><StartConfig>0</StartConfig><Video><FMT>"
                      "h264</FMT><Size>" +
                      size + "</Size><FPS>" + fps +
                      "</FPS><Quality>5</Quality><RateControl>1</RateControl><Bitrate>512</Bitrate><GOP>20</GOP>"
                      "<LensMode></LensMode><LeftDisplayMode></LeftDisplayMode><RightDisplayMode>"
                      "</RightDisplayMode></Video><Audio><FMT>g711</FMT></Audio>");
}

std::unique_ptr<Site> siteOf(const QStringList& devices)
{
    SiteDescription description;
    description.port = 0;
    description.discovery = false;
    for (const QString& text : devices)
        description.devices.push_back(deviceFromText(text));
    auto site = std::make_unique<Site>(description);
    site->start();
    return site;
}

} // namespace

TEST(Simulator, ChannelWritesAreLostUnlessSaved)
{
    const auto site = siteOf({u"TXR632,channels=8,cameras=4"_s});
    Device& device = site->device(0);
    ASSERT_EQ(retOf(post(device, channelXml("640x480"))), 0);
    device.reboot();
    EXPECT_EQ(device.channel(2).camera.httpPort, 80);
    post(device, channelXml("640x480"));
    ASSERT_EQ(retOf(post(device, "<CMD ID=\"40963\"><Param><Type>7</Type></Param></CMD>")), 0);
    device.reboot();
    EXPECT_EQ(device.channel(2).camera.httpPort, 8088);
}

TEST(Simulator, RefusesWhatDoesNotFitAndWritesNothing)
{
    const auto site = siteOf({u"TXR632,channels=8,cameras=4"_s});
    Device& device = site->device(0);
    const QByteArray viewer = "Authorization: Basic " + QByteArray("viewer:viewer").toBase64() + "\r\n";
    const struct
    {
        QByteArray xml;
        int ret;
        QByteArray login;
    } table[] = {{channelXml("800x600"), -3, kAdmin},                              // a size it does not have
                 {channelXml("640x480", "31"), -3, kAdmin},                        // beyond the rate of the size
                 {channelXml("640x480", "10", "a<b"), -2, kAdmin},                 // no XML any more
                 {channelXml("640x480"), -4, viewer},                              // no right to write
                 {tagged(24582, "<CHList><CH>9</CH></CHList>"), -3, kAdmin},       // beyond its channels
                 {"<CMD ID=\"24582\"><Param><CHList/></Param></CMD>", -2, kAdmin}, // user data missing
                 {tagged(12294, "<CH>4</CH><Preset>7</Preset><Speed>1</Speed>"), -6, kAdmin},
                 {tagged(12294, "<CH>4</CH><Preset>1</Preset><Speed>11</Speed>"), -3, kAdmin},
                 {"<CMD ID=\"12289\"><Param><CH>4</CH><Target>left</Target><Direction>1</Direction><Speed>1</Speed>"
                  "<Cont>1</Cont></Param></CMD>",
                  -3, kAdmin}, // a camera with one lens
                 {"<CMD ID=\"4198422\"/>", -1, kAdmin}};
    const int before = device.channel(2).camera.httpPort;
    for (const auto& row : table) {
        const QByteArray reply = post(device, row.xml, row.login);
        EXPECT_EQ(retOf(reply), row.ret) << row.xml.constData();
        EXPECT_FALSE(reply.contains("CHList"));
    }
    EXPECT_EQ(device.channel(2).camera.httpPort, before);
    EXPECT_EQ(device.requestCount("/cmd.cgi", 24581), 4);
    EXPECT_EQ(device.log().front().body, "type=action&xml=" + channelXml("800x600"));
}

TEST(Simulator, WhatWasWrittenIsReadBack)
{
    const auto site = siteOf({u"TXR632,channels=8,cameras=8,presets=2"_s, u"SVR,channels=8,cameras=4"_s});
    site->device(0).state().refusedEventChannels = {2};
    const QByteArray action = "<Action CH=\"3\" Event=\"2001\" ActionGroup=\"1\" TriggerID=\"2\" DigitalOut=\"0\" "
                              "Preset=\"4\" DigitalOutID=\"5\" DigitalOutState=\"6\" DODuration=\"7\" PresetDest=\"8\" "
                              "Enable=\"1\"";
    const QByteArray steps = "<Preset ID=\"5\" DwellTime=\"20\"/><Preset ID=\"1\" DwellTime=\"20\"/>";
    const std::pair<QByteArray, QByteArray> commands[] = {
        {"<CMD ID=\"12289\"><Param><CH>4</CH><Direction>4</Direction><Speed>6</Speed><Cont>1</Cont></Param></CMD>",
         "\"0\""},
        {tagged(12301, "<CH>4</CH><ID>5</ID><Name>Ecke &amp; Tor</Name>"), "RET=\"0\""},
        {tagged(4101, "<CH>4</CH>"), "<Preset ID=\"5\"><Name>Ecke &amp; Tor</Name><PTZABS>0</PTZABS><Pan>6</Pan>"},
        {tagged(32859, "<CHList><CH ID=\"4\"><SeqList><Seq ID=\"1\"><PresetList>" + steps +
                           "</PresetList></Seq></SeqList></CH></CHList>"),
         "RET=\"0\""},
        {"<CMD ID=\"32858\" ><Param><CHList><CH>4</CH></CHList></Param></CMD>", steps},
        {"<CMD ID=\"32775\"><Param><ActionList>" + action + "/>\r\n</ActionList></Param></CMD>", "RET=\"0\""},
        {"<CMD ID=\"32777\" ></CMD>", action},
        {"<CMD ID=\"32788\"><Param><MotionDetectList><MotionDetect CH=\"2\" CameraEnable =\"1\"/><MotionDetect "
         "CH=\"3\" CameraEnable =\"1\"/></MotionDetectList></Param></CMD>",
         "RET=\"0\""},
        {"<CMD ID=\"4113\" />", "<CH ID=\"2\" MDRet=\"-1\" DIRet=\"0\""},
    };
    for (const auto& [xml, holds] : commands)
        EXPECT_TRUE(post(site->device(0), xml).contains(holds)) << xml.constData();
    const std::pair<QByteArray, QByteArray> targets[] = {
        {"/param.cgi?action=set&camera_c2.device.name=T%FCr%u9580&camera_c2.device.format=768&camera_c2.device."
         "resolution=320x240&camera_c2.device.fps=2",
         "RET=\"0\""},
        {"/param.cgi?action=get&group=camera_c2.device", "camera_c2.device.name=T%FCr%u9580\r\n"},
        {"/param.cgi?action=set&camera_c2.device.resolution=1x1", "RET=\"-3\""},
        {"/event/basicevent.cgi?action=set&svr=3&camera_c1=1,2&camera_c3=&customevent_c2=2&httpenabled=1", "OK"},
        {"/event/basicevent.cgi?action=get", "camera_c1=1,2;\r\ncamera_c2=2;\r\ncamera_c3=;\r\n"},
        {"/system/detectcam.cgi?ipaddr=192.168.10.21&httpport=80&username=root&password=no&brand=", "Error"},
        {"/ptz.cgi?channel=4&action=move&direction=3&speed=11", "RET=\"-3\""},
        {"/snapshot.cgi?channel=4", "\r\n\r\n\xff\xd8\xff"},
        {"/snapshot.cgi?channel=5", "404"},
        {"/cmd.cgi?x", "404"},
    };
    for (const auto& [target, holds] : targets)
        EXPECT_TRUE(get(site->device(1), target).contains(holds)) << target.constData();
}

TEST(Simulator, TurnsAwayWrongLogins)
{
    const auto site = siteOf({u"TXR632,name=A"_s, u"TXR632,name=B,auth=digest"_s});
    const Device& basic = site->device(0);
    EXPECT_TRUE(get(basic, "/login.cgi").contains("OK\nsecuritylevel=7\ngroup=0\n"));
    for (const QByteArray& pair : {QByteArray(), QByteArray("admin:no"), QByteArray("admin")}) {
        const QByteArray login = pair.isEmpty() ? pair : "Authorization: Basic " + pair.toBase64() + "\r\n";
        const QByteArray reply = get(basic, "/login.cgi", login);
        EXPECT_TRUE(reply.startsWith("HTTP/1.1 401 ") && reply.contains("WWW-Authenticate: Basic"));
    }

    const Device& digest = site->device(1);
    for (const QByteArray& login : {kAdmin, QByteArray("Authorization: Digest username=\"admin\", response=\"0\"\r\n")})
        EXPECT_TRUE(get(digest, "/login.cgi", login).startsWith("HTTP/1.1 401 "));
}

TEST(Simulator, FaultsHappenInTheBytes)
{
    const auto site = siteOf({u"TXR632,channels=4,cameras=2"_s});
    Device& device = site->device(0);
    const QByteArray good = get(device, "/login.cgi");
    const auto with = [&](const Fault& fault) {
        device.clearFaults();
        device.addFault(fault);
        return get(device, "/login.cgi");
    };
    EXPECT_EQ(with({FaultKind::CutOff, 40}), good.left(40));
    const QByteArray garbage = with({FaultKind::Garbage, 300});
    EXPECT_TRUE(garbage.size() == 300 && !garbage.contains("HTTP"));
    EXPECT_EQ(bodyOf(with({FaultKind::GarbageBody, 300})), garbage);
    const QByteArray huge = with({FaultKind::Huge, 20 * 1024 * 1024});
    EXPECT_TRUE(huge.contains("Content-Length: 20971520\r\n"));
    EXPECT_EQ(bodyOf(huge).size(), 20971520);
    EXPECT_TRUE(with({FaultKind::Status, 503}).startsWith("HTTP/1.1 503 "));
    EXPECT_TRUE(with({FaultKind::Unauthorized}).startsWith("HTTP/1.1 401 "));
    EXPECT_EQ(bodyOf(with({FaultKind::Body, 0, {}, 0, "maybe"})), "maybe");
    EXPECT_EQ(with({FaultKind::Reset}), "");
    EXPECT_EQ(with({FaultKind::NoLength}),
              QByteArray("HTTP/1.0 200 OK\r\nContent-Type: text/plain; charset=utf-8\r\n\r\n" + bodyOf(good)));
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(with({FaultKind::Delay, 250}), good);
    EXPECT_GE(clock.restart(), 250);
    EXPECT_EQ(with({FaultKind::Trickle, 2}), good);
    EXPECT_GE(clock.elapsed(), 2 * (good.size() - 1));
    device.clearFaults();
    device.addFault({FaultKind::Silent});
    EXPECT_EQ(talk(device, "GET /login.cgi HTTP/1.1\r\n" + kAdmin + "\r\n", 300), ""); // the client gives up

    // Only the second and third request of this command are hit; nothing is written by a refused one.
    device.clearFaults();
    get(device, "/sim/fault?kind=refuse&amount=-7&path=/cmd.cgi&cmd=24581&skip=1&count=2", {});
    for (const int ret : {0, -7, -7, 0})
        EXPECT_EQ(retOf(post(device, channelXml("640x480"))), ret);
    device.stop();
    EXPECT_EQ(get(device, "/login.cgi"), "");
}

TEST(Simulator, AnswersProbesThatAreMeantForIt)
{
    const auto site = siteOf({u"TXR632,name=Tür 1"_s, u"SVD"_s});
    const auto probe = [](const QByteArray& types, const QByteArray& action = "discovery/Probe") -> QByteArray {
        return "<E xmlns:d=\"u\"><H><MessageID>uuid:7</MessageID><w:Action>http://x/" + action +
               "</w:Action></H><B><d:Probe><d:Types>" + types + "</d:Types></d:Probe></B></E>";
    };
    const QByteArray match = probeMatch(probe(""), site->device(0));
    EXPECT_TRUE(match.contains("RelatesTo>uuid:7<") && match.contains("onvif.org/name/T%C3%BCr%201 ") &&
                match.contains(QByteArray("<d:XAddrs>http://" + site->device(0).hostAndPort() + "/")));
    EXPECT_TRUE(probeMatch(probe(""), site->device(1)).contains("onvif.org/type/svd"));
    EXPECT_FALSE(probeMatch(probe("dn:NetworkVideoTransmitter"), site->device(0)).isEmpty());
    EXPECT_TRUE(probeMatch(probe("dn:NetworkVideoTransmitter"), site->device(1)).isEmpty());
    EXPECT_TRUE(probeMatch(probe("", "discovery/Hello"), site->device(0)).isEmpty());
    EXPECT_TRUE(probeMatch("<broken", site->device(0)).isEmpty());
}

TEST(Simulator, ReadsItsDescription)
{
    const SiteDescription description = siteFromJson(R"({"port": 0, "discovery": false, "devices": [
        {"family": "OmluPro", "channels": 4, "cameras": 9}]})");
    EXPECT_EQ(description.devices.front().cameras, 4);
    for (const char* text :
         {"[]", R"({"devices": [{"family": "XYZ"}]})", R"({"devices": [{"family": "SVR", "channels": 65}]})",
          R"({"devices": [{"family": "SVR", "chanels": 5}]})"})
        EXPECT_THROW(siteFromJson(text), std::runtime_error) << text;
}
