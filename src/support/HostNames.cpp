#include "support/HostNames.h"

#include <QHostInfo>
#include <QTimer>
#include <memory>

namespace {

constexpr int kResolverMs = 10'000;

// A lone number resolves as an address of "this network", which no host has (RFC 1122, 3.2.1.3).
bool IsThisNetwork(const QHostAddress& address)
{
    return address.toIPv4Address() >> 24 == 0;
}

QString FirstIPv4(const QHostInfo& found)
{
    const QList<QHostAddress> addresses = found.addresses();
    for (const QHostAddress& address : addresses) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol && !IsThisNetwork(address))
            return address.toString();
    }
    return {};
}

class HostLookup final : public WorkAwaitable
{
public:
    HostLookup(QString host, Work& work)
        : WorkAwaitable(work)
        , m_host(std::move(host))
    {
    }
    ~HostLookup() override { abandon(); }
    auto operator co_await() { return Awaiter<HostLookup>(*this); }
    QHostInfo result() const { return m_found; }

protected:
    void begin() override
    {
        m_context = std::make_unique<QObject>();
        QHostInfo::lookupHost(m_host, m_context.get(), [this](const QHostInfo& found) { take(found); });
        QTimer::singleShot(kResolverMs, m_context.get(), [this] { take(QHostInfo()); });
    }
    void abandon() override { m_context.reset(); } // the resolver's answer then goes nowhere

private:
    void take(const QHostInfo& found)
    {
        m_found = found;
        m_context.release()->deleteLater(); // it is called by it
        finish();
    }

    QString m_host;
    QHostInfo m_found;
    std::unique_ptr<QObject> m_context;
};

} // namespace

QCoro::Task<QString> GetIpByName(QString host, Work& work)
{
    const QString name = host.trimmed();
    if (name.isEmpty())
        co_return QString();
    HostLookup lookup(name, work);
    const QHostInfo found = co_await lookup;
    co_return FirstIPv4(found);
}
