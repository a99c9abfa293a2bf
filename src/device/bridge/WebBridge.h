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
    kWebNotSupported = -8,
    kWebStopped = -9 // the work that asked was stopped
};

// Reply of a request that a coroutine has awaited.
struct WebReply
{
    qint32 status = kWebStopped; // 0, or a negative result
    QString text;                // as WebBridge::GetCgiReply; empty with a negative result
};

// Requests to devices over HTTP. Coroutines await them on behalf of a work: Get and SendCmdXml. The others have a
// number (from 1, unique over all kinds) until it is released, and end in RequestEnded.
class WebBridge : public QObject
{
    Q_OBJECT

public:
    explicit WebBridge(HttpClient& http, QObject* parent = nullptr);
    ~WebBridge() override;

    void Initialise(); // drops every request

    // GET of `url` (POST when there is a body) within `seconds`. url: path and query, sent byte for byte as UTF-8; of a
    // whole "http://…" URL the path and query are taken.
    QCoro::Task<WebReply> Get(DeviceAddress device, QString url, qint32 seconds, Work& work, QString body = {});
    // Sends one command document to the device (60 seconds). Result: the reply text, empty after any failure.
    QCoro::Task<QString> SendCmdXml(DeviceAddress device, QString xml, Work& work);

    // The same without awaiting it. Result: the request number that RequestEnded names.
    qint32 SendCgi(const DeviceAddress& device, const QString& url, qint32 seconds, const QString& body = {});
    // One command document (60 seconds), likewise.
    qint32 SendAction(const DeviceAddress& device, const QString& xml);
    // Reply text of a finished request, empty for an unknown or unfinished one. UTF-8, or Latin-1 where it is not
    // valid. A 401 gives the body, and "401 Unauthorized" when that does not hold "401".
    QString GetCgiReply(qint32 request) const;

    QString GetActionReply(qint32 request) const { return GetCgiReply(request); }

    // The binary interface. No device here has it: the results are negative, the values empty.
    qint32 SendQuery(const QString& address, qint32 port, const QString& user, const QString& password, qint32 constant,
                     qint32 kind, qint32 channel, qint32 flag, qint32 wait);
    QString GetQueryValue(qint32 key, qint32 request) const;
    qint32 OpenCommand(qint32 kind);
    qint32 SetCommandValue(qint32 command, qint32 key, const QString& text);
    qint32 RunCommand(const QString& address, qint32 port, const QString& user, const QString& password,
                      qint32 constant, qint32 channelMap, qint32 kind, qint32 flag, qint32 command);

    // Frees a number. One still under way ends without an event.
    void ReleaseRequest(qint32 kind, qint32 request);

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
        QString reply;
    };

    QCoro::Task<WebReply> fetch(HttpRequest request, Work& work);
    qint32 start(const HttpRequest& request);
    void finish(qint32 number, const HttpReply& reply);
    qint32 nextNumber();
    void dropOldest();

    HttpClient& m_http;
    std::unordered_map<qint32, Request> m_requests;
    qint32 m_lastNumber = 0;
};

// Text of a reply's bytes: UTF-8, or Latin-1 where it is not valid UTF-8.
QString TextOfReply(const QByteArray& bytes);
