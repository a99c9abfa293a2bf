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

bool ReadActions(Form_COM& com, const SVRRecord& svr, std::vector<ActionRecord>& actions)
{
    const QString reply = SendCmdXml(com.web, AddressOf(svr), BuildGetActionList());
    qint16 result = -1;
    if (Accepted(reply))
        Trapped("Form_NVRSetting - ReadActions", [&] { result = ParseActionList(reply, actions); });
    return result == 1;
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

RecorderOutcome WritePro(Form_COM& com, SVRRecord& svr, const CameraEventBits& bits, const std::vector<int>& channels)
{
    std::vector<ActionRecord> actions;
    if (!ReadActions(com, svr, actions))
        return RecorderOutcome::FailedPlain(kSendFault);
    PutSwitches(actions, bits, channels);
    const auto written = std::make_unique<SVRRecord>(svr);
    TakeSwitches(*written, bits, channels);
    QString refused;
    const qint16 result = ApplyEventSettings(
        std::span(written.get(), 1), 0, true, actions,
        [&](const QString& xml) { return SendCmdXml(com.web, AddressOf(svr), xml); },
        [&](const QString& list) { refused = list; });
    if (result < 0)
        return RecorderOutcome::FailedPlain(kSendFault);
    svr.channels = written->channels;
    return refused.isEmpty() ? RecorderOutcome::Done() : Refused(svr, refused);
}

RecorderOutcome WriteSvr(Form_COM& com, SVRRecord& svr, const CameraEventBits& bits, const std::vector<int>& channels)
{
    const QString reply = CgiSetEventHttp(com.web, AddressOf(svr), CameraEventParameters(bits, channels), svr.iSVR_Num);
    if (!reply.contains("OK"_L1)) {
        if (reply.contains("-5341"_L1))
            return RecorderOutcome::FailedPlain(kNoForwarding);
        return RecorderOutcome::FailedPlain(!reply.isEmpty() && !reply.contains("Error"_L1) ? kChannelGone
                                                                                            : kSendFault);
    }
    TakeSwitches(svr, bits, channels);
    QStringList refused;
    for (const int number : RefusedChannels(reply)) {
        At(svr.channels, number - 1).bSub_CH_Cam_MD_Enabled = false;
        refused += QString::number(number);
    }
    return refused.isEmpty() ? RecorderOutcome::Done() : Refused(svr, refused.join(u','));
}

} // namespace

RecorderOutcome ReadRecorderCameraEvents(Form_COM& com, const SVRRecord& svr, CameraEventBits& bits)
{
    if (!IsProFamily(svr.sSVR_DeviceType)) {
        const auto read = ReadCameraEvents(CgiGetBasicEvent(com.web, AddressOf(svr)));
        if (!read)
            return RecorderOutcome::FailedPlain(kSendFault);
        bits = *read;
        return RecorderOutcome::Done();
    }
    std::vector<ActionRecord> actions;
    if (!ReadActions(com, svr, actions))
        return RecorderOutcome::FailedPlain(kSendFault);
    bits.fill(0);
    for (const ActionRecord& action : actions) {
        if (action.Event == kMotionEvent && action.Enable == 1 && action.CH >= 1 && action.CH <= kMaxChannel)
            At(bits, action.CH - 1) = 1;
    }
    return RecorderOutcome::Done();
}

RecorderOutcome WriteRecorderCameraEvents(Form_COM& com, SVRRecord& svr, const CameraEventBits& bits)
{
    const std::vector<int> channels = CameraChannels(svr);
    return IsProFamily(svr.sSVR_DeviceType) ? WritePro(com, svr, bits, channels) : WriteSvr(com, svr, bits, channels);
}

bool TakeRecorderCameraEvents(Form_COM& com, SVRRecord& svr)
{
    CameraEventBits bits{};
    if (!svr.bSVR_N_EventSupport || !ReadRecorderCameraEvents(com, svr, bits).ok)
        return false;
    for (std::size_t channel = 0; channel < kMaxChannel; ++channel)
        svr.channels[channel].bSub_CH_Cam_MD_Enabled =
            bits[channel] != 0 && !svr.channels[channel].sSub_CH_IP.isEmpty();
    return true;
}
