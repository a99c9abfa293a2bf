#include "device/bridge/ConnectionWatch.h"

#include "support/Conversions.h"

namespace {

constexpr double kPatience = 2; // seconds

} // namespace

ConnectionWatch::ConnectionWatch(DevicePoller& poller, std::span<const SVRRecord, kMaxSVR> recorders, QObject* parent)
    : QObject(parent)
    , m_poller(poller)
    , m_recorders(recorders)
{
}

void ConnectionWatch::start()
{
    stop();
    m_running = true;
    refresh();
}

void ConnectionWatch::stop()
{
    m_running = false;
    for (Watched& watched : m_slots)
        watched.asked.reset();
}

void ConnectionWatch::refresh()
{
    for (int slot = 0; slot < kMaxSVR && m_running; ++slot) {
        Watched& watched = At(m_slots, slot);
        const DeviceAddress device = AddressOf(At(m_recorders, slot));
        if (watched.asked && watched.asked->device() == device)
            continue;
        watched.asked.reset();
        if (!device.address.isEmpty()) {
            const auto told = [this, slot](const ConnectionState& state) {
                if (At(m_slots, slot).asked->device() == AddressOf(At(m_recorders, slot)))
                    set(slot, state);
                else
                    refresh();
            };
            watched.asked = std::make_unique<DevicePoller::Subscription>(m_poller, device, kPatience, told);
        }
        set(slot, watched.asked ? watched.asked->state() : ConnectionState());
    }
}

ConnectionState ConnectionWatch::state(int slot) const
{
    return At(m_slots, slot).state;
}

void ConnectionWatch::set(int slot, const ConnectionState& state)
{
    Watched& watched = At(m_slots, slot);
    if (watched.state == state)
        return;
    watched.state = state;
    emit changed(slot);
}
