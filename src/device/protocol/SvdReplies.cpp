#include "device/protocol/ReplyParsers.h"
#include "device/protocol/XmlReply.h"

// Replies of a decoder.

namespace {

template <auto Field>
void Text(SVDChannel& channel, pugi::xml_node node)
{
    channel.*Field = DecodedText(node);
}
template <auto Field>
void Int16(SVDChannel& channel, pugi::xml_node node)
{
    channel.*Field = Int16Of(node);
}

// One stream a child, at the position that its first attribute names (from 1).
void ReadVideoList(SVDChannel& channel, pugi::xml_node list)
{
    channel.VideoList.resize(ElementCount(list));
    ForEachElement(list, [&](pugi::xml_node node) {
        SVDStream& stream = At(channel.VideoList, Int16Of(FirstAttribute(node)) - 1);
        if (const pugi::xml_node format = node.child("FMT"))
            stream.FMT = DecodedText(format);
        if (const pugi::xml_node size = node.child("Size"))
            stream.Size = DecodedText(size);
    });
}

constexpr auto kChannelInfo = Elements<SVDChannel>({
    {"Name", Text<&SVDChannel::sCamName>},
    {"IP", Text<&SVDChannel::sCamIP>},
    {"HTTPPort", [](SVDChannel& channel, pugi::xml_node node) { channel.lCamHttpPort = Int32Of(node); }},
    {"CapPTZ", Int16<&SVDChannel::iCamCapPTZ>},
    {"CapPTZSpeedUpper", Int16<&SVDChannel::iCamCapPTZSpeedUpper>},
    {"CapPTZSpeedLower", Int16<&SVDChannel::iCamCapPTZSpeedLower>},
    {"CapPTZSpeedStep", Int16<&SVDChannel::iCamCapPTZSpeedStep>},
    {"CapPTZAutoPan", Int16<&SVDChannel::iCamCapPTZAutoPan>},
    {"CapPTZMove", Int16<&SVDChannel::iCamCapPTZMove>},
    {"CapPTZZoom", Int16<&SVDChannel::iCamCapPTZZoom>},
    {"CapPTZIris", Int16<&SVDChannel::iCamCapPTZIris>},
    {"CapPTZFocus", Int16<&SVDChannel::iCamCapPTZFocus>},
    {"CapPTZMoveCont", Int16<&SVDChannel::iCamCapPTZMoveCont>},
    {"CapPTZZoomCont", Int16<&SVDChannel::iCamCapPTZZoomCont>},
    {"CapPTZIrisCont", Int16<&SVDChannel::iCamCapPTZIrisCont>},
    {"CapPTZFocusCont", Int16<&SVDChannel::iCamCapPTZFocusCont>},
    {"CapAudioIn", Int16<&SVDChannel::iCamCapAudioIn>},
    {"CapAudioOut", Int16<&SVDChannel::iCamCapAudioOut>},
    {"LensMode", Text<&SVDChannel::sCamLensMode>},
    {"LeftDisplayMode", Text<&SVDChannel::sCamLeftDisplayMode>},
    {"RightDisplayMode", Text<&SVDChannel::sCamRightDisplayMode>},
    {"AudioOutFMT", Text<&SVDChannel::sCamAudioOutFMT>},
    {"AudioOutSampleRate", Int16<&SVDChannel::iCamAudioOutSampleRate>},
    {"AudioOutChannel", Int16<&SVDChannel::iCamAudioOutChannel>},
    {"AudioOutLength", Int16<&SVDChannel::iCamAudioOutLength>},
    {"ModeList4FishEye", Text<&SVDChannel::sCamModeList4FishEye>},
    {"Mode4FishEye", Text<&SVDChannel::sCamMode4FishEye>},
    {"ModeCapList4FishEye", Text<&SVDChannel::sCamModeCapList4FishEye>},
    {"MultiEnable", Int16<&SVDChannel::iCamMultiEnable>},
    {"MultiNum", Int16<&SVDChannel::iCamMultiNum>},
    {"MultiDynamicEnable", Int16<&SVDChannel::iCamMultiDynamicEnable>},
    {"VideoList", ReadVideoList},
});

constexpr auto kShownChannel = Elements<SVDChannel>({
    {"NVRID", Int16<&SVDChannel::iCamNVRID>},
    {"NVRCH", Int16<&SVDChannel::iCamNVRCH>},
    {"Audio", Int16<&SVDChannel::iCamAudio>},
});

constexpr auto kSystemInfo = Elements<SVDRecord>({
    {"TimeZone", [](SVDRecord& svd, pugi::xml_node node) { svd.iTimeZone = Int16Of(node); }},
    {"DSTEnable", [](SVDRecord& svd, pugi::xml_node node) { svd.iSummerTime = Int16Of(node); }},
    {"DSTIndex", [](SVDRecord& svd, pugi::xml_node node) { svd.iSummerTimeIndex = Int16Of(node); }},
    {"HTTPPort", [](SVDRecord& svd, pugi::xml_node node) { svd.lHttpPort = Int32Of(node); }},
});

// Calls `read` with the decoder's channel that each child of CHList names by its first attribute (from 1).
template <class Read>
void ForEachChannel(pugi::xml_node response, SVDRecord& svd, Read&& read)
{
    ForEachElement(response, "CHList", [&](pugi::xml_node list) {
        ForEachElement(list, [&](pugi::xml_node node) {
            const qint16 number = Int16Of(FirstAttribute(node));
            SVDChannel& channel = At(svd.Channels, number - 1);
            channel.iCamCH = number;
            read(channel, node);
        });
    });
}

} // namespace

void ParseSvdChannelInfo(ReplyText reply, SVDRecord& svd)
{
    const XmlReply document(std::move(reply));
    const pugi::xml_node response = document.response();
    if (!response || Int32Of(FirstAttribute(response)) != 0)
        return;
    ForEachChannel(response, svd,
                   [](SVDChannel& channel, pugi::xml_node node) { ReadElements(kChannelInfo, channel, node); });
}

void ParseSvdResolutions(ReplyText reply, qint16 screen, SVDRecord& svd)
{
    std::vector<qint16>& codes = At(svd.Screens, screen - 1).ResolutionCodes;
    const XmlReply document(std::move(reply));
    const pugi::xml_node list = document.response().child("ResolutionList");
    if (!list)
        return;
    codes.clear();
    ForEachElement(list, "Resolution", [&](pugi::xml_node node) { codes.push_back(Int16Of(node)); });
}

void ParseSvdSystemInfo(ReplyText reply, SVDRecord& svd)
{
    const XmlReply document(std::move(reply));
    ReadElements(kSystemInfo, svd, document.response());
}

void ParseSvdChannels(ReplyText reply, SVDRecord& svd)
{
    const XmlReply document(std::move(reply));
    ForEachChannel(document.response(), svd,
                   [](SVDChannel& channel, pugi::xml_node node) { ReadElements(kShownChannel, channel, node); });
}

void ParseSvdScreens(ReplyText reply, SVDRecord& svd)
{
    svd.iScreenCount = 0;
    const XmlReply document(std::move(reply));
    ForEachElement(document.response(), "ScreenList", [&](pugi::xml_node list) {
        ForEachElement(list, "Screen", [&](pugi::xml_node node) {
            SVDScreenRow& screen = At(svd.Screens, Int16Of(FirstAttribute(node)) - 1);
            const pugi::xml_node present = node.child("Resolution");
            if (!present)
                return;
            screen.ResolutionCode = std::max<qint16>(Int16Of(present), 0);
            if (screen.ResolutionCode > 0 && svd.iScreenCount < SVDRecord::kScreens)
                ++svd.iScreenCount;
        });
    });
}
