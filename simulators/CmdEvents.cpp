#include "simulators/Commands.h"

#include <array>

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

constexpr std::array<std::pair<const char*, int Action::*>, 11> kActionFields{
    {{"CH", &Action::channel},
     {"Event", &Action::event},
     {"ActionGroup", &Action::actionGroup},
     {"TriggerID", &Action::triggerId},
     {"DigitalOut", &Action::digitalOut},
     {"Preset", &Action::preset},
     {"DigitalOutID", &Action::digitalOutId},
     {"DigitalOutState", &Action::digitalOutState},
     {"DODuration", &Action::digitalOutDuration},
     {"PresetDest", &Action::presetDest},
     {"Enable", &Action::enable}}};

int setActions(CommandContext& context, pugi::xml_node param)
{
    const pugi::xml_node list = param.child("ActionList");
    if (!list)
        return kRetMalformed;
    std::vector<Action> actions;
    for (const pugi::xml_node node : list.children("Action")) {
        Action action;
        for (const auto& [name, field] : kActionFields) {
            const std::optional<int> number = numberIn(node.attribute(name).value());
            if (!number)
                return kRetMalformed;
            action.*field = *number;
        }
        if (!context.channel(action.channel))
            return kRetBadValue;
        actions.push_back(action);
    }
    context.state.actions = std::move(actions);
    return 0;
}

int setMotion(CommandContext& context, pugi::xml_node param)
{
    const pugi::xml_node list = param.child("MotionDetectList");
    if (!list)
        return kRetMalformed;
    for (const pugi::xml_node node : list.children("MotionDetect")) {
        const int number = numberIn(node.attribute("CH").value()).value_or(0);
        Channel* channel = context.channel(number);
        const std::optional<int> enable = numberIn(node.attribute("CameraEnable").value());
        if (!channel || !enable)
            return kRetBadValue;
        if (!context.state.refusedEventChannels.count(number))
            channel->motionEnabled = *enable != 0;
    }
    return 0;
}

void motionResult(CommandContext& context, pugi::xml_node response)
{
    pugi::xml_node list = response.append_child("CHList");
    for (size_t i = 0; i < context.state.channels.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        if (context.state.channels[i].camera.ip.isEmpty())
            continue;
        pugi::xml_node node = list.append_child("CH");
        node.append_attribute("ID") = number;
        node.append_attribute("MDRet") = context.state.refusedEventChannels.count(number) ? -1 : 0;
        node.append_attribute("DIRet") = 0;
    }
}

// Oldest first; "Type" 0 is every type and "CH" 0 every channel. TotalCount counts all that match.
int queryLog(CommandContext& context, pugi::xml_node param, pugi::xml_node response)
{
    bool beginOk = false;
    bool endOk = false;
    const qint64 begin = textOf(param, "BeginTime").toLongLong(&beginOk);
    const qint64 end = textOf(param, "EndTime").toLongLong(&endOk);
    const std::optional<int> count = numberOf(param, "Count");
    const std::optional<int> type = numberIn(param.child("TypeList").child("Type").text().get());
    const std::optional<int> asked = numberIn(param.child("CHList").child("CH").text().get());
    if (!beginOk || !endOk || !count || *count < 1 || !type || !asked || numberOf(param, "Order") != 1)
        return kRetMalformed;
    pugi::xml_node total = response.append_child("TotalCount");
    pugi::xml_node list = response.append_child("EventList");
    int matching = 0;
    for (const StoredEvent& event : context.state.events) {
        if (event.time < begin || event.time > end || (*type != 0 && event.type != *type) ||
            (*asked != 0 && event.channel != *asked))
            continue;
        if (++matching > *count)
            continue;
        pugi::xml_node node = list.append_child("Event");
        addNumber(node, "CH", event.channel);
        addNumber(node, "Time", event.time);
        addNumber(node, "Type", event.type);
        addNumber(node, "Index", event.trigger);
    }
    total.text() = matching;
    return 0;
}

} // namespace

std::optional<int> runEventCommand(CommandContext& context, int id, pugi::xml_node cmd, pugi::xml_node response)
{
    const pugi::xml_node param = cmd.child("Param");
    switch (id) {
    case 32775:
        return setActions(context, param);
    case 32777: {
        pugi::xml_node list = response.append_child("ActionList");
        for (const Action& action : context.state.actions) {
            pugi::xml_node node = list.append_child("Action");
            for (const auto& [name, field] : kActionFields)
                node.append_attribute(name) = action.*field;
        }
        return 0;
    }
    case 32788:
        return setMotion(context, param);
    case 4113:
        motionResult(context, response);
        return 0;
    case 16389:
        return queryLog(context, param, response);
    default:
        return std::nullopt;
    }
}

} // namespace simulators
