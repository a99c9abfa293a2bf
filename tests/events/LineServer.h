#pragma once

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <map>

// A mail server of a few lines on loopback: answers each command by its first word and keeps what came.
class LineServer : public QTcpServer
{
public:
    LineServer()
    {
        listen(QHostAddress(QStringLiteral("127.0.0.1")));
        connect(this, &QTcpServer::newConnection, this, [this] { accept(nextPendingConnection()); });
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
    QByteArray mail;

private:
    void accept(QTcpSocket* socket)
    {
        ++connections;
        socket->setReadBufferSize(64 * 1024);
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(*socket); });
        answer(*socket, answers[""]);
    }

    void read(QTcpSocket& socket)
    {
        if (m_inData && takesNoData)
            return;
        m_buffer += socket.readAll();
        while (true) {
            const QByteArray end = m_inData ? "\r\n.\r\n" : "\r\n";
            const qsizetype at = m_buffer.indexOf(end, m_inData ? qMax<qsizetype>(0, m_buffer.size() - 70000) : 0);
            if (at < 0)
                return;
            const QByteArray taken = m_buffer.left(at);
            m_buffer.remove(0, at + end.size());
            QByteArray word = taken.left(taken.indexOf(' '));
            if (m_inData) {
                mail = taken;
                word = ".";
            } else {
                commands << taken;
                word = !m_login.isEmpty() ? m_login.takeFirst() : taken.split(' ').value(0);
            }
            const bool again = ++m_count[word] >= 2 && second.count(word);
            const QByteArray said = again ? second[word] : answers[word];
            m_inData = word == "data" && said.startsWith("354");
            if (word == "AUTH" && said.startsWith("334"))
                m_login = {"user", "pass"};
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

    QByteArray m_buffer;
    QByteArrayList m_login;
    std::map<QByteArray, int> m_count;
    bool m_inData = false;
};
