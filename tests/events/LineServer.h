#pragma once

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <map>
#include <memory>

// A mail server of a few lines on loopback: answers each command by its first word and keeps what came.
class LineServer : public QTcpServer
{
public:
    LineServer()
    {
        listen(QHostAddress(QStringLiteral("127.0.0.1")));
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (hasPendingConnections())
                accept(nextPendingConnection());
        });
    }

    // By the first word; "user" and "pass" are the lines of a login, "." is the end of a mail, "" the greeting. What is
    // empty is not answered; what ends in "!" closes the connection behind its text.
    std::map<QByteArray, QByteArray> answers{{"", "220 ready\r\n"},
                                             {"HELO", "250 hello\r\n"},
                                             {"AUTH", "334 VXNlcm5hbWU6\r\n"},
                                             {"user", "334 UGFzc3dvcmQ6\r\n"},
                                             {"pass", "235 in\r\n"},
                                             {"mail", "250 ok\r\n"},
                                             {"rcpt", "250 ok\r\n"},
                                             {"data", "354 go\r\n"},
                                             {".", "250 taken\r\n"},
                                             {"quit", "221 bye\r\n"}};
    std::map<QByteArray, QByteArray> second; // answers from the second command of that word on
    bool byteByByte = false;
    bool takesNoData = false; // reads nothing any more from "data" on
    int connections = 0;
    QByteArrayList commands;
    QByteArrayList mails;

private:
    struct Session
    {
        QByteArray buffer;
        QByteArrayList login;
        std::map<QByteArray, int> count;
        bool inData = false;
    };

    void accept(QTcpSocket* socket)
    {
        ++connections;
        const auto session = std::make_shared<Session>();
        socket->setReadBufferSize(64 * 1024);
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket, session] { read(*socket, *session); });
        answer(*socket, answers[""]);
    }

    void read(QTcpSocket& socket, Session& session)
    {
        if (session.inData && takesNoData)
            return;
        session.buffer += socket.readAll();
        while (true) {
            const QByteArray end = session.inData ? "\r\n.\r\n" : "\r\n";
            const qsizetype at =
                session.buffer.indexOf(end, session.inData ? qMax<qsizetype>(0, session.buffer.size() - 70000) : 0);
            if (at < 0)
                return;
            const QByteArray taken = session.buffer.left(at);
            session.buffer.remove(0, at + end.size());
            QByteArray word = ".";
            if (session.inData) {
                mails << taken;
            } else {
                commands << taken;
                word = !session.login.isEmpty() ? session.login.takeFirst() : taken.split(' ').value(0);
            }
            const bool again = ++session.count[word] >= 2 && second.count(word);
            const QByteArray said = again ? second[word] : answers[word];
            session.inData = word == "data" && said.startsWith("354");
            if (word == "AUTH" && said.startsWith("334"))
                session.login = {"user", "pass"};
            answer(socket, said);
        }
    }

    void answer(QTcpSocket& socket, QByteArray bytes)
    {
        const bool close = bytes.endsWith('!');
        if (close)
            bytes.chop(1);
        if (byteByByte && !bytes.isEmpty()) {
            socket.write(bytes.left(1));
            QTimer::singleShot(1, &socket, [this, &socket, bytes] { answer(socket, bytes.sliced(1)); });
            return;
        }
        socket.write(bytes);
        if (close)
            socket.disconnectFromHost();
    }
};
