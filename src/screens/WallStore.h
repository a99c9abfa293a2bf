#pragma once

#include "screens/ScreenSet.h"
#include "store/Databases.h"
#include "store/RecordFamily.h"

// Table VideoWall: what each video wall of a user shows.

// Fills the stored list with one record for each video wall of the layout; a wall without a row holds the defaults.
// With one monitor there is none. False when the table cannot be read.
bool GetVideoWall(Databases& databases, ScreenSet& set, const QString& user);
// Writes one wall into its row. 1 or 0.
qint16 SaveVideoWall(Databases& databases, const VideoWallRow& wall, const QString& user);
// Saves the marked walls only. Walls are not asked about at the close.
RecordFamily VideoWallFamily(Databases& databases, ScreenSet& set);
