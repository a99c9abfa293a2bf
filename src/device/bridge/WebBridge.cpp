#include "device/bridge/WebBridge.h"

#include "platform/HttpFetch.h"
#include "platform/Wait.h"

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

HttpRequest RequestTo(const DeviceAddress& device)
{
    HttpRequest request;
    request.address = device.address;
    request.port = device.port;
    request.user = device.user;
    request.password = device.password;
    return request;
}

HttpRequest ActionTo(const DeviceAddress& device, const QString& body)
{
    HttpRequest request = RequestTo(device);
    request.target = "/cmd.cgi"_ba;
    request.post = true;
    request.body = body.toUtf8();
    return request;
}

QString CmdBody(const QString& xml)
{
    return u"type=action&xml="_s + xml;
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
    m_timeout = kRestingTimeout;
}

QCoro::Task<WebReply> WebBridge::fetch(HttpRequest request, Work& work)
{
    HttpFetch asked(m_http, std::move(request), work);
    const HttpReply reply = co_await asked;
    co_return ReplyOf(reply);
}

QCoro::Task<WebReply> WebBridge::Get(DeviceAddress device, QString url, qint32 seconds, Work& work)
{
    HttpRequest request = RequestTo(device);
    request.target = TargetOf(url);
    request.seconds = seconds;
    return fetch(std::move(request), work);
}

QCoro::Task<QString> WebBridge::SendCmdXml(DeviceAddress device, QString xml, Work& work)
{
    HttpRequest request = ActionTo(device, CmdBody(xml));
    request.seconds = kRestingTimeout;
    const WebReply reply = co_await fetch(std::move(request), work);
    co_return reply.text;
}

qint32 WebBridge::SendCgi(const QString& address, qint32 port, const QString& user, const QString& password, qint32,
                          const QString& url, const QString&, const QString& body, qint32 mode, qint32&)
{
    HttpRequest request = RequestTo({address, port, user, password});
    request.target = TargetOf(url);
    request.post = !body.isEmpty();
    request.body = body.toUtf8();
    return send(request, mode == 1);
}

qint32 WebBridge::SendAction(const QString& address, qint32 port, const QString& user, const QString& password, qint32,
                             const QString& body, qint32 wait, qint32)
{
    return send(ActionTo({address, port, user, password}, body), wait == 1);
}

qint32 WebBridge::start(HttpRequest request, bool waited)
{
    request.seconds = m_timeout;
    const qint32 number = nextNumber();
    m_requests[number].waited = waited;
    m_requests[number].transfer =
        m_http.start(request, [this, number](const HttpReply& reply) { finish(number, reply); });
    return number;
}

bool WebBridge::ended(qint32 number) const
{
    const auto found = m_requests.find(number);
    return found == m_requests.end() || found->second.finished;
}

QStringList WebBridge::GetTogether(const QString& address, qint32 port, const QString& user, const QString& password,
                                   const QStringList& urls)
{
    QStringList replies(urls.size());
    if (Closing())
        return replies;
    const QPointer<WebBridge> alive(this);
    std::vector<qint32> numbers;
    for (const QString& url : urls) {
        HttpRequest request = RequestTo({address, port, user, password});
        request.target = TargetOf(url);
        numbers.push_back(start(request, true));
    }
    const auto allEnded = [&] {
        return !alive || std::all_of(numbers.begin(), numbers.end(), [this](qint32 number) { return ended(number); });
    };
    WaitUntil(allEnded, m_timeout + 1.0);
    for (std::size_t i = 0; i < numbers.size() && alive; ++i) {
        const auto found = m_requests.find(numbers[i]);
        if (found == m_requests.end())
            continue;
        if (found->second.finished && found->second.status >= 0)
            replies[static_cast<qsizetype>(i)] = found->second.reply;
        ReleaseRequest(kReleaseCgi, numbers[i]);
    }
    return replies;
}

qint32 WebBridge::send(const HttpRequest& request, bool wait)
{
    if (wait && Closing())
        return kWebClosing;
    const QPointer<WebBridge> alive(this);
    const double seconds = m_timeout;
    const qint32 number = start(request, wait);
    if (!wait)
        return number;

    // The client ends every request by itself; the longer wait is only the second line.
    const WaitResult result = WaitUntil([&] { return !alive || ended(number); }, seconds + 1.0);
    if (!alive)
        return kWebClosing;
    const auto found = m_requests.find(number);
    if (found == m_requests.end())
        return kWebClosing;
    const qint32 status = found->second.finished          ? found->second.status
                          : result == WaitResult::Closing ? kWebClosing
                                                          : kWebTimedOut;
    if (status < 0) {
        ReleaseRequest(kReleaseCgi, number);
        return status;
    }
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
    const bool waited = request.waited;
    if (waited)
        return;
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

void WebBridge::DropReply(qint32 request)
{
    if (const auto found = m_requests.find(request); found != m_requests.end())
        found->second.reply = QString();
}

void WebBridge::ReleaseRequest(qint32, qint32 request)
{
    const auto found = m_requests.find(request);
    if (found == m_requests.end())
        return;
    m_http.cancel(found->second.transfer);
    m_requests.erase(found);
}

void WebBridge::AbortWaited()
{
    std::erase_if(m_requests, [this](const auto& entry) {
        const Request& request = entry.second;
        if (!request.waited || request.finished)
            return false;
        m_http.cancel(request.transfer);
        return true;
    });
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

namespace {

qint32 CarryXml(WebBridge& web, const DeviceAddress& device, const QString& xml, qint32 wait)
{
    web.SetTimeout(kRestingTimeout);
    return web.SendAction(device.address, device.port, device.user, device.password, 1, CmdBody(xml), wait, 1);
}

} // namespace

QString SendCmdXml(WebBridge& web, const DeviceAddress& device, const QString& xml)
{
    const qint32 request = CarryXml(web, device, xml, 1);
    if (request < 0)
        return {};
    const QString reply = web.GetActionReply(request);
    web.ReleaseRequest(kReleaseAction, request);
    return reply;
}

qint32 StartCmdXml(WebBridge& web, const DeviceAddress& device, const QString& xml)
{
    return CarryXml(web, device, xml, 0);
}
