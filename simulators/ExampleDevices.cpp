#include "simulators/Site.h"

#include <array>

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

constexpr qint64 kFirstEvent = 1700000000; // 2023-11-14 22:13:20 UTC
const QString kNames[] = {u"Main Gate"_s,    u"Zufahrt Süd"_s, u"Car Park P1"_s, u"正門"_s,
                          u"Łącznik 2"_s,    u"Loading Bay"_s, u"Вход"_s,        u"Lobby & Lift"_s,
                          u"Escalier n°3"_s, u"Roof <West>"_s, u"بوابة"_s,       u"Server \"Room\""_s};

std::vector<SupportedFormat> formatsOf(bool highDefinition)
{
    const SupportedSize full{u"1920x1080"_s, 1, 15, 256, 8192};
    const SupportedSize hd{u"1280x720"_s, 1, 30, 128, 6144};
    const SupportedSize vga{u"640x480"_s, 1, 30, 64, 2048};
    const SupportedSize cif{u"320x240"_s, 1, 30, 32, 1024};
    SupportedFormat jpeg{u"jpeg"_s, 1, 10, false, {hd, vga, cif}};
    SupportedFormat mpeg4{u"mpeg4"_s, 1, 5, true, {vga, cif}};
    SupportedFormat h264{u"h264"_s, 1, 10, true, {hd, vga, cif}};
    if (highDefinition) {
        jpeg.sizes.insert(jpeg.sizes.begin(), full);
        h264.sizes.insert(h264.sizes.begin(), full);
    }
    return {jpeg, mpeg4, h264};
}

QString lineOr(const QString& text, const QString& otherwise)
{
    return text.isEmpty() ? otherwise : text;
}

} // namespace

Camera exampleCamera(int n, Family family)
{
    const bool parameterText = family == Family::Svr;
    Camera camera;
    const int round = (n - 1) / static_cast<int>(std::size(kNames));
    camera.name = kNames[(n - 1) % static_cast<int>(std::size(kNames))];
    if (round > 0)
        camera.name += u" %1"_s.arg(round + 1);
    camera.ip = u"192.168.%1.%2"_s.arg(10 + n / 200).arg(20 + n % 200);
    camera.httpPort = n % 5 == 3 ? 8081 : 80;
    camera.user = u"root"_s;
    camera.password = u"pass%1"_s.arg(n);
    camera.manufacturer = n % 6 == 0 ? u"Onvif"_s : u"Veltrano"_s;
    camera.brandCode = n % 6 == 0 ? 55 : n % 5 == 0 ? 20 : 7;
    camera.model = u"VC-%1"_s.arg(2000 + n % 7 * 10);
    camera.mac = u"02:1a:4f:00:%1:%2"_s.arg(n / 256, 2, 16, QLatin1Char('0')).arg(n % 256, 2, 16, QLatin1Char('0'));
    camera.formats = formatsOf(n % 3 != 2);
    camera.live.format = n % 8 == 1 ? u"jpeg"_s : u"h264"_s;
    camera.live.size = n % 3 != 2 && n % 2 ? u"1920x1080"_s : u"1280x720"_s;
    camera.live.fps = parameterText ? 4 : 15; // the older family counts in its steps
    camera.live.bitrate = parameterText ? 6 : 2048;
    camera.live.gop = camera.live.format == u"jpeg"_s ? 0 : 30;
    camera.audioFormat = u"g711"_s;
    camera.audioIn = n % 3 == 0;
    camera.audioOut = n % 9 == 0;
    camera.ptz.enable = n % 4 == 0;
    camera.ptz.absolute = n % 8 == 0;
    if (n % 5 == 0 && n % 6 != 0) {
        camera.videoSources = 2;
        camera.lensModes = QStringList{u"left"_s, u"right"_s, u"both"_s};
        camera.lensMode = u"left"_s;
        camera.leftDisplayModes = QStringList{u"normal"_s, u"mirror"_s};
        camera.rightDisplayModes = camera.leftDisplayModes;
        camera.leftDisplayMode = u"normal"_s;
        camera.rightDisplayMode = u"mirror"_s;
    }
    if (n % 7 == 0) {
        camera.fishEyeModes = u"Original:0,1,1;Panorama:1,2,6;Quad:2,4,24"_s;
        camera.fishEyeMode = u"Panorama"_s;
    }
    return camera;
}

DeviceProfile profileOf(const DeviceDescription& description)
{
    DeviceProfile profile;
    const Family family = description.family;
    profile.family = family;
    profile.name = lineOr(description.name, familyName(family) + u" device"_s);
    profile.brand = lineOr(description.brand, u"Veltrano"_s);
    profile.deviceType = lineOr(description.deviceType, familyName(family));
    const QString channels = QString::number(description.channels);
    switch (family) {
    case Family::Svr:
        profile.modelName = u"VR-"_s + channels;
        break;
    case Family::OmluPro:
        profile.modelName = u"OP-"_s + channels;
        break;
    case Family::Txr632:
        profile.modelName = u"TX-"_s + channels;
        break;
    case Family::Svd:
        profile.modelName = u"VD-2"_s;
        break;
    }
    profile.modelName = lineOr(description.model, profile.modelName);
    profile.firmware = lineOr(description.firmware, family == Family::Svr ? u"3.1.0.30026804"_s : u"2.4.1.118"_s);
    profile.commandVersion = lineOr(description.commandVersion, u"1.4"_s);
    profile.maxChannels = description.channels;
    profile.maxHd = description.maxHd ? description.maxHd : family == Family::Txr632 ? 5 : 4;
    profile.cmsSupport = description.cmsSupport;
    profile.customEventSupport = description.customEventSupport;
    profile.auth = description.auth;
    profile.discoverable = description.discoverable;
    profile.lineEnd = family == Family::Svr ? "\r\n" : "\n";
    profile.accounts = description.accounts;
    if (profile.accounts.empty()) {
        // Group 7 of the CGI recorder and group 1 of the Pro recorders only watch; on a decoder group 7 configures.
        const int watching = family == Family::Svr ? 7 : 1;
        profile.accounts.push_back({u"admin"_s, u"admin"_s, 7, family == Family::Svd ? 7 : 0, true});
        profile.accounts.push_back({u"viewer"_s, u"viewer"_s, 7, watching, false});
        profile.accounts.push_back({u"guest"_s, u"guest"_s, 3, watching, false});
    }
    return profile;
}

DeviceState stateOf(const DeviceDescription& description)
{
    DeviceState state;
    const Family family = description.family;
    state.name = lineOr(description.name, familyName(family) + u" device"_s);
    state.videoPort = family == Family::Svr ? 5000 : 554;
    state.summerTime = family == Family::OmluPro ? 0 : 1;
    state.channels.resize(static_cast<size_t>(description.channels));
    for (int n = 1; n <= description.cameras; ++n) {
        Channel& channel = state.channels[static_cast<size_t>(n - 1)];
        channel.camera = exampleCamera(n, family);
        state.network.push_back(channel.camera);
        for (int id = 1; channel.camera.ptz.enable && id <= description.presets; ++id)
            channel.presets.push_back({id, u"Point %1"_s.arg(id), channel.camera.ptz.absolute, QString::number(id * 10),
                                       QString::number(id * 5), u"0"_s, u"0"_s});
        for (const Preset& preset : channel.presets)
            channel.sequence.push_back({preset.id, 10});
        if (!channel.presets.empty()) {
            channel.sequenceList = u"1"_s;
            for (size_t i = 1; i < channel.presets.size(); ++i)
                channel.sequenceList += u",%1"_s.arg(channel.presets[i].id);
            channel.dwellIndex = 1;
        }
    }
    // Two cameras that no channel carries yet, one that cannot be used and one of an unknown make.
    for (int n = 101; n <= 104; ++n) {
        Camera camera = exampleCamera(n, family);
        camera.usable = n != 103;
        camera.supported = n != 104;
        state.network.push_back(camera);
    }
    static constexpr std::array<int, 4> kProTypes{2001, 4, 2201, 3002};
    for (int i = 0; i < description.events; ++i) {
        const int channel = description.cameras > 0 ? i % description.cameras + 1 : 1;
        const int type = family == Family::Svr ? i % 4 : kProTypes[static_cast<size_t>(i) % kProTypes.size()];
        // Two at a time share their second.
        state.events.push_back({kFirstEvent + i / 2 * 37, channel, type, i % 3, u"Event %1: gate"_s.arg(i)});
    }
    if (family == Family::Svd) {
        state.screens = {{1, {1, 2, 3, 4, 5}}, {0, {1, 2, 3}}};
        state.decoderChannels.resize(state.channels.size());
        for (int i = 0; i < description.cameras; ++i)
            state.decoderChannels[static_cast<size_t>(i)] = {1, i + 1, i % 2, i % 3 == 0, i % 6 == 0};
    }
    return state;
}

} // namespace simulators
