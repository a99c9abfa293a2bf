#pragma once

#include <QString>
#include <array>
#include <vector>

// A network video decoder with two displays of its own. The station handles one (list index 0).
struct SVDStream
{
    QString FMT;
    QString Size;
};

// One of the up to 64 channels of a decoder; a channel without a name is unused.
struct SVDChannel
{
    qint16 iCamCH = 0; // channel number in the decoder, from 1
    QString sCamName;
    QString sCamIP;
    qint32 lCamHttpPort = 0;
    qint16 iCamNVRID = 0; // recorder the camera comes from, from 1
    qint16 iCamNVRCH = 0; // channel on that recorder, from 1
    qint16 iCamAudio = 0;
    qint16 iCamCapPTZ = 0;
    qint16 iCamCapPTZSpeedUpper = 0;
    qint16 iCamCapPTZSpeedLower = 0;
    qint16 iCamCapPTZSpeedStep = 0;
    qint16 iCamCapPTZAutoPan = 0;
    qint16 iCamCapPTZMove = 0;
    qint16 iCamCapPTZZoom = 0;
    qint16 iCamCapPTZIris = 0;
    qint16 iCamCapPTZFocus = 0;
    qint16 iCamCapPTZMoveCont = 0;
    qint16 iCamCapPTZZoomCont = 0;
    qint16 iCamCapPTZIrisCont = 0;
    qint16 iCamCapPTZFocusCont = 0;
    qint16 iCamCapAudioIn = 0;
    qint16 iCamCapAudioOut = 0;
    QString sCamLensMode;
    QString sCamLeftDisplayMode;
    QString sCamRightDisplayMode;
    QString sCamAudioOutFMT;
    qint16 iCamAudioOutSampleRate = 0;
    qint16 iCamAudioOutChannel = 0;
    qint16 iCamAudioOutLength = 0;
    QString sCamModeList4FishEye;
    QString sCamMode4FishEye;
    QString sCamModeCapList4FishEye;
    qint16 iCamMultiEnable = 0;
    qint16 iCamMultiNum = 0;
    qint16 iCamMultiDynamicEnable = 0;
    QString sCamVideoList;
    std::vector<SVDStream> VideoList = {SVDStream{}};
};

// One display of the decoder, stored as "channels;rectangle;resolution;split".
struct SVDScreenRow
{
    std::vector<qint16> Channels = {0}; // default channel of each pane, -1 for an empty pane
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    QString Resolution;
    qint16 Split = 0;                    // 1, 4, 9 or 16
    std::vector<qint16> ResolutionCodes; // what the display offers; not persisted
    qint16 ResolutionCode = 0;           // present resolution, 0: not connected; not persisted
};

struct SVDRecord
{
    static constexpr int kChannels = 64;
    static constexpr int kScreens = 2;

    qint16 iSvdIndex = 0; // element index + 1
    QString sIP;          // empty: unused entry
    QString sDevicetype;  // "SVD"
    qint32 lHttpPort = 0;
    qint32 lStreamingPort = 0;
    QString sUserName;
    QString sPassword;
    QString sBrand;
    QString sModel;
    QString sVersion;
    QString sDeviceName;
    qint16 iMaxChSupport = 0;
    qint16 iTimeZone = 0;
    qint16 iSummerTime = 0;
    qint16 iSummerTimeIndex = 0; // not persisted
    qint16 iScreenCount = 0;     // connected displays at the last detection; not persisted
    std::array<SVDScreenRow, kScreens> Screens;
    std::array<SVDChannel, kChannels> Channels;
    bool bChanged = false; // not in the table
};
