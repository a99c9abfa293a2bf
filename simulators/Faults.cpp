#include "simulators/Faults.h"

#include <array>
#include <utility>

namespace simulators {

namespace {

constexpr std::array<std::pair<const char*, FaultKind>, 13> kNames{{{"delay", FaultKind::Delay},
                                                                    {"cutoff", FaultKind::CutOff},
                                                                    {"garbage", FaultKind::Garbage},
                                                                    {"garbagebody", FaultKind::GarbageBody},
                                                                    {"huge", FaultKind::Huge},
                                                                    {"trickle", FaultKind::Trickle},
                                                                    {"status", FaultKind::Status},
                                                                    {"unauthorized", FaultKind::Unauthorized},
                                                                    {"refuse", FaultKind::Refuse},
                                                                    {"body", FaultKind::Body},
                                                                    {"nolength", FaultKind::NoLength},
                                                                    {"silent", FaultKind::Silent},
                                                                    {"reset", FaultKind::Reset}}};

} // namespace

std::optional<Fault> faultFromQuery(const Query& query)
{
    for (const auto& [name, kind] : kNames) {
        if (query.value("kind") != QLatin1String(name))
            continue;
        Fault fault;
        fault.kind = kind;
        fault.amount = query.value("amount").toLongLong();
        fault.path = query.value("path").toUtf8();
        fault.cmd = query.number("cmd");
        fault.text = query.value("text").toUtf8();
        fault.skip = query.number("skip");
        fault.count = query.number("count", -1);
        return fault;
    }
    return std::nullopt;
}

std::optional<Fault> FaultTable::take(const QByteArray& path, int cmd)
{
    for (Fault& fault : m_faults) {
        if (fault.count == 0 || !path.startsWith(fault.path) || (fault.cmd > 0 && fault.cmd != cmd))
            continue;
        if (fault.skip > 0) {
            --fault.skip;
            continue;
        }
        if (fault.count > 0)
            --fault.count;
        return fault;
    }
    return std::nullopt;
}

} // namespace simulators
