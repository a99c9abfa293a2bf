#include "app/RemoveSVR.h"

#include "app/log/Module_Log.h"
#include "device/ModuleCGI.h"
#include "support/Conversions.h"

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

} // namespace

void ClearRecorder(RecorderSet& recorders, int slot)
{
    SVRRecord& record = At(recorders.SVRWorkList, slot);
    SVRProRecord& pro = At(recorders.SVRProWorkList, slot);
    record = SVRRecord();
    record.bSVR_Changed = true;
    record.bSVR_ConnChanged = true;
    record.iSVR_HttpPort = 80;
    record.iSVR_VideoPort = 554;
    for (int channel = 0; channel < kMaxChannel; ++channel) {
        ClearChannel(record, pro, channel);
        At(record.iPower, channel) = 1;
    }
}

void RemoveSVR(Station& station, WebBridge& web, int slot)
{
    Trapped("Form_Initial - RemoveSVR", [&] {
        const SVRRecord& record = At(station.recorders.SVRWorkList, slot);
        if (record.bSVR_CEventSupport)
            SwitchOffCustomEvents(web, record);
        ClearRecorder(station.recorders, slot);
        GrantNewRecorder(station.groups, slot);
        SaveCheck(station);
        SaveNVRPrivilege(station.databases, station.groups, [&](int other) {
            return other == slot || !At(station.recorders.SVRWorkList, other).sSVR_Name.isEmpty();
        });
    });
}
