#include "app/RemoveSVR.h"

#include "app/log/Module_Log.h"
#include "device/bridge/Form_COM.h"
#include "device/bridge/ModuleCGI.h"
#include "support/Conversions.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

void SwitchOffCustomEvents(WebBridge& web, const SVRRecord& record)
{
    QString params;
    for (int channel = 1; channel <= kMaxChannel; ++channel)
        params += u"&customevent_c%1=0"_s.arg(channel);
    CgiSetBasicEvent(web, {record.sSVR_IP, record.iSVR_HttpPort, record.sSVR_UserName, record.sSVR_Password}, params,
                     kCgiSynchronous);
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

void RemoveSVR(Station& station, Form_COM& com, int slot)
{
    Trapped("Form_Initial - RemoveSVR", [&] {
        SVRRecord& record = At(station.recorders.SVRWorkList, slot);
        if (record.bSVR_CEventSupport)
            SwitchOffCustomEvents(com.web, record);
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
