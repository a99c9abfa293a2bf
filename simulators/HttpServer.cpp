#include "simulators/HttpServer.h"

#include <QRandomGenerator>
#include <QTcpSocket>
#include <QTimer>

namespace simulators {

namespace {

constexpr qsizetype kMaxHead = 64 * 1024;
constexpr qsizetype kMaxBody = 4 * 1024 * 1024;
constexpr qint64 kChunk = 256 * 1024;

QByteArray reasonOf(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 400:
        return "Bad Request";
    case 401:
        return "Unauthorized";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 413:
        return "Content Too Large";
    case 500:
        return "Internal Server Error";
    case 503:
        return "Service Unavailable";
    default:
        return "Status";
    }
}

QByteArray headOf(const HttpReply& reply, qint64 length, bool keepAlive)
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) + ' ' + reasonOf(reply.status) +
                      "\r\nContent-Type: " + reply.contentType + "\r\nContent-Length: " + QByteArray::number(length);
    for (const QByteArray& line : reply.extraHeaders)
        head += "\r\n" + line;
    return head + (keepAlive ? "\r\nConnection: keep-alive\r\n\r\n" : "\r\nConnection: close\r\n\r\n");
}

// The same noise at every run; never a line of HTTP, never valid UTF-8 at its start.
QByteArray noise(qint64 length)
{
    QByteArray bytes(static_cast<qsizetype>(std::max<qint64>(length, 0)), Qt::Uninitialized);
    QRandomGenerator generator(20240501);
    for (char& byte : bytes)
        byte = static_cast<char>(generator.bounded(256));
    if (!bytes.isEmpty())
        bytes[0] = '\xff';
    return bytes;
}

// One connection: reads a request, lets the handler answer it, delivers the answer, goes on with the next.
class Connection : public QObject
{
public:
    Connection(QTcpSocket* socket, const HttpServer::Handler& handler)
        : QObject(socket)
        , m_socket(socket)
        , m_handler(handler)
    {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connect(socket, &QTcpSocket::readyRead, this, [this] { next(); });
        connect(socket, &QTcpSocket::bytesWritten, this, [this] { pour(); });
    }

private:
    void next()
    {
        if (m_busy)
            return;
        m_input += m_socket->readAll();
        const qsizetype end = m_input.indexOf("\r\n\r\n");
        if (end < 0) {
            if (m_input.size() > kMaxHead)
                reject(413);
            return;
        }
        HttpRequest request;
        if (!readHead(m_input.left(end), request))
            return reject(400);
        bool ok = true;
        const QByteArray lengthText = request.header("Content-Length");
        const qint64 length = lengthText.isEmpty() ? 0 : lengthText.toLongLong(&ok);
        if (!ok || length < 0 || !request.header("Transfer-Encoding").isEmpty())
            return reject(400);
        if (length > kMaxBody)
            return reject(413);
        const qsizetype have = m_input.size() - end - 4;
        if (have < length) {
            if (!m_continued && request.header("Expect").toLower() == "100-continue") {
                m_continued = true;
                m_socket->write("HTTP/1.1 100 Continue\r\n\r\n");
            }
            return;
        }
        request.body = m_input.mid(end + 4, static_cast<qsizetype>(length));
        m_input.remove(0, end + 4 + static_cast<qsizetype>(length));
        m_continued = false;
        m_busy = true;
        m_keepAlive = request.keepAlive;
        HttpReply reply = m_handler(request);
        if (request.method == "HEAD")
            reply.body.clear();
        deliver(std::move(reply));
    }

    static bool readHead(const QByteArray& head, HttpRequest& request)
    {
        const QList<QByteArray> lines = head.split('\n');
        const QByteArray first = lines.first().trimmed();
        // A target may hold blanks when its sender does not escape them, so it reaches to the last blank.
        const qsizetype from = first.indexOf(' ');
        const qsizetype to = first.lastIndexOf(' ');
        if (from <= 0 || to <= from || !first.mid(to + 1).startsWith("HTTP/1."))
            return false;
        request.method = first.left(from);
        request.target = first.mid(from + 1, to - from - 1);
        if (!request.target.startsWith('/'))
            return false;
        for (const QByteArray& line : lines.mid(1)) {
            const qsizetype colon = line.indexOf(':');
            if (colon <= 0)
                return false;
            request.headers.append({line.left(colon), line.mid(colon + 1).trimmed()});
        }
        const QByteArray connection = request.header("Connection").toLower();
        request.keepAlive = first.endsWith("1.1") ? connection != "close" : connection == "keep-alive";
        return true;
    }

    void reject(int status)
    {
        m_busy = true;
        m_keepAlive = false;
        HttpReply reply;
        reply.status = status;
        reply.body = reasonOf(status) + '\n';
        deliver(std::move(reply));
    }

    void deliver(HttpReply reply)
    {
        const Fault fault = reply.fault.value_or(Fault{});
        const QByteArray whole = headOf(reply, reply.body.size(), m_keepAlive) + reply.body;
        switch (fault.kind) {
        case FaultKind::Delay:
            if (reply.fault && fault.amount > 0) {
                QTimer::singleShot(static_cast<int>(fault.amount), this, [this, whole] { send(whole); });
                return;
            }
            return send(whole);
        case FaultKind::CutOff:
            m_keepAlive = false;
            return send(whole.left(static_cast<qsizetype>(fault.amount)));
        case FaultKind::Garbage:
            m_keepAlive = false;
            return send(noise(fault.amount));
        case FaultKind::Huge:
            m_left = fault.amount;
            return send(headOf(reply, fault.amount, m_keepAlive));
        case FaultKind::Trickle:
            m_trickle = whole;
            return trickle(static_cast<int>(std::max<qint64>(fault.amount, 1)));
        case FaultKind::GarbageBody:
            reply.body = noise(fault.amount);
            return send(headOf(reply, reply.body.size(), m_keepAlive) + reply.body);
        case FaultKind::NoLength:
            m_keepAlive = false;
            return send("HTTP/1.0 " + QByteArray::number(reply.status) + ' ' + reasonOf(reply.status) +
                        "\r\nContent-Type: " + reply.contentType + "\r\n\r\n" + reply.body);
        case FaultKind::Silent:
            return; // stays busy until the other side gives up
        case FaultKind::Reset:
            m_socket->abort();
            return;
        default:
            return send(whole); // the others have changed the reply itself
        }
    }

    void send(const QByteArray& bytes)
    {
        m_socket->write(bytes);
        if (m_left == 0)
            finish();
        else
            pour();
    }

    // The body of a huge reply goes out as the other side takes it, so that it never lies in memory as a whole.
    void pour()
    {
        while (m_left > 0 && m_socket->bytesToWrite() < kChunk) {
            const qint64 part = std::min(m_left, kChunk);
            m_left -= part;
            m_socket->write(QByteArray(static_cast<qsizetype>(part), 'x'));
            if (m_left == 0)
                finish();
        }
    }

    void trickle(int milliseconds)
    {
        if (m_socket->state() != QAbstractSocket::ConnectedState)
            return;
        m_socket->write(m_trickle.left(1));
        m_socket->flush();
        m_trickle.remove(0, 1);
        if (m_trickle.isEmpty())
            finish();
        else
            QTimer::singleShot(milliseconds, this, [this, milliseconds] { trickle(milliseconds); });
    }

    void finish()
    {
        if (!m_keepAlive) {
            m_socket->disconnectFromHost();
            return;
        }
        m_busy = false;
        QMetaObject::invokeMethod(
            this, [this] { next(); }, Qt::QueuedConnection);
    }

    QTcpSocket* m_socket;
    HttpServer::Handler m_handler;
    QByteArray m_input;
    QByteArray m_trickle;
    qint64 m_left = 0;
    bool m_busy = false;
    bool m_keepAlive = true;
    bool m_continued = false;
};

} // namespace

QByteArray HttpRequest::path() const
{
    const qsizetype mark = target.indexOf('?');
    return mark < 0 ? target : target.left(mark);
}

QByteArray HttpRequest::query() const
{
    const qsizetype mark = target.indexOf('?');
    return mark < 0 ? QByteArray() : target.mid(mark + 1);
}

QByteArray HttpRequest::header(const QByteArray& name) const
{
    for (const auto& [key, value] : headers)
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    return {};
}

HttpServer::HttpServer(Handler handler, QObject* parent)
    : QObject(parent)
    , m_handler(std::move(handler))
    , m_server(this)
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            ++m_taken;
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            new Connection(socket, m_handler);
        }
    });
}

bool HttpServer::listen(const QHostAddress& address, quint16 port)
{
    m_server.setListenBacklogSize(128);
    return m_server.listen(address, port);
}

void HttpServer::close()
{
    m_server.close();
    const auto sockets = m_server.findChildren<QTcpSocket*>();
    for (QTcpSocket* socket : sockets)
        socket->abort();
}

} // namespace simulators
