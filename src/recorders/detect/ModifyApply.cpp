#include "recorders/detect/ModifyApply.h"

#include "app/shell/Boxes.h"
#include "support/Conversions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void ForgetModified(SVRRecord& record)
{
    for (SVRChannel& channel : record.channels)
        channel.bSub_CH_Modified = false;
}

enum Message
{
    kKeptWithoutChannels = 720,
    kAskRemove = 721,
    kDelete = 877,
    kNotice = 965
};

template <class Hook, class... Arguments>
void Call(const Hook& hook, Arguments&&... arguments)
{
    if (hook)
        hook(std::forward<Arguments>(arguments)...);
}

bool HasCamera(const SVRRecord& record)
{
    const int channels = std::clamp(static_cast<int>(record.iSVR_Maxchannel), 0, kMaxChannel);
    return std::any_of(record.channels.begin(), record.channels.begin() + channels,
                       [](const SVRChannel& channel) { return !channel.sSub_CH_IP.isEmpty(); });
}

void CheckScreens(const ModifyHooks& hooks)
{
    Call(hooks.CheckPatternAfterSVRChange);
    Call(hooks.CheckDefaultStartAfterSVRChange);
}

} // namespace

void OpenEditPair(RecorderSet& recorders, int slot)
{
    recorders.SVREdit = At(recorders.SVRWorkList, slot);
    recorders.SVRProEdit = At(recorders.SVRProWorkList, slot);
    ForgetModified(recorders.SVREdit);
}

bool ModifyApply(RecorderSet& recorders, int slot, const QString& name, const ModifyHooks& hooks)
{
    SVRRecord& edit = recorders.SVREdit;
    SVRRecord& work = At(recorders.SVRWorkList, slot);
    if (!HasCamera(edit)) {
        if (!AskToDestroy(kAskRemove, work.sSVR_Name, kDelete)) {
            Tell(Tone::Information, kKeptWithoutChannels, kNotice);
            return false;
        }
        Call(hooks.RemoveSVR, slot);
        return true;
    }
    const bool renamed = name != work.sSVR_Name;
    edit.sSVR_Name = name;
    edit.iSVR_ValidCH = static_cast<qint16>(CameraCount(edit));
    ForgetModified(edit);
    edit.bSVR_Changed = true;
    if (renamed) {
        edit.bSVR_ConnChanged = true;
        Call(hooks.recorderRenamed, slot, name);
    }
    work = edit;
    At(recorders.SVRProWorkList, slot) = recorders.SVRProEdit;
    CheckScreens(hooks);
    return true;
}

bool TakeOverWritten(RecorderSet& recorders, int slot)
{
    const SVRRecord& edit = recorders.SVREdit;
    SVRRecord& work = At(recorders.SVRWorkList, slot);
    if (edit.sSVR_IP != work.sSVR_IP || edit.iSVR_HttpPort != work.iSVR_HttpPort || !HasCamera(edit))
        return false;
    const QString name = work.sSVR_Name;
    const QString user = work.sSVR_UserName;
    const QString password = work.sSVR_Password;
    work = edit;
    work.sSVR_Name = name;
    work.sSVR_UserName = user;
    work.sSVR_Password = password;
    work.iSVR_ValidCH = static_cast<qint16>(CameraCount(edit));
    ForgetModified(work);
    work.bSVR_Changed = true;
    At(recorders.SVRProWorkList, slot) = recorders.SVRProEdit;
    return true;
}

void LeaveUnapplied(const RecorderSet& recorders, int slot, const ModifyHooks& hooks)
{
    if (!At(recorders.SVRWorkList, slot).bSVR_Changed)
        return;
    CheckScreens(hooks);
    Call(hooks.SaveCheck);
}
