#include "device/protocol/Module_XML.h"

#include "app/log/Module_Log.h"
#include "device/protocol/ParameterText.h"
#include "device/protocol/ReplyParsers.h"
#include "support/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 kMotionEvent = 2001;

QString Number(qint32 value)
{
    return QString::number(value);
}

// `<name>value</name>`
QString Element(QLatin1String name, const QString& value)
{
    return u'<' + name + u'>' + value + u"</"_s + name + u'>';
}
QString Element(QLatin1String name, qint32 value)
{
    return Element(name, Number(value));
}

// ` name="value"`; `before` is the spelling up to the quote.
QString Attribute(QLatin1String before, const QString& value)
{
    return before + u'"' + value + u'"';
}
QString Attribute(QLatin1String before, qint32 value)
{
    return Attribute(before, Number(value));
}

QString Open(qint32 id)
{
    return Attribute("<CMD ID="_L1, id);
}

// Devices know each request by its exact text, the blank before a bracket included.
enum class Bracket
{
    Plain,      // ">"
    AfterBlank, // " >"
};

QString Untagged(qint32 id, const QString& parameters, Bracket bracket = Bracket::Plain)
{
    return Open(id) + (bracket == Bracket::AfterBlank ? " >"_L1 : ">"_L1) + Element("Param"_L1, parameters) +
           "</CMD>"_L1;
}

QString Tagged(qint32 id, const QString& parameters, Bracket bracket = Bracket::Plain,
               const QString& userData = u"CMS_Core"_s)
{
    return Open(id) + (bracket == Bracket::AfterBlank ? " >"_L1 : ">"_L1) + Element("UserData"_L1, userData) +
           Element("Param"_L1, parameters) + "</CMD>"_L1;
}

qint32 WireChannel(qint16 channel)
{
    if (channel < 0 || channel >= kMaxChannel)
        throw ConversionError(u"Subscript out of range"_s);
    return channel + 1;
}

QString ChannelElement(qint16 channel)
{
    return Element("CH"_L1, WireChannel(channel));
}

} // namespace

ChannelSettings ChannelSettingsOf(const SVRChannel& svr, const SVRProChannel& pro)
{
    return {.CH = svr.iSub_Channel,
            .Name = svr.sSub_CH_Name,
            .IP = svr.sSub_CH_IP,
            .HTTPPort = svr.iSub_CH_HttpPort,
            .UserName = svr.sSub_CH_UserName,
            .Password = svr.sSub_CH_Password,
            .VideoNumber = svr.iSub_CH_VideoID,
            .BrandCode = svr.iSub_CH_Brand,
            .Model = pro.sCH_Pro_Model,
            .MACAddress = pro.sCH_Pro_Mac,
            .RtspPort = pro.lCH_Pro_RTPSPort,
            .StartConfig = 0,
            .FMT = svr.sSub_CH_VideoFormat,
            .Size = svr.sSub_CH_Resolution,
            .FPS = svr.iCH_FPS,
            .Quality = svr.iCH_Quality,
            .RateControl = svr.iCH_RateCtrl,
            .Bitrate = svr.iCH_BitRate,
            .GOP = svr.iCH_GOP,
            .LensMode = pro.sCH_Pro_LensMode,
            .LeftDisplayMode = pro.sCH_Pro_LeftDisplayMode,
            .RightDisplayMode = pro.sCH_Pro_RightDisplayMode,
            .AudioFMT = pro.sCH_Pro_AudioType};
}

QString BuildGetSystemInfo()
{
    return Tagged(CMD_GET_SYSTEM_INFO, QString());
}

QString BuildGetDeviceInfo()
{
    return Open(CMD_GET_DEVICE_INFO) + " />"_L1;
}

QString BuildGetTime()
{
    return Open(CMD_GET_TIME) + "></CMD>"_L1;
}

QString BuildSaveConfig(qint16 type)
{
    return Untagged(CMD_SAVE_CONFIG, Element("Type"_L1, type));
}

QString BuildGetChannels(bool single, qint16 count)
{
    QString channels;
    for (qint32 number = single ? count : 1; number <= count; ++number)
        channels += Element("CH"_L1, number);
    return Tagged(CMD_GET_CHANNELS, Element("CHList"_L1, channels));
}

QString BuildSetChannel(const ChannelSettings& settings)
{
    const QString video = Element("FMT"_L1, settings.FMT) + Element("Size"_L1, settings.Size) +
                          Element("FPS"_L1, settings.FPS) + Element("Quality"_L1, settings.Quality) +
                          Element("RateControl"_L1, settings.RateControl) + Element("Bitrate"_L1, settings.Bitrate) +
                          Element("GOP"_L1, settings.GOP) + Element("LensMode"_L1, settings.LensMode) +
                          Element("LeftDisplayMode"_L1, settings.LeftDisplayMode) +
                          Element("RightDisplayMode"_L1, settings.RightDisplayMode);
    return Tagged(CMD_SET_CHANNEL,
                  Element("CH"_L1, settings.CH) + Element("Name"_L1, Escape(settings.Name)) +
                      Element("IP"_L1, settings.IP) + Element("HTTPPort"_L1, settings.HTTPPort) +
                      Element("UserName"_L1, settings.UserName) + Element("Password"_L1, settings.Password) +
                      Element("VideoNumber"_L1, settings.VideoNumber) + Element("BrandCode"_L1, settings.BrandCode) +
                      Element("Model"_L1, settings.Model) + Element("MACAddress"_L1, settings.MACAddress) +
                      Element("RtspPort"_L1, settings.RtspPort) + Element("StartConfig"_L1, settings.StartConfig) +
                      Element("Video"_L1, video) + Element("Audio"_L1, Element("FMT"_L1, settings.AudioFMT)));
}

QString BuildClearChannel(qint16 channelNumber)
{
    return Tagged(CMD_SET_CHANNEL, Element("CH"_L1, channelNumber), Bracket::Plain, u"CONFIG_AP"_s);
}

QString BuildSearchCameras()
{
    return Open(CMD_SEARCH_CAMERAS) + " />"_L1;
}

QString BuildDetectCamera(const QString& address, qint32 port, const QString& user, const QString& password,
                          qint16 videoNumber)
{
    return Untagged(CMD_DETECT_CAMERA, Element("IP"_L1, address) + Element("HTTPPort"_L1, port) +
                                           Element("UserName"_L1, user) + Element("Password"_L1, password) +
                                           Element("VideoNumber"_L1, videoNumber));
}

QString BuildGetFishEyeMode(qint16 channel)
{
    return Tagged(CMD_GET_FISHEYE_MODE, ChannelElement(channel), Bracket::AfterBlank);
}

QString BuildPtz(qint32 id, qint16 channel, qint16 direction, qint16 speed, qint16 cont, const QString& target)
{
    return Untagged(id, ChannelElement(channel) + (target.isEmpty() ? QString() : Element("Target"_L1, target)) +
                            Element("Direction"_L1, direction) + Element("Speed"_L1, speed) + Element("Cont"_L1, cont));
}

QString BuildPtzStop(qint16 channel, bool zoomHeld, const QString& target)
{
    return BuildPtz(zoomHeld ? CMD_PTZ_ZOOM : CMD_PTZ_MOVE, channel, 1, 1, 2, target);
}

QString BuildGetPtzPosition(qint16 channel)
{
    return Tagged(CMD_GET_PTZ_POSITION, ChannelElement(channel), Bracket::AfterBlank);
}

QString BuildGetPresetList(qint16 channel)
{
    return Tagged(CMD_GET_PRESET_LIST, ChannelElement(channel), Bracket::AfterBlank);
}

QString BuildGotoPreset(qint16 channel, qint16 preset, qint16 speed)
{
    return Tagged(CMD_GOTO_PRESET, ChannelElement(channel) + Element("Preset"_L1, preset) + Element("Speed"_L1, speed),
                  Bracket::AfterBlank);
}

QString BuildSetPresetName(qint16 channel, qint16 index, const QString& name)
{
    return Tagged(CMD_SET_PRESET_NAME,
                  ChannelElement(channel) + Element("ID"_L1, index + 1) + Element("Name"_L1, name.trimmed()),
                  Bracket::AfterBlank);
}

QString BuildSetPresetList(std::span<const PresetRecord> channels, qint16 channel)
{
    const qint32 number = WireChannel(channel);
    QString items;
    for (const PresetEntry& preset : At(channels, channel).Presets) {
        if (preset.CH != number || preset.Deleted)
            continue;
        items += Attribute("<Preset Name="_L1, preset.Name) + Attribute(" PTZABS="_L1, preset.PTZABS ? 1 : 0) +
                 Attribute(" Pan="_L1, preset.Pan) + Attribute(" Tilt="_L1, preset.Tilt) +
                 Attribute(" Zoom="_L1, preset.Zoom) + Attribute(" Focus="_L1, preset.Focus) +
                 Attribute(" Description="_L1, QString()) + u'>' + Number(preset.ID) + "</Preset>"_L1;
    }
    return Tagged(CMD_SET_PRESET_LIST, ChannelElement(channel) + Element("PresetList"_L1, items));
}

QString BuildGetPresetSeq(qint16 channel)
{
    return Untagged(CMD_GET_PRESET_SEQ, Element("CHList"_L1, ChannelElement(channel)), Bracket::AfterBlank);
}

QString BuildSetPresetSeq(qint16 channel, const QString& presets, qint16 dwell)
{
    const qint32 number = WireChannel(channel);
    const QStringList listed = presets.split(u',', Qt::SkipEmptyParts);
    if (!presets.contains(u',') || listed.isEmpty()) // a sequence of nothing would clear the device's
        return {};
    QString items;
    for (const QString& preset : listed)
        items += Attribute("<Preset ID="_L1, preset) + Attribute(" DwellTime="_L1, dwell) + "/>"_L1;
    return Tagged(CMD_SET_PRESET_SEQ, "<CHList>"_L1 + Attribute("<CH ID="_L1, number) + "><SeqList>"_L1 +
                                          Attribute("<Seq ID="_L1, 1) + u'>' + Element("PresetList"_L1, items) +
                                          "</Seq></SeqList></CH></CHList>"_L1);
}

QString BuildGetActionList()
{
    return Open(CMD_GET_ACTION_LIST) + " ></CMD>"_L1;
}

QString BuildSetActionList(std::span<const ActionRecord> actions)
{
    QString items;
    for (const ActionRecord& action : actions) {
        items += Attribute("<Action CH="_L1, action.CH) + Attribute(" Event="_L1, action.Event) +
                 Attribute(" ActionGroup="_L1, action.ActionGroup) + Attribute(" TriggerID="_L1, action.TriggerID) +
                 Attribute(" DigitalOut="_L1, action.DigitalOut) + Attribute(" Preset="_L1, action.Preset) +
                 Attribute(" DigitalOutID="_L1, action.DigitalOutID) +
                 Attribute(" DigitalOutState="_L1, action.DigitalOutState) +
                 Attribute(" DODuration="_L1, action.DODuration) + Attribute(" PresetDest="_L1, action.PresetDest) +
                 Attribute(" Enable="_L1, action.Enable) + "/>\r\n"_L1;
    }
    return Untagged(CMD_SET_ACTION_LIST, Element("ActionList"_L1, items));
}

QString BuildSetMotionDetect(std::span<const SVRRecord> recorders, qint16 svr, std::span<const ActionRecord> actions)
{
    const qint16 count = At(recorders, svr).iSVR_Maxchannel;
    QString items;
    for (qint16 channel = 0; channel < count; ++channel) {
        const qint32 number = WireChannel(channel);
        const bool on = std::ranges::any_of(actions, [&](const ActionRecord& action) {
            return action.CH == number && action.Event == kMotionEvent && action.Enable == 1;
        });
        // The blanks are the devices' own spelling.
        items += Attribute("<MotionDetect CH="_L1, number) + Attribute(" Enable="_L1, 0) +
                 Attribute(" CameraEnable ="_L1, on ? 1 : 0) + Attribute(" AlarmInterval ="_L1, 0) +
                 Attribute(" AlarmLevel = "_L1, 0) + Attribute(" History ="_L1, 0) + Attribute(" Sensitivity="_L1, 0) +
                 "/>\r\n"_L1;
    }
    return Untagged(CMD_SET_MOTION_DETECT, Element("MotionDetectList"_L1, items));
}

QString BuildGetMotionDiResult()
{
    return Open(CMD_GET_MOTION_DI_RESULT) + " />"_L1;
}

QString BuildQueryEventLog(const QString& begin, const QString& end, const QString& channelList,
                           const QString& typeList, qint32 count, const QString& userData)
{
    return Tagged(CMD_QUERY_EVENT_LOG,
                  Element("Order"_L1, 1) + Element("BeginTime"_L1, begin) + Element("EndTime"_L1, end) + channelList +
                      typeList + Element("Count"_L1, count),
                  Bracket::Plain, userData);
}

QString BuildSvdChannelInfo()
{
    return Tagged(CMD_GET_SVD_CHANNEL_INFO, Element("CHList"_L1, QString()));
}

QString BuildGetSvdResolutions(qint16 screen)
{
    return Untagged(CMD_GET_SVD_RESOLUTIONS, Element("Screen"_L1, screen));
}

QString BuildGetSvdScreens()
{
    return Open(CMD_GET_SVD_SCREENS) + "/>"_L1;
}

QString BuildGetSvdChannels()
{
    return Open(CMD_GET_SVD_CHANNELS) + "/>"_L1;
}

qint16 CheckCmdResult(const QString& reply)
{
    const qint16 result = ParseResultCode(reply);
    return result == 0 ? qint16(1) : result;
}

bool Accepted(const QString& reply)
{
    return !reply.isEmpty() && CheckCmdResult(reply) >= 0;
}

QCoro::Task<EventWrite> ApplyEventSettings(std::span<SVRRecord> recorders, qint16 svr, bool motion,
                                           std::span<const ActionRecord> actions,
                                           std::function<QCoro::Task<QString>(QString xml)> send)
{
    EventWrite write;
    QString reply;
    if (motion) {
        reply = co_await send(BuildSetMotionDetect(recorders, svr, actions));
        if (!Accepted(reply))
            co_return write;
    }
    reply = co_await send(BuildSetActionList(actions));
    if (!Accepted(reply))
        co_return write;
    if (motion) {
        reply = co_await send(BuildGetMotionDiResult());
        write.refused = Accepted(reply) ? ParseApplyResult(reply) : QString();
        const QStringList numbers = write.refused.split(u',', Qt::SkipEmptyParts);
        for (const QString& number : numbers) {
            Trapped("Form_NVRSetting - ApplyEventSettings",
                    [&] { At(At(recorders, svr).channels, ToInt16(number) - 1).bSub_CH_Cam_MD_Enabled = false; });
        }
    }
    reply = co_await send(BuildSaveConfig(kSaveEvents));
    write.result = Accepted(reply) ? 1 : -1;
    co_return write;
}
