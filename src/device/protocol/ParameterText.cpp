#include "device/protocol/ParameterText.h"

#include "app/log/Module_Log.h"
#include "device/protocol/ReplyText.h"
#include "support/Conversions.h"

#include <QStringTokenizer>
#include <span>

using namespace Qt::StringLiterals;

namespace {

struct Key
{
    QLatin1String key;
    QString SVRChannel::*text = nullptr;
    qint16 SVRChannel::*number = nullptr;

    constexpr Key(QLatin1String name, QString SVRChannel::*field)
        : key(name)
        , text(field)
    {
    }
    constexpr Key(QLatin1String name, qint16 SVRChannel::*field)
        : key(name)
        , number(field)
    {
    }
};

// A key without its leading point also matches a longer name that ends in it.
constexpr Key kImageKeys[] = {
    {".resolution="_L1, &SVRChannel::sSub_CH_Resolution},
    {"multistream="_L1, &SVRChannel::iCH_MultiStream},
    {"liveformat="_L1, &SVRChannel::sSub_CH_VideoFormat},
    {".fps="_L1, &SVRChannel::iCH_FPS},
    {"quality="_L1, &SVRChannel::iCH_Quality},
    {"rotation="_L1, &SVRChannel::iCH_Rotation},
    {"ratectrlmode="_L1, &SVRChannel::iCH_RateCtrl},
    {"bitrate="_L1, &SVRChannel::iCH_BitRate},
    {"resolutionlist="_L1, &SVRChannel::sCH_ResolutionList},
    {".formatlist="_L1, &SVRChannel::sCH_FMTList},
    {"goplength="_L1, &SVRChannel::iCH_GOP},
    {"fpsrange="_L1, &SVRChannel::sCH_FPS_Range},
    {"qualityrange="_L1, &SVRChannel::sCH_Quality_Range},
    {"ratectrlrange="_L1, &SVRChannel::sCH_RateCtrl_Range},
    {"bitraterange="_L1, &SVRChannel::sCH_BitRate_Range},
    {"customfpslist="_L1, &SVRChannel::sCH_FPS_List_Customer},
    {"customfps="_L1, &SVRChannel::sCH_FPS_Customer},
};

constexpr Key kPtzKeys[] = {
    {"speedrange="_L1, &SVRChannel::sCH_PTZ_Speed_Range},    {"moverange="_L1, &SVRChannel::sCH_PTZ_PanTilt_Range},
    {"movecontcap="_L1, &SVRChannel::iCH_PTZ_MoveContCap},   {"zoomcontcap="_L1, &SVRChannel::iCH_PTZ_ZoomContCap},
    {"focuscontcap="_L1, &SVRChannel::iCH_PTZ_FocusContCap}, {"iriscontcap="_L1, &SVRChannel::iCH_PTZ_IrisContCap},
};

constexpr Key kOnvifKeys[] = {
    {".qualityrange="_L1, &SVRChannel::sCH_Onvif_Quality},
    {".jpegfpsrange="_L1, &SVRChannel::sCH_Onvif_JPEG_FPS},
    {".mpegfpsrange="_L1, &SVRChannel::sCH_Onvif_MPEG_FPS},
    {".h264fpsrange="_L1, &SVRChannel::sCH_Onvif_H264_FPS},
    {".jpegresolution="_L1, &SVRChannel::sCH_Onvif_JPEG_Resolution},
    {".mpegresolution="_L1, &SVRChannel::sCH_Onvif_MPEG_Resolution},
    {".h264resolution="_L1, &SVRChannel::sCH_Onvif_H264_Resolution},
};

// A key with a bad number is left alone from there on, with one line in the log.
template <std::size_t N>
void ReadKeys(QLatin1String source, const Key (&keys)[N], SVRChannel& channel, const QString& reply)
{
    std::array<bool, N> bad{};
    for (const QStringView piece : QStringTokenizer(ReadableLines(reply), u"camera")) {
        for (std::size_t i = 0; i < N; ++i) {
            const Key& key = keys[i];
            if (bad[i] || !piece.contains(key.key))
                continue;
            bad[i] = !Trapped(source, [&] {
                QString value = At(piece.split(u'='), 1).toString();
                value.remove(u'\n').remove(u'\r');
                if (key.text)
                    channel.*key.text = value.left(kMaxDeviceList);
                else
                    channel.*key.number = ToInt16(value);
            });
        }
    }
}

struct Code
{
    qint16 code;
    QLatin1String name;
};

constexpr Code kFormats[] = {{256, "MJPEG"_L1}, {768, "MPEG4"_L1}, {1024, "H.264"_L1}};
constexpr Code kFrameRates[] = {{0, "Full"_L1}, {1, "1"_L1},  {2, "5"_L1},   {3, "10"_L1},
                                {4, "15"_L1},   {5, "20"_L1}, {-1, "N/A"_L1}};
constexpr Code kBitRates[] = {{0, "Full"_L1}, {1, "64K"_L1},   {2, "128K"_L1},  {3, "256K"_L1},  {4, "512K"_L1},
                              {5, "768K"_L1}, {6, "1024K"_L1}, {7, "1536K"_L1}, {8, "2048K"_L1}, {-1, "N/A"_L1}};
constexpr Code kRateControls[] = {{0, "VBR"_L1}, {1, "CBR"_L1}, {-1, "N/A"_L1}};

// `matches` compares a name of the list with the name looked for.
template <std::size_t N, class Matches>
QString Translate(const char (&source)[N], std::span<const Code> codes, const QString& text, qint16 mode,
                  Matches&& matches)
{
    const QString input = text.isEmpty() ? u"N/A"_s : text;
    QString result;
    Trapped(source, [&] {
        if (mode == 0) {
            const qint16 code = ToInt16(input);
            const auto found = std::ranges::find(codes, code, &Code::code);
            if (found != codes.end())
                result = found->name;
        } else if (mode == 1) {
            const auto found =
                std::ranges::find_if(codes, [&](const Code& code) { return matches(QString(code.name), input); });
            if (found != codes.end())
                result = QString::number(found->code);
        }
    });
    return result;
}

bool SameInUpperCase(const QString& name, const QString& input)
{
    return name.toUpper() == input.toUpper();
}

bool StandsUnescaped(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || (unit >= u'0' && unit <= u'9') ||
           QStringView(u"@*_+-./").contains(character);
}

// The value of exactly `digits` hexadecimal digits at `at`; -1 when there are not that many.
int HexAt(QStringView text, qsizetype at, int digits)
{
    if (at + digits > text.size())
        return -1;
    int value = 0;
    for (const QChar character : text.mid(at, digits)) {
        const char16_t unit = character.unicode();
        const bool upper = unit >= u'A' && unit <= u'F';
        const bool lower = unit >= u'a' && unit <= u'f';
        if (!upper && !lower && !(unit >= u'0' && unit <= u'9'))
            return -1;
        value = value * 16 + (upper ? unit - u'A' + 10 : lower ? unit - u'a' + 10 : unit - u'0');
    }
    return value;
}

void RefuseQuote(const QString& text)
{
    if (text.contains(u'"'))
        throw ConversionError(u"Double quote in a text"_s); // which may be a password
}

} // namespace

void CHImageInfoPaser(SVRChannel& channel, const QString& reply)
{
    ReadKeys(QLatin1String("Module_PublicFunction - CHImageInfoPaser"), kImageKeys, channel, reply);
}

void CHPTZInfoPaser(SVRChannel& channel, const QString& reply)
{
    ReadKeys(QLatin1String("Module_PublicFunction - CHPTZInfoPaser"), kPtzKeys, channel, reply);
}

void CHOnvifInfoPaser(SVRChannel& channel, const QString& reply)
{
    ReadKeys(QLatin1String("Module_PublicFunction - CHOnvifInfoPaser"), kOnvifKeys, channel, reply);
}

QString GetFMTNameFromCode(const QString& text, qint16 mode)
{
    return Translate("Module_PublicFunction - GetFMTNameFromCode", kFormats, text, mode, std::equal_to<>());
}

QString GetFPSMapping(const QString& text, qint16 mode)
{
    return Translate("Module_PublicFunction - GetFPSMapping", kFrameRates, text, mode, SameInUpperCase);
}

QString GetsBitrate(const QString& text, qint16 mode)
{
    return Translate("Module_PublicFunction - GetsBitrate", kBitRates, text, mode, SameInUpperCase);
}

QString GetsRateControl(const QString& text, qint16 mode)
{
    return Translate("Module_PublicFunction - GetsRateControl", kRateControls, text, mode,
                     [](const QString& name, const QString& input) { return name.toUpper() == input; });
}

QString Escape(const QString& text)
{
    QString result;
    Trapped("Module_PublicFunction - Escape", [&] {
        RefuseQuote(text);
        for (const QChar character : text) {
            const char16_t unit = character.unicode();
            if (StandsUnescaped(character))
                result += character;
            else if (unit <= 0xFF)
                result += u'%' + u"%1"_s.arg(unit, 2, 16, QLatin1Char('0')).toUpper();
            else
                result += u"%u" + u"%1"_s.arg(unit, 4, 16, QLatin1Char('0')).toUpper();
        }
    });
    return result;
}

QString Unescape(const QString& text)
{
    QString result;
    Trapped("Module_PublicFunction - Unescape", [&] {
        RefuseQuote(text);
        result.reserve(text.size());
        for (qsizetype at = 0; at < text.size();) {
            const bool escaped = text[at] == u'%';
            const bool wide = escaped && at + 1 < text.size() && text[at + 1] == u'u';
            const int unit = !escaped ? -1 : wide ? HexAt(text, at + 2, 4) : HexAt(text, at + 1, 2);
            if (unit < 0) {
                result += text[at++];
                continue;
            }
            result += QChar(static_cast<char16_t>(unit));
            at += wide ? 6 : 3;
        }
    });
    return result;
}

bool CheckIP(const QString& text)
{
    const QStringList fields = text.split(u'.');
    return fields.size() == 4 && std::ranges::all_of(fields, [](const QString& field) {
               bool numeric = false;
               const double value = field.toDouble(&numeric);
               return numeric && field == field.trimmed() && value >= 0 && value <= 255;
           });
}

QString ParameterText::GetsDeviceType(const QString& source, qint32 brand)
{
    if (source.isEmpty() || source == kFamilySVR || source == "TXR500"_L1)
        return kFamilySVR;
    if (source == kFamilyOmluPro)
        return brand == 5 ? kFamilyTXR632 : kFamilyOmluPro;
    return source == kFamilyTXR632 ? QString(kFamilyTXR632) : QString();
}
