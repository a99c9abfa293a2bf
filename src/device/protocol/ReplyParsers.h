#pragma once

#include "device/protocol/ReplyRecords.h"
#include "device/protocol/ReplyText.h"
#include "store/records/SVDRecord.h"
#include "store/records/SVRRecord.h"

#include <vector>

namespace pugi {
class xml_node;
}

// Readers of the XML replies of recorders ("CMD" protocol) and decoders. All take the reply's text (at most 16 MiB)
// and a destination; what the reply does not mention keeps its value, except where a reader says that it clears first.
// Elements are matched by exact name, unknown ones are skipped.
//
// A reply that cannot be read (not XML, no element RESPONSE, RESPONSE without an attribute) gives the reader's failure
// value. A number that is none or does not fit, and a channel, screen or stream number out of range, throw
// ConversionError for the caller's trap; what was read before stays.
//
// RET, the first attribute of RESPONSE, is the device's result (0: success). Only the readers that say so look at it.

// Value of RET; -1 when the reply cannot be read, or RET is missing or not a number. Never throws.
qint16 ParseResultCode(ReplyText reply);

// sSVR_Name, iSVR_HttpPort, iSVR_VideoPort, iSVR_TimeZoneNum, iSVR_SummerTime (-1 when DSTEnable is above 0, else 0).
void ParseSystemInfo(ReplyText reply, SVRRecord& edit);

// iSVR_TimeZoneNum and iSVR_SummerTime (as the device says it).
void ParseTimeSettings(ReplyText reply, SVRRecord& edit);

void ParseDeviceInfo(ReplyText reply, DeviceInfo& info);

// All settings of the listed channels. 1 on success; 0 when the reply cannot be read or RET is not 0 (nothing is
// changed then). Each channel that the reply lists loses its three size lists and twelve bound lists first.
// Channel 65 and above, or 0, is out of range.
qint16 ParseChannelList(ReplyText reply, SVRRecord& svr, SVRProRecord& pro);
// The same for one channel (from 0); 0 also when the reply does not list it.
qint16 ParseChannel(ReplyText reply, qint16 channel, SVRChannel& svr, SVRProChannel& pro);

// One child of SupportFMT. `slot` goes in as the format slot that the previous child left (0 for the first): quality
// bounds and rate control of this child land there. It comes out as 0 for JPEG, 1 for MPEG4, 2 for anything else (in
// any case of letters). Sizes and their bounds go by the format's name itself, lower case only.
void ParseSupportFmt(SVRProStreams& formats, pugi::xml_node child, qint16& slot);

// The answer to a camera probe into its channel. 0 on success, RET when that is not 0, -100 when the
// reply cannot be read. The current settings of as many slots as the reply has streams are cleared first.
qint16 ParseDetectedCamera(ReplyText reply, SVRChannel& channel, SVRProChannel& pro);

// One row per camera found; one empty row when none was, or the reply cannot be read.
void ParseSearchResult(ReplyText reply, std::vector<FoundCamera>& found);

// Presets in the reply's order, eight at most (more are ignored). 1, or -1 when the reply cannot be read.
qint16 ParsePresetList(ReplyText reply, PresetRecord& record);

// "number,dwell,number,dwell,…;" with the attributes in the reply's order; empty without a preset.
QString ParsePresetSeq(ReplyText reply);

// A reply that cannot be read gives the empty record.
PositionRecord ParsePtzPosition(ReplyText reply);

QString ParseFishEyeMode(ReplyText reply);

// Replaces the rows. 1, or -1 when the reply cannot be read.
qint16 ParseActionList(ReplyText reply, std::vector<ActionRecord>& actions);

// Numbers (from 1) of the channels that refused motion or digital-input detection, "3,5"; empty when RET is not 0. A
// result that is no number is logged and counts for nothing; at most 64 entries are read.
QString ParseApplyResult(ReplyText reply);

// Capabilities of the decoder's channels; nothing when RET is not 0.
void ParseSvdChannelInfo(ReplyText reply, SVDRecord& svd);

// What screen `screen` (1 or 2) offers, into its ResolutionCodes.
void ParseSvdResolutions(ReplyText reply, qint16 screen, SVDRecord& svd);

void ParseSvdSystemInfo(ReplyText reply, SVDRecord& svd);

// Which recorder channel each decoder channel shows.
void ParseSvdChannels(ReplyText reply, SVDRecord& svd);

// Present resolution of each screen and the count of connected ones, which is cleared first.
void ParseSvdScreens(ReplyText reply, SVDRecord& svd);
