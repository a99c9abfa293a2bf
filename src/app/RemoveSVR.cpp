#include "app/RemoveSVR.h"

#include "app/log/Module_Log.h"
#include "device/bridge/Form_COM.h"
#include "device/bridge/ModuleCGI.h"
#include "recorders/detect/RecorderCall.h"
#include "support/Conversions.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString CustomEventsOff()
{
    QString params;
    for (int channel = 1; channel <= kMaxChannel; ++channel)
        params += u"&customevent_c%1=0"_s.arg(channel);
    return params;
}

// What concerns the recorder as a whole. Its channels follow by themselves.
void ClearRecorder(RecorderSet& recorders, int slot)
{
    SVRRecord& record = At(recorders.SVRWorkList, slot);
    record = SVRRecord();
    record.bSVR_ConnChanged = true;
    record.iSVR_HttpPort = 80;
    record.iSVR_VideoPort = 554;
}

void ClearChannels(RecorderSet& recorders, int slot)
{
    SVRRecord& record = At(recorders.SVRWorkList, slot);
    for (int channel = 0; channel < kMaxChannel; ++channel) {
        ClearChannel(record, At(recorders.SVRProWorkList, slot), channel);
        At(record.channels, channel).iPower = 1;
    }
}

} // namespace

QCoro::Task<> RemoveSVR(Station& station, Form_COM& com, int slot, Work& work)
{
    if (slot >= 0 && slot < kMaxSVR && station.recorders.SVRWorkList[static_cast<std::size_t>(slot)].bSVR_CEventSupport)
        co_await CgiSetBasicEvent(com.web, AddressOf(At(station.recorders.SVRWorkList, slot)), CustomEventsOff(), work);
    Trapped("Form_Initial - RemoveSVR", [&] {
        SVRRecord& record = At(station.recorders.SVRWorkList, slot);
        const auto held = std::make_unique<SVRRecord>(record);
        ClearRecorder(station.recorders, slot);
        ClearChannels(station.recorders, slot);
        station.events.removed.send(slot, *held);
        record.bSVR_Changed = true;
        SaveCheck(station);
        com.SetProToDeviceBridge(station.recorders.SVRList);
        SaveNVRPrivilege(station.databases, station.groups, [&](int other) {
            return other == slot || !At(station.recorders.SVRWorkList, other).sSVR_Name.isEmpty();
        });
    });
}
