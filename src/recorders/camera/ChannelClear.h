#pragma once

#include "device/bridge/Form_COM.h"
#include "recorders/data/RecorderSet.h"
#include "recorders/detect/RecorderCall.h"

// The delete icon of a recorder's channel list: empties channel `channel` (from 0) of the edit pair's recorder, on the
// device and then in the edit pair, where the channel is marked as modified. Awaits the device's replies. A channel
// without a camera asks nothing of the device. Throws ConversionError for a channel outside 0 to 63.
QCoro::Task<RecorderOutcome> ClearRecorderChannel(Form_COM& com, RecorderSet& recorders, int channel, Work& work);
