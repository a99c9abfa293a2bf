#include "simulators/Commands.h"
#include "simulators/DeviceText.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

using Pair = std::pair<QString, QString>;

// The recorder's own codes of the three formats, in the order JPEG, MPEG4, H.264.
constexpr std::array<int, 3> kFormatCodes{256, 768, 1024};
constexpr std::array<const char*, 3> kFormats{"jpeg", "mpeg4", "h264"};
constexpr std::array<const char*, 3> kFormatNames{"MJPEG", "MPEG4", "H.264"};

int formatIndex(const QString& format)
{
    for (size_t i = 0; i < kFormats.size(); ++i)
        if (format == QLatin1String(kFormats[i]))
            return static_cast<int>(i);
    return 0;
}

// Only the first source of a camera has its largest size.
std::vector<SupportedSize> sizesOfSource(const SupportedFormat& format, int source)
{
    return {format.sizes.begin() + (source > 1 && format.sizes.size() > 1 ? 1 : 0), format.sizes.end()};
}

QString sizesOf(const Camera& camera, const char* format, int source = 1)
{
    QStringList sizes;
    for (const SupportedFormat& supported : camera.formats)
        if (supported.name == QLatin1String(format))
            for (const SupportedSize& size : sizesOfSource(supported, source))
                sizes += size.size;
    return sizes.join(u',');
}

QString sizeLists(const Camera& camera, int source = 1)
{
    QStringList lists;
    for (const char* format : kFormats)
        lists += sizesOf(camera, format, source);
    return lists.join(u';');
}

// {size<frame-rate codes><bit-rate codes>,…} for each format; "{}" where nothing binds them.
QString relativeFormat(const Camera& camera, int source)
{
    QString text;
    for (const char* name : kFormats) {
        QStringList entries;
        for (const SupportedFormat& format : camera.formats)
            if (format.name == QLatin1String(name))
                for (const SupportedSize& size : sizesOfSource(format, source))
                    entries += size.size + (size.fpsUpper < 30 ? u"<1|2|3>"_s : u"<0|1|2|3|4|5>"_s) +
                               (size.bpsUpper > 4000 ? u"<6|7|8>"_s : u"<2|3|4|5|6>"_s);
        text += u"{"_s + entries.join(u',') + u"}"_s;
    }
    return text;
}

QString speedRange(const PtzCapability& ptz)
{
    return u"%1,%2,%3"_s.arg(ptz.speedLower).arg(ptz.speedUpper).arg(ptz.speedStep);
}

const QString kFpsRange = u"0,1,2,3,4,5;0,1,2,3,4,5;0,1,2,3,4,5"_s;
const QString kQualityRange = u"1,2,3,4,5,6,7,8,9,10;1,2,3,4,5,6,7,8,9,10;1,2,3,4,5,6,7,8,9,10"_s;
const QString kRateRange = u"-1;0,1;0,1"_s;
const QString kBitrateRange = u"-1;0,1,2,3,4,5,6,7,8;0,1,2,3,4,5,6,7,8"_s;

std::vector<Pair> ptzCaps(const PtzCapability& ptz)
{
    return {{u"speedrange"_s, speedRange(ptz)},
            {u"moverange"_s, QString::number(ptz.move)},
            {u"movecontcap"_s, QString::number(ptz.moveCont)},
            {u"zoomcontcap"_s, QString::number(ptz.zoomCont)},
            {u"focuscontcap"_s, QString::number(ptz.focusCont)},
            {u"iriscontcap"_s, QString::number(ptz.irisCont)}};
}

std::vector<Pair> onvifRanges(const Camera& camera)
{
    return {{u"qualityrange"_s, u"1,10"_s},
            {u"jpegfpsrange"_s, u"1,15"_s},
            {u"mpegfpsrange"_s, u"1,30"_s},
            {u"h264fpsrange"_s, u"1,30"_s},
            {u"jpegresolution"_s, sizesOf(camera, "jpeg")},
            {u"mpegresolution"_s, sizesOf(camera, "mpeg4")},
            {u"h264resolution"_s, sizesOf(camera, "h264")}};
}

// The lines of one group of a channel, keys without their prefix; empty when the group does not exist.
std::vector<Pair> groupLines(const Channel& channel, const QByteArray& group)
{
    const Camera& camera = channel.camera;
    const StreamSettings& live = camera.live;
    const auto format = static_cast<size_t>(formatIndex(live.format));
    if (group == "image")
        return {{u"resolution"_s, live.size},
                {u"multistream"_s, u"0"_s},
                {u"liveformat"_s, QString::fromLatin1(kFormatNames[format])},
                {u"fps"_s, QString::number(live.fps)},
                {u"quality"_s, QString::number(live.quality)},
                {u"rotation"_s, u"0"_s},
                {u"ratectrlmode"_s, QString::number(live.rateControl)},
                {u"bitrate"_s, QString::number(live.bitrate)},
                {u"resolutionlist"_s, sizeLists(camera)},
                {u"formatlist"_s, u"MJPEG,MPEG4,H.264"_s},
                {u"goplength"_s, QString::number(live.gop)},
                {u"fpsrange"_s, kFpsRange},
                {u"qualityrange"_s, kQualityRange},
                {u"ratectrlrange"_s, kRateRange},
                {u"bitraterange"_s, kBitrateRange},
                {u"customfpslist"_s, u"1,5,10,15,20"_s},
                {u"customfps"_s, u"15"_s}};
    if (group == "ptz") {
        std::vector<Pair> pairs = ptzCaps(camera.ptz);
        pairs.push_back({u"presetseqlist"_s, channel.sequenceList});
        pairs.push_back({u"presetseqdwell"_s, QString::number(channel.dwellIndex)});
        return pairs;
    }
    if (group == "onvif")
        return onvifRanges(camera);
    if (group == "fisheye")
        return {{u"mode"_s, camera.fishEyeMode}};
    if (group == "device")
        return {{u"name"_s, escaped(camera.name)},
                {u"ip"_s, camera.ip},
                {u"httpport"_s, QString::number(camera.httpPort)},
                {u"username"_s, camera.user},
                {u"password"_s, camera.password},
                {u"format"_s, QString::number(kFormatCodes[format])},
                {u"resolution"_s, live.size},
                {u"brand"_s, QString::number(camera.brandCode)},
                {u"videoid"_s, QString::number(camera.videoNumber)}};
    return {};
}

HttpReply textReply(const CommandContext& context, const QString& prefix, const std::vector<Pair>& pairs)
{
    HttpReply reply;
    for (const auto& [key, value] : pairs)
        reply.body += (prefix + u'.' + key + u'=' + value).toUtf8() + context.profile.lineEnd;
    return reply;
}

HttpReply verdict(const CommandContext& context, int value)
{
    HttpReply reply;
    reply.body = (value == 0 ? "OK" : "ERROR") + context.profile.lineEnd + "RET=\"" + QByteArray::number(value) + '"' +
                 context.profile.lineEnd;
    return reply;
}

HttpReply read(const CommandContext& context, const QByteArray& group)
{
    if (group == "system" && context.profile.family == Family::Svr)
        return textReply(context, u"system"_s,
                         {{u"name"_s, escaped(context.state.name)},
                          {u"videoport"_s, QString::number(context.state.videoPort)},
                          {u"timezone"_s, QString::number(context.state.timeZone)},
                          {u"summertime"_s, QString::number(context.state.summerTime)}});
    QByteArray rest;
    const int number = channelOfKey(group, "camera_c", &rest);
    const Channel* channel = context.channel(number);
    if (!channel)
        return verdict(context, kRetNotFound);
    const qsizetype dot = rest.indexOf('.');
    const QByteArray name = dot < 0 ? rest : rest.left(dot);
    const QString key = dot < 0 ? QString() : QString::fromLatin1(rest.mid(dot + 1));
    std::vector<Pair> pairs = groupLines(*channel, name);
    if (!key.isEmpty())
        pairs.erase(std::remove_if(pairs.begin(), pairs.end(), [&](const Pair& pair) { return pair.first != key; }),
                    pairs.end());
    if (pairs.empty())
        return verdict(context, kRetNotFound);
    return textReply(context, u"camera_c%1.%2"_s.arg(number).arg(QString::fromLatin1(name)), pairs);
}

// What a probe tells of one video source.
std::vector<Pair> probeLines(const Camera& camera, int source)
{
    QStringList sizes; // each format at the present size where it has it, at its largest otherwise
    for (const char* format : kFormats) {
        const QStringList offered = sizesOf(camera, format, source).split(u',');
        sizes += offered.contains(camera.live.size) ? camera.live.size : offered.first();
    }
    std::vector<Pair> pairs{{u"videoformatstate"_s, u"1,1,1"_s},
                            {u"brand"_s, camera.manufacturer},
                            {u"resolutionlist"_s, sizeLists(camera, source)},
                            {u"resolutionstate"_s, sizes.join(u';')},
                            {u"qualityrange"_s, kQualityRange},
                            {u"qualitystate"_s, u"5;5;5"_s},
                            {u"fpsrange"_s, kFpsRange},
                            {u"fpsstate"_s, u"4;4;4"_s},
                            {u"bitraterange"_s, kBitrateRange},
                            {u"bitratestate"_s, u"-1;6;6"_s},
                            {u"ratectrlrange"_s, kRateRange},
                            {u"ratectrlstate"_s, u"-1;0;0"_s},
                            {u"relativeformat"_s, camera.usable ? relativeFormat(camera, source) : u";;"_s}};
    if (camera.multiStream)
        pairs.push_back({u"videoformatlist"_s, u"256;1024"_s});
    for (const Pair& pair : ptzCaps(camera.ptz))
        pairs.push_back(pair);
    if (camera.brandCode == 55)
        for (const Pair& pair : onvifRanges(camera))
            pairs.push_back({u"onvif"_s + pair.first, pair.second});
    return pairs;
}

// "v2." of a camera with several sources, and "multi." before what a camera with several streams says of them.
QString probePrefix(const Camera& camera, const QString& key, int source)
{
    const bool ofStream = key.contains(u"range"_s) || key.contains(u"state"_s) || key.contains(u"list"_s);
    return (camera.videoSources > 1 ? u"v%1."_s.arg(source) : QString()) +
           (camera.multiStream && ofStream && !key.startsWith(u"onvif"_s) ? u"multi."_s : QString());
}

// One value of ".device."; false when the device does not take it.
bool writeDevice(const CommandContext& context, Camera& camera, const QByteArray& key, const QString& value)
{
    bool ok = true;
    // A number between the bounds; an empty one, as of a channel that loses its camera, changes nothing.
    const auto number = [&](int& target, int lower = 0, int upper = 65535) {
        const int n = value.toInt(&ok);
        ok = value.isEmpty() || (ok && n >= lower && n <= upper);
        if (ok && !value.isEmpty())
            target = n;
    };
    if (key == "ip") {
        for (const Camera& found : context.state.network)
            if (found.ip == value && camera.ip != value) {
                const Camera before = camera;
                camera = found;
                camera.name = before.name.isEmpty() ? found.name : before.name;
            }
        camera.ip = value;
    } else if (key == "name")
        camera.name = value;
    else if (key == "username")
        camera.user = value;
    else if (key == "password")
        camera.password = value;
    else if (key == "httpport")
        number(camera.httpPort);
    else if (key == "brand") {
        int brand = 0;
        number(brand);
        if (brand != 0) // 0: the recorder knows better
            camera.brandCode = brand;
    } else if (key == "videoid")
        number(camera.videoNumber, 1, camera.videoSources);
    else if (key == "fps")
        number(camera.live.fps, 0, 5);
    else if (key == "ratectrl")
        number(camera.live.rateControl, 0, 1);
    else if (key == "bitrate")
        number(camera.live.bitrate, 0, 8);
    else if (key == "quality")
        number(camera.live.quality, 1, 10);
    else if (key == "format") {
        const auto code = std::find(kFormatCodes.begin(), kFormatCodes.end(), value.toInt());
        if (code == kFormatCodes.end())
            return false;
        camera.live.format = QString::fromLatin1(kFormats[static_cast<size_t>(code - kFormatCodes.begin())]);
    } else if (key == "resolution")
        camera.live.size = value;
    else
        return false;
    return ok;
}

bool sequenceFits(const Channel& channel, const QString& list)
{
    const QStringList numbers = list.split(u',', Qt::SkipEmptyParts);
    return std::all_of(numbers.begin(), numbers.end(), [&](const QString& text) {
        return std::any_of(channel.presets.begin(), channel.presets.end(),
                           [&](const Preset& preset) { return QString::number(preset.id) == text; });
    });
}

// The address goes first, since another camera brings its own abilities with it; all or nothing.
int write(CommandContext& context, const Query& query)
{
    if (const int barrier = context.writeBarrier())
        return barrier;
    std::vector<Channel> channels = context.state.channels;
    QList<QueryItem> items = query.items();
    std::stable_partition(items.begin(), items.end(),
                          [](const QueryItem& item) { return item.key.endsWith(".device.ip"); });
    bool wrote = false;
    for (const QueryItem& item : items) {
        if (item.key == "action")
            continue;
        QByteArray rest;
        const int number = channelOfKey(item.key, "camera_c", &rest);
        if (number < 1 || number > static_cast<int>(channels.size()))
            return kRetBadValue;
        Channel& channel = channels[static_cast<size_t>(number - 1)];
        const QString value = item.value();
        bool taken = false;
        if (rest.startsWith("device.") && context.profile.family == Family::Svr)
            taken = writeDevice(context, channel.camera, rest.mid(7), value);
        else if (rest == "ptz.presetseqlist") {
            taken = sequenceFits(channel, value);
            channel.sequenceList = value;
        } else if (rest == "ptz.presetseqdwell") {
            channel.dwellIndex = value.toInt(&taken);
            taken = taken && channel.dwellIndex >= 0 && channel.dwellIndex <= 8;
        }
        if (!taken)
            return kRetBadValue;
        wrote = true;
    }
    if (!wrote)
        return kRetMalformed;
    for (Channel& channel : channels) {
        const Camera& camera = channel.camera;
        if (!camera.ip.isEmpty() && !camera.formats.empty() &&
            !sizesOf(camera, kFormats[static_cast<size_t>(formatIndex(camera.live.format))], camera.videoNumber)
                 .split(u',')
                 .contains(camera.live.size))
            return kRetBadValue;
        if (camera.ip.isEmpty())
            channel = Channel();
    }
    context.state.channels = std::move(channels);
    if (context.profile.family == Family::Svr) // keeps what it takes; the Pro family waits for the save command
        context.saved.channels = context.state.channels;
    return 0;
}

} // namespace

HttpReply parameterText(CommandContext& context, const Query& query)
{
    const QString action = query.value("action");
    if (action == u"get"_s)
        return read(context, query.value("group").toUtf8());
    return verdict(context, action == u"set"_s ? write(context, query) : int(kRetUnknownCommand));
}

HttpReply probeCamera(CommandContext& context, const Query& query)
{
    const auto failure = [&](const char* text) {
        HttpReply reply;
        reply.body = QByteArray("Error ") + text + context.profile.lineEnd;
        return reply;
    };
    const auto& network = context.state.network;
    const auto found = std::find_if(network.begin(), network.end(), [&](const Camera& camera) {
        return camera.ip == query.value("ipaddr") && camera.httpPort == query.number("httpport");
    });
    if (found == network.end())
        return failure("-2 no camera");
    const QString password = found->password.isEmpty() ? u"0"_s : found->password;
    if (found->user != query.value("username") || password != query.value("password"))
        return failure("-3 login");
    if (!found->supported)
        return failure("-5 brand");
    const int only = query.number("camera"); // one source of a camera that has several
    if (only > found->videoSources || only < 0)
        return failure("-6 source");
    HttpReply reply;
    reply.body = "OK" + context.profile.lineEnd;
    if (found->videoSources > 1)
        reply.body += "maxvideochan=" + QByteArray::number(found->videoSources) + context.profile.lineEnd;
    for (int source = 1; source <= found->videoSources; ++source)
        if (only == 0 || source == only)
            for (const auto& [key, value] : probeLines(*found, source))
                reply.body +=
                    (probePrefix(*found, key, source) + key + u'=' + value).toUtf8() + context.profile.lineEnd;
    return reply;
}

} // namespace simulators
