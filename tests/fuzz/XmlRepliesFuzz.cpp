#include "device/protocol/Module_XML.h"
#include "device/protocol/ReplyParsers.h"
#include "support/Conversions.h"

#include <cstdlib>
#include <memory>

// Every reader of XML replies on the same bytes: whatever arrives, they return or throw ConversionError.

namespace {

template <class Read>
void Attempt(Read&& read)
{
    try {
        read();
    } catch (const ConversionError&) {
        // what the caller's trap would log
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    const ReplyText reply(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    const auto svr = std::make_unique<SVRRecord>();
    const auto pro = std::make_unique<SVRProRecord>();
    const auto svd = std::make_unique<SVDRecord>();

    const QString text = QString::fromUtf8(reply.utf8());
    if (Accepted(text) != (ParseResultCode(reply) >= 0 && !text.isEmpty()))
        std::abort();
    QString replaced = text;
    for (const auto& [reference, character] : {std::pair("&lt;", "<"), {"&amp;", "&"}, {"&quot;", "\""}})
        replaced.replace(QLatin1String(reference), QLatin1String(character));
    if (XmlText(0, text) != replaced)
        std::abort();

    Attempt([&] {
        svr->channels[0].sSub_CH_Name = QStringLiteral("kept");
        if (ParseChannelList(reply, *svr, *pro) == 0 && svr->channels[0].sSub_CH_Name != QStringLiteral("kept"))
            std::abort(); // a refused reply changes nothing
    });
    Attempt([&] { ParseDetectedCamera(reply, svr->channels[63], pro->channels[63]); });
    for (const SVRProChannel& channel : pro->channels) {
        for (const SVRProStream& stream : channel.streams) {
            const std::size_t sizes = stream.iFPSUpper.size();
            if (stream.iFPSLower.size() != sizes || stream.iBPSUpper.size() != sizes ||
                stream.iBPSLower.size() != sizes)
                std::abort(); // the four bound lists of a format stay of one length
        }
    }
    Attempt([&] { ParseSystemInfo(reply, *svr); });
    Attempt([&] { ParseTimeSettings(reply, *svr); });
    Attempt([&] {
        DeviceInfo info;
        ParseDeviceInfo(reply, info);
    });
    Attempt([&] {
        std::vector<FoundCamera> found;
        ParseSearchResult(reply, found);
    });
    Attempt([&] {
        std::vector<PresetRecord> presets(64);
        ParsePresetList(reply, presets[0]);
        presets[0].Presets[0].CH = 1;
        BuildSetPresetList(presets, 0);
    });
    Attempt([&] { BuildSetPresetSeq(0, ParsePresetSeq(reply), 5); });
    Attempt([&] { ParsePtzPosition(reply); });
    Attempt([&] { ParseFishEyeMode(reply); });
    Attempt([&] {
        std::vector<ActionRecord> actions;
        ParseActionList(reply, actions);
        BuildSetActionList(actions);
    });
    Attempt([&] { ParseApplyResult(reply); });
    Attempt([&] { ParseSvdChannelInfo(reply, *svd); });
    Attempt([&] { ParseSvdChannels(reply, *svd); });
    Attempt([&] { ParseSvdResolutions(reply, 1, *svd); });
    Attempt([&] { ParseSvdSystemInfo(reply, *svd); });
    Attempt([&] {
        ParseSvdScreens(reply, *svd);
        if (svd->iScreenCount < 0 || svd->iScreenCount > SVDRecord::kScreens)
            std::abort();
    });
    return 0;
}
