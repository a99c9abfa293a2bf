#include "device/bridge/DiscoveryMessage.h"

#include <cstdint>
#include <cstdlib>

// Answers to the device search: any datagram of any sender.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray datagram(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::vector<FoundDevice> devices = ParseProbeMatches(datagram, QHostAddress(QStringLiteral("192.0.2.7")));
    if (static_cast<qsizetype>(devices.size()) > kMaxProbeMatches)
        std::abort();
    for (const FoundDevice& device : devices) {
        if (device.Address.isEmpty() || device.Port < 1 || device.Port > 65535 || device.Name.size() > 128)
            std::abort();
    }
    return 0;
}
