#include "recorders/camera/ChannelClear.h"

#include "app/log/Module_Log.h"
#include "app/shell/Messages.h"
#include "device/bridge/WebBridge.h"
#include "device/protocol/Module_XML.h"
#include "recorders/camera/CameraWrite.h"
#include "support/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

enum Words
{
    kNoServer = 76
};

QCoro::Task<RecorderOutcome> ClearOnDevice(Form_COM& com, DeviceAddress recorder, bool pro, qint16 number, Work& work)
{
    if (!pro) {
        ChannelParameters none; // an empty address takes the camera off
        none.HttpPort = u"80"_s;
        none.Brand = u"0"_s;
        const QString reply = co_await com.device.SetChannel(recorder, number, none, ChannelForm::Simple, work);
        if (reply.isEmpty())
            co_return RecorderOutcome::Failed(kNoServer);
        co_return DeviceBridge::DeviceTook(reply) ? RecorderOutcome::Done() : RefusedWrite(reply);
    }
    const QString cleared = co_await com.web.SendCmdXml(recorder, BuildClearChannel(number), work);
    if (!Accepted(cleared))
        co_return RecorderOutcome::Failed(kNoServer);
    const QString saved = co_await com.web.SendCmdXml(recorder, BuildSaveConfig(kSaveChannels), work);
    if (!Accepted(saved))
        co_return RecorderOutcome::Failed(Message::kSettingFault);
    co_return RecorderOutcome::Done();
}

} // namespace

QCoro::Task<RecorderOutcome> ClearRecorderChannel(Form_COM& com, RecorderSet& recorders, int channel, Work& work)
{
    SVRRecord& svr = recorders.SVREdit;
    if (At(svr.channels, channel).sSub_CH_IP.isEmpty())
        co_return RecorderOutcome::Done();
    const auto number = static_cast<qint16>(channel + 1);
    const RecorderOutcome outcome =
        co_await ClearOnDevice(com, AddressOf(svr), IsProFamily(svr.sSVR_DeviceType), number, work);
    if (!outcome.ok)
        co_return outcome;
    ClearChannel(svr, recorders.SVRProEdit, channel);
    At(svr.channels, channel).bSub_CH_Modified = true;
    co_return outcome;
}
