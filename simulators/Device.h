#pragma once

#include "simulators/DeviceState.h"
#include "simulators/HttpServer.h"

#include <QDateTime>

namespace simulators {

// One request that reached a device. Requests of the control path are not among them.
struct LoggedRequest
{
    QByteArray method;
    QByteArray target; // byte for byte
    QByteArray body;
    QByteArray authorization; // the header as it came
    QByteArray contentType;
    QString user; // of the accepted login, empty when it was turned away
    int cmd = 0;  // identifier of an XML command
    int status = 0;
};

// A recorder or decoder that speaks its protocol over HTTP. Lives in the thread of its event loop.
//
// XML commands are volatile until CMD_SAVE_CONFIG: reboot() falls back to what was saved. Parameter text and event
// settings of the CGI family are permanent at once.
//
// Beside its protocol every device answers, without a login, to
//   /sim/fault?kind=…       adds a fault (Faults.h)          /sim/clear   removes all faults
//   /sim/state              the state as JSON                /sim/log     the requests as JSON; ?clear=1 empties it
//   /sim/reboot             what was not saved is lost       /sim/refuse?channels=3,5  detection settings refused there
class Device : public QObject
{
    Q_OBJECT

public:
    Device(DeviceProfile profile, DeviceState state, QObject* parent = nullptr);

    // Port 0 takes a free one. False when the address or port cannot be had.
    bool start(const QHostAddress& address, quint16 port);
    void stop(); // from now on connections are refused
    void reboot();

    const QHostAddress& address() const { return m_address; }
    quint16 port() const { return m_port; }
    QByteArray hostAndPort() const;

    DeviceProfile& profile() { return m_profile; }
    const DeviceProfile& profile() const { return m_profile; }
    DeviceState& state() { return m_state; }
    const DeviceState& state() const { return m_state; }
    // n from 1; throws std::out_of_range beyond the device's channels.
    Channel& channel(int n) { return m_state.channels.at(static_cast<size_t>(n - 1)); }
    const Channel& channel(int n) const { return m_state.channels.at(static_cast<size_t>(n - 1)); }
    // Makes the present state the one that a reboot returns to.
    void saveAll();

    void addFault(const Fault& fault) { m_faults.add(fault); }
    void clearFaults() { m_faults.clear(); }

    const std::vector<LoggedRequest>& log() const { return m_log; }
    void clearLog() { m_log.clear(); }
    // Requests whose target begins with `path`, and, for `cmd` above 0, that carry this command.
    int requestCount(const QByteArray& path, int cmd = 0) const;
    int connectionsTaken() const { return m_server.connectionsTaken(); }

private:
    HttpReply answer(const HttpRequest& request);
    HttpReply dispatch(const HttpRequest& request, const Account& account, int cmd, int refusal);
    HttpReply control(const HttpRequest& request);
    const Account* login(const HttpRequest& request) const;
    HttpReply challenge() const;

    DeviceProfile m_profile;
    DeviceState m_state;
    DeviceState m_saved;
    FaultTable m_faults;
    std::vector<LoggedRequest> m_log;
    HttpServer m_server;
    QHostAddress m_address;
    quint16 m_port = 0;
};

// The word of a family in descriptions: "SVR", "OmluPro", "TXR632", "SVD".
QString familyName(Family family);

} // namespace simulators
