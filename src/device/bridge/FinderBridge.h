#pragma once

#include "device/bridge/DiscoveryMessage.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QUdpSocket>
#include <memory>
#include <set>
#include <vector>

// Search of the local networks by WS-Discovery: a probe to 239.255.255.250:3702 on every running interface that has an
// IPv4 address, sent three times (SOAP-over-UDP repeats). The environment variable RIGGING_DESK_FINDER confines it to
// the interface of that name.
class FinderBridge : public QObject
{
    Q_OBJECT

public:
    explicit FinderBridge(QObject* parent = nullptr);
    ~FinderBridge() override;

    // Begins a search; one under way is stopped first, and its devices go. False when no interface could be used: the
    // search is over then, without Finished.
    bool Search();
    // Ends the search without Finished. What was found stays.
    void Stop();
    bool Searching() const { return !m_sockets.empty(); }

    // What the present or last search found, in order of arrival; one entry per address and port, 1024 at most.
    const std::vector<FoundDevice>& Devices() const { return m_devices; }

signals:
    void DeviceFound(const FoundDevice& device); // as it is added to Devices()
    // Two seconds have passed and nothing new has come for 0.3 of a second, or five seconds have passed.
    void Finished();

private:
    void open();
    void sendProbe();
    void receive(QUdpSocket& socket);
    void add(const FoundDevice& device);
    void checkEnd();

    std::vector<std::unique_ptr<QUdpSocket>> m_sockets;
    std::vector<FoundDevice> m_devices;
    std::set<std::pair<QString, qint32>> m_known;
    QByteArray m_probe;
    int m_probesSent = 0;
    int m_datagrams = 0;
    QTimer m_repeat;
    QTimer m_end;
    QElapsedTimer m_running;
    QElapsedTimer m_quiet;
};
