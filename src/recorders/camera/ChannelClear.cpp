#include "recorders/camera/ChannelClear.h"

#include "app/log/Module_Log.h"
#include "device/bridge/WebBridge.h"
#include "device/protocol/Module_XML.h"
#include "recorders/camera/CameraWrite.h"
#include "support/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

enum Message
{
    kNoServer = 76,
    kSettingFault = 722
};

RecorderOutcome ClearOnDevice(Form_COM& com, const SVRRecord& svr, qint16 channel)
{
    if (!IsProFamily(svr.sSVR_DeviceType)) {
        ChannelParameters none; // an empty address takes the camera off
        none.HttpPort = u"80"_s;
        none.Brand = u"0"_s;
        const QString reply =
            com.device.SetChannel(AddressOf(svr), static_cast<qint16>(channel + 1), none, ChannelForm::Simple);
        if (reply.isEmpty())
            return RecorderOutcome::Failed(kNoServer);
        return DeviceBridge::DeviceTook(reply) ? RecorderOutcome::Done() : RefusedWrite(reply);
    }
    const DeviceAddress recorder = AddressOf(svr);
    if (!Accepted(SendCmdXml(com.web, recorder, BuildClearChannel(static_cast<qint16>(channel + 1)))))
        return RecorderOutcome::Failed(kNoServer);
    if (!Accepted(SendCmdXml(com.web, recorder, BuildSaveConfig(kSaveChannels))))
        return RecorderOutcome::Failed(kSettingFault);
    return RecorderOutcome::Done();
}

} // namespace

RecorderOutcome ClearRecorderChannel(Form_COM& com, RecorderSet& recorders, int channel)
{
    SVRRecord& svr = recorders.SVREdit;
    if (At(svr.channels, channel).sSub_CH_IP.isEmpty())
        return RecorderOutcome::Done();
    const RecorderOutcome outcome = ClearOnDevice(com, svr, static_cast<qint16>(channel));
    if (!outcome.ok)
        return outcome;
    ClearChannel(svr, recorders.SVRProEdit, channel);
    At(svr.channels, channel).bSub_CH_Modified = true;
    return outcome;
}
