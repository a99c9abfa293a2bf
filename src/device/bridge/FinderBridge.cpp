#include "device/bridge/FinderBridge.h"

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QPointer>
#include <QUuid>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr quint16 kDiscoveryPort = 3702;
constexpr std::array kRepeatDelays{100, 200}; // ms after the send before
constexpr qint64 kShortestMs = 2000;          // devices may hold an answer back for 500 ms, slow ones take longer
constexpr qint64 kQuietMs = 250;
constexpr qint64 kLongestMs = 5000;
constexpr int kCheckMs = 25;

// A flood of datagrams neither stops the event loop nor fills the memory.
constexpr int kDatagramsAtATime = 64;
constexpr int kMaxDatagrams = 8192;
constexpr std::size_t kMaxDevices = 1024;
constexpr qint64 kMaxDatagramBytes = 64 * 1024;

QHostAddress Group()
{
    return QHostAddress(u"239.255.255.250"_s);
}

QHostAddress FirstIPv4(const QNetworkInterface& interface)
{
    const QList<QNetworkAddressEntry> entries = interface.addressEntries();
    for (const QNetworkAddressEntry& entry : entries) {
        if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
            return entry.ip();
    }
    return {};
}

} // namespace

FinderBridge::FinderBridge(QObject* parent)
    : QObject(parent)
{
    m_repeat.setSingleShot(true);
    connect(&m_repeat, &QTimer::timeout, this, &FinderBridge::sendProbe);
    m_end.setInterval(kCheckMs);
    connect(&m_end, &QTimer::timeout, this, &FinderBridge::checkEnd);
}

FinderBridge::~FinderBridge() = default;

bool FinderBridge::Search()
{
    Stop();
    m_devices.clear();
    m_known.clear();
    m_datagrams = 0;
    m_probesSent = 0;
    m_probe = BuildProbe(QUuid::createUuid().toString(QUuid::WithoutBraces));
    open();
    if (m_sockets.empty())
        return false;
    m_running.start();
    m_quiet.start();
    m_end.start();
    sendProbe();
    return true;
}

void FinderBridge::Stop()
{
    m_repeat.stop();
    m_end.stop();
    for (const std::unique_ptr<QUdpSocket>& socket : m_sockets)
        socket->disconnect(this);
    for (std::unique_ptr<QUdpSocket>& socket : m_sockets)
        socket.release()->deleteLater(); // its datagram may be the caller
    m_sockets.clear();
}

void FinderBridge::open()
{
    const QString only = qEnvironmentVariable("RIGGING_DESK_FINDER");
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& interface : interfaces) {
        const QHostAddress own = FirstIPv4(interface);
        const QNetworkInterface::InterfaceFlags flags = interface.flags();
        if (own.isNull() || !flags.testFlag(QNetworkInterface::IsUp) || !flags.testFlag(QNetworkInterface::IsRunning))
            continue;
        if (!only.isEmpty() && interface.name() != only)
            continue;
        auto socket = std::make_unique<QUdpSocket>();
        if (!socket->bind(own, 0))
            continue;
        socket->setMulticastInterface(interface);
        QUdpSocket& receiver = *socket;
        connect(&receiver, &QUdpSocket::readyRead, this, [this, &receiver] { receive(receiver); });
        m_sockets.push_back(std::move(socket));
    }
}

void FinderBridge::sendProbe()
{
    // An interface that refuses to send is as good as one without devices.
    for (const std::unique_ptr<QUdpSocket>& socket : m_sockets)
        socket->writeDatagram(m_probe, Group(), kDiscoveryPort);
    if (static_cast<std::size_t>(m_probesSent) < kRepeatDelays.size())
        m_repeat.start(kRepeatDelays[static_cast<std::size_t>(m_probesSent++)]);
}

void FinderBridge::receive(QUdpSocket& socket)
{
    const QPointer<QUdpSocket> alive(&socket);
    for (int i = 0; i < kDatagramsAtATime && socket.hasPendingDatagrams(); ++i) {
        const QNetworkDatagram datagram = socket.receiveDatagram(kMaxDatagramBytes);
        if (!datagram.isValid() || ++m_datagrams > kMaxDatagrams)
            continue;
        const std::vector<FoundDevice> found = ParseProbeMatches(datagram.data(), datagram.senderAddress());
        for (const FoundDevice& device : found) {
            add(device);
            if (!alive || m_sockets.empty()) // a listener has stopped the search
                return;
        }
    }
    if (!socket.hasPendingDatagrams())
        return;
    // The search may be over, or another under way, when the rest is due; a socket outlives its search for a while.
    QMetaObject::invokeMethod(
        this,
        [this, alive] {
            const auto present = [&](const std::unique_ptr<QUdpSocket>& own) { return own.get() == alive; };
            if (alive && std::any_of(m_sockets.begin(), m_sockets.end(), present))
                receive(*alive);
        },
        Qt::QueuedConnection);
}

void FinderBridge::add(const FoundDevice& device)
{
    if (m_devices.size() >= kMaxDevices || !m_known.emplace(device.Address, device.Port).second)
        return;
    m_devices.push_back(device);
    m_quiet.restart();
    const FoundDevice added = device;
    emit DeviceFound(added);
}

void FinderBridge::checkEnd()
{
    const bool quiet = m_running.elapsed() >= kShortestMs && m_quiet.elapsed() >= kQuietMs;
    if (!quiet && m_running.elapsed() < kLongestMs)
        return;
    Stop();
    emit Finished();
}
