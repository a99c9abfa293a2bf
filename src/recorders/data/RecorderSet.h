#pragma once

#include "store/records/SVRRecord.h"

#include <array>

// The recorders in their generations: what the table holds, what the pages edit, and the one open in the NVR page.
// Some hundred kilobytes a record: keep it on the heap.
struct RecorderSet
{
    std::array<SVRRecord, kMaxSVR> SVRList;
    std::array<SVRProRecord, kMaxSVR> SVRProList;
    std::array<SVRRecord, kMaxSVR> SVRWorkList;
    std::array<SVRProRecord, kMaxSVR> SVRProWorkList;
    SVRRecord SVREdit;
    SVRProRecord SVRProEdit;
    qint16 iSVR_MaxChannelAll = 0; // largest channel count among the occupied slots of SVRList
};

// Number of channels of a record that carry a camera.
int CameraCount(const SVRRecord& record);
// Occupied slots, and channels with a camera over all occupied slots, of one generation.
int OccupiedSlots(const std::array<SVRRecord, kMaxSVR>& list);
int CameraTotal(const std::array<SVRRecord, kMaxSVR>& list);
// First free slot (from 0) of a generation, -1 when all are taken.
int FirstFreeSlot(const std::array<SVRRecord, kMaxSVR>& list);

// "2/64" for a channel (slot and channel from 0), and what the operator calls it: "Gatehouse: Hall" from the working
// generation, the numbers where there is no name.
QString ChannelKey(int slot, int channel);
QString ChannelLabel(const RecorderSet& set, int slot, int channel);
// Calls `work(slot, channel)`, both from 0, for every place of a station.
template <class Work>
void ForEachChannel(Work&& work)
{
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        for (int channel = 0; channel < kMaxChannel; ++channel)
            work(slot, channel);
    }
}

// Frees every slot of the working generation that is free in the stored one.
void DropNewRecorders(RecorderSet& recorders);

// Puts an empty channel (index from 0) in its place.
void ClearChannel(SVRRecord& record, SVRProRecord& pro, int channel);

// The family of a detected recorder from its device type text and maxhdsupport number. A text the station has never
// heard of is taken for the newest Pro model.
QString GetsDeviceType(const QString& deviceType, qint16 maxHdSupport);

// "name:value1,value2,mask;…" into the parsed modes; a blank text leaves them as they were. Throws ConversionError.
void FishEyeModeListPaser(std::vector<FishEyeMode>& modes, const QString& text);
