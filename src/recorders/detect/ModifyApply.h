#pragma once

#include "recorders/data/RecorderSet.h"

#include <functional>

// What a change of a stored recorder touches beyond its own record. A hook that is not set is passed over.
struct ModifyHooks
{
    std::function<void(int slot)> RemoveSVR; // takes the recorder out of the station and saves
    std::function<void(int slot, const QString& name)> recorderRenamed; // its maps follow the new name
    std::function<void()> CheckPatternAfterSVRChange;
    std::function<void()> CheckDefaultStartAfterSVRChange;
    std::function<void()> SaveCheck; // writes everything that is marked
};

// Makes the edit pair a copy of a working slot (from 0), with no channel edited yet.
void OpenEditPair(RecorderSet& recorders, int slot);

// Takes the edit pair, under the given name, over into its working slot and marks it for saving. A recorder that has no
// camera left is offered for removal (boxes 721 and 720). False: it was kept, and nothing was taken over. Saving is the
// caller's.
bool ModifyApply(RecorderSet& recorders, int slot, const QString& name, const ModifyHooks& hooks);

// The device has taken a change of a channel: no Cancel calls that back, so the working slot follows at once and is
// marked for saving. Name and login stay as they were: those are applied, not written to the device. Nothing happens
// when the edit pair has come to describe another device, or has no camera left (a recorder without one vanishes from
// the table, and that is asked first). True when the slot has followed.
bool TakeOverWritten(RecorderSet& recorders, int slot);

// The page of a recorder is left without Apply: what TakeOverWritten has marked is checked against patterns and default
// starts and saved.
void LeaveUnapplied(const RecorderSet& recorders, int slot, const ModifyHooks& hooks);
