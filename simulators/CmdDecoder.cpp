#include "simulators/Commands.h"

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

void addDecoderChannel(pugi::xml_node list, int number, const Camera& camera, const DecoderChannel& use)
{
    pugi::xml_node node = list.append_child("CH");
    node.append_attribute("ID") = number;
    addText(node, "Name", camera.name);
    addText(node, "IP", camera.ip);
    addNumber(node, "HTTPPort", camera.httpPort);
    addNumber(node, "CapPTZ", camera.ptz.enable);
    addNumber(node, "CapPTZSpeedUpper", camera.ptz.speedUpper);
    addNumber(node, "CapPTZSpeedLower", camera.ptz.speedLower);
    addNumber(node, "CapPTZSpeedStep", camera.ptz.speedStep);
    addNumber(node, "CapPTZAutoPan", camera.ptz.autoPan);
    addNumber(node, "CapPTZMove", camera.ptz.move);
    for (const char* name : {"CapPTZZoom", "CapPTZIris", "CapPTZFocus"})
        addNumber(node, name, camera.ptz.enable);
    addNumber(node, "CapPTZMoveCont", camera.ptz.moveCont);
    addNumber(node, "CapPTZZoomCont", camera.ptz.zoomCont);
    addNumber(node, "CapPTZIrisCont", camera.ptz.irisCont);
    addNumber(node, "CapPTZFocusCont", camera.ptz.focusCont);
    addNumber(node, "CapAudioIn", camera.audioIn);
    addNumber(node, "CapAudioOut", camera.audioOut);
    addText(node, "LensMode", camera.lensMode);
    addText(node, "LeftDisplayMode", camera.leftDisplayMode);
    addText(node, "RightDisplayMode", camera.rightDisplayMode);
    addText(node, "AudioOutFMT", camera.audioFormat);
    addNumber(node, "AudioOutSampleRate", 8000);
    addNumber(node, "AudioOutChannel", 1);
    addNumber(node, "AudioOutLength", 320);
    addText(node, "ModeList4FishEye", camera.fishEyeModes);
    addText(node, "Mode4FishEye", camera.fishEyeMode);
    addText(node, "ModeCapList4FishEye", camera.fishEyeModes);
    addNumber(node, "MultiEnable", use.multiEnable);
    addNumber(node, "MultiNum", use.multiEnable ? 2 : 1);
    addNumber(node, "MultiDynamicEnable", use.multiDynamic);
    pugi::xml_node videos = node.append_child("VideoList");
    const int streams = use.multiEnable ? 2 : 1;
    for (int i = 0; i < streams; ++i) {
        pugi::xml_node video = videos.append_child("Video");
        video.append_attribute("ID") = i + 1;
        addText(video, "FMT", camera.live.format);
        addText(video, "Size", i == 0 ? camera.live.size : u"640x480"_s);
    }
}

// The channels asked for, or all that carry a camera when the list is empty.
int channelInfo(CommandContext& context, pugi::xml_node cmd, pugi::xml_node response)
{
    const pugi::xml_node asked = cmd.child("Param").child("CHList");
    if (!asked)
        return kRetMalformed;
    pugi::xml_node list = response.append_child("CHList");
    std::vector<int> numbers;
    for (const pugi::xml_node node : asked.children("CH"))
        numbers.push_back(numberIn(node.text().get()).value_or(0));
    if (numbers.empty())
        for (size_t i = 0; i < context.state.channels.size(); ++i)
            if (!context.state.channels[i].camera.ip.isEmpty())
                numbers.push_back(static_cast<int>(i) + 1);
    for (const int number : numbers) {
        const Channel* channel = context.channel(number);
        if (!channel)
            return kRetBadValue;
        addDecoderChannel(list, number, channel->camera,
                          context.state.decoderChannels.at(static_cast<size_t>(number - 1)));
    }
    return 0;
}

} // namespace

std::optional<int> runDecoderCommand(CommandContext& context, int id, pugi::xml_node cmd, pugi::xml_node response)
{
    const DeviceState& state = context.state;
    switch (id) {
    case 24577:
        return channelInfo(context, cmd, response);
    case 4198402: { // what one screen offers
        const int screen = numberOf(cmd.child("Param"), "Screen").value_or(0);
        if (screen < 1 || screen > static_cast<int>(state.screens.size()))
            return kRetBadValue;
        pugi::xml_node list = response.append_child("ResolutionList");
        for (const int resolution : state.screens[static_cast<size_t>(screen - 1)].offered)
            addNumber(list, "Resolution", resolution);
        return 0;
    }
    case 4198422: { // what the screens show at
        pugi::xml_node list = response.append_child("ScreenList");
        for (size_t i = 0; i < state.screens.size(); ++i) {
            pugi::xml_node screen = list.append_child("Screen");
            screen.append_attribute("ID") = static_cast<int>(i) + 1;
            addNumber(screen, "Resolution", state.screens[i].resolution);
        }
        return 0;
    }
    case 4202501: { // where the channels come from
        pugi::xml_node list = response.append_child("CHList");
        for (size_t i = 0; i < state.channels.size(); ++i) {
            if (state.channels[i].camera.ip.isEmpty())
                continue;
            const DecoderChannel& use = state.decoderChannels.at(i);
            pugi::xml_node node = list.append_child("CH");
            node.append_attribute("ID") = static_cast<int>(i) + 1;
            addNumber(node, "NVRID", use.recorder);
            addNumber(node, "NVRCH", use.channel);
            addNumber(node, "Audio", use.audio);
        }
        return 0;
    }
    default:
        return std::nullopt;
    }
}

} // namespace simulators
