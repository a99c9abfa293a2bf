#pragma once

#include <QByteArray>

namespace simulators {

// A JPEG of 352 x 240 pixels: a yard under a sky, the channel's number in large digits, something that has moved since
// the last picture. `pan` shifts the view.
QByteArray snapshotJpeg(int channel, int pan);

} // namespace simulators
