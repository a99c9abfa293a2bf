#pragma once

#include "emap/EMapSet.h"
#include "recorders/data/RecorderSet.h"
#include "store/Databases.h"
#include "store/RecordFamily.h"

// Tables EMapGroup and EMapIcon.

// Fills the stored and the edit list; without rows, and where the table lacks it, the root is there all the same. False
// when the table cannot be read to its end: the lists stay as they were.
bool GetEMapGroup(Databases& databases, EMapSet& set);
// Replaces the rows by the stored list. False when that fails: the old rows stand.
bool SaveEMapGroup(Databases& databases, const EMapSet& set);

// Fills the stored icon table. A row beyond 16 recorders or 64 channels is one log line. False when the table cannot be
// read to its end.
bool GetEMapIconEx(Databases& databases, EMapSet& set);
// Replaces the rows by one for each named channel of each named recorder of the stored generation, whether the camera
// is on a map or not. False when that fails: the old rows stand.
bool SaveEMapIcon(Databases& databases, const EMapSet& set, const RecorderSet& recorders);

RecordFamily EMapGroupFamily(Databases& databases, EMapSet& set);
RecordFamily EMapIconFamily(Databases& databases, EMapSet& set, const RecorderSet& recorders);
