#include "recorders/camera/CameraLists.h"

#include "device/protocol/ParameterText.h"
#include "device/protocol/RelativeFormat.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMjpeg = 0;
constexpr std::array<QLatin1String, kMaxStream> kFormatNames{"MJPEG"_L1, "MPEG4"_L1, "H.264"_L1};
constexpr std::array<QLatin1String, kMaxStream> kProFormatNames{"jpeg"_L1, "mpeg4"_L1, "h264"_L1};
constexpr QLatin1String kFullQuality("FULL"); // of quality 0
// What the Pro families are offered between the bounds of a size, in kbit/s.
constexpr qint16 kProBitRates[] = {64, 128, 256, 512, 768, 1024, 1536, 2048, 3072, 4096, 6144, 8192};
constexpr int kHighestFrameRate = 240;

std::optional<qint16> NumberOf(const QString& text)
{
    bool ok = false;
    const short number = text.trimmed().toShort(&ok);
    return ok ? std::optional<qint16>(number) : std::nullopt;
}

QStringList ListOf(const QString& text)
{
    QStringList list;
    for (const QString& part : text.split(u',', Qt::SkipEmptyParts)) {
        const QString entry = part.trimmed();
        if (!entry.isEmpty() && !list.contains(entry))
            list += entry;
        if (list.size() == kMaxListEntries)
            break;
    }
    return list;
}

// The names of the codes of a list; what is no code of the table is left out.
QStringList NamesOf(const QString& codes, QString (*translate)(const QString&, qint16))
{
    QStringList names;
    for (const QString& code : ListOf(codes)) {
        if (!NumberOf(code))
            continue;
        const QString name = translate(code, 0);
        if (!name.isEmpty() && !names.contains(name))
            names += name;
    }
    return names;
}

struct Bounds
{
    int lower;
    int upper;
};

// The bounds "lower,upper" of a range text; of a longer list its extremes.
std::optional<Bounds> BoundsOf(const QString& range)
{
    std::optional<Bounds> bounds;
    for (const QString& part : ListOf(range)) {
        const std::optional<qint16> number = NumberOf(part);
        if (!number)
            continue;
        if (!bounds)
            bounds = Bounds{*number, *number};
        bounds->lower = std::min<int>(bounds->lower, *number);
        bounds->upper = std::max<int>(bounds->upper, *number);
    }
    return bounds;
}

// The bounds of the size `resolution` in one stream's parallel lists.
std::optional<Bounds> BoundsOfSize(const QString& sizes, const QString& resolution, const std::vector<qint16>& lower,
                                   const std::vector<qint16>& upper)
{
    const qsizetype position = sizes.split(u',').indexOf(resolution);
    if (position < 0 || position >= std::ssize(lower) || position >= std::ssize(upper))
        return std::nullopt;
    const auto at = static_cast<std::size_t>(position);
    if (upper[at] < 1 || upper[at] < lower[at])
        return std::nullopt;
    return Bounds{lower[at], upper[at]};
}

QStringList Numbers(int lower, int upper)
{
    QStringList list;
    for (int number = lower; number <= upper && list.size() < kMaxListEntries; ++number)
        list += QString::number(number);
    return list;
}

QStringList Qualities(const Bounds& bounds)
{
    QStringList list = Numbers(std::max(bounds.lower, 0), bounds.upper);
    if (!list.isEmpty() && list.first() == "0"_L1)
        list.first() = kFullQuality;
    return list;
}

bool HasOnvifSizes(const SVRChannel& svr)
{
    return !svr.sCH_Onvif_JPEG_Resolution.isEmpty() || !svr.sCH_Onvif_MPEG_Resolution.isEmpty() ||
           !svr.sCH_Onvif_H264_Resolution.isEmpty();
}

} // namespace

int FormatIndex(const QString& format)
{
    const QString name = format.toLower().remove(u'.');
    if (name == "jpeg"_L1 || name == "mjpeg"_L1)
        return 0;
    if (name == "mpeg4"_L1)
        return 1;
    return name == "h264"_L1 ? 2 : -1;
}

QString FormatPart(const QString& list, int format)
{
    return list.contains(u';') ? list.section(u';', format, format) : list;
}

QStringList CameraLists::formats() const
{
    QStringList list;
    for (const QString& entry : ListOf(QString(svr.sCH_FMTList).replace(u';', u','))) {
        const QString name = !isPro() && NumberOf(entry) ? GetFMTNameFromCode(entry, 0) : entry;
        const int index = FormatIndex(name);
        if (index < 0)
            continue;
        const QString shown = isPro() ? name : QString(kFormatNames[static_cast<std::size_t>(index)]);
        if (!list.contains(shown))
            list += shown;
    }
    const bool told = !list.isEmpty();
    for (int format = 0; !told && format < kMaxStream; ++format) {
        if (!resolutions(format).isEmpty())
            list += (isPro() ? kProFormatNames : kFormatNames)[static_cast<std::size_t>(format)];
    }
    return list;
}

QStringList CameraLists::resolutions(int format) const
{
    if (format < 0 || format >= kMaxStream)
        return {};
    if (isPro()) {
        const QString& sizes = pro.streams[static_cast<std::size_t>(format)].sResolutionList;
        return ListOf(sizes.isEmpty() ? FormatPart(svr.sCH_ResolutionList, format) : sizes);
    }
    if (isOnvif() && HasOnvifSizes(svr)) {
        const std::array<const QString*, kMaxStream> sizes{
            &svr.sCH_Onvif_JPEG_Resolution, &svr.sCH_Onvif_MPEG_Resolution, &svr.sCH_Onvif_H264_Resolution};
        return ListOf(*sizes[static_cast<std::size_t>(format)]);
    }
    return ListOf(FormatPart(svr.sCH_ResolutionList, format));
}

QStringList CameraLists::frameRates(int format, const QString& resolution) const
{
    if (format < 0 || format >= kMaxStream)
        return {};
    const auto slot = static_cast<std::size_t>(format);
    if (isPro()) {
        const SVRProStream& stream = pro.streams[slot];
        const auto bounds = BoundsOfSize(stream.sResolutionList, resolution, stream.iFPSLower, stream.iFPSUpper);
        return bounds ? Numbers(std::max(bounds->lower, 1), std::min(bounds->upper, kHighestFrameRate)) : QStringList();
    }
    QStringList names = NamesOf(FormatPart(svr.sCH_FPS_Range, format), GetFPSMapping);
    if (isOnvif()) {
        // An ONVIF camera tells its bounds in frames per second; the steps that lie between them remain.
        const std::array<const QString*, kMaxStream> ranges{&svr.sCH_Onvif_JPEG_FPS, &svr.sCH_Onvif_MPEG_FPS,
                                                            &svr.sCH_Onvif_H264_FPS};
        if (const auto bounds = BoundsOf(*ranges[slot])) {
            if (names.isEmpty())
                names = NamesOf(u"0,1,2,3,4,5"_s, GetFPSMapping);
            names.removeIf([&](const QString& name) {
                const std::optional<qint16> rate = NumberOf(name);
                return rate && (*rate < bounds->lower || *rate > bounds->upper);
            });
        }
    }
    return names;
}

QStringList CameraLists::bitRates(int format, const QString& resolution) const
{
    if (format < 0 || format >= kMaxStream)
        return {};
    if (!isPro())
        return NamesOf(FormatPart(svr.sCH_BitRate_Range, format), GetsBitrate);
    if (format == kMjpeg) // single pictures: the quality alone decides
        return {};
    const auto slot = static_cast<std::size_t>(format);
    const SVRProStream& stream = pro.streams[slot];
    const auto bounds = BoundsOfSize(stream.sResolutionList, resolution, stream.iBPSLower, stream.iBPSUpper);
    if (!bounds)
        return {};
    std::vector<qint16> rates(std::begin(kProBitRates), std::end(kProBitRates));
    // What the device has set stays among them, and bounds between two steps leave something to choose.
    for (const int rate : {int(stream.iBitRate), bounds->upper}) {
        const auto place = std::lower_bound(rates.begin(), rates.end(), static_cast<qint16>(rate));
        if (rate > 0 && (place == rates.end() || *place != rate))
            rates.insert(place, static_cast<qint16>(rate));
    }
    QStringList list;
    for (const qint16 rate : rates) {
        if (rate >= bounds->lower && rate <= bounds->upper)
            list += bitRateText(rate);
    }
    return list;
}

QStringList CameraLists::rateControls(int format) const
{
    if (format < 0 || format >= kMaxStream)
        return {};
    if (!isPro())
        return NamesOf(FormatPart(svr.sCH_RateCtrl_Range, format), GetsRateControl);
    const SVRProStream& stream = pro.streams[static_cast<std::size_t>(format)];
    // A stream that has a rate control set can change it, whatever the table of capabilities says.
    const bool has = stream.bRateControlCap || NumberOf(stream.sRateControl).value_or(-1) >= 0;
    return format != kMjpeg && has ? QStringList{u"VBR"_s, u"CBR"_s} : QStringList();
}

QStringList CameraLists::qualities(int format) const
{
    if (format < 0 || format >= kMaxStream)
        return {};
    const auto slot = static_cast<std::size_t>(format);
    if (isPro()) {
        // Devices differ in which slot the bounds of the last format land; the nearest one below that has any holds.
        for (std::size_t at = slot + 1; at-- > 0;) {
            const SVRProStream& stream = pro.streams[at];
            if (stream.iQualityUpper > 0 && stream.iQualityUpper >= stream.iQualityLower)
                return Qualities({stream.iQualityLower, stream.iQualityUpper});
        }
        return {};
    }
    if (isOnvif()) {
        if (const auto bounds = BoundsOf(svr.sCH_Onvif_Quality))
            return Qualities(*bounds);
    }
    QStringList list;
    for (const QString& entry : ListOf(FormatPart(svr.sCH_Quality_Range, format))) {
        if (const std::optional<qint16> number = NumberOf(entry))
            list += qualityText(*number);
    }
    return list;
}

qint16 CameraLists::frameRateOf(const QString& entry) const
{
    return NumberOf(isPro() ? entry : GetFPSMapping(entry, 1)).value_or(-1);
}

QString CameraLists::frameRateText(qint16 value) const
{
    if (isPro())
        return value < 0 ? QString(kAbsent) : QString::number(value);
    return GetFPSMapping(QString::number(value), 0);
}

qint16 CameraLists::bitRateOf(const QString& entry) const
{
    return NumberOf(isPro() ? QString(entry).remove(u'K') : GetsBitrate(entry, 1)).value_or(-1);
}

QString CameraLists::bitRateText(qint16 value) const
{
    if (isPro())
        return value < 0 ? QString(kAbsent) : QString::number(value) + u'K';
    return GetsBitrate(QString::number(value), 0);
}

qint16 CameraLists::rateControlOf(const QString& entry)
{
    return NumberOf(GetsRateControl(entry.toUpper(), 1)).value_or(-1);
}

QString CameraLists::rateControlText(qint16 value)
{
    return GetsRateControl(QString::number(value), 0);
}

qint16 CameraLists::qualityOf(const QString& entry)
{
    return entry == kFullQuality ? qint16(0) : NumberOf(entry).value_or(-1);
}

QString CameraLists::qualityText(qint16 value)
{
    if (value < 0)
        return kAbsent;
    return value == 0 ? QString(kFullQuality) : QString::number(value);
}

bool HasStoredDetection(const CameraLists& lists)
{
    if (lists.svr.sSub_CH_IP.isEmpty())
        return false;
    for (int format = 0; format < kMaxStream; ++format) {
        if (!lists.resolutions(format).isEmpty())
            return true;
    }
    return false;
}
