#include "simulators/Commands.h"
#include "simulators/DeviceText.h"

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

void addModes(pugi::xml_node video, const char* name, const QStringList& modes)
{
    pugi::xml_node list = video.append_child(name);
    for (const QString& mode : modes)
        addText(list, "Mode", mode);
}

QString formatNames(const Camera& camera)
{
    QStringList names;
    for (const SupportedFormat& format : camera.formats)
        names += format.name;
    return names.join(u' ');
}

void addFormats(pugi::xml_node video, const Camera& camera)
{
    pugi::xml_node list = video.append_child("SupportFMT");
    for (const SupportedFormat& format : camera.formats) {
        pugi::xml_node node = list.append_child("Format");
        node.append_attribute("FMT") = format.name.toUtf8().constData();
        node.append_attribute("QualityLower") = format.qualityLower;
        node.append_attribute("QualityUpper") = format.qualityUpper;
        node.append_attribute("RateControl") = format.rateControl ? 1 : 0;
        for (const SupportedSize& size : format.sizes) {
            pugi::xml_node child = addText(node, "Size", size.size);
            child.append_attribute("FPSLower") = size.fpsLower;
            child.append_attribute("FPSUpper") = size.fpsUpper;
            child.append_attribute("BPSLower") = size.bpsLower;
            child.append_attribute("BPSUpper") = size.bpsUpper;
        }
    }
    addText(video, "FMTList", formatNames(camera));
    pugi::xml_node sizes = video.append_child("SizeList");
    for (const SupportedFormat& format : camera.formats)
        for (const SupportedSize& size : format.sizes)
            addText(sizes, "Size", size.size);
    addModes(video, "LensModeList", camera.lensModes);
    addModes(video, "LeftDisplayModeList", camera.leftDisplayModes);
    addModes(video, "RightDisplayModeList", camera.rightDisplayModes);
}

void addStream(pugi::xml_node node, const StreamSettings& stream)
{
    addText(node, "FMT", stream.format);
    addText(node, "Size", stream.size);
    addNumber(node, "FPS", stream.fps);
    addNumber(node, "Quality", stream.quality);
    addNumber(node, "RateControl", stream.rateControl);
    addNumber(node, "Bitrate", stream.bitrate);
    addNumber(node, "GOP", stream.gop);
}

void addSystem(pugi::xml_node parent, const Camera& camera)
{
    pugi::xml_node node = parent.append_child("System");
    addText(node, "UserName", camera.user);
    addText(node, "Password", camera.password);
    addText(node, "Manufacturer", camera.manufacturer);
    addText(node, "Model", camera.model);
    addText(node, "MACAddress", camera.mac);
    addNumber(node, "NumberVideo", camera.videoSources);
    addNumber(node, "VideoNumber", camera.videoNumber);
    addNumber(node, "RtspPort", camera.rtspPort);
    addNumber(node, "BrandCode", camera.brandCode);
    addNumber(node, "NumberDI", 1);
    addNumber(node, "NumberDO", 1);
    addNumber(node, "MotionDetect", 1);
    addNumber(node, "DITriggerType", 0);
}

void addAudio(pugi::xml_node parent, const Camera& camera)
{
    pugi::xml_node node = parent.append_child("Audio");
    addText(node, "FMT", camera.audioFormat);
    addNumber(node, "CapAudioIn", camera.audioIn);
    addNumber(node, "CapAudioOut", camera.audioOut);
    addText(node, "FMTList", u"g711 aac"_s);
}

void addPtz(pugi::xml_node parent, const Camera& camera, bool probe)
{
    const PtzCapability& ptz = camera.ptz;
    pugi::xml_node node = parent.append_child("PTZ");
    addNumber(node, "PTZEnable", ptz.enable);
    addNumber(node, "PTZABS", ptz.absolute);
    addNumber(node, "AutoPan", ptz.autoPan);
    addNumber(node, "SpeedLower", ptz.speedLower);
    addNumber(node, "SpeedUpper", ptz.speedUpper);
    addNumber(node, "SpeedStep", ptz.speedStep);
    if (!probe)
        addNumber(node, "MoveCont", ptz.moveCont);
    addNumber(node, probe ? "Zoom" : "ZoomCont", ptz.zoomCont);
    addNumber(node, probe ? "Focus" : "FocusCont", ptz.focusCont);
    addNumber(node, probe ? "Iris" : "IrisCont", ptz.irisCont);
    addNumber(node, "SyncPreset", ptz.syncPreset);
    addNumber(node, "Move", ptz.move);
    addNumber(node, "SetPreset", ptz.setPreset);
    addText(node, "ModeList4FishEye", camera.fishEyeModes);
    addText(node, "Mode4FishEye", camera.fishEyeMode);
}

void addChannel(pugi::xml_node list, int number, const Camera& camera)
{
    pugi::xml_node node = list.append_child("CH");
    node.append_attribute("ID") = number;
    addText(node, "Name", camera.name);
    addText(node, "IP", camera.ip);
    addNumber(node, "HTTPPort", camera.httpPort);
    addNumber(node, "StartConfig", 0);
    if (camera.ip.isEmpty())
        return;
    addSystem(node, camera);
    pugi::xml_node video = node.append_child("Video");
    addStream(video, camera.live);
    addText(video, "LensMode", camera.lensMode);
    addText(video, "LeftDisplayMode", camera.leftDisplayMode);
    addText(video, "RightDisplayMode", camera.rightDisplayMode);
    addFormats(video, camera);
    addAudio(node, camera);
    addPtz(node, camera, false);
}

int listChannels(CommandContext& context, pugi::xml_node cmd, pugi::xml_node response)
{
    pugi::xml_node list = response.append_child("CHList");
    const pugi::xml_node asked = cmd.child("Param").child("CHList");
    if (!asked)
        return kRetMalformed;
    for (const pugi::xml_node node : asked.children("CH")) {
        const int number = numberIn(node.text().get()).value_or(0);
        const Channel* channel = context.channel(number);
        if (!channel)
            return kRetBadValue;
        addChannel(list, number, channel->camera);
    }
    return 0;
}

// The values that a camera takes: a format it has, a size of this format, a rate within the bounds of the size. A
// negative number leaves the setting as it is.
int takeStream(const Camera& camera, pugi::xml_node video, StreamSettings& stream)
{
    StreamSettings wanted = stream;
    const QString format = textOf(video, "FMT");
    const QString size = textOf(video, "Size");
    if (!format.isEmpty())
        wanted.format = format;
    if (!size.isEmpty())
        wanted.size = size;
    const std::pair<const char*, int*> numbers[] = {{"FPS", &wanted.fps},
                                                    {"Quality", &wanted.quality},
                                                    {"RateControl", &wanted.rateControl},
                                                    {"Bitrate", &wanted.bitrate},
                                                    {"GOP", &wanted.gop}};
    for (const auto& [name, target] : numbers) {
        const std::optional<int> number = numberOf(video, name);
        if (!number)
            return kRetBadValue;
        if (*number >= 0)
            *target = *number;
    }
    if (camera.formats.empty()) { // a camera nobody knows: taken as it is told
        stream = wanted;
        return 0;
    }
    for (const SupportedFormat& supported : camera.formats) {
        if (supported.name != wanted.format)
            continue;
        for (const SupportedSize& bounds : supported.sizes)
            if (bounds.size == wanted.size && wanted.fps >= bounds.fpsLower && wanted.fps <= bounds.fpsUpper) {
                stream = wanted;
                return 0;
            }
    }
    return kRetBadValue;
}

int writeChannel(CommandContext& context, pugi::xml_node param, Channel& channel)
{
    const QString ip = textOf(param, "IP");
    const std::optional<int> httpPort = numberOf(param, "HTTPPort");
    const std::optional<int> videoNumber = numberOf(param, "VideoNumber");
    const std::optional<int> brand = numberOf(param, "BrandCode");
    const std::optional<int> rtspPort = numberOf(param, "RtspPort");
    const pugi::xml_node video = param.child("Video");
    if (ip.isEmpty() || !httpPort || !videoNumber || !brand || !rtspPort || !video || !param.child("Audio") ||
        !numberOf(param, "StartConfig"))
        return kRetMalformed;
    Camera camera = channel.camera;
    if (camera.ip != ip) // another camera: what it can do comes from the camera itself
        for (const Camera& found : context.state.network)
            if (found.ip == ip && found.httpPort == *httpPort)
                camera = found;
    camera.ip = ip;
    camera.name = unescaped(QByteArray(param.child("Name").text().get()));
    camera.httpPort = *httpPort;
    camera.user = textOf(param, "UserName");
    camera.password = textOf(param, "Password");
    camera.videoNumber = *videoNumber;
    camera.brandCode = *brand;
    camera.model = textOf(param, "Model");
    camera.mac = textOf(param, "MACAddress");
    camera.rtspPort = *rtspPort;
    camera.lensMode = textOf(video, "LensMode");
    camera.leftDisplayMode = textOf(video, "LeftDisplayMode");
    camera.rightDisplayMode = textOf(video, "RightDisplayMode");
    camera.audioFormat = textOf(param.child("Audio"), "FMT");
    if (const int ret = takeStream(camera, video, camera.live))
        return ret;
    channel.camera = camera;
    return 0;
}

int setChannel(CommandContext& context, pugi::xml_node cmd)
{
    const pugi::xml_node param = cmd.child("Param");
    Channel* channel = context.channel(numberOf(param, "CH").value_or(0));
    if (!channel)
        return kRetBadValue;
    if (textOf(cmd, "UserData") == u"CONFIG_AP"_s && !param.child("IP")) {
        *channel = Channel();
        return 0;
    }
    return writeChannel(context, param, *channel);
}

int detectCamera(CommandContext& context, pugi::xml_node param, pugi::xml_node response)
{
    for (const Camera& camera : context.state.network) {
        if (camera.ip != textOf(param, "IP") || camera.httpPort != numberOf(param, "HTTPPort").value_or(0))
            continue;
        if (camera.user != textOf(param, "UserName") || camera.password != textOf(param, "Password"))
            return 3;
        if (!camera.supported)
            return 5;
        if (!camera.usable || numberOf(param, "VideoNumber").value_or(0) > camera.videoSources)
            return 7;
        addSystem(response, camera);
        pugi::xml_node video = response.append_child("Video");
        pugi::xml_node list = video.append_child("CurrentSettingsList");
        addStream(list.append_child("Stream"), camera.live);
        for (const SupportedFormat& format : camera.formats)
            if (format.name != camera.live.format && !format.sizes.empty()) {
                StreamSettings other = camera.live;
                other.format = format.name;
                other.size = format.sizes.back().size;
                other.gop = format.name == u"jpeg"_s ? 0 : 30;
                addStream(list.append_child("Stream"), other);
            }
        addText(video, "LensMode", camera.lensMode);
        addText(video, "LeftDisplayMode", camera.leftDisplayMode);
        addText(video, "RightDisplayMode", camera.rightDisplayMode);
        addFormats(video, camera);
        addAudio(response, camera);
        addPtz(response, camera, true);
        return 0;
    }
    return 1;
}

void searchCameras(CommandContext& context, pugi::xml_node response)
{
    for (const Camera& camera : context.state.network) {
        pugi::xml_node node = response.append_child("Device");
        addText(node, "IP", camera.ip);
        addText(node, "NetMask", u"255.255.255.0"_s);
        addText(node, "Manufacturer", camera.manufacturer);
        addText(node, "Model", camera.model);
        addText(node, "DeviceName", camera.name);
        addText(node, "MACAddress", camera.mac);
        addNumber(node, "HTTPPort", camera.httpPort);
        addNumber(node, "DeviceType", 1);
    }
}

} // namespace

std::optional<int> runChannelCommand(CommandContext& context, int id, pugi::xml_node cmd, pugi::xml_node response)
{
    switch (id) {
    case 24582:
        return listChannels(context, cmd, response);
    case 24581:
        return setChannel(context, cmd);
    case 8193:
        return detectCamera(context, cmd.child("Param"), response);
    case 8194:
        searchCameras(context, response);
        return 0;
    default:
        return std::nullopt;
    }
}

} // namespace simulators
