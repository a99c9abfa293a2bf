#include "device/protocol/ReplyParsers.h"
#include "device/protocol/XmlReply.h"

#include <QVarLengthArray>
#include <algorithm>
#include <charconv>
#include <string_view>

using namespace Qt::StringLiterals;

// The two replies that fill a recorder's channels: the list of its channels and the answer to a camera probe.

namespace {

struct ChannelTarget
{
    SVRChannel* svr = nullptr;
    SVRProChannel* pro = nullptr;
    // Bounds of the PTZ speed wait here for SpeedStep; they are not reset between channels.
    qint16 speedLower = 0;
    qint16 speedUpper = 0;
    // Slot of the stream of a probe's current settings whose elements are being read.
    std::size_t slot = 0;
    std::string scratch = {};

    SVRProStreams& streams() { return pro->streams; }
};

template <class Class, class T>
T& Cell(ChannelTarget& target, T Class::*field)
{
    if constexpr (std::is_base_of_v<Class, SVRChannel>)
        return target.svr->*field;
    else
        return target.pro->*field;
}

// The texts of the children with `separator` between, before the second decoding: no reference can span two of them.
struct JoinedTexts
{
    QVarLengthArray<char, 512> list; // ends in NUL
    std::size_t count = 0;
};
JoinedTexts Joined(pugi::xml_node node, char separator)
{
    JoinedTexts joined;
    std::string scratch;
    ForEachElement(node, [&](pugi::xml_node child) {
        if (joined.count++ > 0)
            joined.list.append(separator);
        const char* const text = RawText(child, scratch);
        joined.list.append(text, static_cast<qsizetype>(std::strlen(text)));
    });
    joined.list.append('\0');
    return joined;
}

void Cut(QString& text, qsizetype most)
{
    if (text.size() > most)
        text.truncate(most);
}

// Readers of one element into the channel's cell of `Field`.
template <auto Field, qsizetype Most = kMaxDeviceText>
void Text(ChannelTarget& target, pugi::xml_node node)
{
    QString& text = Cell(target, Field);
    Decode(RawText(node, target.scratch), text);
    Cut(text, Most);
}
template <auto Field>
void Int16(ChannelTarget& target, pugi::xml_node node)
{
    Cell(target, Field) = Int16Of(node);
}
template <auto Field>
void Int32(ChannelTarget& target, pugi::xml_node node)
{
    Cell(target, Field) = Int32Of(node);
}
template <auto Field>
void Flag(ChannelTarget& target, pugi::xml_node node)
{
    Cell(target, Field) = Int32Of(node) != 0;
}
// The texts of the children, joined by commas.
template <auto Field>
void TextList(ChannelTarget& target, pugi::xml_node node)
{
    QString& text = Cell(target, Field);
    Decode(Joined(node, ',').list.constData(), text);
    Cut(text, kMaxDeviceList);
}

using Reader = ElementReader<ChannelTarget>;

constexpr auto kSystem = Elements<ChannelTarget>({
    {"UserName", Text<&SVRChannel::sSub_CH_UserName>},
    {"Password", Text<&SVRChannel::sSub_CH_Password>},
    {"Model", Text<&SVRProChannel::sCH_Pro_Model>},
    {"MACAddress", Text<&SVRProChannel::sCH_Pro_Mac>},
    {"NumberVideo", Int16<&SVRChannel::iSub_CH_VideoIDCount>},
    {"VideoNumber", Int16<&SVRChannel::iSub_CH_VideoID>},
    {"RtspPort", Int32<&SVRProChannel::lCH_Pro_RTPSPort>},
    {"BrandCode", Int16<&SVRChannel::iSub_CH_Brand>},
});

// CapAudioIn decides both ways, CapAudioOut only raises: their order in the reply matters.
constexpr auto kAudio = Elements<ChannelTarget>({
    {"FMT", Text<&SVRProChannel::sCH_Pro_AudioType>},
    {"CapAudioIn",
     [](ChannelTarget& target, pugi::xml_node node) {
         Cell(target, &SVRChannel::iSub_CH_Audio) = DecodedText(node) == "1"_L1 ? 1 : 0;
     }},
    {"CapAudioOut",
     [](ChannelTarget& target, pugi::xml_node node) {
         if (DecodedText(node) == "1"_L1)
             Cell(target, &SVRChannel::iSub_CH_Audio) = 2;
     }},
});

constexpr Reader kSpeedLower{"SpeedLower",
                             [](ChannelTarget& target, pugi::xml_node node) { target.speedLower = Int16Of(node); }};
constexpr Reader kSpeedUpper{"SpeedUpper",
                             [](ChannelTarget& target, pugi::xml_node node) { target.speedUpper = Int16Of(node); }};
constexpr Reader kSpeedStep{"SpeedStep", [](ChannelTarget& target, pugi::xml_node node) {
                                std::array<char, 32> range;
                                char* at = range.data();
                                for (const qint16 bound : {target.speedLower, target.speedUpper, Int16Of(node)}) {
                                    at = std::to_chars(at, range.end(), bound).ptr;
                                    *at++ = ',';
                                }
                                at[-1] = '\0';
                                Decode(range.data(), Cell(target, &SVRChannel::sCH_PTZ_Speed_Range));
                            }};
constexpr Reader kMove{"Move", [](ChannelTarget& target, pugi::xml_node node) {
                           Cell(target, &SVRChannel::sCH_PTZ_PanTilt_Range) = QString::number(Int16Of(node));
                       }};

constexpr auto kPtz = Elements<ChannelTarget>({
    {"PTZEnable", Flag<&SVRChannel::bSub_CH_PTZ>},
    {"PTZABS", Flag<&SVRProChannel::bCH_Pro_ABS>},
    {"AutoPan", Int16<&SVRProChannel::iCH_Pro_AutoPanMode>},
    kSpeedLower,
    kSpeedUpper,
    kSpeedStep,
    {"MoveCont", Int16<&SVRChannel::iCH_PTZ_MoveContCap>},
    {"ZoomCont", Int16<&SVRChannel::iCH_PTZ_ZoomContCap>},
    {"FocusCont", Int16<&SVRChannel::iCH_PTZ_FocusContCap>},
    {"IrisCont", Int16<&SVRChannel::iCH_PTZ_IrisContCap>},
    {"SyncPreset", Int16<&SVRProChannel::iCH_Pro_SyncPreset>},
    kMove,
    {"SetPreset", Flag<&SVRProChannel::bCH_Pro_SetPreset>},
    {"ModeList4FishEye", Text<&SVRChannel::sSub_CH_MD_FishEyeModeList, kMaxDeviceList>},
    {"Mode4FishEye", Text<&SVRChannel::sSub_CH_Mode4FishEye>},
});

constexpr auto kProbePtz = Elements<ChannelTarget>({
    {"PTZEnable", Flag<&SVRChannel::bSub_CH_PTZ>},
    {"PTZABS", Flag<&SVRProChannel::bCH_Pro_ABS>},
    {"AutoPan", Int16<&SVRProChannel::iCH_Pro_AutoPanMode>},
    kSpeedLower,
    kSpeedUpper,
    kSpeedStep,
    {"Zoom", Int16<&SVRChannel::iCH_PTZ_ZoomContCap>},
    {"Focus", Int16<&SVRChannel::iCH_PTZ_FocusContCap>},
    {"Iris", Int16<&SVRChannel::iCH_PTZ_IrisContCap>},
    {"SyncPreset", Int16<&SVRProChannel::iCH_Pro_SyncPreset>},
    kMove,
    {"SetPreset", Flag<&SVRProChannel::bCH_Pro_SetPreset>},
    {"ModeList4FishEye", Text<&SVRChannel::sSub_CH_MD_FishEyeModeList, kMaxDeviceList>},
    {"Mode4FishEye", Text<&SVRChannel::sSub_CH_Mode4FishEye>},
});

constexpr Reader kSupportFmt{
    "SupportFMT", [](ChannelTarget& target, pugi::xml_node node) {
        qint16 slot = 0;
        ForEachElement(node, [&](pugi::xml_node child) { ParseSupportFmt(target.streams(), child, slot); });
    }};
constexpr Reader kFmtList{"FMTList", [](ChannelTarget& target, pugi::xml_node node) {
                              QString& list = Cell(target, &SVRChannel::sCH_FMTList);
                              Decode(RawText(node, target.scratch), list);
                              Cut(list, kMaxDeviceList);
                              list.replace(u' ', u',');
                          }};

constexpr auto kVideo = Elements<ChannelTarget>({
    {"FMT", Text<&SVRChannel::sSub_CH_VideoFormat>},
    {"Size", Text<&SVRChannel::sSub_CH_Resolution>},
    {"FPS", Int16<&SVRChannel::iCH_FPS>},
    {"Quality", Int16<&SVRChannel::iCH_Quality>},
    {"RateControl", Int16<&SVRChannel::iCH_RateCtrl>},
    {"Bitrate", Int16<&SVRChannel::iCH_BitRate>},
    {"GOP", Int16<&SVRChannel::iCH_GOP>},
    {"LensMode", Text<&SVRProChannel::sCH_Pro_LensMode>},
    {"LeftDisplayMode", Text<&SVRProChannel::sCH_Pro_LeftDisplayMode>},
    {"RightDisplayMode", Text<&SVRProChannel::sCH_Pro_RightDisplayMode>},
    kSupportFmt,
    kFmtList,
    {"LensModeList", TextList<&SVRProChannel::sCH_Pro_LensModeList>},
    {"LeftDisplayModeList", TextList<&SVRProChannel::sCH_Pro_LeftDisplayModeList>},
    {"RightDisplayModeList", TextList<&SVRProChannel::sCH_Pro_RightDisplayModeList>},
});

// The present settings of one stream of a probed camera.
constexpr auto kStream = Elements<ChannelTarget>({
    {"FMT",
     [](ChannelTarget& target, pugi::xml_node node) {
         const QString format = DecodedText(node);
         const QString lower = format.toLower();
         if (lower == "jpeg"_L1 || lower == "mjpeg"_L1)
             target.slot = 0;
         else if (lower == "mpeg4"_L1)
             target.slot = 1;
         else if (lower == "h264"_L1)
             target.slot = 2;
         target.streams()[target.slot].sFMT = format;
     }},
    {"Size",
     [](ChannelTarget& target, pugi::xml_node node) { target.streams()[target.slot].sResolution = DecodedText(node); }},
    {"FPS",
     [](ChannelTarget& target, pugi::xml_node node) { target.streams()[target.slot].iFrameRate = Int16Of(node); }},
    {"Quality",
     [](ChannelTarget& target, pugi::xml_node node) { target.streams()[target.slot].iQuality = Int16Of(node); }},
    {"RateControl", [](ChannelTarget& target,
                       pugi::xml_node node) { target.streams()[target.slot].sRateControl = DecodedText(node); }},
    {"Bitrate",
     [](ChannelTarget& target, pugi::xml_node node) { target.streams()[target.slot].iBitRate = Int16Of(node); }},
    {"GOP", [](ChannelTarget& target, pugi::xml_node node) { target.streams()[target.slot].iGOP = Int16Of(node); }},
});

void ReadCurrentSettings(ChannelTarget& target, pugi::xml_node list)
{
    ForEachElement(list, [&](pugi::xml_node stream) { ReadElements(kStream, target, stream); });
    for (SVRProStream& stream : target.streams()) {
        const QString format = stream.sFMT.toLower();
        if (format == "mjpeg"_L1)
            stream.bGOPCap = false;
        else if (format == "mpeg4"_L1 || format == "h264"_L1)
            stream.bGOPCap = stream.iGOP >= 1;
    }
}

constexpr auto kProbeVideo = Elements<ChannelTarget>({
    {"CurrentSettingsList", ReadCurrentSettings},
    {"LensMode", Text<&SVRProChannel::sCH_Pro_LensMode>},
    {"LeftDisplayMode", Text<&SVRProChannel::sCH_Pro_LeftDisplayMode>},
    {"RightDisplayMode", Text<&SVRProChannel::sCH_Pro_RightDisplayMode>},
    kSupportFmt,
    kFmtList,
    {"LensModeList", TextList<&SVRProChannel::sCH_Pro_LensModeList>},
    {"LeftDisplayModeList", TextList<&SVRProChannel::sCH_Pro_LeftDisplayModeList>},
    {"RightDisplayModeList", TextList<&SVRProChannel::sCH_Pro_RightDisplayModeList>},
});

void ReadProbeVideo(ChannelTarget& target, pugi::xml_node video)
{
    SVRProStreams& streams = target.streams();
    const std::size_t count = std::min<std::size_t>(ElementCount(video.child("CurrentSettingsList")), kMaxStream);
    for (std::size_t slot = 0; slot < count; ++slot) {
        streams[slot].sFMT.clear();
        streams[slot].sResolution.clear();
        streams[slot].sRateControl = u"-1"_s;
        streams[slot].iFrameRate = -1;
        streams[slot].iQuality = -1;
        streams[slot].iBitRate = -1;
        streams[slot].iGOP = -1;
    }
    for (SVRProStream& stream : streams)
        stream.bGOPCap = &stream != &streams.front();
    ReadElements(kProbeVideo, target, video);
}

template <const auto& Table>
void Section(ChannelTarget& target, pugi::xml_node node)
{
    ReadElements(Table, target, node);
}

constexpr auto kChannel = Elements<ChannelTarget>({
    {"Name", Text<&SVRChannel::sSub_CH_Name>},
    {"IP", Text<&SVRChannel::sSub_CH_IP>},
    {"HTTPPort", Int32<&SVRChannel::iSub_CH_HttpPort>},
    {"System", Section<kSystem>},
    {"Video", Section<kVideo>},
    {"Audio", Section<kAudio>},
    {"PTZ", Section<kPtz>},
});

constexpr auto kProbe = Elements<ChannelTarget>({
    {"System", Section<kSystem>},
    {"Video", ReadProbeVideo},
    {"Audio", Section<kAudio>},
    {"PTZ", Section<kProbePtz>},
});

void ClearFormats(SVRProStreams& streams)
{
    for (SVRProStream& stream : streams) {
        stream.sResolutionList.clear();
        for (auto* bounds : {&stream.iFPSUpper, &stream.iFPSLower, &stream.iBPSUpper, &stream.iBPSLower})
            bounds->assign(1, 0);
    }
}

// Reads the listed channels into the records that `find` puts into the target for their indexes (from 0); where it
// answers false one is passed over.
template <class Find>
qint16 ReadChannelList(ReplyText reply, Find&& find)
{
    const XmlReply document(std::move(reply));
    const pugi::xml_node response = document.response();
    if (!response || Int32Of(FirstAttribute(response)) != 0)
        return 0;
    ChannelTarget target;
    ForEachElement(response, "CHList", [&](pugi::xml_node list) {
        ForEachElement(list, [&](pugi::xml_node channel) {
            const int index = Int16Of(FirstAttribute(channel)) - 1;
            if (!find(index, target))
                return;
            SVRProStreams& streams = target.streams();
            ClearFormats(streams);
            ReadElements(kChannel, target, channel);
            target.svr->sCH_ResolutionList =
                streams[0].sResolutionList + u';' + streams[1].sResolutionList + u';' + streams[2].sResolutionList;
        });
    });
    return 1;
}

} // namespace

qint16 ParseChannelList(ReplyText reply, SVRRecord& svr, SVRProRecord& pro)
{
    return ReadChannelList(std::move(reply), [&](int index, ChannelTarget& target) {
        target.svr = &At(svr.channels, index);
        target.pro = &At(pro.channels, index);
        return true;
    });
}

qint16 ParseChannel(ReplyText reply, qint16 channel, SVRChannel& svr, SVRProChannel& pro)
{
    bool listed = false;
    const qint16 result = ReadChannelList(std::move(reply), [&](int index, ChannelTarget& target) {
        target.svr = &svr;
        target.pro = &pro;
        listed = listed || index == channel;
        return index == channel;
    });
    return listed ? result : qint16(0);
}

void ParseSupportFmt(SVRProStreams& formats, pugi::xml_node child, qint16& slot)
{
    const char* format = "";
    const qint16 present = slot;
    for (pugi::xml_attribute at = child.first_attribute(); at; at = at.next_attribute()) {
        const char* const name = at.name();
        const char* const value = at.value();
        if (SameName(name, "FMT")) {
            format = value;
            slot = qstricmp(value, "JPEG") == 0 ? 0 : qstricmp(value, "MPEG4") == 0 ? 1 : 2;
        } else if (SameName(name, "QualityLower")) {
            At(formats, present).iQualityLower = Int16Of(value);
        } else if (SameName(name, "QualityUpper")) {
            At(formats, present).iQualityUpper = Int16Of(value);
        } else if (SameName(name, "RateControl")) {
            At(formats, present).bRateControlCap = Int32Of(value) != 0;
        }
    }

    constexpr std::array<std::string_view, kMaxStream> names = {"jpeg", "mpeg4", "h264"};
    const auto named = std::ranges::find(names, format);
    if (named == names.end())
        return;
    auto [sizes, count] = Joined(child, ' ');
    if (count == 0 || sizes.size() > kMaxDeviceList)
        return;
    const auto own = static_cast<std::size_t>(named - names.begin());
    std::ranges::replace(sizes, ' ', ',');
    Decode(sizes.constData(), formats[own].sResolutionList);

    const std::array<std::pair<KnownName, std::vector<qint16>*>, 4> bounds = {{
        {"FPSLower", &formats[own].iFPSLower},
        {"FPSUpper", &formats[own].iFPSUpper},
        {"BPSLower", &formats[own].iBPSLower},
        {"BPSUpper", &formats[own].iBPSUpper},
    }};
    for (const auto& [name, values] : bounds)
        values->assign(count, 0);
    std::size_t position = 0;
    ForEachElement(child, [&](pugi::xml_node size) {
        std::size_t expected = 0; // devices send them in this order
        pugi::xml_attribute at = size.first_attribute();
        for (const char* name = at.name(); *name != '\0'; name = at.name()) {
            for (std::size_t tried = 0; tried < bounds.size(); ++tried, ++expected) {
                const auto& [bound, values] = bounds[expected % bounds.size()];
                if (!SameName(name, bound))
                    continue;
                (*values)[position] = Int16Of(at.value());
                ++expected;
                break;
            }
            at = at.next_attribute();
        }
        ++position;
    });
}

qint16 ParseDetectedCamera(ReplyText reply, SVRChannel& channel, SVRProChannel& pro)
{
    const XmlReply document(std::move(reply));
    const pugi::xml_node response = document.response();
    if (!response)
        return -100;
    if (const qint16 result = Int16Of(FirstAttribute(response)); result != 0)
        return result;
    ChannelTarget target{&channel, &pro};
    // Recorders differ in whether a wrapper stands round the sections.
    ForEachElement(response, [&](pugi::xml_node child) {
        if (const std::size_t index = IndexOf(kProbe, child.name()); index < kProbe.size())
            kProbe[index].read(target, child);
        else if (!SameName(child.name(), "UserData"))
            ReadElements(kProbe, target, child);
    });
    return 0;
}
