#include "device/protocol/CameraText.h"
#include "device/protocol/ParameterText.h"
#include "device/protocol/RelativeFormat.h"
#include "support/Conversions.h"

#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    SVRChannel channel;
    for (auto* parser : {CHImageInfoPaser, CHPTZInfoPaser, CHOnvifInfoPaser}) {
        try {
            parser(channel, text);
        } catch (const ConversionError&) {
            // what the caller's trap would log
        }
    }
    CheckIP(text);
    const auto camera = ReadDetectedCamera(text, 2);
    for (int format = 0; camera && format < kMaxStream; ++format) {
        for (const RelativeList list : {RelativeList::FrameRate, RelativeList::BitRate})
            RelativeFormatValues(camera->RelativeFormat, format, u"640x480"_s, list);
    }
    ReadCameraSearch(text);
    if (const auto bits = ReadCameraEvents(text)) {
        if (ReadCameraEvents(u"OK\n"_s + CameraEventParameters(*bits, {0, 63}).replace(u'&', u'\n'))->at(63) !=
            bits->at(63))
            std::abort();
    }
    RefusedChannels(text);
    if (!text.contains(u'"')) { // a quote is refused, with a line in the log
        const QString escaped = Escape(text);
        if (escaped.contains(u' ') || escaped.contains(u'<') || Unescape(escaped) != text)
            std::abort();
        Unescape(text);
    }
    return 0;
}
