#include "platform/FtpControl.h"

#include "platform/CurlLibrary.h"
#include "platform/OneLine.h"

#include <QFile>
#include <QRegularExpression>
#include <atomic>
#include <curl/curl.h>
#include <mutex>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr long kKilobyte = 1024;

// Every byte that means something in a URL is written out, the slashes too: the server gets them as they stand.
QByteArray UrlPath(const QString& path)
{
    return path.toUtf8().toPercentEncoding({}, "~");
}

} // namespace

// The thread of one command. What both sides touch is behind the mutex: the sockets, and whether to stop.
class FtpControl::Session
{
public:
    Session(const FtpControl& control, const QString& file, const QString& path, std::function<void(Outcome)> ended)
        : m_file(file)
        , m_user(OneLine(control.user).toUtf8())
        , m_password(OneLine(control.password).toUtf8())
        , m_ended(std::move(ended))
    {
        const QByteArray name = UrlHost(control.host);
        if (!name.isEmpty() && control.port >= 0 && control.port <= 65535)
            m_url = "ftp://" + name + (control.port > 0 ? ':' + QByteArray::number(control.port) : QByteArray()) + '/' +
                    UrlPath(path);
        SetUpCurl();
        m_multi = curl_multi_init();
        if (!m_multi)
            throw std::bad_alloc();
        m_thread = std::thread([this] { m_ended(run()); });
    }

    ~Session()
    {
        halt();
        curl_multi_cleanup(m_multi);
    }

    // The library waits for answers on its sockets or in its own poll: both end at once. What had been said by then.
    Outcome halt()
    {
        if (!m_thread.joinable())
            return {};
        {
            const std::lock_guard lock(m_mutex);
            m_stopped = true;
            shutSockets();
        }
        curl_multi_wakeup(m_multi);
        m_thread.join();
        return {false, QString::fromUtf8(m_step), QString::fromUtf8(m_reply)};
    }

private:
    Outcome run()
    {
        QFile file(m_file);
        if (m_url.isEmpty())
            return {false, {}, u"The address cannot be used"_s};
        if (!file.open(QIODevice::ReadOnly))
            return {false, {}, file.errorString()};
        CURL* const easy = curl_easy_init();
        if (!easy)
            return {false, {}, u"Out of memory"_s};
        set(easy, file);
        curl_multi_add_handle(m_multi, easy);
        const CURLcode code = carryOut();
        curl_multi_remove_handle(m_multi, easy);
        curl_easy_cleanup(easy);
        Outcome outcome;
        outcome.succeeded = code == CURLE_OK;
        outcome.step = QString::fromUtf8(m_step);
        const bool said = code == CURLE_OK || m_reply >= "4";
        outcome.answer = said ? QString::fromUtf8(m_reply) : QString::fromUtf8(curl_easy_strerror(code));
        return outcome;
    }

    void set(CURL* easy, QFile& file)
    {
        curl_easy_setopt(easy, CURLOPT_URL, m_url.constData());
        curl_easy_setopt(easy, CURLOPT_PATH_AS_IS, 1L);
        curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "ftp");
        curl_easy_setopt(easy, CURLOPT_PROXY, "");
        curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L); // giving up never waits for the system's resolver
        curl_easy_setopt(easy, CURLOPT_FTP_FILEMETHOD, static_cast<long>(CURLFTPMETHOD_NOCWD));
        curl_easy_setopt(easy, CURLOPT_FORBID_REUSE, 1L);
        if (!m_user.isEmpty()) {
            curl_easy_setopt(easy, CURLOPT_USERNAME, m_user.constData());
            curl_easy_setopt(easy, CURLOPT_PASSWORD, m_password.constData());
        }
        m_left = file.size();
        m_source = &file;
        curl_easy_setopt(easy, CURLOPT_UPLOAD, 1L);
        curl_easy_setopt(easy, CURLOPT_UPLOAD_BUFFERSIZE, 256 * kKilobyte);
        curl_easy_setopt(easy, CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(m_left));
        curl_easy_setopt(easy, CURLOPT_READFUNCTION, &Session::giveBytes);
        curl_easy_setopt(easy, CURLOPT_READDATA, this);
        curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, &Session::takeReply);
        curl_easy_setopt(easy, CURLOPT_HEADERDATA, this);
        curl_easy_setopt(easy, CURLOPT_DEBUGFUNCTION, &Session::watch);
        curl_easy_setopt(easy, CURLOPT_DEBUGDATA, this);
        curl_easy_setopt(easy, CURLOPT_VERBOSE, 1L);
        curl_easy_setopt(easy, CURLOPT_OPENSOCKETFUNCTION, &Session::openSocket);
        curl_easy_setopt(easy, CURLOPT_OPENSOCKETDATA, this);
        curl_easy_setopt(easy, CURLOPT_CLOSESOCKETFUNCTION, &Session::closeSocket);
        curl_easy_setopt(easy, CURLOPT_CLOSESOCKETDATA, this);
    }

    CURLcode carryOut()
    {
        int running = 1;
        while (true) {
            if (curl_multi_perform(m_multi, &running) != CURLM_OK)
                return CURLE_FAILED_INIT;
            int left = 0;
            while (const CURLMsg* message = curl_multi_info_read(m_multi, &left)) {
                if (message->msg == CURLMSG_DONE)
                    return message->data.result;
            }
            curl_multi_poll(m_multi, nullptr, 0, 1000, nullptr);
            const std::lock_guard lock(m_mutex);
            if (m_stopped)
                return CURLE_ABORTED_BY_CALLBACK;
        }
    }

    void shutSockets()
    {
        for (const curl_socket_t socket : m_sockets)
            ::shutdown(socket, SHUT_RDWR);
    }

    static std::size_t giveBytes(char* buffer, std::size_t size, std::size_t count, void* user)
    {
        auto& self = *static_cast<Session*>(user);
        const qint64 got = self.m_source->read(buffer, qMin<qint64>(self.m_left, static_cast<qint64>(size * count)));
        if (got < 0)
            return CURL_READFUNC_ABORT;
        self.m_left -= got; // what the file has grown by since is not sent
        return static_cast<std::size_t>(got);
    }

    // The last reply before the farewell, without its line end.
    static std::size_t takeReply(char* data, std::size_t size, std::size_t count, void* user)
    {
        static_cast<Session*>(user)->m_reply = QByteArray(data, static_cast<qsizetype>(size * count)).trimmed();
        return size * count;
    }

    // The library tells what it has sent. It then waits for the answer to its farewell: a closed socket has none.
    static int watch(CURL*, curl_infotype type, char* data, std::size_t size, void* user)
    {
        if (type != CURLINFO_HEADER_OUT)
            return 0;
        auto& self = *static_cast<Session*>(user);
        const QByteArray command(data, static_cast<qsizetype>(size));
        if (command.startsWith("QUIT")) {
            const std::lock_guard lock(self.m_mutex);
            self.shutSockets();
        } else {
            self.m_step = command.trimmed().split(' ').first();
        }
        return 0;
    }

    static curl_socket_t openSocket(void* user, curlsocktype, curl_sockaddr* address)
    {
        auto& self = *static_cast<Session*>(user);
        const std::lock_guard lock(self.m_mutex);
        if (self.m_stopped)
            return CURL_SOCKET_BAD;
        const curl_socket_t socket = ::socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
        if (socket != CURL_SOCKET_BAD)
            self.m_sockets.push_back(socket);
        return socket;
    }

    static int closeSocket(void* user, curl_socket_t socket)
    {
        auto& self = *static_cast<Session*>(user);
        const std::lock_guard lock(self.m_mutex);
        std::erase(self.m_sockets, socket);
        return ::close(socket);
    }

    const QString m_file;
    const QByteArray m_user;
    const QByteArray m_password;
    QByteArray m_url;
    const std::function<void(Outcome)> m_ended;
    CURLM* m_multi = nullptr;

    QFile* m_source = nullptr; // of the thread, as what follows
    qint64 m_left = 0;
    QByteArray m_step;
    QByteArray m_reply;

    std::mutex m_mutex;
    std::vector<curl_socket_t> m_sockets;
    bool m_stopped = false;
    std::thread m_thread;
};

FtpControl::FtpControl() = default;
FtpControl::~FtpControl() = default;

bool FtpControl::Execute(const QString& command)
{
    static const QRegularExpression form(u"^put \"(.*?)\" (.+)$"_s, QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch put = form.match(command);
    if (!put.hasMatch() || StillExecuting())
        return false;
    m_outcome = Outcome();
    // Told on the thread of this object, which outlives the session's.
    const auto ended = [this, number = ++m_executed](const Outcome& outcome) {
        const auto take = [this, number, outcome] {
            if (!m_session || number != m_executed)
                return; // stopped meanwhile
            m_session.reset();
            m_outcome = outcome;
            emit Ended();
        };
        QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
    };
    m_session = std::make_unique<Session>(*this, put.captured(1), put.captured(2), ended);
    return true;
}

void FtpControl::stop()
{
    if (!m_session)
        return;
    m_outcome = m_session->halt();
    m_session.reset();
}
