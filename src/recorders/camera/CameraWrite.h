#pragma once

#include "device/bridge/Form_COM.h"
#include "device/protocol/Module_XML.h"
#include "recorders/detect/RecorderCall.h"

// Writes of one channel (from 0) to its recorder. All await the replies and change nothing but what they say; the
// records must outlive the task.

// The outcome of a write that the recorder did not take, with its line in the log.
RecorderOutcome RefusedWrite(const QString& reply);

// Older family: the channel's parameters in the full form, or without a format in the short one.
QCoro::Task<RecorderOutcome> WriteSvrChannel(Form_COM& com, DeviceAddress recorder, qint16 channel,
                                             ChannelParameters parameters, Work& work);

// Pro families: the whole channel, the save, and the channel as the recorder has it now into the pair. Where it cannot
// be read back the pair stays as it is: the write is done all the same, with message 7.
QCoro::Task<RecorderOutcome> WriteProChannel(Form_COM& com, DeviceAddress recorder, SVRChannel& svr, SVRProChannel& pro,
                                             qint16 channel, ChannelSettings settings, Work& work);
