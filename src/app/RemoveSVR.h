#pragma once

#include "app/Station.h"

class WebBridge;

// Takes the recorder of a slot (from 0) out of the station and clears what depends on it: its events on the device
// (when it takes custom events; an unreachable device is passed over), its record, its rights, its rows. Saves
// everything that is marked. Waits for the device, at most 60 seconds.
void RemoveSVR(Station& station, WebBridge& web, int slot);

// The working record of a slot as a removal leaves it: free, marked for saving.
void ClearRecorder(RecorderSet& recorders, int slot);
