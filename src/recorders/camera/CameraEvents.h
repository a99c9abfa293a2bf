#pragma once

#include "device/bridge/Form_COM.h"
#include "device/protocol/CameraText.h"
#include "recorders/detect/RecorderCall.h"

// The switches of the cameras' own event detection, kept on their recorder. Two bits a channel; the Pro families have
// one switch, told as 1. Calls await the device's replies; what they
// refer to must outlive the task.

// All switches of the recorder as it has them now; none with a message when it cannot tell.
QCoro::Task<RecorderOutcome> ReadRecorderCameraEvents(Form_COM& com, const SVRRecord& svr, CameraEventBits& bits,
                                                      Work& work);

// Writes the switches of all channels with a camera and takes them over into bSub_CH_Cam_MD_Enabled. Channels that the
// recorder refuses are named in the outcome's message and lose their switch in the record; the others are written.
QCoro::Task<RecorderOutcome> WriteRecorderCameraEvents(Form_COM& com, SVRRecord& svr, CameraEventBits bits, Work& work);

// Takes the switches as the recorder has them into its record. False where it has none or cannot tell: the record's
// stay.
QCoro::Task<bool> TakeRecorderCameraEvents(Form_COM& com, SVRRecord& svr, Work& work);
