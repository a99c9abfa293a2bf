#pragma once

#include "simulators/Device.h"

#include <QUdpSocket>
#include <memory>
#include <vector>

namespace simulators {

// Answers WS-Discovery 1.0 probes (UDP multicast 239.255.255.250:3702) on the loopback interface for all its devices,
// each from its own address, with the XAddrs and ONVIF scopes of the device. A probe that arrives twice is answered
// twice, as devices do.
class Discovery : public QObject
{
    Q_OBJECT

public:
    explicit Discovery(QObject* parent = nullptr);

    // False when the port cannot be shared or the group not joined.
    bool start();
    void add(Device* device);
    // How long each answer waits, in milliseconds.
    void setDelay(int milliseconds) { m_delay = milliseconds; }
    int probesTaken() const { return m_probes; }

private:
    struct Entry
    {
        Device* device;
        std::unique_ptr<QUdpSocket> socket;
    };

    void receive();
    void answer(const QByteArray& probe, const QHostAddress& host, quint16 port);

    QUdpSocket m_socket;
    std::vector<Entry> m_entries;
    int m_delay = 0;
    int m_probes = 0;
};

// The ProbeMatches envelope with which `device` answers `probe`; empty when the probe asks for something else or is
// none. Pure.
QByteArray probeMatch(const QByteArray& probe, const Device& device);

} // namespace simulators
