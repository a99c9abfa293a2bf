#pragma once

#include "simulators/Faults.h"

#include <QHostAddress>
#include <QTcpServer>
#include <functional>

namespace simulators {

struct HttpRequest
{
    QByteArray method;
    QByteArray target; // byte for byte as it came
    QByteArray body;
    QList<std::pair<QByteArray, QByteArray>> headers;
    bool keepAlive = true;

    QByteArray path() const;                         // target up to "?"
    QByteArray query() const;                        // behind it
    QByteArray header(const QByteArray& name) const; // without regard to case; empty without one
};

struct HttpReply
{
    int status = 200;
    QByteArray contentType = "text/plain; charset=utf-8";
    QByteArray body;
    QList<QByteArray> extraHeaders; // whole lines without the line end
    std::optional<Fault> fault;     // how the delivery goes wrong
};

// A small HTTP/1.1 server (RFC 9112) of its own, since faults need every byte in hand. Keep-alive and pipelining,
// request bodies by Content-Length, "Expect: 100-continue". Heads above 64 KiB and bodies above 4 MiB are refused.
class HttpServer : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<HttpReply(const HttpRequest&)>;

    explicit HttpServer(Handler handler, QObject* parent = nullptr);

    // Port 0 takes a free one. False when the address or port cannot be had.
    bool listen(const QHostAddress& address, quint16 port);
    void close(); // refuses new connections and breaks the open ones
    bool listening() const { return m_server.isListening(); }
    quint16 port() const { return m_server.serverPort(); }
    int connectionsTaken() const { return m_taken; }

private:
    Handler m_handler;
    QTcpServer m_server;
    int m_taken = 0;
};

} // namespace simulators
