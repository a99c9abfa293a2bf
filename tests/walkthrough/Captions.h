#pragma once

#include <QStringList>

class QWidget;

// What of a window's writing does not fit where it stands, at its present size: captions, heads of tables, entries of
// choices, placeholders, steps; and what reaches out of its parent or makes the window larger than 1280 x 720. One line
// each, "<control>: <text>".
QStringList CutCaptions(const QWidget& window);
