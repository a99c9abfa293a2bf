#include "app/AddedRecorder.h"

void RecorderDetected(Station& station, int slot, const SVRRecord& record, DetectMode mode)
{
    if (mode == DetectMode::Add) {
        AddRecorderMap(station.emap, slot, record.sSVR_Name);
        ResetDetection(station.channelEvents, slot, record);
    }
    NameChannelEvents(station.channelEvents, slot, record);
}
