#include "device/bridge/ModuleCGI.h"
#include "support/Conversions.h"
#include "tests/device/ScriptedDevice.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

class Bridge : public ScriptedDevice
{
protected:
    // Status of a request.
    qint32 send(const QString& url, const DeviceAddress& to) { return Await(com.web.Get(to, url, 1, work)).status; }
    QString get(const QString& url, const DeviceAddress& to) { return Await(CgiGet(com.web, to, url, work, 2)); }
};

QByteArray Md5(const QByteArray& text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

// A device that takes Digest only (RFC 7616, MD5, qop auth), and checks all of it.
ScriptedServer::Answer DigestDevice(const ScriptedServer::Seen& seen, const QByteArray& user,
                                    const QByteArray& password)
{
    const QByteArray given = seen.field("Authorization");
    const auto part = [&](const char* name) {
        const QRegularExpression pattern(u"[ ,]%1=\"?([^\",]*)"_s.arg(QLatin1String(name)));
        return pattern.match(QString::fromUtf8(given)).captured(1).toUtf8();
    };
    const qsizetype blank = seen.line.indexOf(' ');
    const QByteArray target = seen.line.sliced(blank + 1, seen.line.lastIndexOf(' ') - blank - 1);
    const QByteArray ha1 = Md5(user + ":R:" + password);
    const QByteArray ha2 = Md5(seen.line.left(blank) + ':' + target);
    const QByteArray wanted = Md5(ha1 + ":n0nce:" + part("nc") + ':' + part("cnonce") + ":auth:" + ha2);
    if (given.startsWith("Digest ") && part("uri") == target && part("response") == wanted)
        return {ScriptedServer::page("OK in\n")};
    return {ScriptedServer::page("go away", "401 Unauthorized",
                                 "WWW-Authenticate: Digest realm=\"R\", nonce=\"n0nce\", qop=\"auth\"\r\n")};
}

} // namespace

TEST_F(Bridge, TargetsAndBodiesGoOutByteForByte)
{
    const std::pair<QString, QByteArray> cases[] = {
        {u"/param.cgi?action=set&camera_c1.device.name=%u4E2D%20x%2f"_s,
         "/param.cgi?action=set&camera_c1.device.name=%u4E2D%20x%2f"},
        {u"/a/../b/./c//d?x=[1]|^{}\"<>\\"_s, "/a/../b/./c//d?x=[1]|^{}\"<>\\"},
        {u"/x.cgi?text=Zürich"_s, "/x.cgi?text=Z\xc3\xbcrich"},
        {u"/x.cgi?p=a#b"_s, "/x.cgi?p=a#b"},
        {u"HTTP://other.example:81/alert?x=1"_s, "/alert?x=1"},
        {u"http://other.example?x=/1"_s, "/?x=/1"},
        {u"http://other.example:81"_s, "/"},
        {u"alert?x=1"_s, "/alert?x=1"},
    };
    for (const auto& [url, target] : cases) {
        EXPECT_EQ(get(url, device()), u"OK\n"_s);
        EXPECT_EQ(server.lastTarget(), target);
    }
    EXPECT_EQ(get(u"/x.cgi?name=two words"_s, device()), u"OK\n"_s);
    EXPECT_EQ(server.requests.back().line, "GET /x.cgi?name=two words HTTP/1.1");

    server.answerWith("<RESPONSE RET=\"0\"/>");
    const QString xml = u"<CMD><Param>%41+&=\u4e2d</Param></CMD>"_s;
    EXPECT_EQ(Await(com.web.SendCmdXml(device(), xml, work)), u"<RESPONSE RET=\"0\"/>"_s);
    const Seen& seen = server.requests.back();
    EXPECT_EQ(seen.line, "POST /cmd.cgi HTTP/1.1");
    EXPECT_EQ(seen.field("Content-Type"), "application/x-www-form-urlencoded");
    EXPECT_EQ(seen.body, QByteArray("type=action&xml=" + xml.toUtf8()));
    EXPECT_EQ(com.web.Outstanding(), 0);
}

TEST_F(Bridge, EveryFailureOfTransportIsNegativeAndLeavesNothingBehind)
{
    const QByteArray huge = ScriptedServer::page(QByteArray(17 * 1024 * 1024, 'x'));
    const std::tuple<const char*, Answer, qint32> cases[] = {
        {"silence", {{}, false, 0, 0, true}, kWebTimedOut},
        {"late", {ScriptedServer::page("OK"), false, 3000}, kWebTimedOut},
        {"trickle", {ScriptedServer::page("OK and a long reply"), false, 0, 100}, kWebTimedOut},
        {"closed without a word", {{}, true}, kWebBrokenOff},
        {"cut off in the body", {"HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\nOK", true}, kWebBrokenOff},
        {"cut off in the header", {"HTTP/1.1 200 OK\r\nContent-Le", true}, kWebBrokenOff},
        {"not HTTP", {"\x01\x02 hello\r\n\r\n", true}, kWebBrokenOff},
        {"bad chunks", {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\nOK", true}, kWebBrokenOff},
        {"said to be too large", {huge.left(100000)}, kWebTooLarge},
        {"too large without a length", {"HTTP/1.0 200 OK\r\n\r\n" + huge, true}, kWebTooLarge},
        {"endless header", {"HTTP/1.1 200 OK\r\n" + QByteArray("X-A: 0123456789\r\n").repeated(60000)}, kWebTooLarge},
        {"moved", {ScriptedServer::page("OK", "302 Found", "Location: /elsewhere\r\n")}, -302},
        {"gone", {ScriptedServer::page("OK", "404 Not Found")}, -404},
        {"broken", {ScriptedServer::page("OK", "500 Oops")}, -500},
    };
    for (const auto& [what, answer, result] : cases) {
        SCOPED_TRACE(what);
        server.answer = [given = answer](const Seen&) { return given; };
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(send(u"/x.cgi"_s, device()), result);
        EXPECT_LT(timer.elapsed(), 2900);
        EXPECT_EQ(com.web.Outstanding(), 0);
        EXPECT_EQ(com.http.open(), 0);
    }
    // The next request is served: a chunked reply with a trailer.
    server.answer = [](const Seen&) {
        return Answer{"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\nOK\r\n0\r\nX-Sum: 1\r\n\r\n"};
    };
    EXPECT_EQ(get(u"/x.cgi"_s, device()), u"OK"_s);
}

TEST_F(Bridge, AddressesThatCannotBeUsedAreRefused)
{
    QTcpServer closed;
    closed.listen(QHostAddress(u"127.0.0.1"_s));
    const quint16 freePort = closed.serverPort();
    closed.close();
    const quint16 port = server.serverPort();
    const std::tuple<DeviceAddress, QString, qint32> cases[] = {
        {{u"127.0.0.1"_s, freePort, {}, {}}, u"/"_s, kWebRefused},
        {{u"no-such-host.invalid"_s, port, {}, {}}, u"/"_s, kWebNotResolved},
        {{u"127.0.0.1/x"_s, port, {}, {}}, u"/"_s, kWebBadRequest},
        {{u"a@127.0.0.1"_s, port, {}, {}}, u"/"_s, kWebBadRequest},
        {{QString(), port, {}, {}}, u"/"_s, kWebBadRequest},
        {{u"127.0.0.1"_s, 0, {}, {}}, u"/"_s, kWebBadRequest},
        {{u"127.0.0.1"_s, port + 65536, {}, {}}, u"/"_s, kWebBadRequest},
        {{u"127.0.0.1"_s, port, {}, {}}, u"/x HTTP/1.1\r\nX-Y: z"_s, kWebBadRequest},
    };
    for (const auto& [to, url, result] : cases) {
        EXPECT_EQ(send(url, to), result) << to.address.toStdString() << ' ' << to.port;
    }
    EXPECT_TRUE(server.requests.empty());
    EXPECT_EQ(com.web.Outstanding(), 0);
}

TEST_F(Bridge, BasicGoesOutAtOnceAndOnlyWithAUser)
{
    EXPECT_EQ(get(u"/a"_s, device()), u"OK\n"_s);
    EXPECT_EQ(server.requests.back().field("Authorization"), QByteArray());
    EXPECT_EQ(get(u"/a"_s, device(u"op"_s, u"p:\u00e9"_s)), u"OK\n"_s);
    ASSERT_EQ(server.requests.size(), 2u);
    EXPECT_EQ(server.requests.back().field("Authorization"), "Basic " + QByteArray("op:p:\xc3\xa9").toBase64());
    EXPECT_EQ(server.connections, 1);
}

TEST_F(Bridge, DigestIsUsedWhenTheDeviceAsksAndRemembered)
{
    server.answer = [](const Seen& seen) { return DigestDevice(seen, "op", "secret"); };
    const DeviceAddress good = device(u"op"_s, u"secret"_s);
    for (const QString& target : {u"/a.cgi?x=%u4E2D&y=[1]"_s, u"/a.cgi?name=two words"_s, u"/a.cgi?p=a#b"_s})
        EXPECT_EQ(get(target, good), u"OK in\n"_s) << target.toStdString();
    EXPECT_TRUE(server.requests.front().field("Authorization").startsWith("Basic "));
    EXPECT_EQ(server.requests.size(), 4u); // one of them twice
    server.requests.clear();
    EXPECT_EQ(Await(com.web.SendCmdXml(good, u"<CMD/>"_s, work)), u"OK in\n"_s);
    EXPECT_EQ(server.requests.back().body, "type=action&xml=<CMD/>");
    for (const Seen& seen : server.requests) // a password is not sent in the clear once the device wants Digest
        EXPECT_FALSE(seen.field("Authorization").startsWith("Basic "));
    EXPECT_EQ(get(u"/login.cgi"_s, device(u"op"_s, u"wrong"_s)), u"401 Unauthorized"_s);
}

TEST_F(Bridge, AnUnauthorisedRequestGivesA401TextAndTheLoginSaysSo)
{
    const std::tuple<QByteArray, QByteArray, QString, qint32> cases[] = {
        {"401 Unauthorized", "no", u"401 Unauthorized"_s, 401},
        {"401 Unauthorized", "<h1>401 go</h1>", u"<h1>401 go</h1>"_s, 401},
        {"200 OK", "error 401", u"error 401"_s, 401},
        {"200 OK", "OK\nsecuritylevel=7\n", u"OK\nsecuritylevel=7\n"_s, 1},
        {"403 Forbidden", "no", {}, 404},
        {"200 OK", "", {}, 404},
    };
    for (const auto& [status, body, text, result] : cases) {
        const QByteArray page = ScriptedServer::page(body, status, "WWW-Authenticate: Basic realm=\"R\"\r\n");
        server.answer = [&page](const Seen&) { return Answer{page}; };
        const LoginReply login = Await(CgiLogin(com.web, device(u"op"_s), work));
        EXPECT_EQ(login.result, result) << body.data();
        EXPECT_EQ(login.text, text);
    }
}

TEST_F(Bridge, TextIsUtf8OrElseLatin1)
{
    const std::pair<QByteArray, QString> cases[] = {
        {"Z\xc3\xbcrich \xe4\xb8\xad", u"Zürich \u4e2d"_s},
        {"Z\xfcrich", u"Zürich"_s},
        {"ends early \xe4\xb8", u"ends early \u00e4\u00b8"_s},
        {QByteArray("a\0b", 3), QString(u"a\0b"_s)},
        {"", {}},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(TextOfReply(bytes), text) << bytes.toHex().data();
}

TEST_F(Bridge, ConnectionsAreUsedAgainAndADroppedOneIsReplaced)
{
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(get(u"/a"_s, device()), u"OK\n"_s);
    EXPECT_EQ(server.connections, 1);
    // The device closes after an answer that did not say so.
    server.answer = [](const Seen&) { return Answer{ScriptedServer::page("OK\n"), true}; };
    EXPECT_EQ(get(u"/a"_s, device()), u"OK\n"_s);
    server.answerWith("OK\n");
    EXPECT_EQ(get(u"/a"_s, device()), u"OK\n"_s);
    EXPECT_EQ(server.connections, 2);
}

TEST_F(Bridge, AsynchronousRequestsEndInOneEventEachAndAreReleased)
{
    std::vector<std::pair<qint32, QString>> ended;
    QObject listener;
    QObject::connect(&com.web, &WebBridge::RequestEnded, &listener, [&](qint32 request, qint32 status) {
        ended.emplace_back(request, status < 0 ? QString::number(status) : com.web.GetCgiReply(request));
    });
    server.answer = [](const Seen& seen) {
        return seen.line.contains("/bad") ? Answer{ScriptedServer::page("", "500 Oops")}
                                          : Answer{ScriptedServer::page(seen.line.split(' ').value(1))};
    };
    const QString one = CgiStart(com.web, device(), u"/one"_s);
    const QString bad = CgiStart(com.web, device(), u"/bad"_s);
    const QString gone = CgiStart(com.web, device(), u"/gone"_s);
    com.web.ReleaseRequest(kReleaseCgi, gone.toInt());
    const qint16 slot = com.GetFreeSlot(kAlertSlot);
    com.AlertRequests[static_cast<std::size_t>(slot)].RequestID = one.toInt();
    EXPECT_TRUE(WaitUntil([&] { return ended.size() >= 2 && com.web.Outstanding() == 0; }, 5));
    std::sort(ended.begin(), ended.end());
    const std::vector<std::pair<qint32, QString>> wanted{{one.toInt(), u"/one"_s}, {bad.toInt(), u"-500"_s}};
    EXPECT_EQ(ended, wanted);
    EXPECT_EQ(com.GetFreeSlot(kAlertSlot), slot); // the slot of the ended request is free again
}

TEST_F(Bridge, AnUnreadRequestCountsAsSentWhateverTheDeviceAnswers)
{
    const auto alert = [&](const DeviceAddress& to) { return Await(CgiTell(com.web, to, u"/alert"_s, work, 1)); };
    EXPECT_EQ(alert(device()), u"SUCCESSED"_s);
    server.answer = [](const Seen&) { return Answer{ScriptedServer::page("no", "500 Oops")}; };
    EXPECT_EQ(alert(device()), u"SUCCESSED"_s);
    server.answer = [](const Seen&) { return Answer{{}, true}; };
    EXPECT_EQ(alert(device()), QString());
    EXPECT_EQ(com.web.Outstanding(), 0);
}

TEST_F(Bridge, TheBinaryInterfaceAnswersFailure)
{
    EXPECT_LT(com.web.SendQuery(u"127.0.0.1"_s, 80, {}, {}, 1, 6, 1, 1, 1), 0);
    EXPECT_LT(com.web.OpenCommand(0), 0);
    EXPECT_LT(com.web.RunCommand(u"127.0.0.1"_s, 80, {}, {}, 1, 1, 6, 1, 1), 0);
}

TEST_F(Bridge, CommandsAskTheirOwnPath)
{
    WebBridge& web = com.web;
    const DeviceAddress to = device();
    const std::pair<std::function<void()>, QByteArray> cases[] = {
        {[&] { Await(CgiGetGid(web, to, work)); }, "/getgid.cgi"},
        {[&] { Await(CgiDetectCamera(web, to, u"10.0.0.5"_s, u"80"_s, u"root"_s, u"0"_s, {}, work)); },
         "/system/detectcam.cgi?ipaddr=10.0.0.5&httpport=80&username=root&password=0&brand="},
        {[&] { Await(CgiDetectCameraAs(web, to, u"10.0.0.5"_s, u"80"_s, u"root"_s, u"p"_s, 2, u"55"_s, work)); },
         "/system/detectcam.cgi?ipaddr=10.0.0.5&httpport=80&username=root&password=p&camera=2&brand=55"},
        {[&] { Await(GetSVRCameraSearch(web, to, work)); }, "/system/searchcam.cgi"},
        {[&] { Await(CgiGetFwVersion(web, to, work)); }, "/getfwver.cgi"},
        {[&] { Await(CgiSetEventHttp(web, to, u"camera_c1=1,2"_s, 3, work)); },
         "/event/basicevent.cgi?action=set&svr=3&camera_c1=1,2&httpenabled=1"},
        {[&] { Await(CgiSetEventHttp(web, to, u"&camera_c1="_s, 16, work)); },
         "/event/basicevent.cgi?action=set&svr=16&camera_c1=&httpenabled=1"},
        {[&] { Await(CgiSetEventHttp(web, to, {}, 1, work)); }, "/event/basicevent.cgi?action=set&svr=1&httpenabled=1"},
        {[&] { Await(CgiGetBasicEvent(web, to, work)); }, "/event/basicevent.cgi?action=get"},
        {[&] { Await(CgiSetBasicEvent(web, to, u"&customevent_c1=0"_s, work)); },
         "/event/basicevent.cgi?action=set&customevent_c1=0"},
        {[&] { Await(CgiSetPresetSeqDwell(web, to, 7, 15, work)); },
         "/param.cgi?action=set&camera_c7.ptz.presetseqdwell=15"},
        {[&] { Await(CgiSetPresetSeqList(web, to, 64, u"1,2"_s, work)); },
         "/param.cgi?action=set&camera_c64.ptz.presetseqlist=1,2"},
    };
    for (const auto& [call, target] : cases) {
        call();
        EXPECT_EQ(server.lastTarget(), target);
    }
    EXPECT_EQ(server.requests.size(), std::size(cases));
    server.answer = [](const Seen& seen) { return Answer{ScriptedServer::page(seen.line.split(' ').value(1))}; };
    const ChannelParams groups = Await(CgiGetChannelParams(web, to, 1, true, work));
    EXPECT_EQ(groups.Image, u"/param.cgi?action=get&group=camera_c1.image"_s);
    EXPECT_EQ(groups.Ptz, u"/param.cgi?action=get&group=camera_c1.ptz"_s);
    EXPECT_EQ(groups.Onvif, u"/param.cgi?action=get&group=camera_c1.onvif"_s);
}

TEST_F(Bridge, RepliesAreReadAsTheDevicesWriteThem)
{
    for (const auto& [reply, reachable] : {std::pair{"ok", true}, {"BOOK", true}, {"no", false}, {"", false}}) {
        server.answerWith(reply);
        EXPECT_EQ(Await(CgiGetGid(com.web, device(), work)), reachable) << reply;
    }
    for (const auto& [reply, taken] : {std::pair{"ok, done", true}, {" OK", false}, {"ERR", false}}) {
        server.answerWith(reply);
        EXPECT_EQ(Await(CgiSetPresetSeqList(com.web, device(), 1, u"1,2"_s, work)), taken) << reply;
    }
    for (const char* reply : {"OK\ncamera_c1.ptz.presetseqlist=1,3,2\r\n", "x= 1,3,2 \nmore", "x=1,3,2"}) {
        server.answerWith(reply);
        EXPECT_EQ(Await(CgiGetPresetSeqList(com.web, device(), 1, work)), u"1,3,2"_s) << reply;
    }
    for (const auto& [reply, dwell] : {std::pair{"OK\nx=15\r\n", 15}, {"x=5\n", 5}, {"x=153", 15}}) {
        server.answerWith(reply);
        EXPECT_EQ(Await(CgiGetPresetSeqDwell(com.web, device(), 1, work)), dwell) << reply;
    }
    server.answerWith("ERR");
    EXPECT_THROW(Await(CgiGetPresetSeqDwell(com.web, device(), 1, work)), ConversionError);
    EXPECT_THROW(Await(CgiGetPresetSeqList(com.web, device(), 1, work)), ConversionError);
}

TEST_F(Bridge, CapabilitiesAreReadLineByLine)
{
    server.answerWith("ok\r\nmodelname=N-16\r\nbrand=Acme\r\nfirmwareversion=\r\nmaxchannelsupport=16\r\nmaxhdsupport="
                      "many\r\ncmssupport=1.0\r\ndevicetype=OmluPro\r\ncustomeventsupport=2\r\nxbrand=1\r\nbroken\r\n");
    SvrCapability capability = Await(CgiGetServerCapability(com.web, device(), work)).value();
    EXPECT_EQ(capability.ModelName, u"N-16"_s);
    EXPECT_EQ(capability.Brand, u"1"_s); // a key matches inside a longer one
    EXPECT_EQ(capability.FirmwareVersion, QString());
    EXPECT_EQ(capability.MaxChannelSupport, 16);
    EXPECT_EQ(capability.MaxHDSupport, 0); // the bad value costs itself only, and is logged
    EXPECT_TRUE(capability.CMSSupport);
    EXPECT_EQ(capability.DeviceType, u"OmluPro"_s);
    EXPECT_FALSE(capability.CustomEventSupport);
    EXPECT_FALSE(station.logs().isEmpty());

    server.answerWith("ERR\nbrand=2");
    EXPECT_FALSE(Await(CgiGetServerCapability(com.web, device(), work)));

    // Endless lines cost one line of the log for each kind of fault.
    const auto before = station.logs().count('\n');
    server.answerWith("OK\nmodelname=" + QByteArray(1000, 'x') + '\n' +
                      QByteArray("maxchannelsupport=\nmaxhdsupport=99999\n").repeated(100'000));
    capability = Await(CgiGetServerCapability(com.web, device(), work)).value();
    EXPECT_EQ(capability.ModelName.size(), 255);
    EXPECT_EQ(station.logs().count('\n'), before + 2);
}

TEST_F(Bridge, SlotsAreTakenFromBelowAndGrow)
{
    EXPECT_EQ(com.GetFreeSlot(kMailSlot), 0);
    EXPECT_EQ(com.GetFreeSlot(kMailSlot), 1);
    com.MailRequests[0] = {-1, 4, 0, u"old"_s};
    EXPECT_EQ(com.GetFreeSlot(kMailSlot), 0);
    EXPECT_EQ(com.MailRequests[0].Result, QString());

    EXPECT_EQ(com.GetFreeSlot(kAlertSlot), 0);
    EXPECT_EQ(com.AlertRequests[0].Busy, 0); // an alert row is taken by its request number only
    EXPECT_EQ(com.GetFreeSlot(kAlertSlot), 0);
    com.AlertRequests[0].RequestID = 9;
    EXPECT_EQ(com.FindFreeAlertSlot(), -1);
    EXPECT_EQ(com.GetFreeSlot(kAlertSlot), 1);
    EXPECT_EQ(com.GetFreeSlot(7), 0);
}
