#include "device/protocol/ReplyParsers.h"

#include "app/log/Module_Log.h"
#include "device/protocol/CameraText.h"
#include "device/protocol/XmlReply.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kMaxActions = 4096; // rows of an action list that are read

// A name, model or address as far as a record takes it.
QString ShortText(pugi::xml_node node)
{
    return NodeText(node).left(kMaxDeviceText);
}

// Calls `visit` for each element found under the wrapper `list` of a readable reply. False when it cannot be read.
template <class Visit>
bool ForEachListed(const XmlReply& reply, const char* list, Visit&& visit)
{
    const pugi::xml_node response = reply.response();
    ForEachElement(response, list, [&](pugi::xml_node wrapper) { ForEachElement(wrapper, visit); });
    return !response.empty();
}

constexpr auto kSystemInfo = Elements<SVRRecord>({
    {"Name", [](SVRRecord& edit, pugi::xml_node node) { edit.sSVR_Name = ShortText(node); }},
    {"HTTPPort", [](SVRRecord& edit, pugi::xml_node node) { edit.iSVR_HttpPort = Int32Of(node); }},
    {"Port", [](SVRRecord& edit, pugi::xml_node node) { edit.iSVR_VideoPort = Int32Of(node); }},
    {"DSTEnable", [](SVRRecord& edit, pugi::xml_node node) { edit.iSVR_SummerTime = Int32Of(node) > 0 ? -1 : 0; }},
    {"TimeZone", [](SVRRecord& edit, pugi::xml_node node) { edit.iSVR_TimeZoneNum = Int16Of(node); }},
});

constexpr auto kTimeSettings = Elements<SVRRecord>({
    {"TimeZone", [](SVRRecord& edit, pugi::xml_node node) { edit.iSVR_TimeZoneNum = Int16Of(node); }},
    {"SummerTime", [](SVRRecord& edit, pugi::xml_node node) { edit.iSVR_SummerTime = Int16Of(node); }},
});

constexpr auto kDeviceInfo = Elements<DeviceInfo>({
    {"Brand", [](DeviceInfo& info, pugi::xml_node node) { info.Brand = ShortText(node); }},
    {"Model", [](DeviceInfo& info, pugi::xml_node node) { info.Model = ShortText(node); }},
    {"URL", [](DeviceInfo& info, pugi::xml_node node) { info.URL = ShortText(node); }},
    {"CMDVersion", [](DeviceInfo& info, pugi::xml_node node) { info.CMDVersion = ShortText(node); }},
    {"InternalModel", [](DeviceInfo& info, pugi::xml_node node) { info.InternalModel = ShortText(node); }},
    {"InternalVersion", [](DeviceInfo& info, pugi::xml_node node) { info.InternalVersion = ShortText(node); }},
    {"DeviceType", [](DeviceInfo& info, pugi::xml_node node) { info.DeviceType = ShortText(node); }},
    {"MaxChSupport", [](DeviceInfo& info, pugi::xml_node node) { info.MaxChSupport = Int16Of(node); }},
    {"InputPort", [](DeviceInfo& info, pugi::xml_node node) { info.InputPort = Int32Of(node); }},
    {"OutputPort", [](DeviceInfo& info, pugi::xml_node node) { info.OutputPort = Int32Of(node); }},
});

constexpr auto kFoundCamera = Elements<FoundCamera>({
    {"IP", [](FoundCamera& found, pugi::xml_node node) { found.IP = ShortText(node); }},
    {"NetMask", [](FoundCamera& found, pugi::xml_node node) { found.NetMask = ShortText(node); }},
    {"Manufacturer", [](FoundCamera& found, pugi::xml_node node) { found.Manufacturer = ShortText(node); }},
    {"Model", [](FoundCamera& found, pugi::xml_node node) { found.Model = ShortText(node); }},
    {"DeviceName", [](FoundCamera& found, pugi::xml_node node) { found.DeviceName = ShortText(node); }},
    {"MACAddress", [](FoundCamera& found, pugi::xml_node node) { found.MACAddress = ShortText(node); }},
    {"HTTPPort", [](FoundCamera& found, pugi::xml_node node) { found.HTTPPort = Int32Of(node); }},
    {"DeviceType", [](FoundCamera& found, pugi::xml_node node) { found.DeviceType = Int16Of(node); }},
});

constexpr auto kPosition = Elements<PositionRecord>({
    {"CH", [](PositionRecord& position, pugi::xml_node node) { position.CH = Int16Of(node); }},
    {"Pan", [](PositionRecord& position, pugi::xml_node node) { position.Pan = ShortText(node); }},
    {"Tilt", [](PositionRecord& position, pugi::xml_node node) { position.Tilt = ShortText(node); }},
    {"Zoom", [](PositionRecord& position, pugi::xml_node node) { position.Zoom = ShortText(node); }},
    {"Focus", [](PositionRecord& position, pugi::xml_node node) { position.Focus = ShortText(node); }},
});

constexpr auto kPreset = Elements<PresetEntry>({
    {"Name", [](PresetEntry& preset, pugi::xml_node node) { preset.Name = DecodedText(node).left(kMaxDeviceText); }},
    {"PTZABS", [](PresetEntry& preset, pugi::xml_node node) { preset.PTZABS = DecodedText(node) == "1"_L1; }},
    {"Pan", [](PresetEntry& preset, pugi::xml_node node) { preset.Pan = DecodedText(node); }},
    {"Tilt", [](PresetEntry& preset, pugi::xml_node node) { preset.Tilt = DecodedText(node); }},
    {"Zoom", [](PresetEntry& preset, pugi::xml_node node) { preset.Zoom = DecodedText(node); }},
    {"Focus", [](PresetEntry& preset, pugi::xml_node node) { preset.Focus = DecodedText(node); }},
});

constexpr std::pair<const char*, qint16 ActionRecord::*> kActionNumbers[] = {
    {"CH", &ActionRecord::CH},
    {"ActionGroup", &ActionRecord::ActionGroup},
    {"TriggerID", &ActionRecord::TriggerID},
    {"DigitalOut", &ActionRecord::DigitalOut},
    {"Preset", &ActionRecord::Preset},
    {"DigitalOutID", &ActionRecord::DigitalOutID},
    {"DigitalOutState", &ActionRecord::DigitalOutState},
    {"DODuration", &ActionRecord::DODuration},
    {"PresetDest", &ActionRecord::PresetDest},
    {"Enable", &ActionRecord::Enable},
};

void ReadAction(ActionRecord& action, pugi::xml_node node)
{
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const char* const name = attribute.name();
        if (SameName(name, "Event")) {
            action.Event = Int32Of(attribute.value());
            continue;
        }
        for (const auto& [known, member] : kActionNumbers) {
            if (SameName(name, known))
                action.*member = Int16Of(attribute.value());
        }
    }
}

} // namespace

qint16 ParseResultCode(ReplyText reply)
{
    const XmlReply document(std::move(reply));
    const pugi::xml_attribute result = document.response().attribute("RET");
    try {
        return result ? Int16Of(result.value()) : qint16(-1);
    } catch (const ConversionError&) {
        return -1;
    }
}

void ParseSystemInfo(ReplyText reply, SVRRecord& edit)
{
    const XmlReply document(std::move(reply));
    ReadElements(kSystemInfo, edit, document.response());
}

void ParseTimeSettings(ReplyText reply, SVRRecord& edit)
{
    const XmlReply document(std::move(reply));
    ReadElements(kTimeSettings, edit, document.response());
}

void ParseDeviceInfo(ReplyText reply, DeviceInfo& info)
{
    const XmlReply document(std::move(reply));
    ReadElements(kDeviceInfo, info, document.response());
}

void ParseSearchResult(ReplyText reply, std::vector<FoundCamera>& found)
{
    found.assign(1, FoundCamera());
    const XmlReply document(std::move(reply));
    std::size_t count = 0;
    const auto read = [&](pugi::xml_node device) {
        if (count == kMaxFoundCameras)
            return;
        if (count == found.size())
            found.emplace_back();
        ReadElements(kFoundCamera, found[count++], device);
    };
    // Recorders differ in whether a wrapper stands round the devices.
    ForEachElement(document.response(), [&](pugi::xml_node child) {
        if (SameName(child.name(), "Device"))
            read(child);
        else
            ForEachElement(child, "Device", read);
    });
}

qint16 ParsePresetList(ReplyText reply, PresetRecord& record)
{
    const XmlReply document(std::move(reply));
    std::size_t position = 0;
    const bool readable = ForEachListed(document, "PresetList", [&](pugi::xml_node node) {
        if (position == record.Presets.size())
            return;
        PresetEntry& preset = record.Presets[position++];
        preset.ID = Int16Of(FirstAttribute(node));
        ReadElements(kPreset, preset, node);
    });
    return readable ? 1 : -1;
}

QString ParsePresetSeq(ReplyText reply)
{
    const XmlReply document(std::move(reply));
    QStringList values;
    ForEachListed(document, "CHList", [&](pugi::xml_node channel) {
        ForEachElement(channel, "SeqList", [&](pugi::xml_node sequences) {
            ForEachElement(sequences, "Seq", [&](pugi::xml_node sequence) {
                ForEachElement(sequence, "PresetList", [&](pugi::xml_node presets) {
                    ForEachElement(presets, [&](pugi::xml_node preset) {
                        for (const pugi::xml_attribute attribute : preset.attributes())
                            values += QString::fromUtf8(attribute.value());
                    });
                });
            });
        });
    });
    return values.isEmpty() ? QString() : QString(values.join(u',').left(kMaxDeviceList - 1) + u';');
}

PositionRecord ParsePtzPosition(ReplyText reply)
{
    const XmlReply document(std::move(reply));
    PositionRecord position;
    ReadElements(kPosition, position, document.response());
    return position;
}

QString ParseFishEyeMode(ReplyText reply)
{
    const XmlReply document(std::move(reply));
    return NodeText(document.response().child("Mode4FishEye"));
}

qint16 ParseActionList(ReplyText reply, std::vector<ActionRecord>& actions)
{
    const XmlReply document(std::move(reply));
    const pugi::xml_node response = document.response();
    if (!response)
        return -1;
    if (const pugi::xml_node list = response.child("ActionList")) {
        actions.assign(std::min(ElementCount(list), kMaxActions), ActionRecord());
        std::size_t row = 0;
        ForEachElement(list, [&](pugi::xml_node node) {
            if (row < actions.size())
                ReadAction(actions[row++], node);
        });
    }
    return 1;
}

QString ParseApplyResult(ReplyText reply)
{
    const XmlReply document(std::move(reply));
    const pugi::xml_attribute result = document.response().attribute("RET");
    if (!result || Int16Of(result.value()) != 0)
        return {};
    QStringList refused;
    int listed = 0;
    ForEachListed(document, "CHList", [&](pugi::xml_node channel) {
        const auto failed = [&](const char* name) {
            const pugi::xml_attribute code = channel.attribute(name);
            return code && Int16Of(code.value()) != 0;
        };
        if (++listed > kMaxChannel)
            return;
        Trapped("Form_NVRSetting - ApplyEventSettings", [&] {
            if (failed("MDRet") || failed("DIRet"))
                refused += QString::fromUtf8(channel.attribute("ID").value());
        });
    });
    return refused.join(u',');
}
