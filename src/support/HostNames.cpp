#include "support/HostNames.h"

#include "platform/Wait.h"

#include <QHostInfo>
#include <memory>
#include <optional>

QString GetIpByName(const QString& host)
{
    if (host.trimmed().isEmpty())
        return {};
    constexpr double kResolverSeconds = 10;
    // Shared with the look-up's callback, which may come after the wait has given up.
    const auto found = std::make_shared<std::optional<QHostInfo>>();
    QHostInfo::lookupHost(host.trimmed(), [found](const QHostInfo& info) { *found = info; });
    if (WaitUntil([&] { return found->has_value(); }, kResolverSeconds) != WaitResult::Done)
        return {};
    const QList<QHostAddress> addresses = (*found)->addresses();
    for (const QHostAddress& address : addresses) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol)
            return address.toString();
    }
    return {};
}
