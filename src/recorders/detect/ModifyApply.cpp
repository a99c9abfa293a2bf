#include "recorders/detect/ModifyApply.h"

#include "app/shell/Boxes.h"
#include "platform/Closing.h"
#include "support/Conversions.h"

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

void ForgetModified(SVRRecord& record)
{
    for (SVRChannel& channel : record.channels)
        channel.bSub_CH_Modified = false;
}

enum Words
{
    kKeptWithoutChannels = 720,
    kAskRemove = 721
};

bool HasCamera(const SVRRecord& record)
{
    const int channels = std::clamp(static_cast<int>(record.iSVR_Maxchannel), 0, kMaxChannel);
    return std::any_of(record.channels.begin(), record.channels.begin() + channels,
                       [](const SVRChannel& channel) { return !channel.sSub_CH_IP.isEmpty(); });
}

bool SameDevice(const SVRRecord& edit, const SVRRecord& work)
{
    return edit.sSVR_IP == work.sSVR_IP && edit.iSVR_HttpPort == work.iSVR_HttpPort;
}

// Box 721, and 720 when the answer is No.
Modified OfferRemoval(const SVRRecord& recorder)
{
    if (AskToDestroy(kAskRemove, recorder.sSVR_Name, Message::kDelete))
        return Modified::Remove;
    Tell(Tone::Information, kKeptWithoutChannels, Message::kNotice);
    return Modified::Kept;
}

} // namespace

void OpenEditPair(RecorderSet& recorders, int slot)
{
    recorders.SVREdit = At(recorders.SVRWorkList, slot);
    recorders.SVRProEdit = At(recorders.SVRProWorkList, slot);
    ForgetModified(recorders.SVREdit);
}

Modified ModifyApply(RecorderSet& recorders, int slot, const QString& name, const RecorderEvents& events)
{
    SVRRecord& edit = recorders.SVREdit;
    SVRRecord& work = At(recorders.SVRWorkList, slot);
    if (!HasCamera(edit))
        return OfferRemoval(work);
    const auto before = std::make_unique<SVRRecord>(work);
    edit.sSVR_Name = name;
    edit.iSVR_ValidCH = static_cast<qint16>(CameraCount(edit));
    ForgetModified(edit);
    edit.bSVR_Changed = true;
    const bool renamed = name != before->sSVR_Name;
    edit.bSVR_ConnChanged = edit.bSVR_ConnChanged || renamed;
    work = edit;
    At(recorders.SVRProWorkList, slot) = recorders.SVRProEdit;
    for (int channel = 0; channel < kMaxChannel; ++channel) {
        const SVRChannel& held = At(before->channels, channel);
        if (!held.sSub_CH_IP.isEmpty() && held.sSub_CH_IP != At(work.channels, channel).sSub_CH_IP)
            events.channelGone.send(slot, channel, held);
    }
    events.readAgain.send(slot);
    if (renamed)
        events.renamed.send(slot, name);
    return Modified::Applied;
}

bool TakeOverWritten(RecorderSet& recorders, int slot, int channel, const RecorderEvents& events)
{
    const SVRRecord& edit = recorders.SVREdit;
    SVRRecord& work = At(recorders.SVRWorkList, slot);
    if (!SameDevice(edit, work))
        return false;
    const SVRChannel before = std::exchange(At(work.channels, channel), At(edit.channels, channel));
    SVRChannel& now = At(work.channels, channel);
    now.bSub_CH_Modified = false;
    At(At(recorders.SVRProWorkList, slot).channels, channel) = At(recorders.SVRProEdit.channels, channel);
    work.iSVR_Maxchannel = std::max(work.iSVR_Maxchannel, static_cast<qint16>(channel + 1));
    work.iSVR_ValidCH = static_cast<qint16>(CameraCount(work));
    work.bSVR_Changed = true;
    if (!before.sSub_CH_IP.isEmpty() && before.sSub_CH_IP != now.sSub_CH_IP)
        events.channelGone.send(slot, channel, before);
    if (!now.sSub_CH_IP.isEmpty())
        events.channelChanged.send(slot, channel);
    return true;
}

bool TakeOverSwitches(RecorderSet& recorders, int slot)
{
    SVRRecord& work = At(recorders.SVRWorkList, slot);
    if (!SameDevice(recorders.SVREdit, work))
        return false;
    for (std::size_t channel = 0; channel < kMaxChannel; ++channel) {
        if (recorders.SVREdit.channels[channel].sSub_CH_IP == work.channels[channel].sSub_CH_IP)
            work.channels[channel].bSub_CH_Cam_MD_Enabled = recorders.SVREdit.channels[channel].bSub_CH_Cam_MD_Enabled;
    }
    work.bSVR_Changed = true;
    return true;
}

Modified LeaveUnapplied(const RecorderSet& recorders, int slot)
{
    const SVRRecord& work = At(recorders.SVRWorkList, slot);
    if (!work.bSVR_Changed || Closing())
        return Modified::Nothing;
    return HasCamera(work) ? Modified::Applied : OfferRemoval(work);
}
