#pragma once

#include "screens/ScreenSet.h"
#include "store/Databases.h"
#include "store/RecordFamily.h"

// Table ScreenLayout: the one row of the station, which is there from the template on.

// Fills the stored copy for `iMonitorCount` monitors. Screens that are not there are replaced: programs go to screen 1,
// full-screen surfaces to the screen of their own number, walls off; then the record is marked, so that the next save
// writes it. False when the table cannot be read: the repair has run all the same.
bool GetScreenLayout(Databases& databases, ScreenSet& set);
// Writes the stored copy into the row. False when that fails.
bool SaveScreenLayout(Databases& databases, const ScreenSet& set);

RecordFamily ScreenLayoutFamily(Databases& databases, ScreenSet& set);
