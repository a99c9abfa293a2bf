#pragma once

#include <QRectF>
#include <QString>

// Where a tile lies on its board, as tables hold it: left, top, width and height as shares of the board's, joined by
// commas, with four decimals.

// A text that does not hold four numbers gives an empty rectangle.
QRectF TileOfText(QStringView text);
QString TextOfTile(const QRectF& tile);
// One that can be drawn: it has a size, begins on the board and none of its numbers is above 1.
bool IsTile(const QRectF& tile);
