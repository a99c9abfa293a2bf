#include "device/protocol/CameraText.h"

#include "device/protocol/ReplyText.h"

#include <QList>
#include <QStringTokenizer>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMaxSources = 64;

struct Key
{
    QLatin1String name;
    QString DetectedCameraText::*field;
};

constexpr Key kKeys[] = {
    {"videoformatstate"_L1, &DetectedCameraText::FormatState},
    {"videoformatlist"_L1, &DetectedCameraText::FormatList},
    {"brand"_L1, &DetectedCameraText::Brand},
    {"resolutionlist"_L1, &DetectedCameraText::ResolutionList},
    {"resolutionstate"_L1, &DetectedCameraText::ResolutionState},
    {"qualityrange"_L1, &DetectedCameraText::QualityRange},
    {"qualitystate"_L1, &DetectedCameraText::QualityState},
    {"fpsrange"_L1, &DetectedCameraText::FPSRange},
    {"fpsstate"_L1, &DetectedCameraText::FPSState},
    {"bitraterange"_L1, &DetectedCameraText::BitRateRange},
    {"bitratestate"_L1, &DetectedCameraText::BitRateState},
    {"ratectrlrange"_L1, &DetectedCameraText::RateCtrlRange},
    {"ratectrlstate"_L1, &DetectedCameraText::RateCtrlState},
    {"relativeformat"_L1, &DetectedCameraText::RelativeFormat},
    {"speedrange"_L1, &DetectedCameraText::SpeedRange},
    {"moverange"_L1, &DetectedCameraText::MoveRange},
    {"movecontcap"_L1, &DetectedCameraText::MoveContCap},
    {"zoomcontcap"_L1, &DetectedCameraText::ZoomContCap},
    {"focuscontcap"_L1, &DetectedCameraText::FocusContCap},
    {"iriscontcap"_L1, &DetectedCameraText::IrisContCap},
    {"onvifqualityrange"_L1, &DetectedCameraText::OnvifQuality},
    {"onvifjpegfpsrange"_L1, &DetectedCameraText::OnvifJpegFPS},
    {"onvifmpegfpsrange"_L1, &DetectedCameraText::OnvifMpegFPS},
    {"onvifh264fpsrange"_L1, &DetectedCameraText::OnvifH264FPS},
    {"onvifjpegresolution"_L1, &DetectedCameraText::OnvifJpegResolution},
    {"onvifmpegresolution"_L1, &DetectedCameraText::OnvifMpegResolution},
    {"onvifh264resolution"_L1, &DetectedCameraText::OnvifH264Resolution},
};

bool BeginsWithOk(QStringView reply)
{
    return reply.startsWith("OK"_L1, Qt::CaseInsensitive);
}

// What stands before and behind the first "=" of a line; both empty without one.
struct Pair
{
    QStringView key;
    QStringView value;
};
Pair PairOf(QStringView line)
{
    const qsizetype equals = line.indexOf(u'=');
    if (equals < 0)
        return {};
    return {line.left(equals).trimmed(), line.mid(equals + 1).trimmed()};
}

// Takes "v<number>." off a key; 0 when it has none.
int TakeSource(QStringView& key)
{
    if (!key.startsWith(u'v'))
        return 0;
    const qsizetype point = key.indexOf(u'.');
    bool ok = false;
    const int source = point < 0 ? 0 : key.mid(1, point - 1).toInt(&ok);
    if (!ok || source < 1)
        return 0;
    key = key.mid(point + 1);
    return source;
}

// The number of "camera_c<n>", 0 for another key or a channel out of range.
int ChannelOf(QStringView key)
{
    constexpr QLatin1String prefix("camera_c");
    bool ok = false;
    const int number = key.startsWith(prefix) ? key.mid(prefix.size()).toInt(&ok) : 0;
    return ok && number >= 1 && number <= kMaxChannel ? number : 0;
}

} // namespace

std::optional<DetectedCameraText> ReadDetectedCamera(const QString& reply, qint16 source)
{
    if (!BeginsWithOk(reply))
        return std::nullopt;
    DetectedCameraText camera;
    std::array<int, std::size(kKeys)> closeness;
    closeness.fill(-1);
    for (const QStringView line : QStringTokenizer(ReadableLines(reply), u'\n')) {
        auto [key, value] = PairOf(line);
        if (key.isEmpty() || value.size() > kMaxCameraValue)
            continue;
        const int of = TakeSource(key);
        if (key == "maxvideochan"_L1) {
            camera.VideoSources = static_cast<qint16>(qBound(1, value.toInt(), kMaxSources));
            continue;
        }
        if (of != 0 && of != source)
            continue;
        const bool multi = key.startsWith("multi."_L1);
        if (multi)
            key = key.mid(6);
        const int close = (of != 0 ? 2 : 0) + (multi ? 1 : 0);
        for (std::size_t i = 0; i < std::size(kKeys); ++i) {
            if (key != kKeys[i].name)
                continue;
            camera.MultiStream = camera.MultiStream || multi;
            if (close > closeness[i]) {
                closeness[i] = close;
                camera.*kKeys[i].field = value.toString();
            }
        }
    }
    return camera;
}

bool DescribesSource(const QString& reply, qint16 source)
{
    const QString prefix = u"v"_s + QString::number(source) + u'.';
    for (const QStringView line : QStringTokenizer(ReadableLines(reply), u'\n')) {
        if (line.startsWith(prefix))
            return true;
    }
    return false;
}

std::optional<std::vector<FoundCamera>> ReadCameraSearch(const QString& reply)
{
    if (!BeginsWithOk(reply))
        return std::nullopt;
    std::vector<FoundCamera> found;
    for (const QStringView line : QStringTokenizer(ReadableLines(reply), u'\n')) {
        FoundCamera camera;
        for (const QStringView part : QStringTokenizer(line, u',')) {
            const auto [key, value] = PairOf(part);
            if (value.size() > kMaxCameraValue)
                continue;
            if (key == "ip"_L1)
                camera.IP = value.left(kMaxDeviceText).toString();
            else if (key == "httpport"_L1)
                camera.HTTPPort = value.toInt();
            else if (key == "brand"_L1)
                camera.Manufacturer = value.left(kMaxDeviceText).toString();
            else if (key == "model"_L1)
                camera.Model = value.left(kMaxDeviceText).toString();
        }
        if (camera.IP.isEmpty())
            continue;
        found.push_back(std::move(camera));
        if (found.size() == kMaxFoundCameras)
            break;
    }
    return found;
}

std::optional<CameraEventBits> ReadCameraEvents(const QString& reply)
{
    bool told = BeginsWithOk(reply);
    CameraEventBits bits{};
    for (const QStringView line : QStringTokenizer(ReadableLines(reply), u'\n')) {
        for (const QStringView part : QStringTokenizer(line, u';')) {
            const auto [key, value] = PairOf(part);
            const int number = ChannelOf(key);
            if (number == 0)
                continue;
            told = true;
            qint16& target = bits[static_cast<std::size_t>(number - 1)];
            target = 0;
            for (const QStringView bit : QStringTokenizer(value, u',')) {
                if (bit.trimmed() == "1"_L1)
                    target |= 1;
                else if (bit.trimmed() == "2"_L1)
                    target |= 2;
            }
        }
    }
    return told ? std::optional(bits) : std::nullopt;
}

QString CameraEventParameters(const CameraEventBits& bits, const std::vector<int>& channels)
{
    static constexpr std::array<QLatin1String, 4> values{""_L1, "1"_L1, "2"_L1, "1,2"_L1};
    QString text;
    for (const int channel : channels) {
        const auto state = static_cast<std::size_t>(bits.at(static_cast<std::size_t>(channel)) & 3);
        text += u"camera_c"_s + QString::number(channel + 1) + u'=' + values[state] + u'&';
    }
    text.chop(1);
    return text;
}

std::vector<int> RefusedChannels(const QString& reply)
{
    std::vector<int> channels;
    for (const QStringView line : QStringTokenizer(ReadableLines(reply), u'\n')) {
        const auto [key, value] = PairOf(line);
        if (key != "failed"_L1)
            continue;
        for (const QStringView number : QStringTokenizer(value, u',')) {
            bool ok = false;
            const int channel = number.trimmed().toInt(&ok);
            if (ok && channel >= 1 && channel <= kMaxChannel && channels.size() < kMaxChannel)
                channels.push_back(channel);
        }
    }
    return channels;
}
