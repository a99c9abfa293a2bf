#pragma once

#include "app/log/Module_Log.h"
#include "store/records/SVRRecord.h"

#include <functional>
#include <utility>
#include <vector>

// What happens to recorders, for the subsystems that keep records of their own about them. Whoever changes
// the working generation of recorders sends; the application wires the subscribers, in the order in which they act. An
// event is sent when the working generation holds the new state and before it is saved.

// One kind of event. A subscriber that throws costs one log line, the others are called all the same.
template <class... Facts>
class RecorderEvent
{
public:
    using Subscriber = std::function<void(const Facts&...)>;

    void subscribe(Subscriber subscriber) { m_subscribers.push_back(std::move(subscriber)); }
    void send(const Facts&... facts) const
    {
        for (const Subscriber& subscriber : m_subscribers)
            Trapped("RecorderEvents - send", [&] { subscriber(facts...); });
    }

private:
    std::vector<Subscriber> m_subscribers;
};

// Slots and channels count from 0.
struct RecorderEvents
{
    RecorderEvent<int> added;                        // slot of a new recorder
    RecorderEvent<int> readAgain;                    // its page was applied, perhaps after a new detection
    RecorderEvent<int, QString> renamed;             // slot and new name
    RecorderEvent<int, SVRRecord> removed;           // slot, now empty, and the record that it held
    RecorderEvent<int, int> channelChanged;          // a channel was written to its recorder
    RecorderEvent<int, int, SVRChannel> channelGone; // its camera went, perhaps for another one; what it held
};
