#pragma once

#include "device/bridge/DeviceAddress.h"
#include "platform/HttpClient.h"
#include "platform/Work.h"

#include <QObject>
#include <QStringList>
#include <unordered_map>

// Release kinds of a request number.
inline constexpr qint32 kReleaseQuery = 0;
inline constexpr qint32 kReleaseCgi = 1;
inline constexpr qint32 kReleaseAction = 2;

inline constexpr qint32 kRestingTimeout = 60; // seconds

// Negative results of a request. An HTTP status other than 200 to 299 and 401 gives the status negated.
enum WebResult : qint32
{
    kWebNotResolved = -1,
    kWebRefused = -2,
    kWebTimedOut = -3,
    kWebBrokenOff = -4,
    kWebTooLarge = -5,
    kWebBadRequest = -6,
    kWebClosing = -7,
    kWebNotSupported = -8,
    kWebStopped = -9 // the work that asked was stopped
};

// Reply of a request that a coroutine has awaited.
struct WebReply
{
    qint32 status = kWebStopped; // 0, or a negative result
    QString text;                // as WebBridge::GetCgiReply; empty with a negative result
};

// Requests to devices over HTTP. Coroutines await them on behalf of a work: Get and SendCmdXml. The others are
// numbered: a request has a number (from 1) until it is released; numbers are unique over all
// kinds. A request that is waited for runs the event loop meanwhile; an asynchronous one ends in RequestEnded.
class WebBridge : public QObject
{
    Q_OBJECT

public:
    explicit WebBridge(HttpClient& http, QObject* parent = nullptr);
    ~WebBridge() override;

    void Initialise(); // brings Timeout to rest and drops every request

    // Whole-request time-out of the next request, in seconds.
    qint32 Timeout() const { return m_timeout; }
    void SetTimeout(qint32 seconds) { m_timeout = seconds; }

    // GET of `url` (as for SendCgi) within `seconds`.
    QCoro::Task<WebReply> Get(DeviceAddress device, QString url, qint32 seconds, Work& work);
    // Sends one command document to the device (60 seconds). Result: the reply text, empty after any failure.
    QCoro::Task<QString> SendCmdXml(DeviceAddress device, QString xml, Work& work);

    // GET of `url` (POST when there is a body). url: path and query, sent byte for byte as UTF-8; of a whole
    // "http://…" URL the path and query are taken. fileName, the constant and outCode are the control's and without
    // effect. mode 1 waits for the reply. Result: the request number, or a negative number with nothing to release.
    qint32 SendCgi(const QString& address, qint32 port, const QString& user, const QString& password, qint32 constant,
                   const QString& url, const QString& fileName, const QString& body, qint32 mode, qint32& outCode);
    // GETs of several paths of one device, all under way at once and waited for together. The replies in the order of
    // the paths; an empty text for one that failed.
    QStringList GetTogether(const QString& address, qint32 port, const QString& user, const QString& password,
                            const QStringList& urls);
    // Reply text of a finished request, empty for an unknown or unfinished one. UTF-8, or Latin-1 where it is not
    // valid. A 401 gives the body, and "401 Unauthorized" when that does not hold "401".
    QString GetCgiReply(qint32 request) const;

    // POST of the form text `body` to /cmd.cgi. wait 1 waits for the reply. Result as SendCgi.
    qint32 SendAction(const QString& address, qint32 port, const QString& user, const QString& password,
                      qint32 constant, const QString& body, qint32 wait, qint32 flag);
    QString GetActionReply(qint32 request) const { return GetCgiReply(request); }

    // The binary interface. No device here has it: the results are negative, the values empty.
    qint32 SendQuery(const QString& address, qint32 port, const QString& user, const QString& password, qint32 constant,
                     qint32 kind, qint32 channel, qint32 flag, qint32 wait);
    QString GetQueryValue(qint32 key, qint32 request) const;
    qint32 OpenCommand(qint32 kind);
    qint32 SetCommandValue(qint32 command, qint32 key, const QString& text);
    qint32 RunCommand(const QString& address, qint32 port, const QString& user, const QString& password,
                      qint32 constant, qint32 channelMap, qint32 kind, qint32 flag, qint32 command);

    // Drops the reply of a finished request whose number stays taken.
    void DropReply(qint32 request);

    // Frees a number. One still under way ends without an event.
    void ReleaseRequest(qint32 kind, qint32 request);

    // Ends every request that is being waited for: its caller gets a negative number at once.
    void AbortWaited();

    // Numbers not released yet.
    qsizetype Outstanding() const { return static_cast<qsizetype>(m_requests.size()); }

signals:
    // A query or command ended (first form).
    void QueryEnded(qint32 request, qint32 value, qint32 status);
    // An asynchronous CGI request or action ended (second form). status: 0, or a negative result; the reply can be read
    // from a directly connected slot, and is gone afterwards when the status is negative.
    void RequestEnded(qint32 request, qint32 status);

private:
    struct Request
    {
        quint64 transfer = 0; // under way
        qint32 status = 0;
        bool finished = false;
        bool waited = false;
        QString reply;
    };

    QCoro::Task<WebReply> fetch(HttpRequest request, Work& work);
    qint32 start(HttpRequest request, bool waited);
    qint32 send(const HttpRequest& request, bool wait);
    bool ended(qint32 number) const;
    void finish(qint32 number, const HttpReply& reply);
    qint32 nextNumber();
    void dropOldest();

    HttpClient& m_http;
    std::unordered_map<qint32, Request> m_requests;
    qint32 m_timeout = kRestingTimeout;
    qint32 m_lastNumber = 0;
};

// Text of a reply's bytes: UTF-8, or Latin-1 where it is not valid UTF-8.
QString TextOfReply(const QByteArray& bytes);

// Sends one command document to the device (60 seconds) and waits. Result: the reply text, empty after any failure.
QString SendCmdXml(WebBridge& web, const DeviceAddress& device, const QString& xml);
// The same without waiting. Result: the request number that RequestEnded names, or a negative number.
qint32 StartCmdXml(WebBridge& web, const DeviceAddress& device, const QString& xml);
