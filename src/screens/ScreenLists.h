#pragma once

#include "recorders/data/RecorderSet.h"
#include "screens/ScreenSet.h"

#include <QStringList>
#include <bitset>
#include <functional>
#include <optional>

// The comma lists of layout, patterns, starts and walls.

// A list as numbers of 16 bits. What is no such number reads as `other`; of a whole list that costs one log line under
// `source`. Entries behind `limit` are left out.
std::vector<qint16> ToNumbers(const QString& list, qint16 other, qsizetype limit, QLatin1String source);
QString ToList(const std::vector<qint16>& numbers);
// A text without blanks around it as a number, nothing where it is none of 16 bits.
std::optional<qint16> NumberOf(QStringView entry);

template <class Test>
bool AllEntries(QStringView list, Test&& test)
{
    for (const QStringView entry : list.tokenize(u',')) {
        if (!test(entry))
            return false;
    }
    return true;
}

// Panes of a pattern, a wall or a layout at exit: `count` numbers, kEmptyPane for what is missing or names no channel.
std::vector<qint16> PanesOf(const QString& list, qsizetype count);
// That many empty panes as a list.
QString EmptyPanes(qsizetype count);
// A number of sCHSequence for a channel, slot and channel from 0, and back.
inline qint16 PaneNumber(int slot, int channel)
{
    return static_cast<qint16>(slot * kMaxChannel + channel);
}

// What the working generation of recorders has: names of channels count, not cameras.
struct LiveChannels
{
    explicit LiveChannels(const RecorderSet& recorders);

    bool hasChannel(int slot, int channel) const; // both from 0; false outside the station
    bool hasPane(int number) const;               // as patterns write a channel
    bool hasRecorder(int slot) const;

    std::bitset<kChannelsOfStation> channels;
    std::bitset<kMaxSVR> recorders;
};

// Panes whose channel is gone, or that never named one, become empty. True when that changed the list.
bool DropGonePanes(QString& list, const LiveChannels& live);
// Whether a list of panes that is not empty shows nothing.
bool ShowsNothing(const QString& panes);

// Rejoins the entries of a list for which `keep` gives a text, in their order. True when that changed the list.
using KeepEntry = std::function<std::optional<QString>(QStringView entry)>;
bool KeepEntries(QString& list, const KeepEntry& keep);
// A sequence of one item is no sequence.
bool IsSequence(const QString& list);
// "svr\channel", both from 1, of a channel that is there; numbers from 1 of recorders that are there.
KeepEntry LiveChannelEntries(const LiveChannels& live);
KeepEntry LiveRecorderEntries(const LiveChannels& live);
