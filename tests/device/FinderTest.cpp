#include "device/bridge/FinderBridge.h"
#include "tests/Await.h"

#include <QCoreApplication>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray Match(const QByteArray& scopes, const QByteArray& addresses)
{
    return "<d:ProbeMatch><d:Types>dn:NetworkVideoTransmitter</d:Types><d:Scopes>" + scopes + "</d:Scopes><d:XAddrs>" +
           addresses + "</d:XAddrs></d:ProbeMatch>";
}

QByteArray Envelope(const QByteArray& matches)
{
    return "<?xml version=\"1.0\"?><s:Envelope xmlns:s=\"http://www.w3.org/2003/05/soap-envelope\" "
           "xmlns:d=\"http://schemas.xmlsoap.org/ws/2005/04/discovery\"><s:Header/><s:Body><d:ProbeMatches>" +
           matches + "</d:ProbeMatches></s:Body></s:Envelope>";
}

const QByteArray kScope = "onvif://www.onvif.org/";

// "name|address|port|brand|model|S" of every device found in the datagram.
QStringList Found(const QByteArray& datagram, const QString& sender = u"10.0.0.9"_s)
{
    QStringList found;
    for (const FoundDevice& device : ParseProbeMatches(datagram, QHostAddress(sender))) {
        found << QStringList{device.Name,  device.Address, QString::number(device.Port),
                             device.Brand, device.Model,   device.IsSvd ? u"S"_s : u"-"_s}
                     .join(u'|');
    }
    return found;
}

// A device on loopback that answers every probe `answers` times with a datagram of its own.
class Responder : public QObject
{
public:
    explicit Responder(std::function<QByteArray(quint16 port)> datagram)
    {
        socket.bind(QHostAddress::AnyIPv4, 3702, QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint);
        joined = socket.joinMulticastGroup(QHostAddress(u"239.255.255.250"_s),
                                           QNetworkInterface::interfaceFromName(u"lo"_s));
        connect(&socket, &QUdpSocket::readyRead, this, [this, datagram] {
            while (socket.hasPendingDatagrams()) {
                const QNetworkDatagram probe = socket.receiveDatagram();
                ++probes;
                const auto port = static_cast<quint16>(probe.senderPort());
                socket.writeDatagram(datagram(port), probe.senderAddress(), port);
            }
        });
    }
    QUdpSocket socket;
    bool joined = false;
    int probes = 0;
};

} // namespace

TEST(ProbeMatches, GiveOneDeviceEachWithWhatTheScopesSay)
{
    const QByteArray whole = kScope + "name/Gate%20%E4%B8%AD " + kScope + "hardware/N-16 " + kScope +
                             "manufacturer/Acme%2FEast \n " + kScope + "type/svd http://other/name/x";
    const std::tuple<const char*, QByteArray, QStringList> cases[] = {
        {"all",
         Envelope(Match(whole, "http://10.0.0.7:8080/onvif/device_service")),
         {u"Gate \u4e2d|10.0.0.7|8080|Acme/East|N-16|S"_s}},
        {"default port, name of the model",
         Envelope(Match(kScope + "hardware/N-4", "http://10.0.0.7/x")),
         {u"N-4|10.0.0.7|80||N-4|-"_s}},
        {"the sender's own address first",
         Envelope(Match(kScope, "http://[fe80::1]/x http://192.168.1.4:81/x http://10.0.0.9:82/x")),
         {u"|10.0.0.9|82|||-"_s}},
        {"IPv4 before the rest",
         Envelope(Match(kScope, "http://cam.local/x http://192.168.1.4:81/x")),
         {u"|192.168.1.4|81|||-"_s}},
        {"a name as address", Envelope(Match(kScope, "http://cam.local:81/x")), {u"|cam.local|81|||-"_s}},
        {"two in one",
         Envelope(Match(kScope, "http://10.0.0.7/x") + Match(kScope, "http://10.0.0.8/x")),
         {u"|10.0.0.7|80|||-"_s, u"|10.0.0.8|80|||-"_s}},
        {"controls and direction marks dropped",
         Envelope(Match(kScope + "name/a%0A%00%E2%80%AEb%1B", "http://10.0.0.7/x")),
         {u"ab|10.0.0.7|80|||-"_s}},
        {"no scope of ours", Envelope(Match("odbf://x.example/name/printer", "http://10.0.0.7/x")), {}},
        {"no usable address",
         Envelope(Match(kScope, "https://10.0.0.7/x http://0.0.0.0/x http://10.0.0.7:0/x http://:80/x ftp://a/")),
         {}},
        {"no address", Envelope("<d:ProbeMatch><d:Scopes>" + kScope + "</d:Scopes></d:ProbeMatch>"), {}},
        {"a probe", BuildProbe(u"1"_s), {}},
        {"cut off", Envelope(Match(whole, "http://10.0.0.7/x")).left(400), {}},
        {"not XML", "\xff\xfe\0\0<", {}},
        {"empty", {}, {}},
    };
    for (const auto& [what, datagram, found] : cases)
        EXPECT_EQ(Found(datagram), found) << what;
}

TEST(ProbeMatches, HostileSizesAreCapped)
{
    const QStringList name = Found(Envelope(Match(kScope + "name/" + QByteArray(60000, 'x'), "http://10.0.0.7/x")));
    ASSERT_EQ(name.size(), 1);
    EXPECT_LE(name.front().section(u'|', 0, 0).size(), 128);
    EXPECT_LE(Found(Envelope(Match(kScope, "http://10.0.0.7/x").repeated(300))).size(), kMaxProbeMatches);
    EXPECT_TRUE(Found(QByteArray("<a>").repeated(20000)).isEmpty());
    EXPECT_TRUE(Found(Envelope(Match(kScope, "http://10.0.0.7/x")) + QByteArray(70000, ' ')).isEmpty());
    EXPECT_TRUE(Found("<!DOCTYPE l [<!ENTITY a \"" + QByteArray(100, 'h') + "\"><!ENTITY b \"&a;&a;&a;\">]>" +
                      Envelope(Match(kScope, "&b;")))
                    .isEmpty());
}

TEST(Finder, DevicesStreamInOncePerAddressAndPort)
{
    int sent = 0;
    Responder responder([&](quint16) {
        return sent++ == 0 ? Envelope(Match(kScope + "name/finder-test-1", "http://127.9.9.1:81/x"))
                           : Envelope(Match(kScope + "name/finder-test-1", "http://127.9.9.1:81/x") +
                                      Match(kScope + "name/finder-test-2", "http://127.9.9.1:82/x"));
    });
    ASSERT_TRUE(responder.joined);
    FinderBridge finder;
    std::vector<std::pair<qint32, int>> rows; // port, probes before
    bool finished = false;
    QObject listener;
    QObject::connect(&finder, &FinderBridge::DeviceFound, &listener, [&](const FoundDevice& device) {
        if (device.Address == "127.9.9.1"_L1) // other tests have devices on loopback too
            rows.emplace_back(device.Port, responder.probes);
    });
    QObject::connect(&finder, &FinderBridge::Finished, &listener, [&] { finished = true; });
    ASSERT_TRUE(finder.Search());
    EXPECT_TRUE(WaitUntil([&] { return finished; }, 10));
    EXPECT_FALSE(finder.Searching());
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].first, 81);
    EXPECT_EQ(rows[1].first, 82);
    EXPECT_GE(responder.probes, 3);
    EXPECT_LT(rows[0].second, responder.probes) << "while the search still goes on";
    EXPECT_GE(finder.Devices().size(), 2u);
}

TEST(Finder, AFloodOfGarbageDoesNotHoldUpTheLoopAndAListenerMayStop)
{
    Responder responder([&](quint16) { return Envelope(Match(kScope + "name/finder-test-3", "http://127.9.9.3/x")); });
    QUdpSocket attacker;
    FinderBridge finder;
    QObject listener;
    bool found = false;
    int beats = 0;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, &listener, [&] { ++beats; });
    QObject::connect(&finder, &FinderBridge::DeviceFound, &listener, [&](const FoundDevice& device) {
        if (device.Address == "127.9.9.3"_L1) {
            found = true;
            finder.Stop();
        }
    });
    heart.start(5);
    ASSERT_TRUE(finder.Search());
    const Responder spy([&](quint16 port) { // an attacker learns the finder's port from its probe
        for (int i = 0; i < 500; ++i)
            attacker.writeDatagram(QByteArray(1000, '<'), QHostAddress(u"127.0.0.1"_s), port);
        return QByteArray();
    });
    EXPECT_TRUE(WaitUntil([&] { return found; }, 5));
    EXPECT_FALSE(finder.Searching());
    const int before = beats;
    EXPECT_TRUE(WaitUntil([&] { return beats > before + 2; }, 2));
}

TEST(Finder, WhatIsStillPendingAtAStopIsNotRead)
{
    QUdpSocket attacker;
    FinderBridge finder;
    QObject listener;
    std::size_t atStop = 0;
    const Responder spy([&](quint16 port) {
        for (int i = 1; i <= 200 && atStop == 0; ++i) {
            const QByteArray place = "http://127.9.9.4:" + QByteArray::number(i) + "/x";
            attacker.writeDatagram(Envelope(Match(kScope, place)), QHostAddress(u"127.0.0.1"_s), port);
        }
        return QByteArray();
    });
    // Due before the rest of the datagrams, which are left for the next round of events.
    QObject::connect(
        &finder, &FinderBridge::DeviceFound, &listener,
        [&](const FoundDevice& device) {
            if (device.Address == "127.9.9.4"_L1 && atStop == 0) {
                finder.Stop();
                atStop = finder.Devices().size();
            }
        },
        Qt::QueuedConnection);
    ASSERT_TRUE(finder.Search());
    EXPECT_TRUE(WaitUntil([&] { return atStop > 0; }, 5));
    QCoreApplication::processEvents();
    EXPECT_LT(atStop, 200u);
    EXPECT_EQ(finder.Devices().size(), atStop);
}

TEST(Finder, WithoutItsInterfaceThereIsNoSearch)
{
    const QByteArray before = qgetenv("RIGGING_DESK_FINDER");
    qputenv("RIGGING_DESK_FINDER", "no-such-interface");
    FinderBridge finder;
    EXPECT_FALSE(finder.Search());
    EXPECT_FALSE(finder.Searching());
    qputenv("RIGGING_DESK_FINDER", before);
}
