#pragma once

#include <functional>

class QObject;

// The process is leaving: every wait ends at once, every work is stopped and long loops stop.
bool Closing();
void SetClosing(bool closing);

enum class WaitResult
{
    Done,
    TimedOut,
    Closing
};

// Dynamic property of a widget that takes press, release and keys while a wait is under way: what stops the work.
inline constexpr char kStopsWork[] = "stopsWork";

// Runs a nested event loop until `done` is true, `seconds` have passed, or Closing is set. Painting, timers and sockets
// go on; key, mouse, wheel, touch and drop input to every widget but those marked above is held back meanwhile, so
// nothing is started twice. `done` is tested first, after every round of events, and at least every 100 ms; so whoever
// completes something in an event of this thread need not wake anybody. Never blocks when `done` is true already.
WaitResult WaitUntil(const std::function<bool()>& done, double seconds);

// Whether a wait is under way (the window shows that it is busy).
bool Waiting();
