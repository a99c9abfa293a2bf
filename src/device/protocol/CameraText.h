#pragma once

#include "device/protocol/ReplyRecords.h"

#include <QString>
#include <array>
#include <optional>
#include <vector>

// Readers of what a recorder says of cameras in lines of key=value: the answer to a camera probe, to a search of its
// network, and the switches of the cameras' own event detection. Pure; a text of any size and content is read without
// an exception, over-long values and surplus lines are left out.

inline constexpr qsizetype kMaxCameraValue = 64 * 1024; // characters of one value
inline constexpr std::size_t kMaxFoundCameras = 4096;

// The probe's answer for one video source. Lists hold one part a format, ";" between (MJPEG, MPEG4, H.264), "," inside;
// texts are as the device gives them, empty when it does not.
struct DetectedCameraText
{
    qint16 VideoSources = 1;  // 1 to 64
    bool MultiStream = false; // it told of several streams
    QString FormatState;      // "1,1,0": on or off, by format
    QString FormatList;       // "256;1024": format codes, multi-stream only
    QString Brand;
    QString ResolutionList;
    QString ResolutionState; // and so the states below: what it has at present, by format
    QString QualityRange;
    QString QualityState;
    QString FPSRange;
    QString FPSState;
    QString BitRateRange;
    QString BitRateState;
    QString RateCtrlRange;
    QString RateCtrlState;
    QString RelativeFormat;
    QString SpeedRange;
    QString MoveRange;
    QString MoveContCap;
    QString ZoomContCap;
    QString FocusContCap;
    QString IrisContCap;
    QString OnvifQuality;
    QString OnvifJpegFPS;
    QString OnvifMpegFPS;
    QString OnvifH264FPS;
    QString OnvifJpegResolution;
    QString OnvifMpegResolution;
    QString OnvifH264Resolution;
};

// Reads the values of video source `source` (from 1). A key may stand alone, behind "v<source>.", and either way behind
// "multi."; the closest one wins. No value when the reply does not begin with "OK".
std::optional<DetectedCameraText> ReadDetectedCamera(const QString& reply, qint16 source);

// Whether the reply describes this video source by keys of its own.
bool DescribesSource(const QString& reply, qint16 source);

// The cameras that a recorder of the older family sees, one "key=value,…" line each (ip, httpport, brand, model), those
// without an address left out. No value when the reply does not begin with "OK".
std::optional<std::vector<FoundCamera>> ReadCameraSearch(const QString& reply);

// Detection switches of the cameras by channel (index 0 for channel 1), two bits each: 1 and 2.
using CameraEventBits = std::array<qint16, kMaxChannel>;

// Of "camera_c<n>=" with the values "", "1", "2", "1,2"; channels that are not told are 0. No value when the reply
// neither begins with "OK" nor tells of a channel.
std::optional<CameraEventBits> ReadCameraEvents(const QString& reply);

// "camera_c<n>=<value>" of each channel listed (from 0), "&" between.
QString CameraEventParameters(const CameraEventBits& bits, const std::vector<int>& channels);

// Numbers of the channels that a write of the switches was refused for ("failed=3,5"), in their order.
std::vector<int> RefusedChannels(const QString& reply);
