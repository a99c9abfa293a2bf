#pragma once

#include "device/bridge/DevicePoller.h"
#include "store/records/SVRRecord.h"

#include <QObject>
#include <array>
#include <span>

// Tells for each recorder of the station whether it answers, while it runs: a list, a map or a picture that is on show
// has one of these and listens to `changed`. Nothing waits for it. Two seconds of silence count as no answer.
class ConnectionWatch : public QObject
{
    Q_OBJECT

public:
    // The recorders are those of the stored generation, by slot; both must outlive it.
    ConnectionWatch(DevicePoller& poller, std::span<const SVRRecord, kMaxSVR> recorders, QObject* parent = nullptr);

    void start(); // asks at once
    void stop();  // requests under way end; the states stay until the next start
    // The stored recorders may have changed: a slot with another address, port or login begins anew, a free one falls
    // back to None.
    void refresh();
    ConnectionState state(int slot) const; // from 0

signals:
    void changed(int slot);

private:
    struct Watched
    {
        std::unique_ptr<DevicePoller::Subscription> asked;
        ConnectionState state;
    };
    void set(int slot, const ConnectionState& state);

    DevicePoller& m_poller;
    std::span<const SVRRecord, kMaxSVR> m_recorders;
    std::array<Watched, kMaxSVR> m_slots;
    bool m_running = false;
};
