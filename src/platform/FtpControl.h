#pragma once

#include <QObject>
#include <QString>
#include <memory>

// An FTP session (RFC 959, in clear text) that carries out one command, on a thread of its own: the library waits
// inside for some of the server's answers. Used on the thread that made it, which it never holds up.
class FtpControl : public QObject
{
    Q_OBJECT

public:
    FtpControl();
    ~FtpControl() override; // ends what goes on

    QString host;    // name or address
    qint32 port = 0; // 0: the protocol's own
    QString user;    // empty: anonymous
    QString password;

    // put "<local file>" <remote path>: uploads the file in binary; the path, which may hold blanks, is sent byte for
    // byte as UTF-8 without changing folders. Ended follows, whatever became of it. False, with nothing begun, for any
    // other command and while one is carried out. The session ends with QUIT, whose answer is not waited for.
    bool Execute(const QString& command);
    bool StillExecuting() const { return m_session != nullptr; }
    // Ends the command at once, without Ended; step and answer are those it had come to.
    void stop();

    // The outcome of the last command: whether the server took the file.
    bool succeeded() const { return m_outcome.succeeded; }
    // The last command that was sent to the server (its first word), empty before there was a connection.
    const QString& step() const { return m_outcome.step; }
    // What the server said to it, else what went wrong on the way.
    const QString& answer() const { return m_outcome.answer; }

signals:
    void Ended();

private:
    class Session;
    struct Outcome
    {
        bool succeeded = false;
        QString step;
        QString answer;
    };

    std::unique_ptr<Session> m_session;
    Outcome m_outcome;
    quint64 m_executed = 0; // commands
};
