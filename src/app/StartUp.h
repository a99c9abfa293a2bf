#pragma once

#include "app/Station.h"
#include "store/UpdateDatabase.h"

// The steps of start-up and shut-down that need no window, each trapped on its own. Form_Initial calls them in order.

// Opens the databases, with the repair from backups or the template when that fails. A database that is there but
// cannot be opened is left alone; the operator is asked whether to try again. The rights of the station's files are
// tightened first.
void OpenDatabases(Station& station);
// Defaults, run-time facts, language and the version test; a database of another version is updated.
void ReadDefaults(Station& station, UpdateWatcher& watcher);
// A language that is not chosen yet (99, 0) from the system; the live language, its character set and the box styles.
void NormaliseLanguage(Station& station);
void SettleLanguage(Station& station);
// All record families whose subsystem is part of the desk, in their fixed order.
void LoadRecords(Station& station);
// The records of the user who is logged in: patterns, start and, with two monitors, walls; both copies.
void LoadUserRecords(Station& station);
// Tells the operator once which tables could not be read and are not written over. True when there are none.
bool CheckRecords(Station& station);
// Group of the logged-in user, 0 for a user who is not in the array.
void SettleCurrentGroup(Station& station);

// After a run that saved something: the newest backup becomes the second one, and the database the newest.
void RotateBackups();

// The end of the wizard: each slot whose address is new is told as added, so that it gets its rights, map and detection
// settings; then everything marked is saved.
void FinishNewRecorders(Station& station);
