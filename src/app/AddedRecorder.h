#pragma once

#include "app/Station.h"
#include "recorders/detect/NVRDetect.h"

// What a detected recorder brings with it (slot from 0): a new one gets its map and the detection defaults, and both a
// new and a re-read one their channels' event records. For DetectContext::filled.
void RecorderDetected(Station& station, int slot, const SVRRecord& record, DetectMode mode);

// The wizard is left and its new recorders are not wanted: they go from the working generation, and so does what the
// maps and the detection settings took from them. Nothing is written.
void DropNewRecorders(Station& station);
