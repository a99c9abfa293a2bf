#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// The rule text of a camera that says which frame rates and which bit rates go with which resolution of which format:
// three blocks "{…}" for MJPEG, MPEG4 and H.264; in a block, entries "resolution<frame rates><bit rates>" with commas
// between, the values of a list with "|" between. Values are device codes. Example:
//   {640x480<1|2><3|4>,320x240<0|1><3>}{}{1280x720<0><6|7>}

inline constexpr qsizetype kMaxRelativeFormat = 64 * 1024; // characters; a longer text is taken for no rule
inline constexpr qsizetype kMaxListEntries = 512;          // of one list that a camera offers

enum class RelativeList
{
    FrameRate = 0,
    BitRate = 1
};

// Whether there is a rule at all: the empty text and "{}{}{}" are none.
bool HasRelativeFormat(const QString& rule);

// Whether a camera with this rule text cannot be used by the recorder; the text is compared as it stands.
bool MarksUnusableCamera(const QString& rule);

// The values of one list for a format (0 MJPEG, 1 MPEG4, 2 H.264) and a resolution: those of the first entry that
// contains the resolution's text. No value when there is no rule, no such block, entry or list; an entry whose list is
// empty gives the empty list. Never throws.
std::optional<QStringList> RelativeFormatValues(const QString& rule, int format, const QString& resolution,
                                                RelativeList list);
