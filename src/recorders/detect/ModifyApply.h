#pragma once

#include "recorders/data/RecorderEvents.h"
#include "recorders/data/RecorderSet.h"

// Makes the edit pair a copy of a working slot (from 0), with no channel edited yet.
void OpenEditPair(RecorderSet& recorders, int slot);

// What the page of a recorder leads to. Saving and removing are the caller's.
enum class Modified
{
    Kept,    // the page stays: nothing was taken over
    Nothing, // the page may go, there is nothing to save
    Applied, // the page may go, its slot is marked for saving
    Remove   // the operator wants the recorder removed
};

// Takes the edit pair, under the given name, over into its working slot and marks it for saving. A recorder that has no
// camera left is offered for removal (boxes 721 and 720).
Modified ModifyApply(RecorderSet& recorders, int slot, const QString& name, const RecorderEvents& events);

// The device has taken a change of a channel (from 0): no Cancel calls that back, so this channel of the working slot
// follows at once and is marked for saving. Nothing else of the edit pair does, and nothing happens when the pair has
// come to describe another device. True when the channel has followed.
bool TakeOverWritten(RecorderSet& recorders, int slot, int channel, const RecorderEvents& events);
// The same for the switches of the cameras' own events, of all channels.
bool TakeOverSwitches(RecorderSet& recorders, int slot);

// The page of a recorder is left without Apply: whether what was written to the device must be saved. A recorder whose
// last camera was cleared is offered for removal as above: one without a camera vanishes from the table.
Modified LeaveUnapplied(const RecorderSet& recorders, int slot);
