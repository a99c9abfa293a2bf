#pragma once

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <functional>
#include <vector>

// A device of a few lines on loopback: records every request as it came and answers with bytes as they stand.
class ScriptedServer : public QTcpServer
{
public:
    struct Seen
    {
        QByteArray line; // request line
        QByteArray head; // request line and header fields
        QByteArray body;
        QByteArray field(const QByteArray& name) const
        {
            const qsizetype at = head.indexOf(QByteArray("\r\n" + name + ": "));
            const qsizetype begin = at + name.size() + 4;
            return at < 0 ? QByteArray() : head.mid(begin, head.indexOf("\r\n", begin) - begin);
        }
    };
    struct Answer
    {
        QByteArray bytes;
        bool close = false;  // after the bytes
        int delay = 0;       // ms before the first byte
        int trickle = 0;     // ms between single bytes, 0: all at once
        bool silent = false; // no answer at all
    };

    ScriptedServer()
    {
        listen(QHostAddress(QStringLiteral("127.0.0.1")));
        connect(this, &QTcpServer::newConnection, this, [this] { accept(nextPendingConnection()); });
    }

    static QByteArray page(const QByteArray& body, const QByteArray& status = "200 OK", const QByteArray& fields = {})
    {
        return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n" + fields +
               "\r\n" + body;
    }
    void answerWith(const QByteArray& body)
    {
        answer = [body](const Seen&) { return Answer{page(body)}; };
    }
    void fallSilent()
    {
        answer = [](const Seen&) { return Answer{{}, false, 0, 0, true}; };
    }
    QByteArray lastTarget() const { return requests.empty() ? QByteArray() : requests.back().line.split(' ').value(1); }

    std::function<Answer(const Seen&)> answer = [](const Seen&) { return Answer{page("OK\n")}; };
    std::vector<Seen> requests;
    int connections = 0;

private:
    void accept(QTcpSocket* socket)
    {
        ++connections;
        auto buffer = std::make_shared<QByteArray>();
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket, buffer] {
            buffer->append(socket->readAll());
            while (take(*socket, *buffer)) {
            }
        });
    }

    bool take(QTcpSocket& socket, QByteArray& buffer)
    {
        const qsizetype end = buffer.indexOf("\r\n\r\n");
        if (end < 0)
            return false;
        Seen seen;
        seen.head = buffer.left(end + 2);
        seen.line = seen.head.left(seen.head.indexOf("\r\n"));
        const qsizetype length = seen.field("Content-Length").toInt();
        if (buffer.size() < end + 4 + length)
            return false;
        seen.body = buffer.mid(end + 4, length);
        buffer.remove(0, end + 4 + length);
        requests.push_back(seen);
        const Answer given = answer(seen);
        if (given.silent)
            return true;
        if (given.delay > 0)
            QTimer::singleShot(given.delay, &socket, [this, &socket, given] { write(socket, given); });
        else
            write(socket, given);
        return true;
    }

    void write(QTcpSocket& socket, const Answer& given)
    {
        if (given.trickle > 0 && given.bytes.size() > 1) {
            socket.write(given.bytes.left(1));
            Answer rest = given;
            rest.bytes.remove(0, 1);
            QTimer::singleShot(given.trickle, &socket, [this, &socket, rest] { write(socket, rest); });
            return;
        }
        socket.write(given.bytes);
        if (given.close)
            socket.disconnectFromHost();
    }
};
