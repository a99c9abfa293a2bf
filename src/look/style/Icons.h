#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

// A line icon of the desk by name ("nvr", "add", "eye-off" …; the files of resources/icons). It is drawn in the live
// scheme's text colour whenever it is painted, in the accent colour when selected or on a button switched on, and
// greyed when disabled. "back", "next", "exit" and their like are mirrored in a right-to-left desk. An unknown name
// gives a null icon.
QIcon Icon(QLatin1StringView name);
// The same in the colour of a token whatever the state, for icons that tell a state ("warning" in "warning").
QIcon Icon(QLatin1StringView name, QLatin1StringView token);
// One picture of an icon. `size` is in device-independent pixels; the pixmap carries `ratio` as its device pixel ratio.
QPixmap IconPixmap(QLatin1StringView name, const QSize& size, const QColor& colour, qreal ratio);
// An illustration of an empty state ("empty-recorder", "empty-page", "empty-screens"), 120 x 88, in the live scheme.
QPixmap Illustration(QLatin1StringView name, qreal ratio);
// The program's own icon, for windows and the brand block.
QIcon ProgramIcon();
// The flag of a language, 1 to 14, 3:2; a null icon for every other number.
QIcon Flag(int language);
// Side of a line icon in device-independent pixels.
inline constexpr int kIconSize = 17;
