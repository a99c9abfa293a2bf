#include "simulators/Commands.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

constexpr size_t kMaxPresets = 8;

// `cont` 0 moves one step, 1 until it is stopped, 2 stops.
int move(int id, pugi::xml_node param, Channel& channel)
{
    const std::optional<int> direction = numberOf(param, "Direction");
    const std::optional<int> speed = numberOf(param, "Speed");
    const std::optional<int> cont = numberOf(param, "Cont");
    const QString target = textOf(param, "Target");
    if (!direction || !speed || !cont)
        return kRetMalformed;
    if (!channel.camera.ptz.enable)
        return kRetNotFound;
    if (!target.isEmpty() && (channel.camera.brandCode != 20 || (target != u"left"_s && target != u"right"_s)))
        return kRetBadValue;
    channel.lens = target;
    if (*cont == 2) {
        channel.moving = false;
        return 0;
    }
    if (!speedFits(channel.camera, *speed) ||
        !moveCamera(channel.position, static_cast<PtzAxis>(id - 12289), *direction, *speed))
        return kRetBadValue;
    channel.moving = *cont == 1;
    return 0;
}

Preset* presetOf(Channel& channel, int id)
{
    const auto found = std::find_if(channel.presets.begin(), channel.presets.end(),
                                    [id](const Preset& preset) { return preset.id == id; });
    return found == channel.presets.end() ? nullptr : &*found;
}

int gotoPreset(pugi::xml_node param, Channel& channel)
{
    const int id = numberOf(param, "Preset").value_or(0);
    const Preset* preset = presetOf(channel, id);
    if (!preset)
        return kRetNotFound;
    if (!speedFits(channel.camera, numberOf(param, "Speed").value_or(-1)))
        return kRetBadValue;
    recallPreset(channel, *preset);
    return 0;
}

int namePreset(pugi::xml_node param, Channel& channel)
{
    const int id = numberOf(param, "ID").value_or(0);
    if (id < 1 || id > static_cast<int>(kMaxPresets))
        return kRetBadValue;
    Preset* preset = presetOf(channel, id);
    if (!preset) {
        channel.presets.push_back(Preset{id, {}, false, {}, {}, {}, {}});
        std::sort(channel.presets.begin(), channel.presets.end(),
                  [](const Preset& a, const Preset& b) { return a.id < b.id; });
        preset = presetOf(channel, id);
    }
    const PtzPosition& at = channel.position;
    *preset = {id,
               textOf(param, "Name"),
               channel.camera.ptz.absolute,
               QString::number(at.pan),
               QString::number(at.tilt),
               QString::number(at.zoom),
               QString::number(at.focus)};
    return 0;
}

int setPresetList(pugi::xml_node param, Channel& channel)
{
    std::vector<Preset> presets;
    const pugi::xml_node list = param.child("PresetList");
    if (!list)
        return kRetMalformed;
    for (const pugi::xml_node node : list.children("Preset")) {
        const int id = numberIn(node.text().get()).value_or(0);
        if (id < 1 || id > static_cast<int>(kMaxPresets) || presets.size() == kMaxPresets)
            return kRetBadValue;
        const auto attribute = [&](const char* name) { return QString::fromUtf8(node.attribute(name).value()); };
        presets.push_back({id, attribute("Name"), attribute("PTZABS") == u"1"_s, attribute("Pan"), attribute("Tilt"),
                           attribute("Zoom"), attribute("Focus")});
    }
    channel.presets = std::move(presets);
    return 0;
}

void listPresets(const Channel& channel, pugi::xml_node response)
{
    pugi::xml_node list = response.append_child("PresetList");
    for (const Preset& preset : channel.presets) {
        pugi::xml_node node = list.append_child("Preset");
        node.append_attribute("ID") = preset.id;
        addText(node, "Name", preset.name);
        addNumber(node, "PTZABS", preset.absolute);
        addText(node, "Pan", preset.pan);
        addText(node, "Tilt", preset.tilt);
        addText(node, "Zoom", preset.zoom);
        addText(node, "Focus", preset.focus);
    }
}

int sequence(CommandContext& context, bool write, pugi::xml_node param, pugi::xml_node response)
{
    const pugi::xml_node asked = param.child("CHList").child("CH");
    const int number = numberIn(write ? asked.attribute("ID").value() : asked.text().get()).value_or(0);
    Channel* channel = context.channel(number);
    if (!channel)
        return kRetBadValue;
    if (!write) {
        pugi::xml_node node = response.append_child("CHList").append_child("CH");
        node.append_attribute("ID") = number;
        pugi::xml_node seq = node.append_child("SeqList").append_child("Seq");
        seq.append_attribute("ID") = 1;
        pugi::xml_node list = seq.append_child("PresetList");
        for (const SequenceStep& step : channel->sequence) {
            pugi::xml_node preset = list.append_child("Preset");
            preset.append_attribute("ID") = step.preset;
            preset.append_attribute("DwellTime") = step.dwell;
        }
        return 0;
    }
    const pugi::xml_node seq = asked.child("SeqList").child("Seq");
    if (numberIn(seq.attribute("ID").value()).value_or(0) != 1)
        return kRetMalformed;
    std::vector<SequenceStep> steps;
    for (const pugi::xml_node node : seq.child("PresetList").children("Preset")) {
        const int preset = numberIn(node.attribute("ID").value()).value_or(0);
        const int dwell = numberIn(node.attribute("DwellTime").value()).value_or(0);
        if (!presetOf(*channel, preset) || dwell < 1)
            return kRetBadValue;
        steps.push_back({preset, dwell});
    }
    channel->sequence = std::move(steps);
    return 0;
}

} // namespace

bool speedFits(const Camera& camera, int speed)
{
    return speed >= camera.ptz.speedLower && speed <= camera.ptz.speedUpper;
}

bool moveCamera(PtzPosition& at, PtzAxis axis, int direction, int speed)
{
    static constexpr int kPan[] = {0, 0, 0, -1, 1, -1, 1, -1, 1};
    static constexpr int kTilt[] = {0, 1, -1, 0, 0, 1, 1, -1, -1};
    if (direction < 0 || direction > (axis == PtzAxis::Move ? 8 : axis == PtzAxis::Zoom ? 1 : 2))
        return false;
    if (axis == PtzAxis::Move) {
        at.pan = direction == 0 ? 0 : at.pan + kPan[direction] * speed;
        at.tilt = direction == 0 ? 0 : at.tilt + kTilt[direction] * speed;
        return true;
    }
    if (axis == PtzAxis::Zoom) {
        at.zoom += direction == 0 ? speed : -speed;
        return true;
    }
    int& value = axis == PtzAxis::Focus ? at.focus : at.iris;
    value = direction == 0 ? 0 : value + (direction == 2 ? speed : -speed);
    return true;
}

void recallPreset(Channel& channel, const Preset& preset)
{
    channel.position = {preset.pan.toInt(), preset.tilt.toInt(), preset.zoom.toInt(), preset.focus.toInt(), 0};
    channel.gotoPreset = preset.id;
}

std::optional<int> runPtzCommand(CommandContext& context, int id, pugi::xml_node cmd, pugi::xml_node response)
{
    const pugi::xml_node param = cmd.child("Param");
    if (id == 32858 || id == 32859)
        return sequence(context, id == 32859, param, response);
    switch (id) {
    case 4101:
    case 12289:
    case 12290:
    case 12291:
    case 12292:
    case 12294:
    case 12297:
    case 12301:
    case 12302:
    case 32814:
        break;
    default:
        return std::nullopt;
    }
    const int number = numberOf(param, "CH").value_or(0);
    Channel* channel = context.channel(number);
    if (!channel)
        return kRetBadValue;
    if (channel->camera.ip.isEmpty())
        return kRetNotFound;
    switch (id) {
    case 4101:
        listPresets(*channel, response);
        return 0;
    case 12294:
        return gotoPreset(param, *channel);
    case 12297:
        addNumber(response, "CH", number);
        addNumber(response, "Pan", channel->position.pan);
        addNumber(response, "Tilt", channel->position.tilt);
        addNumber(response, "Zoom", channel->position.zoom);
        addNumber(response, "Focus", channel->position.focus);
        return 0;
    case 12301:
        return namePreset(param, *channel);
    case 12302:
        addText(response, "Mode4FishEye", channel->camera.fishEyeMode);
        return 0;
    case 32814:
        return setPresetList(param, *channel);
    default:
        return move(id, param, *channel);
    }
}

} // namespace simulators
