#pragma once

#include "device/bridge/Form_COM.h"
#include "device/protocol/CameraText.h"
#include "recorders/detect/RecorderCall.h"

// The switches of the cameras' own event detection, kept on their recorder. Two bits a channel; the Pro families have
// one switch, told as 1. Calls wait on the device's replies.

// All switches of the recorder as it has them now; none with a message when it cannot tell.
RecorderOutcome ReadRecorderCameraEvents(Form_COM& com, const SVRRecord& svr, CameraEventBits& bits);

// Writes the switches of all channels with a camera and takes them over into bSub_CH_Cam_MD_Enabled. Channels that the
// recorder refuses are named in the outcome's message and lose their switch in the record; the others are written.
RecorderOutcome WriteRecorderCameraEvents(Form_COM& com, SVRRecord& svr, const CameraEventBits& bits);

// Takes the switches as the recorder has them into its record. False where it has none or cannot tell: the record's
// stay.
bool TakeRecorderCameraEvents(Form_COM& com, SVRRecord& svr);
