#pragma once

#include "app/Station.h"

#include <qcorotask.h>

class Form_COM;
class Work;

// Takes the recorder of a slot (from 0) out of the station and clears what depends on it: its events on the device
// (when it takes custom events; an unreachable device is passed over), its record, its rights, its detection settings,
// its maps and the places of its cameras, its device service. Saves everything that is marked. Awaits the device, at
// most 60 seconds; a stop of the work ends that, and the removal goes on.
QCoro::Task<> RemoveSVR(Station& station, Form_COM& com, int slot, Work& work);
