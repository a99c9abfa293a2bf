#pragma once

#include "events/EventStore.h"
#include "events/FTPClient.h"
#include "events/SMTPClient.h"

#include <QDateTime>
#include <QStringList>
#include <QTimer>
#include <memory>
#include <vector>

class Form_COM;

// What became of the sends of one kind to one server in this run.
struct ServerSends
{
    int waiting = 0; // items that go to it next; of mails all, at the server that would take them now
    int underWay = 0;
    QDateTime lastSuccess;
    QDateTime lastFailure;
    QString step;         // that failed last, in the words of the protocol; may be empty
    QString answer;       // what the server, or the network, said to that
    QDateTime restsUntil; // a mail server that failed is passed over until then; invalid: it does not rest
};

// The hidden form of notifications: three queues that a timer empties, one item each every half second. Nothing that it
// does is waited for. Works on the thread that made it.
class Form_SendEvent : public QObject
{
    Q_OBJECT

public:
    // The records are looked at when an event is queued and when an item is sent. All of it outlives this object.
    Form_SendEvent(EventServerSet& servers, const EventHandlingSet& handling, Form_COM& com);
    ~Form_SendEvent() override; // sends under way end

    // Does what the stored event handling asks for: plays sounds, queues mails, uploads and alerts. With `attach` the
    // mails carry the present snapshot.
    void SendQueueStr_Set(const QString& text, bool attach);
    // The same for one action alone, with the texts of `page` whatever its switches.
    void SendEventTest(EventHandlingRecord page, EventAction action, const QString& text);

    void startTimer() { m_timer.start(); }
    void stopTimer() { m_timer.stop(); }
    bool timerStopped() const { return !m_timer.isActive(); }
    // Takes the first item of each queue, unless as many of its kind are under way as may be.
    void CheckNeedToSend();

    int pendingItems() const; // that wait in all queues
    int sendsUnderWay() const { return m_busy.mails + m_busy.uploads + m_busy.alerts; }
    // Drops what waits and ends what is under way.
    void cancel();

    // Of server `server` (from 0), also of an action without queue (sound).
    ServerSends sends(EventAction action, int server) const;

    QString CurrentSnapshot; // the present snapshot's file name in \Img_tmp\, empty for none

signals:
    void sendsChanged();

private:
    struct Mail
    {
        std::unique_ptr<SMTPClient> client;
        QStringList fields;
        int server;
    };
    struct Upload
    {
        std::unique_ptr<FTPClient> client;
        int server; // -1: none of the present ones
    };
    struct Alert
    {
        qint32 request;
        int server;
    };

    void queue(const EventHandlingRecord& handling, const QString& text, bool attach);
    void playSounds();
    void takeMail();
    void takeUpload();
    void takeAlert();
    void sendMail(const QStringList& fields, int server);
    void mailEnded(SMTPClient* client, bool sent);
    void uploadEnded(FTPClient* client, bool sent);
    void alertEnded(qint32 request, qint32 status);
    void endSends();
    void stamp(int server, qint32 seconds);
    bool rests(int server) const;
    int serverOf(EventAction action, const QStringList& item) const;
    void note(EventAction action, int server, bool sent, const QString& step, const QString& answer);

    EventServerSet& m_servers;
    const EventHandlingSet& m_handling;
    Form_COM& m_com;
    EventQueueBusy m_busy;
    std::array<QStringList, 3> List1; // mail, upload, alert; an item is a text of fields parted by commas
    SMTPClient oscNotify;
    FTPClient ofcNotify;
    std::vector<Mail> m_mails;
    std::vector<Upload> m_uploads;
    std::vector<Alert> m_alerts;
    std::array<std::array<ServerSends, kEventServers>, kEventActions> m_sends;
    QTimer m_timer;
};
