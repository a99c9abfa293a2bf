#pragma once

#include "store/Databases.h"

#include <QStringList>

// What users own in the tables of patterns and start views, when users are saved. Both are parts of that save's step
// in the file and throw StoreError, so that it fails as a whole.

// Deletes the rows of patterns, starts, sequences and walls whose owner is none of these.
void DeleteRowsOfOthers(Databases& databases, const QStringList& users);
// Adds a default row of DefaultStart for each of these that has none; `monitors` is the number of full-screen surfaces.
void AddFirstStarts(Databases& databases, const QStringList& users, int monitors);
