#include "device/bridge/WebBridge.h"

#include "platform/HttpFetch.h"

#include <QPointer>
#include <QStringDecoder>
#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Replies that nobody has released: a caller that leaves its reply unread leaves one of these behind.
constexpr std::size_t kMaxUnreleased = 32;

qint32 StatusOf(const HttpReply& reply)
{
    switch (reply.failure) {
    case HttpFailure::None:
        return reply.succeeded() || reply.status == 401 ? 0 : -reply.status;
    case HttpFailure::BadRequest:
        return kWebBadRequest;
    case HttpFailure::NotResolved:
        return kWebNotResolved;
    case HttpFailure::Refused:
        return kWebRefused;
    case HttpFailure::TimedOut:
        return kWebTimedOut;
    case HttpFailure::BrokenOff:
        return kWebBrokenOff;
    case HttpFailure::TooLarge:
        return kWebTooLarge;
    case HttpFailure::Stopped:
        return kWebStopped;
    }
    return kWebBrokenOff;
}

HttpRequest ActionTo(const DeviceAddress& device, const QString& xml)
{
    HttpRequest request = RequestTo(device);
    request.target = "/cmd.cgi"_ba;
    request.post = true;
    request.body = QString(u"type=action&xml="_s + xml).toUtf8();
    request.seconds = kRestingTimeout;
    return request;
}

WebReply ReplyOf(const HttpReply& reply)
{
    WebReply result;
    result.status = StatusOf(reply);
    if (result.status < 0)
        return result;
    result.text = TextOfReply(reply.body);
    if (reply.status == 401 && !result.text.contains("401"_L1))
        result.text = u"401 Unauthorized"_s;
    return result;
}

// Path and query of what an operator or a builder wrote.
QByteArray TargetOf(const QString& url)
{
    QString target = url;
    if (target.startsWith("http://"_L1, Qt::CaseInsensitive)) {
        qsizetype path = 7;
        while (path < target.size() && !QStringView(u"/?#").contains(target[path]))
            ++path;
        target.remove(0, path);
    }
    if (!target.startsWith(u'/'))
        target.prepend(u'/');
    return target.toUtf8();
}

HttpRequest CgiTo(const DeviceAddress& device, const QString& url, qint32 seconds, const QString& body)
{
    HttpRequest request = RequestTo(device);
    request.target = TargetOf(url);
    request.post = !body.isEmpty();
    request.body = body.toUtf8();
    request.seconds = seconds;
    return request;
}

} // namespace

QString TextOfReply(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(bytes);
    // An unfinished sequence at the end is still inside the decoder: as invalid as any other.
    const QString rest = decoder.decode(QByteArrayView("\n"));
    if (decoder.hasError() || rest != "\n"_L1)
        return QString::fromLatin1(bytes);
    return text;
}

WebBridge::WebBridge(HttpClient& http, QObject* parent)
    : QObject(parent)
    , m_http(http)
{
}

WebBridge::~WebBridge()
{
    for (const auto& [number, request] : m_requests)
        m_http.cancel(request.transfer);
}

void WebBridge::Initialise()
{
    for (const auto& [number, request] : m_requests)
        m_http.cancel(request.transfer);
    m_requests.clear();
}

QCoro::Task<WebReply> WebBridge::fetch(HttpRequest request, Work& work)
{
    HttpFetch asked(m_http, std::move(request), work);
    const HttpReply reply = co_await asked;
    co_return ReplyOf(reply);
}

QCoro::Task<WebReply> WebBridge::Get(DeviceAddress device, QString url, qint32 seconds, Work& work, QString body)
{
    return fetch(CgiTo(device, url, seconds, body), work);
}

QCoro::Task<QString> WebBridge::SendCmdXml(DeviceAddress device, QString xml, Work& work)
{
    const WebReply reply = co_await fetch(ActionTo(device, xml), work);
    co_return reply.text;
}

qint32 WebBridge::SendCgi(const DeviceAddress& device, const QString& url, qint32 seconds, const QString& body)
{
    return start(CgiTo(device, url, seconds, body));
}

qint32 WebBridge::SendAction(const DeviceAddress& device, const QString& xml)
{
    return start(ActionTo(device, xml));
}

qint32 WebBridge::start(const HttpRequest& request)
{
    const qint32 number = nextNumber();
    m_requests[number].transfer =
        m_http.start(request, [this, number](const HttpReply& reply) { finish(number, reply); });
    return number;
}

void WebBridge::finish(qint32 number, const HttpReply& reply)
{
    const auto found = m_requests.find(number);
    if (found == m_requests.end())
        return;
    Request& request = found->second;
    request.transfer = 0;
    request.finished = true;
    const WebReply result = ReplyOf(reply);
    request.status = result.status;
    request.reply = result.text;
    const qint32 status = request.status;
    const QPointer<WebBridge> alive(this);
    emit RequestEnded(number, status);
    if (alive && status < 0)
        m_requests.erase(number);
}

QString WebBridge::GetCgiReply(qint32 request) const
{
    const auto found = m_requests.find(request);
    return found == m_requests.end() ? QString() : found->second.reply;
}

qint32 WebBridge::SendQuery(const QString&, qint32, const QString&, const QString&, qint32, qint32, qint32, qint32,
                            qint32)
{
    return kWebNotSupported;
}

QString WebBridge::GetQueryValue(qint32, qint32) const
{
    return {};
}

qint32 WebBridge::OpenCommand(qint32)
{
    return kWebNotSupported;
}

qint32 WebBridge::SetCommandValue(qint32, qint32, const QString&)
{
    return kWebNotSupported;
}

qint32 WebBridge::RunCommand(const QString&, qint32, const QString&, const QString&, qint32, qint32, qint32, qint32,
                             qint32)
{
    return kWebNotSupported;
}

void WebBridge::ReleaseRequest(qint32, qint32 request)
{
    const auto found = m_requests.find(request);
    if (found == m_requests.end())
        return;
    m_http.cancel(found->second.transfer);
    m_requests.erase(found);
}

qint32 WebBridge::nextNumber()
{
    dropOldest();
    do {
        m_lastNumber = m_lastNumber == std::numeric_limits<qint32>::max() ? 1 : m_lastNumber + 1;
    } while (m_requests.contains(m_lastNumber));
    return m_lastNumber;
}

void WebBridge::dropOldest()
{
    if (m_requests.size() < kMaxUnreleased)
        return;
    auto oldest = m_requests.end();
    for (auto it = m_requests.begin(); it != m_requests.end(); ++it) {
        if (it->second.finished && (oldest == m_requests.end() || it->first < oldest->first))
            oldest = it;
    }
    if (oldest != m_requests.end())
        m_requests.erase(oldest);
}
