#pragma once

#include "recorders/data/RecorderSet.h"
#include "store/Databases.h"
#include "store/RecordFamily.h"

// Replaces the rows of a slot (from 0) by one row for each channel below iSVR_Maxchannel that carries a camera; 1 or 0.
// A row that fails is logged and the others go on.
qint16 SaveMySVR(Databases& databases, RecorderSet& set, int slot);
// Fills the stored generation and iSVR_MaxChannelAll, and gives the channels without a camera, in both generations, the
// values of the empty channel. A slot or channel outside the bounds ends the load with a log line; rows read stay.
// 1, or 0 when the table could not be read to its end: then it is not written over either.
qint16 GetSVREx(Databases& databases, RecorderSet& set);

RecordFamily SVRFamily(Databases& databases, RecorderSet& set);
