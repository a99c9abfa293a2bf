#pragma once

#include "device/protocol/CameraText.h"
#include "store/records/SVRRecord.h"

#include <array>

// What a probe of a camera puts into the records of its channel. Pure.

struct FormatState // what a format is set to; -1 and empty: unknown
{
    QString resolution;
    qint16 frameRate = -1; // in the record's numbers, and so the others
    qint16 rateControl = -1;
    qint16 quality = -1;
    qint16 bitRate = -1;
};
using FormatStates = std::array<FormatState, kMaxStream>;

// Empties everything that a probe tells of a camera. Its name, address and login, its present settings and what the
// station keeps of its own stay.
void ForgetCamera(SVRChannel& svr, SVRProChannel& pro);

// Takes the answer of a recorder of the older family. False for a camera that cannot be used.
bool TakeDetectedText(const DetectedCameraText& camera, SVRChannel& svr, FormatStates& states);

// The settings of the three streams of a Pro channel.
FormatStates StatesOfStreams(const SVRProStreams& streams);

// The other way round, for one stream.
void PutState(SVRProStreams& streams, std::size_t slot, const FormatState& state);

// Brings the settings of every stream but `except` within what its lists offer.
void FitStreams(SVRProStreams& streams, std::size_t except);

// Message number of a result of CMD_DETECT_CAMERA other than 0.
int ProbeMessage(qint16 result);
