#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

// One HTTP/1.1 request to a device. Nothing of it is re-encoded: target and body go out byte for byte.
struct HttpRequest
{
    QString address;     // host name, IPv4 address, or IPv6 address with or without brackets
    qint32 port = 80;    // 1 to 65535
    QString user;        // empty: no credentials are sent
    QString password;    // Basic goes out at once (RFC 7617); Digest when the device asks for it (RFC 7616)
    QByteArray target;   // origin-form with query (RFC 9112, 3.2.1); holding CR, LF or NUL fails the request
    bool post = false;   // POST with `body`, else GET
    QByteArray body;     //
    double seconds = 60; // for the whole request: name, connection, every authentication round, reply
    qint64 maxBytes = 16 * 1024 * 1024; // of the reply's body
};

enum class HttpFailure
{
    None,
    BadRequest,  // address, port or target cannot be used
    NotResolved, // the name has no address
    Refused,     // no connection
    TimedOut,
    BrokenOff, // the connection ended early, or what came is not HTTP
    TooLarge,  // the reply passes maxBytes, or its header 256 KiB
    Stopped    // the work that it was asked for was stopped
};

struct HttpReply
{
    HttpFailure failure = HttpFailure::None;
    qint32 status = 0; // HTTP status of the last answer, 0 without one
    QByteArray body;
    QByteArray contentType; // as the device says it, may be empty
    QString error;          // for the log, empty without a failure

    // The device answered and says that it did what was asked; an answer that points elsewhere (3xx) does not.
    bool succeeded() const { return failure == HttpFailure::None && status >= 200 && status < 300; }
};

using HttpDone = std::function<void(const HttpReply&)>;

// Asynchronous HTTP client on the thread's event loop. Connections are kept and used again; no proxy, no redirects, no
// cookies, no content decoding. An idle client costs nothing.
class HttpClient
{
public:
    HttpClient();
    ~HttpClient(); // open requests end without their callback
    HttpClient(const HttpClient&) = delete;
    HttpClient& operator=(const HttpClient&) = delete;

    // Begins a request and returns its handle (never 0). `done` is called once, from the event loop, never from within
    // start(). It may start and cancel requests, and wait.
    quint64 start(const HttpRequest& request, HttpDone done);
    // Ends a request without its callback. An unknown handle is nothing.
    void cancel(quint64 handle);
    // Requests under way.
    qsizetype open() const;

private:
    class Engine;
    std::unique_ptr<Engine> m_engine;
};
