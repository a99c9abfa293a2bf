#pragma once

#include <Qt>

// What a model says about the state of a row beside its words (the display role). For models that know no windows.

// How a thing stands. Colour never stands alone: the words beside the dot say the same.
enum class Status
{
    None, // no dot, quiet words
    Ok,
    Warning,
    Bad,
    Busy // something is under way
};

// A Status, as int.
inline constexpr int kStatusRole = Qt::UserRole + 900;
// Progress of a row in percent, 0 to 100; absent or negative: no bar.
inline constexpr int kProgressRole = Qt::UserRole + 901;
