#pragma once

#include "device/bridge/DeviceAddress.h"
#include "platform/Work.h"
#include "store/records/EventRecords.h"

class WebBridge;

// Tries of a server with the settings of a window, which need not be stored. Each awaits its server on behalf of
// `work`; stopped, it has failed.

struct SendOutcome
{
    bool sent = false;
    bool refused = false; // an upload that ended in time and was not taken counts as sent all the same
    QString step;         // that failed, in the words of the protocol; may be empty
    QString answer;       // what the server said to it, or the network; may be empty
};

// Mails a test to sMailReceipt.
QCoro::Task<SendOutcome> Mail_test(ListenServerRec server, Work& work);
// Uploads a small text file, which is made for it.
QCoro::Task<SendOutcome> FTP_test(ListenServerRec server, Work& work);
// Uploads a file under its own name. port 0: the protocol's own.
QCoro::Task<SendOutcome> SendFTP(ListenServerRec server, QString file, QString remotePath, Work& work);
// Asks an alert server for `url`, in 10 seconds. Any answer counts as sent, an error page included.
QCoro::Task<SendOutcome> SendAlert(WebBridge& web, DeviceAddress server, QString url, Work& work);

// What a negative result of a request to an alert server says; an HTTP status, which is an answer, as "HTTP 404".
QString AlertAnswer(qint32 status);
// Whether the server has answered at all.
bool AlertAnswered(qint32 status);
inline constexpr int kAlertSeconds = 10;
DeviceAddress AlertServer(const ListenServerRec& server);
