#pragma once

#include "events/SendParts.h"
#include "platform/Work.h"

#include <QString>

// Uploads one file at a time to one server (RFC 959, in clear text). Works on the thread that made it.
class FTPClient : public QObject
{
    Q_OBJECT

public:
    // `busy` as of a mail client.
    explicit FTPClient(EventQueueBusy* busy = nullptr, QObject* parent = nullptr);
    ~FTPClient() override; // an upload under way ends without its event

    QString ServerName;
    qint32 ServerPort = 0; // 0: the protocol's own
    QString UserName;      // empty: anonymous
    QString Password;
    QString FilePath; // of the local file
    QString SaveAs;   // the remote file; empty: the name of the local one
    FTPClient* AlsoNotify = nullptr;
    // Of SendFile: a local file that something else still needs is kept. Without it none is.
    std::function<bool(const QString& file)> StillNeeded;

    // The remote folder; blanks round it go, and one that does not end in a slash or backslash gets a slash.
    void setRemotePath(const QString& path);
    const QString& RemotePath() const { return m_remotePath; }

    // Uploads in the background, also while the program is leaving, and deletes the local file afterwards, whatever
    // became of it. False while an upload is under way.
    bool SendFile();
    // Uploads on behalf of `work`; the client outlives it. True when the session has ended within its 30 seconds: what
    // the server said to the file does not count, see Taken().
    QCoro::Task<bool> SendFileNow(Work& work);
    void stop() { m_work.stop(); }

    bool busy() const { return m_busy; }
    // Empty when the session has ended in time.
    const QString& ErrorStr() const { return m_error; }
    // Whether the server took the file, the command that ended it, and the words of the server or else of the network.
    bool Taken() const { return m_taken; }
    const QString& Step() const { return m_step; }
    const QString& Answer() const { return m_answer; }

signals:
    // The end of every upload, after its count was lowered.
    void Completed(FTPClient* client, bool sent);

private:
    bool enter();
    void leave();
    QCoro::Task<> upload(Work& work, bool deferred);

    EventQueueBusy* m_count;
    QString m_remotePath;
    QString m_error;
    QString m_step;
    QString m_answer;
    bool m_taken = false;
    bool m_busy = false;
    bool m_leaving = false;
    Work m_work; // the last member: its end needs the others
};
