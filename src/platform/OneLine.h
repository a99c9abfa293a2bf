#pragma once

#include <QString>

// A text as the value of a protocol's line: its line ends, which would begin another line, are dropped.
inline QString OneLine(QString text)
{
    text.remove(u'\r').remove(u'\n');
    return text;
}
