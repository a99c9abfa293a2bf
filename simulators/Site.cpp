#include "simulators/Site.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

std::runtime_error wrong(const QString& text)
{
    return std::runtime_error(text.toStdString());
}

Family familyOf(const QString& word)
{
    for (const Family family : {Family::Svr, Family::OmluPro, Family::Txr632, Family::Svd})
        if (familyName(family).compare(word, Qt::CaseInsensitive) == 0)
            return family;
    throw wrong(u"unknown family \"%1\""_s.arg(word));
}

AuthMode authOf(const QString& word)
{
    if (word == u"basic"_s)
        return AuthMode::Basic;
    if (word == u"digest"_s)
        return AuthMode::Digest;
    throw wrong(u"unknown auth \"%1\""_s.arg(word));
}

Account accountOf(const QJsonObject& object)
{
    return {object.value("user"_L1).toString(), object.value("password"_L1).toString(),
            object.value("securitylevel"_L1).toInt(7), object.value("group"_L1).toInt(0),
            object.value("write"_L1).toBool(true)};
}

int numberAt(const QString& key, const QJsonValue& value, int from, int to)
{
    bool ok = value.isDouble();
    const int number = value.isString() ? value.toString().toInt(&ok) : value.toInt();
    if (!ok || number < from || number > to)
        throw wrong(u"\"%1\" must be a number from %2 to %3"_s.arg(key).arg(from).arg(to));
    return number;
}

bool switchAt(const QJsonValue& value)
{
    return value.isString() ? value.toString() == u"true"_s || value.toString() == u"1"_s : value.toBool();
}

} // namespace

DeviceDescription deviceFromJson(const QJsonObject& object)
{
    DeviceDescription device;
    device.family = familyOf(object.value("family"_L1).toString());
    if (device.family == Family::Svd)
        device.channels = 64;
    for (auto at = object.begin(); at != object.end(); ++at) {
        const QString& key = at.key();
        const QJsonValue value = at.value();
        const std::pair<const char*, QString*> texts[] = {
            {"name", &device.name},         {"brand", &device.brand},
            {"model", &device.model},       {"deviceType", &device.deviceType},
            {"firmware", &device.firmware}, {"commandVersion", &device.commandVersion},
            {"address", &device.address}};
        const auto text = std::find_if(std::begin(texts), std::end(texts),
                                       [&](const auto& one) { return key == QLatin1String(one.first); });
        if (text != std::end(texts))
            *text->second = value.toString();
        else if (key == u"port"_s)
            device.port = numberAt(key, value, 0, 65535);
        else if (key == u"channels"_s)
            device.channels = numberAt(key, value, 1, 64);
        else if (key == u"cameras"_s)
            device.cameras = numberAt(key, value, 0, 64);
        else if (key == u"presets"_s)
            device.presets = numberAt(key, value, 0, 8);
        else if (key == u"events"_s)
            device.events = numberAt(key, value, 0, 1000000);
        else if (key == u"maxHd"_s)
            device.maxHd = numberAt(key, value, 0, 64);
        else if (key == u"auth"_s)
            device.auth = authOf(value.toString());
        else if (key == u"discoverable"_s)
            device.discoverable = switchAt(value);
        else if (key == u"cmsSupport"_s)
            device.cmsSupport = switchAt(value);
        else if (key == u"customEventSupport"_s)
            device.customEventSupport = switchAt(value);
        else if (key == u"accounts"_s)
            for (const QJsonValue& account : value.toArray())
                device.accounts.push_back(accountOf(account.toObject()));
        else if (key != u"family"_s)
            throw wrong(u"unknown key \"%1\" of a device"_s.arg(key));
    }
    device.cameras = std::min(device.cameras, device.channels);
    return device;
}

DeviceDescription deviceFromText(const QString& text)
{
    QJsonObject object;
    for (const QString& part : text.split(u',', Qt::SkipEmptyParts)) {
        const qsizetype equals = part.indexOf(u'=');
        if (equals < 0)
            object.insert(u"family"_s, part);
        else
            object.insert(part.left(equals), part.mid(equals + 1));
    }
    return deviceFromJson(object);
}

SiteDescription siteFromJson(const QByteArray& json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (!document.isObject())
        throw wrong(u"not a JSON object: "_s + error.errorString());
    SiteDescription site;
    const QJsonObject object = document.object();
    for (auto at = object.begin(); at != object.end(); ++at) {
        if (at.key() == u"address"_s)
            site.baseAddress = at.value().toString();
        else if (at.key() == u"port"_s)
            site.port = numberAt(at.key(), at.value(), 0, 65535);
        else if (at.key() == u"discovery"_s)
            site.discovery = switchAt(at.value());
        else if (at.key() == u"devices"_s)
            for (const QJsonValue& device : at.value().toArray())
                site.devices.push_back(deviceFromJson(device.toObject()));
        else
            throw wrong(u"unknown key \"%1\" of a site"_s.arg(at.key()));
    }
    return site;
}

SiteDescription exampleSite()
{
    SiteDescription site;
    for (const QString& text :
         {u"TXR632,name=Gate House,channels=64,cameras=24,presets=4,events=500"_s,
          u"OmluPro,name=Warehouse Süd,channels=16,cameras=9,presets=3,events=200,commandVersion=2.0"_s,
          u"SVR,name=Old Office,channels=16,cameras=6,presets=2,events=250"_s,
          u"SVD,name=Control Room Wall,cameras=12"_s})
        site.devices.push_back(deviceFromText(text));
    return site;
}

QString ownNetwork()
{
    const qint64 process = QCoreApplication::applicationPid();
    return u"127.%1.%2."_s.arg(100 + process / 250 % 150).arg(1 + process % 250);
}

Site::Site(const SiteDescription& description, QObject* parent)
    : QObject(parent)
    , m_description(description)
    , m_discovery(this)
{
    for (const DeviceDescription& device : description.devices)
        m_devices.push_back(std::make_unique<Device>(profileOf(device), stateOf(device)));
}

void Site::start()
{
    m_discovering = m_description.discovery && m_discovery.start();
    quint32 next = QHostAddress(m_description.baseAddress).toIPv4Address();
    if (next == 0)
        throw wrong(u"\"%1\" is no address"_s.arg(m_description.baseAddress));
    for (size_t i = 0; i < m_devices.size(); ++i) {
        const DeviceDescription& wanted = m_description.devices[i];
        const QHostAddress address = wanted.address.isEmpty() ? QHostAddress(next++) : QHostAddress(wanted.address);
        const int port = wanted.port >= 0 ? wanted.port : m_description.port;
        if (!m_devices[i]->start(address, static_cast<quint16>(port)))
            throw wrong(u"%1:%2 cannot be had"_s.arg(address.toString()).arg(port));
        if (m_discovering)
            m_discovery.add(m_devices[i].get());
    }
}

} // namespace simulators
