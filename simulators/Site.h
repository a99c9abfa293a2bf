#pragma once

#include "simulators/Discovery.h"

#include <QJsonObject>

namespace simulators {

// What one device of a site is to be. Numbers of 0 take the family's default.
struct DeviceDescription
{
    Family family = Family::Txr632;
    QString name;
    QString brand;
    QString model;
    QString deviceType; // empty: the family's word
    QString firmware;
    QString commandVersion;
    QString address; // empty: the next one of the site
    int port = -1;   // -1: the site's
    int channels = 16;
    int cameras = 8; // channels that carry a camera, from channel 1
    int presets = 2; // named presets of each PTZ camera
    int events = 40; // stored events
    int maxHd = 0;
    AuthMode auth = AuthMode::Basic;
    bool discoverable = true;
    bool cmsSupport = true;
    bool customEventSupport = true;
    std::vector<Account> accounts; // empty: admin/admin with every right and viewer/viewer without
};

struct SiteDescription
{
    QString baseAddress = QStringLiteral("127.0.0.2"); // the devices without an address count up from here
    int port = 8080;                                   // 0: a free one each
    bool discovery = true;
    std::vector<DeviceDescription> devices;
};

// Throws std::runtime_error with the offending key or value.
SiteDescription siteFromJson(const QByteArray& json);
DeviceDescription deviceFromJson(const QJsonObject& object);
// "FAMILY,key=value,…" with the keys of the JSON form, for the command line.
DeviceDescription deviceFromText(const QString& text);
// Three recorders, one of each family, and a decoder that shows their cameras.
SiteDescription exampleSite();

// A profile and a state with cameras, presets and events, made the same way at every run.
DeviceProfile profileOf(const DeviceDescription& description);
DeviceState stateOf(const DeviceDescription& description);
// Camera number n (from 1) of the made-up ones: every fourth moves, the fifth has two lenses, the sixth is an Onvif
// camera, the seventh a fish-eye; names in several scripts.
Camera exampleCamera(int n, Family family);

// A loopback network of this process ("127.x.y."): searches may meet the sites of other processes on the machine.
QString ownNetwork();

// A running site. Lives in one thread with its devices.
class Site : public QObject
{
    Q_OBJECT

public:
    explicit Site(const SiteDescription& description, QObject* parent = nullptr);

    // Throws std::runtime_error naming the address when one cannot be had. A host without multicast on loopback runs
    // without discovery.
    void start();
    bool discoveryRunning() const { return m_discovering; }
    Discovery& discovery() { return m_discovery; }

    int count() const { return static_cast<int>(m_devices.size()); }
    Device& device(int index) { return *m_devices.at(static_cast<size_t>(index)); }

private:
    SiteDescription m_description;
    std::vector<std::unique_ptr<Device>> m_devices;
    Discovery m_discovery;
    bool m_discovering = false;
};

} // namespace simulators
