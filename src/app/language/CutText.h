#pragma once

#include <QString>
#include <functional>

// The part of `text` that fits `available` pixels: the whole text when it does; otherwise "~" and its end (right to
// left) or its beginning and "~", as much as fits into 20 pixels less. `measure` gives a text's width in pixels.
QString CutText(const QString& text, int available, bool rightToLeft,
                const std::function<int(const QString&)>& measure);
