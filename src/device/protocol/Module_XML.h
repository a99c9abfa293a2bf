#pragma once

#include "device/protocol/ReplyRecords.h"
#include "store/records/SVRRecord.h"

#include <QString>
#include <functional>
#include <qcorotask.h>
#include <span>

// Requests of the "CMD" protocol of recorders and decoders: one small XML document each, sent as "type=action&xml="
// plus the document. Builders join literals and values as they stand; only a channel's name is escaped.
//
// Channels are counted from 0 here and from 1 on the wire, unless a builder says that the number goes out as given.
// A channel outside 0 to 63, or a recorder outside its list, throws ConversionError; nothing else fails.

inline constexpr qint32 CMD_GET_SYSTEM_INFO = 4100;
inline constexpr qint32 CMD_GET_PRESET_LIST = 4101;
inline constexpr qint32 CMD_GET_MOTION_DI_RESULT = 4113;
inline constexpr qint32 CMD_DETECT_CAMERA = 8193;
inline constexpr qint32 CMD_SEARCH_CAMERAS = 8194;
inline constexpr qint32 CMD_PTZ_MOVE = 12289;
inline constexpr qint32 CMD_PTZ_ZOOM = 12290;
inline constexpr qint32 CMD_PTZ_FOCUS = 12291;
inline constexpr qint32 CMD_PTZ_IRIS = 12292;
inline constexpr qint32 CMD_GOTO_PRESET = 12294;
inline constexpr qint32 CMD_GET_PTZ_POSITION = 12297;
inline constexpr qint32 CMD_SET_PRESET_NAME = 12301;
inline constexpr qint32 CMD_GET_FISHEYE_MODE = 12302;
inline constexpr qint32 CMD_QUERY_EVENT_LOG = 16389;
inline constexpr qint32 CMD_GET_SVD_CHANNEL_INFO = 24577;
inline constexpr qint32 CMD_SET_CHANNEL = 24581;
inline constexpr qint32 CMD_GET_CHANNELS = 24582;
inline constexpr qint32 CMD_SET_ACTION_LIST = 32775;
inline constexpr qint32 CMD_GET_ACTION_LIST = 32777;
inline constexpr qint32 CMD_SET_MOTION_DETECT = 32788;
inline constexpr qint32 CMD_SET_PRESET_LIST = 32814;
inline constexpr qint32 CMD_GET_PRESET_SEQ = 32858;
inline constexpr qint32 CMD_SET_PRESET_SEQ = 32859;
inline constexpr qint32 CMD_GET_TIME = 35844;
inline constexpr qint32 CMD_SAVE_CONFIG = 40963;
inline constexpr qint32 CMD_GET_DEVICE_INFO = 40965;
inline constexpr qint32 CMD_GET_SVD_RESOLUTIONS = 4198402;
inline constexpr qint32 CMD_GET_SVD_SCREENS = 4198422;
inline constexpr qint32 CMD_GET_SVD_CHANNELS = 4202501;

// What a save makes permanent.
inline constexpr qint16 kSaveEvents = 5;   // event actions and motion switches
inline constexpr qint16 kSaveChannels = 7; // channels, presets, sequences

// One camera of a recorder as it is written there.
struct ChannelSettings
{
    qint16 CH = 0; // from 1, sent as it stands
    QString Name;  // plain; the builder escapes it
    QString IP;
    qint32 HTTPPort = 0;
    QString UserName;
    QString Password;
    qint16 VideoNumber = 0;
    qint16 BrandCode = 0;
    QString Model;
    QString MACAddress;
    qint32 RtspPort = 0;
    qint32 StartConfig = 0;
    QString FMT; // video format in the device's own spelling
    QString Size;
    qint16 FPS = 0;
    qint16 Quality = 0;
    qint16 RateControl = 0;
    qint16 Bitrate = 0;
    qint16 GOP = 0;
    QString LensMode;
    QString LeftDisplayMode;
    QString RightDisplayMode;
    QString AudioFMT;
};

// The present settings of a channel as its records hold them.
ChannelSettings ChannelSettingsOf(const SVRChannel& svr, const SVRProChannel& pro);

// --- Device ---
QString BuildGetSystemInfo();
QString BuildGetDeviceInfo();
QString BuildGetTime();
QString BuildSaveConfig(qint16 type);

// --- Channels ---
// Channels 1 to `count`, or with `single` only the channel numbered `count`.
QString BuildGetChannels(bool single, qint16 count);
QString BuildSetChannel(const ChannelSettings& settings);
// Empties a channel of the recorder; the number (from 1) goes out as given.
QString BuildClearChannel(qint16 channelNumber);
QString BuildSearchCameras();
QString BuildDetectCamera(const QString& address, qint32 port, const QString& user, const QString& password,
                          qint16 videoNumber);
QString BuildGetFishEyeMode(qint16 channel);

// --- Pan, tilt, zoom ---
// `id` is one of the four CMD_PTZ_ identifiers; `target` is "left" or "right" on a two-lens camera, else empty.
QString BuildPtz(qint32 id, qint16 channel, qint16 direction, qint16 speed, qint16 cont, const QString& target);
// Ends a held pan, or a held zoom.
QString BuildPtzStop(qint16 channel, bool zoomHeld, const QString& target);
QString BuildGetPtzPosition(qint16 channel);

struct PtzButton
{
    qint32 id;
    qint16 direction;
};
// What each button of the direction pad sends, by button index.
inline constexpr PtzButton kPtzButtons[] = {
    {CMD_PTZ_MOVE, 3},  {CMD_PTZ_MOVE, 4},  {CMD_PTZ_MOVE, 1}, {CMD_PTZ_MOVE, 2}, {CMD_PTZ_MOVE, 5}, {CMD_PTZ_MOVE, 6},
    {CMD_PTZ_MOVE, 7},  {CMD_PTZ_MOVE, 8},  {CMD_PTZ_MOVE, 0}, {CMD_PTZ_ZOOM, 0}, {CMD_PTZ_ZOOM, 1}, {CMD_PTZ_FOCUS, 2},
    {CMD_PTZ_FOCUS, 1}, {CMD_PTZ_FOCUS, 0}, {CMD_PTZ_IRIS, 2}, {CMD_PTZ_IRIS, 1}, {CMD_PTZ_IRIS, 0},
};

// --- Presets and their sequence ---
QString BuildGetPresetList(qint16 channel);
QString BuildGotoPreset(qint16 channel, qint16 preset, qint16 speed);          // preset number from 1, sent as given
QString BuildSetPresetName(qint16 channel, qint16 index, const QString& name); // index from 0
// The channel's presets: those whose owner is this channel and that are not marked as deleted.
QString BuildSetPresetList(std::span<const PresetRecord> channels, qint16 channel);
QString BuildGetPresetSeq(qint16 channel);
// `presets` is a list of preset numbers with commas between; `dwell` is in seconds, the same for all. A list without a
// comma gives the empty text: there is nothing to send.
QString BuildSetPresetSeq(qint16 channel, const QString& presets, qint16 dwell);

// --- Events ---
QString BuildGetActionList();
QString BuildSetActionList(std::span<const ActionRecord> actions);
// Camera motion detection of every channel of recorder `svr` (index into `recorders`): on where the list holds an
// enabled action on event 2001 of that channel.
QString BuildSetMotionDetect(std::span<const SVRRecord> recorders, qint16 svr, std::span<const ActionRecord> actions);
QString BuildGetMotionDiResult();
// Times, lists ("<CHList>…</CHList>", "<TypeList>…</TypeList>") and user data go out as given.
QString BuildQueryEventLog(const QString& begin, const QString& end, const QString& channelList,
                           const QString& typeList, qint32 count, const QString& userData);

// --- Decoders ---
QString BuildSvdChannelInfo();
QString BuildGetSvdResolutions(qint16 screen); // from 1
QString BuildGetSvdScreens();
QString BuildGetSvdChannels();

// Outcome of a write: 1 when RET is 0, otherwise RET; -1 when the reply cannot be read. A caller takes a negative
// outcome or an empty reply for failure, everything else for success.
qint16 CheckCmdResult(const QString& reply);
bool Accepted(const QString& reply);

// Writes the event settings of recorder `svr` in the order the device wants: with `motion` the motion switches, then
// the action list, then with `motion` the question which channels refused, then the save. `send` carries one request
// and gives its reply. Channels that refused lose their motion switch in the record. What is referred to must outlive
// the task.
struct EventWrite
{
    qint16 result = -1; // -1 when a write is not accepted (nothing later is sent), else 1
    QString refused;    // numbers of the channels ("3,5") for the operator's message
};
QCoro::Task<EventWrite> ApplyEventSettings(std::span<SVRRecord> recorders, qint16 svr, bool motion,
                                           std::span<const ActionRecord> actions,
                                           std::function<QCoro::Task<QString>(QString xml)> send);
