#include "events/Form_SendEvent.h"

#include "app/log/Module_Log.h"
#include "device/bridge/Form_COM.h"
#include "device/bridge/ModuleCGI.h"
#include "events/EventMail.h"
#include "events/EventTests.h"
#include "platform/AppPath.h"
#include "platform/Clock.h"
#include "platform/Sound.h"
#include "platform/clsOSInfo.h"
#include "support/Conversions.h"
#include "support/TimeSeconds.h"

#include <QFile>
#include <QPointer>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostMails = 11;
constexpr int kMostUploads = 4;
constexpr int kMostAlerts = 11;
constexpr int kRestSeconds = 600;
constexpr int kLateSeconds = 60;

// Fields of the items.
constexpr int kMailAddressee = 2;
constexpr int kMailText = 5;
constexpr int kMailSeconds = 6;
constexpr int kMailAttach = 7;
constexpr int kUploadFile = 4;
constexpr int kUploadPath = 5;
constexpr int kAlertUrl = 4;

void LogItem(const char* procedure, const QString& text)
{
    LogSave(QString(CMS_Core), LogRecord, CurrentUser(), u"formSendEvent - "_s + QLatin1String(procedure), text);
}

QString ServerName(int server)
{
    return server < 0 ? u"a former server"_s : u"server %1"_s.arg(server + 1);
}

QString MailItem(const QString& addressee, const QString& text, qint32 seconds, bool attach)
{
    return QString(kProgramTitle) + u",," + addressee + u",,," + text + u',' + QString::number(seconds) + u',' +
           QLatin1Char(attach ? '1' : '0') + u",0,,,0";
}

} // namespace

Form_SendEvent::Form_SendEvent(EventServerSet& servers, const EventHandlingSet& handling, Form_COM& com)
    : m_servers(servers)
    , m_handling(handling)
    , m_com(com)
{
    m_timer.setInterval(500);
    connect(&m_timer, &QTimer::timeout, this, &Form_SendEvent::CheckNeedToSend);
    connect(&oscNotify, &SMTPClient::Completed, this, &Form_SendEvent::mailEnded);
    connect(&ofcNotify, &FTPClient::Completed, this, &Form_SendEvent::uploadEnded);
    connect(&com.web, &WebBridge::RequestEnded, this, &Form_SendEvent::alertEnded);
}

Form_SendEvent::~Form_SendEvent()
{
    endSends();
}

void Form_SendEvent::SendQueueStr_Set(const QString& text, bool attach)
{
    queue(m_handling.stored, text, attach);
}

void Form_SendEvent::SendEventTest(EventHandlingRecord page, EventAction action, const QString& text)
{
    page.bTriActMail = action == EventAction::Mail;
    page.bTriActFTP = action == EventAction::FTP;
    page.bTriActHttpMsg = action == EventAction::Alert;
    page.bTriActSound = action == EventAction::Sound;
    queue(page, text, false);
}

void Form_SendEvent::queue(const EventHandlingRecord& handling, const QString& text, bool attach)
{
    Trapped("formSendEvent - SendQueueStr_Set", [&] {
        const auto& servers = m_servers.stored;
        if (handling.bTriActSound)
            playSounds();
        if (handling.bTriActMail) {
            const qint32 now = TimeToSeconds(Now());
            const QStringList addressees = handling.strMailAddress.split(u',');
            for (const QString& addressee : addressees) {
                if (!addressee.trimmed().isEmpty())
                    List1[0] << MailItem(addressee.trimmed(), text, now, attach);
            }
        }
        for (int i = 0; i < kEventServers && handling.bTriActFTP; ++i) {
            const ListenServerRec& server = At(servers, i);
            if (server.sFTPserverIP.isEmpty())
                continue;
            const QString file = ListenTxtFile(text, QString(kProgramTitle), LocalIPAddress(), CurrentUser(),
                                               QString::number(i + 1) + u"_FTP");
            List1[1] << QStringList{server.sFTPserverIP,
                                    QString::number(server.iFTPPort),
                                    server.sFTPUser,
                                    server.sFTPPassword,
                                    StationPath(u"\\log\\Listen\\") + file,
                                    handling.strFTPUploadPath,
                                    u"0"_s}
                            .join(u',');
        }
        for (const ListenServerRec& server : servers) {
            if (handling.bTriActHttpMsg && !server.sAlertIP.isEmpty())
                List1[2] << QStringList{server.sAlertIP, QString::number(server.iAlertPort), server.sAlertUser,
                                        server.sAlertPassword, handling.strHttpMsgContent}
                                .join(u',');
        }
    });
    emit sendsChanged();
}

// Each sound once; the station's own where no server has another one.
void Form_SendEvent::playSounds()
{
    const auto& servers = m_servers.stored;
    const auto isOwn = [](const ListenServerRec& server) {
        return !server.sWarningPath.isEmpty() && server.sWarningPath != DefaultWarningPath();
    };
    const bool own = std::any_of(servers.begin(), servers.end(), isOwn);
    QStringList played;
    for (int i = 0; i < kEventServers; ++i) {
        const QString path = At(servers, i).sWarningPath;
        if (path.isEmpty() || played.contains(path) || (own && !isOwn(At(servers, i))))
            continue;
        played << path;
        PlaySound(path, [self = QPointer(this), i, path](const QString& fault) {
            if (!self)
                return;
            self->note(EventAction::Sound, i, fault.isEmpty(), {}, fault);
            if (!fault.isEmpty())
                LogItem("SendQueueStr_Set", u"Sound %1: %2"_s.arg(path, fault));
        });
    }
}

void Form_SendEvent::CheckNeedToSend()
{
    Trapped("formSendEvent - CheckNeedToSend", [&] { takeMail(); });
    Trapped("formSendEvent - CheckNeedToSend", [&] { takeUpload(); });
    Trapped("formSendEvent - CheckNeedToSend", [&] { takeAlert(); });
}

int Form_SendEvent::pendingItems() const
{
    return static_cast<int>(List1[0].size() + List1[1].size() + List1[2].size());
}

void Form_SendEvent::takeMail()
{
    if (List1[0].isEmpty() || m_busy.mails >= kMostMails)
        return;
    const QStringList fields = List1[0].takeFirst().split(u',');
    const qint32 seconds = fields.value(kMailSeconds).toInt();
    if (seconds > 0 && TimeToSeconds(Now()) - seconds > kLateSeconds)
        LogItem("SendMail", u"A mail to %1 goes late: %2"_s.arg(fields.value(kMailAddressee), fields.value(kMailText)));
    if (m_servers.stored[0].lLastSend != 0 && m_servers.stored[1].lLastSend != 0) {
        stamp(0, 0);
        stamp(1, 0);
    }
    sendMail(fields, 0);
}

// The servers are fail-overs: from `server` on the first one that may be tried has its turn.
void Form_SendEvent::sendMail(const QStringList& fields, int server)
{
    const QString addressee = fields.value(kMailAddressee);
    while (server < kEventServers && (At(m_servers.stored, server).sMailFrom.isEmpty() || rests(server)))
        ++server;
    if (server >= kEventServers) {
        LogItem("SendMail", u"No server left for the mail to %1: %2"_s.arg(addressee, fields.value(kMailText)));
        emit sendsChanged();
        return;
    }
    Mail mail{std::make_unique<SMTPClient>(&m_busy), fields, server};
    SMTPClient& client = *mail.client;
    UseMailServer(client, At(m_servers.stored, server));
    client.AddSendTo(addressee, LocalPart(addressee));
    client.Subject = u"Event Mail from "_s + kProgramTitle;
    client.HTMLBody = EventMailPage(fields.value(kMailText), fields.value(kMailSeconds).toInt(), CurrentUser());
    if (fields.value(kMailAttach) == "1"_L1 && !CurrentSnapshot.isEmpty())
        client.AddAttachment(StationPath(u"\\Img_tmp\\") + CurrentSnapshot, {});
    client.AlsoNotify = &oscNotify;
    m_mails.push_back(std::move(mail));
    client.SendMail();
    emit sendsChanged();
}

void Form_SendEvent::mailEnded(SMTPClient* client, bool sent)
{
    const auto found = std::find_if(m_mails.begin(), m_mails.end(),
                                    [client](const Mail& mail) { return mail.client.get() == client; });
    if (found == m_mails.end())
        return;
    const Mail mail = std::move(*found);
    m_mails.erase(found);
    if (!sent)
        LogItem("SendMail", u"Mail to %1, %2: %3. %4"_s.arg(mail.fields.value(kMailAddressee), ServerName(mail.server),
                                                            client->ErrorStr(), client->Answer()));
    // A server that has taken the mail and then leaves without a word has taken it.
    const bool taken = sent || client->Accepted();
    stamp(mail.server, taken ? 0 : TimeToSeconds(Now()));
    note(EventAction::Mail, mail.server, taken, client->ErrorStr(), client->Answer());
    if (!taken)
        sendMail(mail.fields, mail.server + 1);
}

void Form_SendEvent::stamp(int server, qint32 seconds)
{
    At(m_servers.stored, server).lLastSend = seconds;
    At(m_servers.edit, server).lLastSend = seconds; // which is the stored one after the next save
}

// A stamp that lies ahead is from before the clock was set back: nobody knows for how long to rest.
bool Form_SendEvent::rests(int server) const
{
    const qint32 stamp = At(m_servers.stored, server).lLastSend;
    const qint64 since = qint64(TimeToSeconds(Now())) - stamp;
    return stamp != 0 && since >= 0 && since <= kRestSeconds;
}

void Form_SendEvent::takeUpload()
{
    if (List1[1].isEmpty() || m_busy.uploads >= kMostUploads)
        return;
    const QStringList fields = List1[1].takeFirst().split(u',');
    Upload upload{std::make_unique<FTPClient>(&m_busy), serverOf(EventAction::FTP, fields)};
    FTPClient& client = *upload.client;
    client.ServerName = fields.value(0);
    client.ServerPort = fields.value(1).toInt();
    client.UserName = fields.value(2);
    client.Password = fields.value(3);
    client.FilePath = fields.value(kUploadFile);
    client.setRemotePath(fields.value(kUploadPath));
    client.AlsoNotify = &ofcNotify;
    // Two events within a second stand in one file.
    client.StillNeeded = [this, own = &client](const QString& file) {
        const auto names = [&](const QString& item) { return item.split(u',').value(kUploadFile) == file; };
        const auto sends = [&](const Upload& other) {
            return other.client.get() != own && other.client && other.client->FilePath == file;
        };
        return std::any_of(List1[1].begin(), List1[1].end(), names) ||
               std::any_of(m_uploads.begin(), m_uploads.end(), sends);
    };
    m_uploads.push_back(std::move(upload));
    client.SendFile();
    emit sendsChanged();
}

// What the server said to the file does not count for the queue, but the operator sees it.
void Form_SendEvent::uploadEnded(FTPClient* client, bool sent)
{
    const auto found = std::find_if(m_uploads.begin(), m_uploads.end(),
                                    [client](const Upload& upload) { return upload.client.get() == client; });
    if (found == m_uploads.end())
        return;
    const Upload upload = std::move(*found);
    m_uploads.erase(found);
    const QString step = sent ? client->Step() : client->ErrorStr();
    if (!client->Taken())
        LogItem("SendFTP", u"Upload of %1 to %2, %3: %4. %5"_s.arg(FileNameOf(client->FilePath), client->ServerName,
                                                                   ServerName(upload.server), step, client->Answer()));
    note(EventAction::FTP, upload.server, client->Taken(), step, client->Answer());
}

void Form_SendEvent::takeAlert()
{
    if (List1[2].isEmpty() || m_busy.alerts >= kMostAlerts)
        return;
    const QString item = List1[2].takeFirst();
    const QStringList fields = item.split(u',');
    const DeviceAddress address{fields.value(0), fields.value(1).toInt(), fields.value(2), fields.value(3)};
    const qint16 slot = m_com.GetFreeSlot(kAlertSlot);
    const QString number = CgiStart(m_com.web, address, item.section(u',', kAlertUrl), kAlertSeconds);
    At(m_com.AlertRequests, slot).RequestID = number.toInt();
    m_alerts.push_back({number.toInt(), serverOf(EventAction::Alert, fields)});
    ++m_busy.alerts;
    emit sendsChanged();
}

void Form_SendEvent::alertEnded(qint32 request, qint32 status)
{
    const auto found = std::find_if(m_alerts.begin(), m_alerts.end(),
                                    [request](const Alert& alert) { return alert.request == request; });
    if (found == m_alerts.end())
        return;
    const Alert alert = *found;
    m_alerts.erase(found);
    --m_busy.alerts;
    if (!AlertAnswered(status))
        LogItem("SendAlert", u"Alert to %1: %2"_s.arg(ServerName(alert.server), AlertAnswer(status)));
    note(EventAction::Alert, alert.server, AlertAnswered(status), {}, AlertAnswer(status));
}

// The clients look for one another while they end.
void Form_SendEvent::endSends()
{
    const auto mails = std::exchange(m_mails, {});
    const auto uploads = std::exchange(m_uploads, {});
}

void Form_SendEvent::cancel()
{
    const auto dropped = std::exchange(List1, {});
    for (const QString& item : dropped[0] + dropped[1] + dropped[2])
        LogItem("CheckNeedToSend", u"Dropped: "_s + QStringList{item.split(u',')[0], item.section(u',', 4)}.join(u' '));
    endSends();
    for (const Alert& alert : std::exchange(m_alerts, {})) {
        m_com.web.ReleaseRequest(kReleaseCgi, alert.request);
        for (EventRequest& row : m_com.AlertRequests) {
            if (row.RequestID == alert.request)
                row = EventRequest();
        }
    }
    m_busy.alerts = 0;
    for (const QString& item : dropped[1])
        QFile::remove(item.split(u',').value(kUploadFile));
    emit sendsChanged();
}

// The first server that an item's address, port and user are of, or -1.
int Form_SendEvent::serverOf(EventAction action, const QStringList& item) const
{
    const bool ftp = action == EventAction::FTP;
    for (int i = 0; i < kEventServers; ++i) {
        const ListenServerRec& server = At(m_servers.stored, i);
        if (item.value(0) == (ftp ? server.sFTPserverIP : server.sAlertIP) &&
            item.value(1).toInt() == (ftp ? server.iFTPPort : server.iAlertPort) &&
            item.value(2) == (ftp ? server.sFTPUser : server.sAlertUser))
            return i;
    }
    return -1;
}

void Form_SendEvent::note(EventAction action, int server, bool sent, const QString& step, const QString& answer)
{
    if (server >= 0) {
        ServerSends& sends = At(At(m_sends, static_cast<int>(action)), server);
        (sent ? sends.lastSuccess : sends.lastFailure) = Now();
        if (!sent) {
            sends.step = step;
            sends.answer = answer;
        }
    }
    emit sendsChanged();
}

ServerSends Form_SendEvent::sends(EventAction action, int server) const
{
    ServerSends sends = At(At(m_sends, static_cast<int>(action)), server);
    const auto isOf = [server](const auto& send) { return send.server == server; };
    const auto itemsFor = [&](const QStringList& items) {
        return static_cast<int>(std::count_if(items.begin(), items.end(), [&](const QString& item) {
            return serverOf(action, item.split(u',')) == server;
        }));
    };
    const auto mayTry = [this](int other) { return !At(m_servers.stored, other).sMailFrom.isEmpty() && !rests(other); };
    switch (action) {
    case EventAction::Mail: {
        int next = 0;
        while (next < kEventServers && !mayTry(next))
            ++next;
        sends.waiting = next == server ? static_cast<int>(List1[0].size()) : 0;
        sends.underWay = static_cast<int>(std::count_if(m_mails.begin(), m_mails.end(), isOf));
        if (rests(server))
            sends.restsUntil = SecondsToTime(At(m_servers.stored, server).lLastSend + kRestSeconds);
        break;
    }
    case EventAction::FTP:
        sends.waiting = itemsFor(List1[1]);
        sends.underWay = static_cast<int>(std::count_if(m_uploads.begin(), m_uploads.end(), isOf));
        break;
    case EventAction::Alert:
        sends.waiting = itemsFor(List1[2]);
        sends.underWay = static_cast<int>(std::count_if(m_alerts.begin(), m_alerts.end(), isOf));
        break;
    case EventAction::Sound:
        break;
    }
    return sends;
}
