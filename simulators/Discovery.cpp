#include "simulators/Discovery.h"

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QTimer>
#include <QUrl>
#include <QUuid>

#include <cstring>
#include <pugixml.hpp>

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

constexpr quint16 kPort = 3702;
constexpr auto kGroup = "239.255.255.250";

// First descendant of this name, whatever its prefix.
pugi::xml_node local(pugi::xml_node root, const char* name)
{
    return root.find_node([name](pugi::xml_node node) {
        const char* colon = strchr(node.name(), ':');
        return strcmp(colon ? colon + 1 : node.name(), name) == 0;
    });
}

QString scope(const char* kind, const QString& value)
{
    return u"onvif://www.onvif.org/%1/%2"_s.arg(QString::fromLatin1(kind),
                                                QString::fromLatin1(QUrl::toPercentEncoding(value)));
}

QStringList scopesOf(const Device& device)
{
    const DeviceProfile& profile = device.profile();
    const bool decoder = profile.family == Family::Svd;
    QStringList scopes{scope("name", device.state().name), scope("hardware", profile.modelName),
                       scope("manufacturer", profile.brand), scope("Profile", u"Streaming"_s)};
    scopes += u"onvif://www.onvif.org/type/%1"_s.arg(decoder ? u"svd"_s : u"recorder"_s);
    return scopes;
}

} // namespace

QByteArray probeMatch(const QByteArray& probe, const Device& device)
{
    pugi::xml_document request;
    if (!request.load_buffer(probe.constData(), static_cast<size_t>(probe.size())))
        return {};
    const pugi::xml_node body = local(request, "Probe");
    const QByteArray id = local(request, "MessageID").text().get();
    const QByteArray action = QByteArray(local(request, "Action").text().get()).trimmed();
    if (!body || id.trimmed().isEmpty() || !action.endsWith("/discovery/Probe"))
        return {};
    const bool decoder = device.profile().family == Family::Svd;
    const QByteArray type = decoder ? "NetworkVideoDisplay" : "NetworkVideoTransmitter";
    // Every type and scope that the probe names must be the device's.
    for (const QByteArray& asked : QByteArray(local(body, "Types").text().get()).simplified().split(' ')) {
        const QByteArray name = asked.mid(asked.indexOf(':') + 1);
        if (!name.isEmpty() && name != type && name != "Device")
            return {};
    }
    const QStringList scopes = scopesOf(device);
    for (const QByteArray& asked : QByteArray(local(body, "Scopes").text().get()).simplified().split(' '))
        if (!asked.isEmpty() && std::none_of(scopes.begin(), scopes.end(), [&](const QString& own) {
                return own.startsWith(QString::fromUtf8(asked), Qt::CaseInsensitive);
            }))
            return {};

    const QString uuid = QUuid::createUuidV5(QUuid(), device.hostAndPort()).toString(QUuid::WithoutBraces);
    const QString text =
        u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://www.w3.org/2003/05/soap-envelope\" "
        "xmlns:wsa=\"http://schemas.xmlsoap.org/ws/2004/08/addressing\" "
        "xmlns:d=\"http://schemas.xmlsoap.org/ws/2005/04/discovery\" "
        "xmlns:dn=\"http://www.onvif.org/ver10/network/wsdl\">"
        "<SOAP-ENV:Header><wsa:MessageID>urn:uuid:%1</wsa:MessageID><wsa:RelatesTo>%2</wsa:RelatesTo>"
        "<wsa:To>http://schemas.xmlsoap.org/ws/2004/08/addressing/role/anonymous</wsa:To>"
        "<wsa:Action>http://schemas.xmlsoap.org/ws/2005/04/discovery/ProbeMatches</wsa:Action></SOAP-ENV:Header>"
        "<SOAP-ENV:Body><d:ProbeMatches><d:ProbeMatch><wsa:EndpointReference><wsa:Address>urn:uuid:%3</wsa:Address>"
        "</wsa:EndpointReference><d:Types>dn:%4</d:Types><d:Scopes>%5</d:Scopes>"
        "<d:XAddrs>http://%6/onvif/device_service</d:XAddrs><d:MetadataVersion>1</d:MetadataVersion>"
        "</d:ProbeMatch></d:ProbeMatches></SOAP-ENV:Body></SOAP-ENV:Envelope>"_s.arg(
            QUuid::createUuid().toString(QUuid::WithoutBraces), QString::fromUtf8(id.trimmed()).toHtmlEscaped(), uuid,
            QString::fromLatin1(type), scopes.join(u' ').toHtmlEscaped(), QString::fromUtf8(device.hostAndPort()));
    return text.toUtf8();
}

Discovery::Discovery(QObject* parent)
    : QObject(parent)
    , m_socket(this)
{
    connect(&m_socket, &QUdpSocket::readyRead, this, &Discovery::receive);
}

bool Discovery::start()
{
    if (!m_socket.bind(QHostAddress::AnyIPv4, kPort, QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint))
        return false;
    bool joined = false;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces())
        if (interface.flags().testFlag(QNetworkInterface::IsLoopBack))
            joined = m_socket.joinMulticastGroup(QHostAddress(QLatin1String(kGroup)), interface) || joined;
    return joined;
}

void Discovery::add(Device* device)
{
    auto socket = std::make_unique<QUdpSocket>(this);
    if (!socket->bind(device->address(), 0))
        return;
    m_entries.push_back({device, std::move(socket)});
}

void Discovery::receive()
{
    while (m_socket.hasPendingDatagrams()) {
        const QNetworkDatagram datagram = m_socket.receiveDatagram();
        ++m_probes;
        answer(datagram.data(), datagram.senderAddress(), static_cast<quint16>(datagram.senderPort()));
    }
}

void Discovery::answer(const QByteArray& probe, const QHostAddress& host, quint16 port)
{
    for (const Entry& entry : m_entries) {
        if (!entry.device->profile().discoverable)
            continue;
        const QByteArray match = probeMatch(probe, *entry.device);
        if (match.isEmpty())
            continue;
        QTimer::singleShot(m_delay, entry.socket.get(), [socket = entry.socket.get(), match, host, port] {
            socket->writeDatagram(match, host, port);
        });
    }
}

} // namespace simulators
