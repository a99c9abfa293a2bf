#include "device/bridge/DiscoveryMessage.h"

#include <QUrl>
#include <pugixml.hpp>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMaxDatagram = 64 * 1024;
constexpr qsizetype kMaxListItems = 64; // scopes or addresses of one device
constexpr qsizetype kMaxTextLength = 128;

// Child elements of this local name, whatever their prefix.
template <class Visit>
void ForEachChild(pugi::xml_node parent, std::string_view name, Visit&& visit)
{
    for (pugi::xml_node child = parent.first_child(); child; child = child.next_sibling()) {
        const std::string_view whole = child.name();
        const std::size_t colon = whole.find(':');
        if ((colon == std::string_view::npos ? whole : whole.substr(colon + 1)) == name)
            visit(child);
    }
}

pugi::xml_node FirstChild(pugi::xml_node parent, std::string_view name)
{
    pugi::xml_node first;
    ForEachChild(parent, name, [&](pugi::xml_node child) {
        if (!first)
            first = child;
    });
    return first;
}

QList<QByteArray> ListOf(pugi::xml_node parent, std::string_view name)
{
    const QByteArray text = QByteArray(FirstChild(parent, name).text().get()).simplified();
    return text.isEmpty() ? QList<QByteArray>() : text.split(' ').mid(0, kMaxListItems);
}

// Text of a scope for the eyes of an operator.
QString DisplayText(const QByteArray& escaped)
{
    const QString text = QString::fromUtf8(QByteArray::fromPercentEncoding(escaped));
    QString plain;
    for (const QChar c : text) {
        if (c.category() != QChar::Other_Control && c.category() != QChar::Other_Format &&
            plain.size() < kMaxTextLength)
            plain += c;
    }
    if (!plain.isEmpty() && plain.back().isHighSurrogate())
        plain.chop(1);
    return plain.trimmed();
}

struct ServiceAddress
{
    QString host;
    qint32 port = 80;
};

// The service address the desk can best reach; an empty host without any.
ServiceAddress ChooseAddress(const QList<QByteArray>& addresses, const QHostAddress& sender)
{
    ServiceAddress chosen;
    int chosenRank = 0;
    for (const QByteArray& text : addresses) {
        const QUrl url = QUrl::fromEncoded(text, QUrl::StrictMode);
        if (!url.isValid() || url.scheme() != "http"_L1 || url.host().isEmpty() || url.port(80) < 1)
            continue;
        const QHostAddress host(url.host());
        if (host == QHostAddress(QHostAddress::AnyIPv4) || host == QHostAddress(QHostAddress::AnyIPv6))
            continue;
        const int rank = !host.isNull() && host.isEqual(sender, QHostAddress::ConvertV4MappedToIPv4) ? 3
                         : host.protocol() == QAbstractSocket::IPv4Protocol                          ? 2
                                                                                                     : 1;
        if (rank > chosenRank) {
            chosenRank = rank;
            chosen = {url.host(), url.port(80)};
        }
    }
    return chosen;
}

// True and the device when it is one of ours.
bool ReadMatch(pugi::xml_node match, const QHostAddress& sender, FoundDevice& device)
{
    bool onvif = false;
    const QList<QByteArray> scopes = ListOf(match, "Scopes");
    for (const QByteArray& scope : scopes) {
        static constexpr QByteArrayView kOnvif("onvif://www.onvif.org/");
        if (qstrnicmp(scope.constData(), kOnvif.data(), static_cast<size_t>(kOnvif.size())) != 0)
            continue;
        onvif = true;
        const QByteArray rest = scope.mid(kOnvif.size());
        const qsizetype slash = rest.indexOf('/');
        const QByteArray kind = rest.left(slash < 0 ? rest.size() : slash).toLower();
        const QByteArray value = slash < 0 ? QByteArray() : rest.mid(slash + 1);
        const auto take = [&](QString& field) {
            if (field.isEmpty())
                field = DisplayText(value);
        };
        if (kind == "name")
            take(device.Name);
        else if (kind == "hardware")
            take(device.Model);
        else if (kind == "manufacturer")
            take(device.Brand);
        else if (kind == "type" && value.toLower() == "svd")
            device.IsSvd = true;
    }
    const ServiceAddress address = ChooseAddress(ListOf(match, "XAddrs"), sender);
    device.Address = address.host;
    device.Port = address.port;
    if (device.Name.isEmpty())
        device.Name = device.Model;
    return onvif && !device.Address.isEmpty();
}

} // namespace

QByteArray BuildProbe(const QString& messageId)
{
    const QString envelope =
        u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
        "<e:Envelope xmlns:e=\"http://www.w3.org/2003/05/soap-envelope\""
        " xmlns:w=\"http://schemas.xmlsoap.org/ws/2004/08/addressing\""
        " xmlns:d=\"http://schemas.xmlsoap.org/ws/2005/04/discovery\">"
        "<e:Header><w:MessageID>uuid:%1</w:MessageID>"
        "<w:To e:mustUnderstand=\"true\">urn:schemas-xmlsoap-org:ws:2005:04:discovery</w:To>"
        "<w:Action "
        "e:mustUnderstand=\"true\">http://schemas.xmlsoap.org/ws/2005/04/discovery/Probe</w:Action></e:Header>"
        "<e:Body><d:Probe/></e:Body></e:Envelope>"_s;
    return envelope.arg(messageId).toUtf8();
}

std::vector<FoundDevice> ParseProbeMatches(const QByteArray& datagram, const QHostAddress& sender)
{
    std::vector<FoundDevice> devices;
    if (datagram.size() > kMaxDatagram)
        return devices;
    pugi::xml_document document; // expands no entities but the five of XML
    if (!document.load_buffer(datagram.constData(), static_cast<std::size_t>(datagram.size())))
        return devices;
    const pugi::xml_node matches = FirstChild(FirstChild(FirstChild(document, "Envelope"), "Body"), "ProbeMatches");
    qsizetype seen = 0;
    ForEachChild(matches, "ProbeMatch", [&](pugi::xml_node match) {
        FoundDevice device;
        if (++seen <= kMaxProbeMatches && ReadMatch(match, sender, device))
            devices.push_back(device);
    });
    return devices;
}
