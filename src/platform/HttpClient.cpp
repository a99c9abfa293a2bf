#include "platform/HttpClient.h"

#include "platform/CurlLibrary.h"
#include "platform/HttpDigest.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QRandomGenerator>
#include <QSocketNotifier>
#include <QTimer>
#include <curl/curl.h>
#include <deque>
#include <unordered_map>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMaxHeaderBytes = 256 * 1024;
constexpr std::size_t kIdleHandles = 8;
constexpr long kKeptConnections = 32;

// The target in a form that the library's URL parser takes; the request line carries the target itself.
QByteArray UrlTarget(const QByteArray& target)
{
    QByteArray url;
    url.reserve(target.size());
    for (const char c : target) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte <= 0x20 || byte == 0x7f || c == '#')
            url += '%' + QByteArray::number(byte, 16).toUpper().rightJustified(2, '0');
        else
            url += c;
    }
    return url;
}

HttpFailure FailureOf(CURLcode code)
{
    switch (code) {
    case CURLE_OK:
        return HttpFailure::None;
    case CURLE_URL_MALFORMAT:
        return HttpFailure::BadRequest;
    case CURLE_COULDNT_RESOLVE_HOST:
        return HttpFailure::NotResolved;
    case CURLE_COULDNT_CONNECT:
        return HttpFailure::Refused;
    case CURLE_OPERATION_TIMEDOUT:
        return HttpFailure::TimedOut;
    case CURLE_FILESIZE_EXCEEDED:
        return HttpFailure::TooLarge;
    default:
        return HttpFailure::BrokenOff;
    }
}

struct Transfer
{
    quint64 handle = 0;
    HttpRequest request;
    HttpDone done;
    HttpReply reply;
    QByteArray host;
    CURL* easy = nullptr;
    curl_slist* fields = nullptr; // header fields of its own
    QDeadlineTimer deadline;
    QList<QByteArray> challenges; // values of WWW-Authenticate
    QByteArray nonce;             // answered by this request; empty: no Digest
    bool again = false;           // sent a second time, with another authentication
    bool tooLarge = false;
    qsizetype headerBytes = 0;
    bool headerEnded = false; // the empty line of the present header has come

    QString peer() const
    {
        return QString::fromLatin1(host) + u':' + QString::number(request.port) + u' ' + request.user;
    }
};

std::size_t TakeBody(char* data, std::size_t size, std::size_t count, void* user)
{
    auto& transfer = *static_cast<Transfer*>(user);
    const auto bytes = static_cast<qsizetype>(size * count);
    if (transfer.reply.body.size() + bytes > transfer.request.maxBytes) {
        transfer.tooLarge = true;
        return 0;
    }
    transfer.reply.body.append(data, bytes);
    return size * count;
}

std::size_t TakeHeader(char* data, std::size_t size, std::size_t count, void* user)
{
    auto& transfer = *static_cast<Transfer*>(user);
    transfer.headerBytes += static_cast<qsizetype>(size * count);
    if (transfer.headerBytes > kMaxHeaderBytes) {
        transfer.tooLarge = true;
        return 0;
    }
    const QByteArrayView line(data, static_cast<qsizetype>(size * count));
    constexpr QByteArrayView challenge("www-authenticate:");
    if (line.startsWith("HTTP/")) {
        transfer.headerEnded = false;
        transfer.challenges.clear();
    } else if (line.size() > challenge.size() &&
               qstrnicmp(line.data(), challenge.data(), static_cast<std::size_t>(challenge.size())) == 0) {
        transfer.challenges += line.sliced(challenge.size()).toByteArray().trimmed();
    } else if (line.startsWith('\r') || line.startsWith('\n')) {
        transfer.headerEnded = true; // and stays so through the trailer of a chunked body
    }
    return size * count;
}

} // namespace

// The multi interface says which sockets and which moment it waits for; notifiers and one timer of the event loop call
// it back. Callbacks of requests run after the library has returned, one at a time, and may wait themselves.
class HttpClient::Engine : public QObject
{
public:
    Engine()
    {
        SetUpCurl();
        m_multi = curl_multi_init();
        if (!m_multi)
            throw std::bad_alloc();
        curl_multi_setopt(m_multi, CURLMOPT_SOCKETFUNCTION, &Engine::watchSocket);
        curl_multi_setopt(m_multi, CURLMOPT_SOCKETDATA, this);
        curl_multi_setopt(m_multi, CURLMOPT_TIMERFUNCTION, &Engine::setTimer);
        curl_multi_setopt(m_multi, CURLMOPT_TIMERDATA, this);
        curl_multi_setopt(m_multi, CURLMOPT_MAXCONNECTS, kKeptConnections);
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, this, [this] { act(CURL_SOCKET_TIMEOUT, 0); });
    }

    ~Engine() override
    {
        for (auto& [handle, transfer] : m_open) {
            curl_multi_remove_handle(m_multi, transfer->easy);
            curl_easy_cleanup(transfer->easy);
            curl_slist_free_all(transfer->fields);
        }
        for (CURL* easy : m_idle)
            curl_easy_cleanup(easy);
        curl_multi_cleanup(m_multi);
    }

    quint64 start(const HttpRequest& request, HttpDone done)
    {
        auto transfer = std::make_unique<Transfer>();
        transfer->handle = ++m_lastHandle;
        transfer->request = request;
        transfer->done = std::move(done);
        transfer->host = UrlHost(request.address);
        transfer->deadline.setRemainingTime(qMax<qint64>(1, static_cast<qint64>(request.seconds * 1000.0)));
        const quint64 handle = transfer->handle;

        const QByteArray& target = request.target;
        if (transfer->host.isEmpty() || request.port < 1 || request.port > 65535 || target.contains('\r') ||
            target.contains('\n') || target.contains('\0')) {
            transfer->reply.failure = HttpFailure::BadRequest;
            transfer->reply.error = u"Address, port or path cannot be used"_s;
            m_finished.push_back(std::move(transfer));
        } else {
            add(*transfer);
            m_open.emplace(handle, std::move(transfer));
            run(CURL_SOCKET_TIMEOUT, 0);
        }
        deliverLater();
        return handle;
    }

    void cancel(quint64 handle)
    {
        if (const auto found = m_open.find(handle); found != m_open.end()) {
            retire(*found->second);
            m_open.erase(found);
        }
        std::erase_if(m_finished, [&](const auto& transfer) { return transfer->handle == handle; });
    }

    qsizetype open() const { return static_cast<qsizetype>(m_open.size() + m_finished.size()); }

private:
    struct Watch
    {
        QSocketNotifier read;
        QSocketNotifier write;
        explicit Watch(curl_socket_t socket)
            : read(socket, QSocketNotifier::Read)
            , write(socket, QSocketNotifier::Write)
        {
        }
    };

    void add(Transfer& transfer)
    {
        if (m_idle.empty()) {
            transfer.easy = curl_easy_init();
            if (!transfer.easy)
                throw std::bad_alloc();
        } else {
            transfer.easy = m_idle.back();
            m_idle.pop_back();
            curl_easy_reset(transfer.easy);
        }
        CURL* const easy = transfer.easy;
        const HttpRequest& request = transfer.request;
        const QByteArray target = request.target.isEmpty() ? QByteArrayLiteral("/") : request.target;
        const QByteArray url = "http://" + transfer.host + ':' + QByteArray::number(request.port) +
                               (target.startsWith('/') ? "" : "/") + UrlTarget(target);
        curl_easy_setopt(easy, CURLOPT_URL, url.constData());
        curl_easy_setopt(easy, CURLOPT_REQUEST_TARGET, target.constData());
        curl_easy_setopt(easy, CURLOPT_PATH_AS_IS, 1L);
        curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http");
        curl_easy_setopt(easy, CURLOPT_PROXY, "");
        curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L); // giving up never waits for the system's resolver
        curl_easy_setopt(easy, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
        curl_easy_setopt(easy, CURLOPT_TIMEOUT_MS,
                         static_cast<long>(qMax<qint64>(1, transfer.deadline.remainingTime())));
        curl_easy_setopt(easy, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(request.maxBytes));
        curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, &TakeBody);
        curl_easy_setopt(easy, CURLOPT_WRITEDATA, &transfer);
        curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, &TakeHeader);
        curl_easy_setopt(easy, CURLOPT_HEADERDATA, &transfer);
        curl_easy_setopt(easy, CURLOPT_PRIVATE, &transfer);
        if (request.post) {
            addField(transfer, "Expect:");
            curl_easy_setopt(easy, CURLOPT_POST, 1L);
            curl_easy_setopt(easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.body.size()));
            curl_easy_setopt(easy, CURLOPT_POSTFIELDS, request.body.constData());
        }
        authenticate(transfer, target);
        curl_easy_setopt(easy, CURLOPT_HTTPHEADER, transfer.fields);
        curl_multi_add_handle(m_multi, easy);
    }

    static void addField(Transfer& transfer, const QByteArray& field)
    {
        curl_slist* const longer = curl_slist_append(transfer.fields, field.constData());
        if (!longer)
            throw std::bad_alloc();
        transfer.fields = longer;
    }

    // Basic at once; Digest once the device has asked for it. The library's own Digest answers for its URL, which is
    // not always the target.
    void authenticate(Transfer& transfer, const QByteArray& target)
    {
        const HttpRequest& request = transfer.request;
        transfer.nonce.clear();
        if (request.user.isEmpty())
            return;
        const DigestLogin login{request.user.toUtf8(), request.password.toUtf8()};
        const auto peer = m_digestPeers.find(transfer.peer());
        if (peer == m_digestPeers.end()) {
            addField(transfer, "Authorization: Basic " + QByteArray(login.user + ':' + login.password).toBase64());
            return;
        }
        transfer.nonce = peer->challenge.nonce;
        QByteArray random(16, '\0');
        QRandomGenerator::system()->generate(random.begin(), random.end());
        addField(transfer, "Authorization: " + DigestAnswer(peer->challenge, login, request.post ? "POST" : "GET",
                                                            target, ++peer->answered, random.toHex()));
    }

    void retire(Transfer& transfer)
    {
        curl_multi_remove_handle(m_multi, transfer.easy);
        curl_slist_free_all(std::exchange(transfer.fields, nullptr));
        if (m_idle.size() < kIdleHandles)
            m_idle.push_back(transfer.easy);
        else
            curl_easy_cleanup(transfer.easy);
        transfer.easy = nullptr;
    }

    // True when the device wants another authentication, with which the request is then sent again.
    bool authenticateAgain(Transfer& transfer)
    {
        if (transfer.reply.status != 401 || transfer.request.user.isEmpty() || transfer.again)
            return false;
        const Challenges asked = ReadChallenges(transfer.challenges);
        if (asked.digest && asked.digest->nonce != transfer.nonce)
            m_digestPeers.insert(transfer.peer(), {*asked.digest, 0});
        else if (!asked.digest && asked.basic && !transfer.nonce.isEmpty())
            m_digestPeers.remove(transfer.peer());
        else
            return false;
        transfer.again = true;
        transfer.reply = HttpReply();
        transfer.headerBytes = 0;
        return true;
    }

    // Lets the library work and moves what has ended to m_finished.
    void run(curl_socket_t socket, int events)
    {
        int running = 0;
        curl_multi_socket_action(m_multi, socket, events, &running);
        int left = 0;
        while (const CURLMsg* message = curl_multi_info_read(m_multi, &left)) {
            if (message->msg != CURLMSG_DONE)
                continue;
            const CURLcode code = message->data.result;
            char* data = nullptr;
            curl_easy_getinfo(message->easy_handle, CURLINFO_PRIVATE, &data);
            finish(*reinterpret_cast<Transfer*>(data), code);
        }
    }

    void finish(Transfer& transfer, CURLcode code)
    {
        HttpReply& reply = transfer.reply;
        long status = 0;
        curl_easy_getinfo(transfer.easy, CURLINFO_RESPONSE_CODE, &status);
        reply.status = static_cast<qint32>(status);
        reply.failure = transfer.tooLarge ? HttpFailure::TooLarge : FailureOf(code);
        if (reply.failure == HttpFailure::None && !transfer.headerEnded) {
            reply.failure = HttpFailure::BrokenOff; // the library takes a header that breaks off for a whole one
            code = CURLE_PARTIAL_FILE;
        }
        if (reply.failure != HttpFailure::None)
            reply.error = QString::fromUtf8(curl_easy_strerror(code));
        const char* type = nullptr;
        if (curl_easy_getinfo(transfer.easy, CURLINFO_CONTENT_TYPE, &type) == CURLE_OK && type)
            reply.contentType = type;
        const bool again = reply.failure == HttpFailure::None && authenticateAgain(transfer);
        retire(transfer);
        if (again) {
            add(transfer);
            return;
        }
        const auto found = m_open.find(transfer.handle);
        m_finished.push_back(std::move(found->second));
        m_open.erase(found);
    }

    void act(curl_socket_t socket, int events)
    {
        run(socket, events);
        deliver();
    }

    // Hands out what has ended. A callback may wait for another request that has ended too, so the rest is due again
    // before each call.
    void deliver()
    {
        const QPointer<Engine> alive(this);
        while (alive && !m_finished.empty()) {
            const std::unique_ptr<Transfer> transfer = std::move(m_finished.front());
            m_finished.pop_front();
            deliverLater();
            if (transfer->done)
                transfer->done(transfer->reply);
        }
    }

    void deliverLater()
    {
        if (!m_finished.empty())
            QMetaObject::invokeMethod(
                this, [this] { deliver(); }, Qt::QueuedConnection);
    }

    static int watchSocket(CURL*, curl_socket_t socket, int what, void* user, void*)
    {
        auto& self = *static_cast<Engine*>(user);
        std::unique_ptr<Watch>& watch = self.m_watches[socket];
        if (!watch) {
            // Kept for the next socket of the same number: a disabled notifier is not registered anywhere.
            watch = std::make_unique<Watch>(socket);
            QObject::connect(&watch->read, &QSocketNotifier::activated, &self,
                             [&self, socket] { self.act(socket, CURL_CSELECT_IN); });
            QObject::connect(&watch->write, &QSocketNotifier::activated, &self,
                             [&self, socket] { self.act(socket, CURL_CSELECT_OUT); });
        }
        watch->read.setEnabled(what == CURL_POLL_IN || what == CURL_POLL_INOUT);
        watch->write.setEnabled(what == CURL_POLL_OUT || what == CURL_POLL_INOUT);
        return 0;
    }

    static int setTimer(CURLM*, long milliseconds, void* user)
    {
        QTimer& timer = static_cast<Engine*>(user)->m_timer;
        if (milliseconds < 0)
            timer.stop();
        else
            timer.start(static_cast<int>(milliseconds));
        return 0;
    }

    CURLM* m_multi = nullptr;
    QTimer m_timer;
    std::unordered_map<curl_socket_t, std::unique_ptr<Watch>> m_watches;
    std::unordered_map<quint64, std::unique_ptr<Transfer>> m_open;
    std::deque<std::unique_ptr<Transfer>> m_finished;
    std::vector<CURL*> m_idle;
    struct DigestPeer
    {
        DigestChallenge challenge;
        quint32 answered = 0; // requests with its nonce
    };
    QHash<QString, DigestPeer> m_digestPeers; // host, port and user that asked for Digest
    quint64 m_lastHandle = 0;
};

HttpClient::HttpClient()
    : m_engine(std::make_unique<Engine>())
{
}

HttpClient::~HttpClient() = default;

quint64 HttpClient::start(const HttpRequest& request, HttpDone done)
{
    return m_engine->start(request, std::move(done));
}

void HttpClient::cancel(quint64 handle)
{
    m_engine->cancel(handle);
}

qsizetype HttpClient::open() const
{
    return m_engine->open();
}
