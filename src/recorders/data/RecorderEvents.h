#pragma once

#include "app/log/Module_Log.h"
#include "store/records/SVRRecord.h"

#include <QStringList>
#include <functional>
#include <utility>
#include <vector>

// What happens to recorders and users, for the subsystems that keep records of their own about them. Whoever changes
// the working generation of recorders, or saves the users, sends; the application wires the subscribers, in the order
// in which they act. An event of recorders is sent when the working generation holds the new state and before it is
// saved.

// One kind of event.
template <class... Facts>
class StationEvent
{
public:
    using Subscriber = std::function<void(const Facts&...)>;

    void subscribe(Subscriber subscriber) { m_subscribers.push_back(std::move(subscriber)); }
    // A subscriber that throws costs one log line, the others are called all the same.
    void send(const Facts&... facts) const
    {
        for (const Subscriber& subscriber : m_subscribers)
            Trapped("RecorderEvents - send", [&] { subscriber(facts...); });
    }
    // Inside one step in the file: what a subscriber throws goes through, so that nothing of the step stands.
    void sendInStep(const Facts&... facts) const
    {
        for (const Subscriber& subscriber : m_subscribers)
            subscriber(facts...);
    }

private:
    std::vector<Subscriber> m_subscribers;
};

// Slots and channels count from 0.
struct RecorderEvents
{
    StationEvent<int> added;                        // slot of a new recorder
    StationEvent<int> readAgain;                    // its page was applied, perhaps after a new detection
    StationEvent<int, QString> renamed;             // slot and new name
    StationEvent<int, SVRRecord> removed;           // slot, now empty, and the record that it held
    StationEvent<int, int> channelChanged;          // a channel was written to its recorder
    StationEvent<int, int, SVRChannel> channelGone; // its camera went, perhaps for another one; what it held

    // Both are sent inside the step in which the users are saved, with the names of all that are stored.
    StationEvent<QStringList> usersGone;  // the old rows are deleted: what anybody else owned goes with them
    StationEvent<QStringList> usersSaved; // the rows of these users are written
};
