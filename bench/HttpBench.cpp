// Requests to devices and the device search, each beside the floor it is measured against.

#include "bench/Bench.h"
#include "device/bridge/FinderBridge.h"
#include "device/bridge/Form_COM.h"
#include "device/bridge/ModuleCGI.h"
#include "tests/Await.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <arpa/inet.h>
#include <atomic>
#include <cstdio>
#include <curl/curl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRequests = 200;
constexpr int kDevices = 32;

// A device on one blocking thread: one connection at a time, kept open, the same short page for every request.
class PlainServer
{
public:
    PlainServer()
        : m_listener(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof(address);
        if (::bind(m_listener, reinterpret_cast<sockaddr*>(&address), size) != 0 || ::listen(m_listener, 8) != 0 ||
            ::getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &size) != 0)
            std::perror("server");
        m_port = ntohs(address.sin_port);
        m_thread = std::thread([this] { serve(); });
    }
    ~PlainServer()
    {
        ::shutdown(m_listener, SHUT_RDWR);
        m_thread.join();
        ::close(m_listener);
    }
    quint16 port() const { return m_port; }
    int served() const { return m_served; }

private:
    void serve()
    {
        const std::string page = "HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Length: 27\r\n\r\n"
                                 "OK\r\nversion=4.2.30026804\r\n\r\n";
        for (;;) {
            const int client = ::accept(m_listener, nullptr, nullptr);
            if (client < 0)
                return;
            const int on = 1;
            ::setsockopt(client, IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
            std::string buffer;
            char bytes[4096];
            ssize_t got = 0;
            while ((got = ::recv(client, bytes, sizeof(bytes), 0)) > 0) {
                buffer.append(bytes, static_cast<std::size_t>(got));
                for (std::size_t end = 0; (end = buffer.find("\r\n\r\n")) != std::string::npos;) {
                    buffer.erase(0, end + 4);
                    ++m_served;
                    if (::send(client, page.data(), page.size(), MSG_NOSIGNAL) < 0)
                        break;
                }
            }
            ::close(client);
        }
    }

    int m_listener;
    quint16 m_port = 0;
    std::atomic<int> m_served = 0;
    std::thread m_thread;
};

std::size_t Append(char* data, std::size_t size, std::size_t count, void* user)
{
    static_cast<std::string*>(user)->append(data, size * count);
    return size * count;
}

// kRequests requests over one handle, which keeps its connection.
void PlainCurl(CURL* easy, const std::string& url)
{
    for (int i = 0; i < kRequests; ++i) {
        std::string body;
        curl_easy_setopt(easy, CURLOPT_URL, url.c_str());
        curl_easy_setopt(easy, CURLOPT_USERPWD, "admin:admin");
        curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, &Append);
        curl_easy_setopt(easy, CURLOPT_WRITEDATA, &body);
        bench::Require(curl_easy_perform(easy) == CURLE_OK && body.compare(0, 2, "OK") == 0, "plain request failed");
    }
}

void OurRequests(WebBridge& web, const DeviceAddress& device)
{
    Work work;
    for (int i = 0; i < kRequests; ++i)
        bench::Require(Await(CgiGetFwVersion(web, device, work)).startsWith("OK"_L1), "request failed");
}

void BenchRequests()
{
    PlainServer plain;
    PlainServer ours;
    Form_COM com;
    const DeviceAddress device{u"127.0.0.1"_s, ours.port(), u"admin"_s, u"admin"_s};
    const std::string url = "http://127.0.0.1:" + std::to_string(plain.port()) + "/getfwver.cgi";
    CURL* easy = curl_easy_init();
    bench::Compare(
        "200 CGI requests in sequence", 1.5, [&] { OurRequests(com.web, device); }, [&] { PlainCurl(easy, url); });
    curl_easy_cleanup(easy);
    bench::Require(plain.served() == ours.served(), "requests were sent more than once");
}

// Devices on loopback with their own thread; each answers the first probe after its own delay.
class Devices : public QThread
{
public:
    std::atomic<qint64> firstAnswer = 0; // ns of `clock`
    std::atomic<qint64> lastAnswer = 0;
    std::atomic<bool> ready = false;
    QElapsedTimer clock;

protected:
    void run() override
    {
        QUdpSocket socket;
        socket.bind(QHostAddress::AnyIPv4, 3702, QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint);
        socket.joinMulticastGroup(QHostAddress(u"239.255.255.250"_s), QNetworkInterface::interfaceFromName(u"lo"_s));
        bool answered = false;
        connect(&socket, &QUdpSocket::readyRead, &socket, [&] {
            while (socket.hasPendingDatagrams()) {
                const QNetworkDatagram probe = socket.receiveDatagram();
                if (std::exchange(answered, true))
                    continue;
                for (int i = 0; i < kDevices; ++i) {
                    QTimer::singleShot(i * 15, &socket, [this, &socket, probe, i] {
                        const QByteArray match =
                            "<e:Envelope xmlns:e=\"http://www.w3.org/2003/05/soap-envelope\""
                            " xmlns:d=\"http://schemas.xmlsoap.org/ws/2005/04/discovery\"><e:Body><d:ProbeMatches>"
                            "<d:ProbeMatch><d:Scopes>onvif://www.onvif.org/name/N onvif://www.onvif.org/hardware/M"
                            "</d:Scopes><d:XAddrs>http://127.8.8." +
                            QByteArray::number(i + 1) +
                            "/onvif</d:XAddrs></d:ProbeMatch></d:ProbeMatches></e:Body>"
                            "</e:Envelope>";
                        const qint64 now = clock.nsecsElapsed();
                        socket.writeDatagram(match, probe.senderAddress(), static_cast<quint16>(probe.senderPort()));
                        if (firstAnswer == 0)
                            firstAnswer = now;
                        lastAnswer = now;
                    });
                }
            }
        });
        ready = true;
        exec();
    }
};

void BenchDiscovery()
{
    qputenv("RIGGING_DESK_FINDER", "lo");
    Devices devices;
    devices.clock.start();
    devices.start();
    WaitUntil([&] { return devices.ready.load(); }, 5);
    FinderBridge finder;
    qint64 firstRow = 0;
    qint64 lastRow = 0;
    int rows = 0;
    bool finished = false;
    QObject listener;
    QObject::connect(&finder, &FinderBridge::DeviceFound, &listener, [&](const FoundDevice& device) {
        if (!device.Address.startsWith("127.8.8."_L1))
            return;
        lastRow = devices.clock.nsecsElapsed();
        if (rows++ == 0)
            firstRow = lastRow;
    });
    QObject::connect(&finder, &FinderBridge::Finished, &listener, [&] { finished = true; });
    finder.Search();
    WaitUntil([&] { return finished; }, 10);
    devices.quit();
    devices.wait();
    bench::Require(rows == kDevices, "devices were not found");
    // Beside what may pass after the first and the last answer.
    const double first = static_cast<double>(firstRow - devices.firstAnswer) / 1e6;
    const double last = static_cast<double>(lastRow - devices.lastAnswer) / 1e6;
    bench::Row("search: first row after the first answer", first, 50, first / 50, 1);
    bench::Row("search: complete after the last answer", last, 300, last / 300, 1);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    BenchRequests();
    BenchDiscovery();
    return 0;
}
