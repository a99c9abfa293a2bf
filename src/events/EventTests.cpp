#include "events/EventTests.h"

#include "app/log/Module_Log.h"
#include "device/bridge/WebBridge.h"
#include "events/EventMail.h"
#include "events/FTPClient.h"
#include "platform/AppPath.h"
#include "platform/clsOSInfo.h"

#include <QFile>

using namespace Qt::StringLiterals;

QCoro::Task<SendOutcome> Mail_test(ListenServerRec server, Work& work)
{
    SMTPClient client;
    UseMailServer(client, server);
    client.AddSendTo(server.sMailReceipt.trimmed(), LocalPart(server.sMailFrom));
    client.Subject = u"This is test Mail from application of "_s + kProgramTitle;
    client.Body = client.Subject;
    client.HTMLBody = TestMailPage();
    const bool sent = co_await client.SendMailNow(work);
    SendOutcome outcome;
    outcome.sent = sent;
    outcome.step = client.ErrorStr();
    outcome.answer = client.Answer();
    co_return outcome;
}

QCoro::Task<SendOutcome> SendFTP(ListenServerRec server, QString file, QString remotePath, Work& work)
{
    FTPClient client;
    client.ServerName = server.sFTPserverIP;
    client.ServerPort = server.iFTPPort;
    client.UserName = server.sFTPUser;
    client.Password = server.sFTPPassword;
    client.FilePath = file;
    client.setRemotePath(remotePath);
    const bool sent = co_await client.SendFileNow(work);
    SendOutcome outcome;
    outcome.sent = sent;
    outcome.refused = !client.Taken();
    outcome.step = sent ? client.Step() : client.ErrorStr();
    outcome.answer = client.Answer();
    co_return outcome;
}

QCoro::Task<SendOutcome> FTP_test(ListenServerRec server, Work& work)
{
    const QString name =
        ListenTxtFile(u"Test of FTP send"_s, QString(kProgramTitle), LocalIPAddress(), CurrentUser(), u"_TEST"_s);
    const QString file = StationPath(u"\\log\\Listen\\") + name;
    const SendOutcome outcome = co_await SendFTP(server, file, server.sFTPPath, work);
    QFile::remove(file);
    co_return outcome;
}

QCoro::Task<SendOutcome> SendAlert(WebBridge& web, DeviceAddress server, QString url, Work& work)
{
    const WebReply reply = co_await web.Get(server, url, kAlertSeconds, work);
    SendOutcome outcome;
    outcome.sent = AlertAnswered(reply.status);
    outcome.answer = AlertAnswer(reply.status);
    co_return outcome;
}

bool AlertAnswered(qint32 status)
{
    return status >= 0 || status <= -100;
}

QString AlertAnswer(qint32 status)
{
    switch (status) {
    case kWebNotResolved:
        return u"The name of the server is not known"_s;
    case kWebRefused:
        return u"No connection to the server"_s;
    case kWebTimedOut:
        return u"The server does not answer"_s;
    case kWebBadRequest:
        return u"Address, port or text cannot be used"_s;
    case kWebStopped:
        return u"Stopped"_s;
    default:
        return status >= 0 ? QString() : status <= -100 ? u"HTTP %1"_s.arg(-status) : u"The connection broke off"_s;
    }
}

DeviceAddress AlertServer(const ListenServerRec& server)
{
    return {server.sAlertIP, server.iAlertPort, server.sAlertUser, server.sAlertPassword};
}
