#pragma once

#include "simulators/DeviceState.h"
#include "simulators/HttpServer.h"

#include <functional>
#include <pugixml.hpp>

// The two languages of the devices. Everything here works on the state alone, without sockets.
namespace simulators {

// Results of the devices beside 0.
enum Ret
{
    kRetUnknownCommand = -1,
    kRetMalformed = -2,
    kRetBadValue = -3,
    kRetNoRight = -4,
    kRetNotFound = -6
};

struct CommandContext
{
    const DeviceProfile& profile;
    DeviceState& state;
    DeviceState& saved;
    const Account& account;
    int refusal = 0; // a write ends with this RET
    QString address;
    int port = 0;

    bool isPro() const { return profile.family == Family::OmluPro || profile.family == Family::Txr632; }
    // The channel of that number (from 1), or none.
    Channel* channel(int n) const
    {
        return n >= 1 && n <= static_cast<int>(state.channels.size()) ? &state.channels[static_cast<size_t>(n - 1)]
                                                                      : nullptr;
    }
    // What a write must pass first: 0, or the RET it is turned away with.
    int writeBarrier() const { return refusal ? refusal : account.mayWrite ? 0 : kRetNoRight; }
};

// The identifier of "type=action&xml=<CMD ID=…", 0 when the body is of another shape.
int commandIdOf(const QByteArray& body);

// Runs one XML command; `body` is that of the POST. Always a RESPONSE document.
QByteArray runCommand(CommandContext& context, const QByteArray& body);

// Groups of commands; each returns RET and appends its elements to `response`. No value: not a command of theirs.
std::optional<int> runSystemCommand(CommandContext& context, int id, pugi::xml_node cmd, pugi::xml_node response);
std::optional<int> runChannelCommand(CommandContext& context, int id, pugi::xml_node cmd, pugi::xml_node response);
std::optional<int> runPtzCommand(CommandContext& context, int id, pugi::xml_node cmd, pugi::xml_node response);
std::optional<int> runEventCommand(CommandContext& context, int id, pugi::xml_node cmd, pugi::xml_node response);
std::optional<int> runDecoderCommand(CommandContext& context, int id, pugi::xml_node cmd, pugi::xml_node response);

// What a movement does to the position. Moves: 0 home, 1 up, 2 down, 3 left, 4 right, 5 to 8 between them. Zoom: 0 in,
// 1 out. Focus and iris: 2 up, 1 down, 0 automatic.
enum class PtzAxis
{
    Move,
    Zoom,
    Focus,
    Iris
};
bool moveCamera(PtzPosition& at, PtzAxis axis, int direction, int speed); // false: no such direction
void recallPreset(Channel& channel, const Preset& preset);
bool speedFits(const Camera& camera, int speed);

// A CGI path. No value: the device has no such path.
std::optional<HttpReply> runCgi(CommandContext& context, const QByteArray& path, const Query& query);
HttpReply parameterText(CommandContext& context, const Query& query);
HttpReply probeCamera(CommandContext& context, const Query& query);

// Helpers of the command groups.
pugi::xml_node addText(pugi::xml_node parent, const char* name, const QString& text);
pugi::xml_node addNumber(pugi::xml_node parent, const char* name, qint64 number);
QString textOf(pugi::xml_node parent, const char* name);
// A decimal number and nothing else; no value otherwise.
std::optional<int> numberOf(pugi::xml_node parent, const char* name);
std::optional<int> numberIn(const char* text);

} // namespace simulators
