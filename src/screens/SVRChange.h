#pragma once

#include "recorders/data/RecorderSet.h"
#include "screens/PatternStore.h"
#include "screens/ScreenLists.h"
#include "store/Databases.h"

// What patterns, starts, sequences and walls say of recorders and channels that are gone.

// All of it, by the working generation of recorders: the edit copies of `user`, who is logged in, are repaired and
// marked; rows that have no edit copy (sequences, what other users own) are repaired in their tables at once, as one
// step. Patterns of other users are neither removed nor numbered anew.
void RepairAfterSVRChange(Databases& databases, ScreenSet& set, const RecorderSet& recorders, const QString& user);
// The same when a channel went; nothing to do when none of those there at the last repair did.
void RepairAfterChannelGone(Databases& databases, ScreenSet& set, const RecorderSet& recorders, const QString& user);
// After the user's patterns were taken away, renamed or numbered anew: `before` is the list that the numbers kept in
// sequences, start and walls are of, the edit list the one that they are translated to.
void RepairPatternNumbers(Databases& databases, ScreenSet& set, const std::vector<PatternRow>& before,
                          const QString& user);

// Panes of channels that are gone become empty; a pattern that shows nothing is removed. When anything changed the list
// is compacted (RedimPattern) and the answer is true.
bool CheckPatternAfterSVRChange(std::vector<PatternRow>& patterns, const LiveChannels& live);
