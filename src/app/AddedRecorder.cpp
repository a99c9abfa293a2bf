#include "app/AddedRecorder.h"

#include "app/log/Module_Log.h"
#include "support/Conversions.h"

namespace {

// Pages whose families a new recorder is entered in.
constexpr int kRecorders = 1;
constexpr int kDetection = 2;
constexpr int kMaps = 6;

} // namespace

void RecorderDetected(Station& station, int slot, const SVRRecord& record, DetectMode mode)
{
    if (mode == DetectMode::Add) {
        AddRecorderMap(station.emap, slot, record.sSVR_Name);
        ResetDetection(station.channelEvents, slot, record);
    }
    NameChannelEvents(station.channelEvents, slot, record);
}

void DropNewRecorders(Station& station)
{
    Trapped("Form_NVRSetting - lbCancel_Click", [&] {
        for (const int page : {kRecorders, kDetection, kMaps})
            station.families.revertPage(page);
        for (int slot = 0; slot < kMaxSVR; ++slot) {
            const SVRRecord& record = At(station.recorders.SVRWorkList, slot);
            if (record.sSVR_IP.isEmpty())
                NameChannelEvents(station.channelEvents, slot, record);
        }
    });
}
