#pragma once

#include "simulators/Device.h"

#include <QJsonObject>

namespace simulators {

// What can be read back of a device, for other processes: name, channels (1-based "ch", only those with a camera),
// presets, sequences, switches, actions, screens.
QJsonObject stateJson(const Device& device);

// {"requests": [{"method", "target", "body", "user", "cmd", "status"}, …]}, oldest first.
QJsonObject logJson(const Device& device);

} // namespace simulators
