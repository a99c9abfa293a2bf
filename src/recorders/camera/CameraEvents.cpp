#include "recorders/camera/CameraEvents.h"

#include "app/log/Module_Log.h"
#include "device/bridge/ModuleCGI.h"
#include "device/bridge/WebBridge.h"
#include "device/protocol/Module_XML.h"
#include "device/protocol/ReplyParsers.h"
#include "support/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 kMotionEvent = 2001;

enum Message
{
    kSendFault = 9,
    kChannelGone = 34,
    kNoForwarding = 35,
    kRefusedChannels = 834
};

RecorderOutcome Refused(const SVRRecord& svr, const QString& channels)
{
    return RecorderOutcome::FailedPlain(kRefusedChannels,
                                        u" SVR:"_s + QString::number(svr.iSVR_Num) + u" CH: " + channels);
}

// Channels (from 0) of the recorder that carry a camera.
std::vector<int> CameraChannels(const SVRRecord& svr)
{
    std::vector<int> channels;
    for (int channel = 0; channel < qBound(0, int(svr.iSVR_Maxchannel), kMaxChannel); ++channel) {
        if (!At(svr.channels, channel).sSub_CH_IP.isEmpty())
            channels.push_back(channel);
    }
    return channels;
}

QCoro::Task<bool> ReadActions(Form_COM& com, DeviceAddress recorder, std::vector<ActionRecord>& actions, Work& work)
{
    const QString reply = co_await com.web.SendCmdXml(recorder, BuildGetActionList(), work);
    qint16 result = -1;
    if (Accepted(reply))
        Trapped("Form_NVRSetting - ReadActions", [&] { result = ParseActionList(reply, actions); });
    co_return result == 1;
}

// One enabled action on motion for each channel that is on; those of the others are switched off. What else the list
// holds stays.
void PutSwitches(std::vector<ActionRecord>& actions, const CameraEventBits& bits, const std::vector<int>& channels)
{
    for (const int channel : channels) {
        const auto number = static_cast<qint16>(channel + 1);
        const bool on = At(bits, channel) != 0;
        bool known = false;
        for (ActionRecord& action : actions) {
            if (action.CH != number || action.Event != kMotionEvent)
                continue;
            action.Enable = on ? 1 : 0;
            known = true;
        }
        if (on && !known) {
            ActionRecord action;
            action.CH = number;
            action.Event = kMotionEvent;
            action.Enable = 1;
            actions.push_back(action);
        }
    }
}

void TakeSwitches(SVRRecord& svr, const CameraEventBits& bits, const std::vector<int>& channels)
{
    for (const int channel : channels)
        At(svr.channels, channel).bSub_CH_Cam_MD_Enabled = At(bits, channel) != 0;
}

QCoro::Task<RecorderOutcome> WritePro(Form_COM& com, SVRRecord& svr, CameraEventBits bits, std::vector<int> channels,
                                      Work& work)
{
    std::vector<ActionRecord> actions;
    const DeviceAddress recorder = AddressOf(svr);
    const bool told = co_await ReadActions(com, recorder, actions, work);
    if (!told)
        co_return RecorderOutcome::FailedPlain(kSendFault);
    PutSwitches(actions, bits, channels);
    const auto written = std::make_unique<SVRRecord>(svr);
    TakeSwitches(*written, bits, channels);
    const std::span<SVRRecord> list(written.get(), 1);
    const auto send = [&](QString xml) { return com.web.SendCmdXml(recorder, xml, work); };
    const EventWrite write = co_await ApplyEventSettings(list, 0, true, actions, send);
    if (write.result < 0)
        co_return RecorderOutcome::FailedPlain(kSendFault);
    svr.channels = written->channels;
    co_return write.refused.isEmpty() ? RecorderOutcome::Done() : Refused(svr, write.refused);
}

QCoro::Task<RecorderOutcome> WriteSvr(Form_COM& com, SVRRecord& svr, CameraEventBits bits, std::vector<int> channels,
                                      Work& work)
{
    const QString parameters = CameraEventParameters(bits, channels);
    const QString reply = co_await CgiSetEventHttp(com.web, AddressOf(svr), parameters, svr.iSVR_Num, work);
    if (!reply.contains("OK"_L1)) {
        if (reply.contains("-5341"_L1))
            co_return RecorderOutcome::FailedPlain(kNoForwarding);
        co_return RecorderOutcome::FailedPlain(!reply.isEmpty() && !reply.contains("Error"_L1) ? kChannelGone
                                                                                               : kSendFault);
    }
    TakeSwitches(svr, bits, channels);
    QStringList refused;
    for (const int number : RefusedChannels(reply)) {
        At(svr.channels, number - 1).bSub_CH_Cam_MD_Enabled = false;
        refused += QString::number(number);
    }
    co_return refused.isEmpty() ? RecorderOutcome::Done() : Refused(svr, refused.join(u','));
}

} // namespace

QCoro::Task<RecorderOutcome> ReadRecorderCameraEvents(Form_COM& com, const SVRRecord& svr, CameraEventBits& bits,
                                                      Work& work)
{
    const DeviceAddress recorder = AddressOf(svr);
    if (!IsProFamily(svr.sSVR_DeviceType)) {
        const QString reply = co_await CgiGetBasicEvent(com.web, recorder, work);
        const std::optional<CameraEventBits> read = ReadCameraEvents(reply);
        if (!read)
            co_return RecorderOutcome::FailedPlain(kSendFault);
        bits = *read;
        co_return RecorderOutcome::Done();
    }
    std::vector<ActionRecord> actions;
    const bool told = co_await ReadActions(com, recorder, actions, work);
    if (!told)
        co_return RecorderOutcome::FailedPlain(kSendFault);
    bits.fill(0);
    for (const ActionRecord& action : actions) {
        if (action.Event == kMotionEvent && action.Enable == 1 && action.CH >= 1 && action.CH <= kMaxChannel)
            At(bits, action.CH - 1) = 1;
    }
    co_return RecorderOutcome::Done();
}

QCoro::Task<RecorderOutcome> WriteRecorderCameraEvents(Form_COM& com, SVRRecord& svr, CameraEventBits bits, Work& work)
{
    const std::vector<int> channels = CameraChannels(svr);
    return IsProFamily(svr.sSVR_DeviceType) ? WritePro(com, svr, bits, channels, work)
                                            : WriteSvr(com, svr, bits, channels, work);
}

QCoro::Task<bool> TakeRecorderCameraEvents(Form_COM& com, SVRRecord& svr, Work& work)
{
    CameraEventBits bits{};
    if (!svr.bSVR_N_EventSupport)
        co_return false;
    const RecorderOutcome read = co_await ReadRecorderCameraEvents(com, svr, bits, work);
    if (!read.ok)
        co_return false;
    for (std::size_t channel = 0; channel < kMaxChannel; ++channel)
        svr.channels[channel].bSub_CH_Cam_MD_Enabled =
            bits[channel] != 0 && !svr.channels[channel].sSub_CH_IP.isEmpty();
    co_return true;
}
