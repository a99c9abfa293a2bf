#pragma once

#include "simulators/DeviceText.h"

#include <QMetaType>
#include <optional>
#include <vector>

namespace simulators {

enum class FaultKind
{
    Delay,        // the good reply, `amount` milliseconds late
    CutOff,       // the first `amount` bytes of the good reply (head included), then the connection is closed
    Garbage,      // `amount` bytes that are no HTTP, in place of the reply
    GarbageBody,  // a good head, `amount` bytes of noise as the body
    Huge,         // a good head, a body of `amount` bytes
    Trickle,      // the good reply, one byte every `amount` milliseconds
    Status,       // HTTP status `amount` with a short page
    Unauthorized, // 401 whatever the login is
    Refuse,       // the device's own refusal: RET="<amount>" (-4 when 0), nothing is written
    Body,         // HTTP 200 with `text` as the body
    NoLength,     // the good reply as HTTP/1.0 without a length, ended by closing the connection
    Silent,       // the request is taken and never answered
    Reset         // the connection is closed at once
};

// Something that goes wrong on request. It hits the requests whose path begins with `path` (empty: all) and, for
// `cmd` above 0, that carry this command identifier.
struct Fault
{
    FaultKind kind = FaultKind::Delay;
    qint64 amount = 0;
    QByteArray path = {};
    int cmd = 0;
    QByteArray text = {};
    int skip = 0;   // matching requests that pass unharmed before
    int count = -1; // requests it hits, -1 for all
};

// Read from "kind=…&amount=…&path=…&cmd=…&text=…&skip=…&count=…"; nothing when the kind is unknown.
std::optional<Fault> faultFromQuery(const Query& query);

class FaultTable
{
public:
    void add(const Fault& fault) { m_faults.push_back(fault); }
    void clear() { m_faults.clear(); }
    // The first live fault that the request meets, its counters moved on.
    std::optional<Fault> take(const QByteArray& path, int cmd);

private:
    std::vector<Fault> m_faults;
};

} // namespace simulators
