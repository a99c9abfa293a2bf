#pragma once

#include "events/SendParts.h"
#include "platform/Work.h"

#include <QString>
#include <vector>

// Sends one mail at a time to one server (RFC 5321, with AUTH LOGIN; no encryption). Works on the thread that made it.
class SMTPClient : public QObject
{
    Q_OBJECT

public:
    // `busy`, where it is given, counts the sends of this client too; it outlives the client.
    explicit SMTPClient(EventQueueBusy* busy = nullptr, QObject* parent = nullptr);
    ~SMTPClient() override; // a send under way ends without its event

    QString ServerName;
    QString ServerPort = QStringLiteral("25");
    QString UserName; // without it or the password there is no login
    QString Password;
    QString SendFrom; // an address, or "name<address>"
    QString Subject;
    QString Body;     // Without both texts the mail is its header lines alone, without attachments. No text
    QString HTMLBody; // may hold a line "." alone: it would end the mail.
    QString HTMLCharset = QStringLiteral("iso-8859-1"); // of both texts
    QString Mailer = QStringLiteral("SMTP");
    // The client whose event tells of the ends of this one, itself where there is none. Outlives this one.
    SMTPClient* AlsoNotify = nullptr;

    void AddSendTo(const QString& address, const QString& name) { m_to.push_back({address, name}); }
    void AddCopyTo(const QString& address, const QString& name) { m_copies.push_back({address, name}); }
    void AddBlindCopyTo(const QString& address, const QString& name) { m_blindCopies.push_back({address, name}); }
    // The file is read while it is sent, as long as it was at the beginning of that. The name may be empty. A file that
    // cannot be read is a line in the log, and the mail goes without it.
    void AddAttachment(const QString& path, const QString& name) { m_attachments.push_back({path, name}); }

    // Sends in the background, also while the program is leaving. False with the reason in ErrorStr while a send is
    // under way. The properties stay as they are until its end.
    bool SendMail();
    // Sends on behalf of `work` and answers whether the mail went out; the client outlives it.
    QCoro::Task<bool> SendMailNow(Work& work);
    // Ends a send in the background through its ordinary failure path.
    void stop() { m_work.stop(); }

    bool busy() const { return m_busy; }
    // The step that failed in the last send, empty when there was none.
    const QString& ErrorStr() const { return m_error; }
    // What the server said to that step, else what the network said, as text of one line; empty when nobody spoke.
    const QString& Answer() const { return m_answer; }
    // The server has taken the mail, whatever became of the end of the session.
    bool Accepted() const { return m_accepted; }

signals:
    // The end of every send, after its count was lowered.
    void Completed(SMTPClient* client, bool sent);

private:
    struct Recipient
    {
        QString address;
        QString name;
    };
    struct Attachment
    {
        QString path;
        QString name;
    };
    struct Session;

    bool enter();
    void leave();
    QCoro::Task<> send(Work& work);
    QCoro::Task<> dialogue(Session& session);
    QCoro::Task<bool> login(Session& session);
    QCoro::Task<bool> envelope(Session& session);
    QCoro::Task<bool> content(Session& session);
    QCoro::Task<bool> attachment(Session& session, Attachment file);
    QByteArray head() const;
    QByteArray texts() const;
    QByteArray encoded(const QString& text) const;

    EventQueueBusy* m_count;
    std::vector<Recipient> m_to;
    std::vector<Recipient> m_copies;
    std::vector<Recipient> m_blindCopies;
    std::vector<Attachment> m_attachments;
    QString m_error;
    QString m_failure; // of the send under way
    QString m_answer;
    bool m_accepted = false;
    bool m_busy = false;
    bool m_leaving = false;
    Work m_work; // the last member: its end needs the others
};

// The lines of a file in base64 (RFC 4648), 60 characters each and ended by CR LF; `bytes` is a multiple of 45 but at
// the end of the file.
QByteArray Base64Lines(const QByteArray& bytes);
