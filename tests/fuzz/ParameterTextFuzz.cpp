#include "device/ParameterText.h"
#include "support/Conversions.h"

#include <cstdlib>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto record = std::make_unique<SVRRecord>();
    for (auto* parser : {CHImageInfoPaser, CHPTZInfoPaser, CHOnvifInfoPaser}) {
        try {
            parser(*record, text, 63);
        } catch (const ConversionError&) {
            // what the caller's trap would log
        }
    }
    CheckIP(text);
    if (!text.contains(u'"')) { // a quote is refused, with a line in the log
        const QString escaped = Escape(text);
        if (escaped.contains(u' ') || escaped.contains(u'<') || Unescape(escaped) != text)
            std::abort();
        Unescape(text);
    }
    return 0;
}
