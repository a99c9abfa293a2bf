#pragma once

#include "app/Station.h"

class Form_COM;

// Takes the recorder of a slot (from 0) out of the station and clears what depends on it: its events on the device
// (when it takes custom events; an unreachable device is passed over), its record, its rights, its detection settings,
// its maps and the places of its cameras, its device service. Saves everything that is marked. Waits for the device, at
// most 60 seconds.
void RemoveSVR(Station& station, Form_COM& com, int slot);
