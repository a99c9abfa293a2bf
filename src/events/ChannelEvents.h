#pragma once

#include "recorders/data/RecorderSet.h"
#include "store/Databases.h"
#include "store/RecordFamily.h"
#include "store/records/EventRecords.h"

#include <array>

// Detection settings and event records of every channel (slot and channel from 0).
struct ChannelEventSet
{
    std::array<IntelligentSettings, kMaxSVR> stored;
    std::array<IntelligentSettings, kMaxSVR> edit;
    std::array<PerChannel<ChannelEventRecord>, kMaxSVR> events;
};

// Tables MotionSettings, MaliciousAttackSettings, ObjectLossSettings and TripwireSettings. Their rows belong to the
// channels of occupied slots of the stored recorders whose lSub_CH_IntelligentID is above 0: that number is the row's
// key. Both answer 1, or 0 when a table cannot be opened, which ends them.

// Resets the stored settings to their defaults and fills them; a row without such a channel is passed over.
qint16 GetEventInfo(Databases& databases, ChannelEventSet& set, const RecorderSet& recorders);
// Replaces the rows by the stored settings.
qint16 SetEventInfo(Databases& databases, const ChannelEventSet& set, const RecorderSet& recorders);

// The detection settings of every channel of a slot go back to their defaults. Those whose channel takes part in
// analysis according to `recorder` are marked: their rows change with them.
void ResetDetection(ChannelEventSet& set, int slot, const SVRRecord& recorder);
// The same for one channel (from 0) by what it held.
void ResetDetection(ChannelEventSet& set, int slot, int channel, const SVRChannel& held);
// The event records of a slot: the camera's name where there is a camera, the defaults elsewhere.
void NameChannelEvents(ChannelEventSet& set, int slot, const SVRRecord& recorder);

RecordFamily EventSettingsFamily(Databases& databases, ChannelEventSet& set, const RecorderSet& recorders);
