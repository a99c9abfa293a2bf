#pragma once

#include <QString>
#include <array>
#include <vector>

// The recorder as the station knows it, with its 64 channels: index 0 for channel number 1. A fresh channel is an empty
// one, so emptying a channel is assigning a fresh one and its number.
inline constexpr int kMaxSVR = 16;        // recorder slots of a station
inline constexpr int kMaxChannel = 64;    // channels of a slot
inline constexpr int kMaxPreset = 8;      // presets of a channel
inline constexpr int kMaxStream = 3;      // streams of a Pro channel: 0 JPEG, 1 MPEG4, 2 H264
inline constexpr int iChannelLimit = 255; // channels of the whole station

template <class T>
using PerChannel = std::array<T, kMaxChannel>;

// Device families as sSVR_DeviceType holds them.
inline constexpr QLatin1String kFamilySVR("SVR");
inline constexpr QLatin1String kFamilyOmluPro("OmluPro");
inline constexpr QLatin1String kFamilyTXR632("TXR632");

// A preset of a channel. Without a name it is not set.
struct SVRPreset
{
    qint16 iPresetID = 0; // from 1
    QString sPresetName;
    QString sPresetImage;   // file name under \Images\PresetImage
    qint16 iPresetFlag = 0; // not persisted
};
using SVRPresets = std::array<SVRPreset, kMaxPreset>;

// Presets 1 to 8, none of them set.
inline SVRPresets NumberedPresets()
{
    SVRPresets presets;
    for (qint16 number = 1; auto& preset : presets)
        preset.iPresetID = number++;
    return presets;
}

struct FishEyeMode
{
    QString sModeName;
    qint16 iModeValue1 = 0;
    qint16 iModeValue2 = 0;
    std::array<bool, 13> bModeFlag{};
};

// What a detection tells of the abilities of a channel's camera.
struct SVRCameraFacts
{
    QString sSub_CH_MD_FishEyeModeList;
    std::vector<FishEyeMode> FishEyeModes; // parsed form of the text above
    QString sSub_CH_Mode4FishEye;          // present mode as the device said it; not in the table
    QString sCH_ResolutionList;
    QString sCH_FMTList;
    QString sCH_FPS_Range;
    QString sCH_Quality_Range;
    QString sCH_RateCtrl_Range;
    QString sCH_BitRate_Range;
    QString sCH_Relativeformat;
    QString sCH_FPS_List_Customer;
    QString sCH_PTZ_Speed_Range;
    QString sCH_PTZ_PanTilt_Range;
    qint16 iCH_PTZ_MoveContCap = 0;
    qint16 iCH_PTZ_ZoomContCap = 0;
    qint16 iCH_PTZ_FocusContCap = 0;
    qint16 iCH_PTZ_IrisContCap = 0;
    QString sCH_Onvif_Quality;
    QString sCH_Onvif_JPEG_FPS;
    QString sCH_Onvif_MPEG_FPS;
    QString sCH_Onvif_H264_FPS;
    QString sCH_Onvif_JPEG_Resolution;
    QString sCH_Onvif_MPEG_Resolution;
    QString sCH_Onvif_H264_Resolution;
};

struct SVRChannel : SVRCameraFacts
{
    bool bSub_CH_Modified = false; // edited in this visit; not in the table
    qint16 iSub_Channel = 0;       // from 1
    qint16 iSub_ChannelID = -1;
    QString sSub_CH_Name;
    QString sSub_CH_IP; // empty: no camera
    qint32 iSub_CH_HttpPort = 80;
    QString sSub_CH_UserName;
    QString sSub_CH_Password;
    qint16 iSub_CH_Brand = 0; // 55: driven over ONVIF
    qint16 iSub_CH_VideoID = 0;
    qint16 iSub_CH_VideoIDCount = 0; // saved for the Pro families only
    QString sSub_CH_VideoFormat;
    QString sSub_CH_Resolution;
    qint16 iSub_CH_Audio = 0;
    bool bSub_CH_PTZ = false;
    QString sSub_CH_PTZCap;
    qint32 lSub_CH_IntelligentID = -1; // above 0: takes part in analysis
    bool bSub_CH_Cam_MD_Enabled = false;
    qint16 iPower = 0; // written, never read back
    SVRPresets presets = NumberedPresets();
    bool bEventSet = false;

    qint16 iCH_MultiStream = -1; // -1 when unknown, as the numbers below
    qint16 iCH_FPS = -1;
    qint16 iCH_Quality = -1;
    qint16 iCH_Rotation = -1;
    qint16 iCH_RateCtrl = -1;
    qint16 iCH_BitRate = -1;
    qint16 iCH_GOP = -1;
    QString sCH_FPS_Customer;
};

// The channels of an empty recorder: fresh, each with its number.
inline PerChannel<SVRChannel> NumberedChannels()
{
    PerChannel<SVRChannel> channels;
    for (qint16 number = 1; auto& channel : channels)
        channel.iSub_Channel = number++;
    return channels;
}

struct SVRRecord
{
    bool bSVR_Changed = false;     // must be saved; not in the table
    bool bSVR_ConnChanged = false; // added or renamed in this run; not in the table
    qint16 iSVR_Num = 0;           // slot index + 1
    QString sSVR_Name;
    QString sSVR_IP; // empty: the slot is free
    QString sSVR_Brand;
    qint32 iSVR_HttpPort = 0;
    qint32 iSVR_VideoPort = 0;
    QString sSVR_UserName;
    QString sSVR_Password;
    qint16 iSVR_Maxchannel = 0;
    qint16 iSVR_SummerTime = 0;
    qint16 iSVR_TimeZoneNum = 0;
    QString sSVR_DeviceType;        // family
    QString sSVR_DeviceTypeSource;  // as the device says it
    QString sSVR_DisplayDeviceType; // model
    bool bSVR_N_EventSupport = false;
    bool bSVR_Pro20Support = false;
    qint16 iSVRId = 0; // always iSVR_Num in memory
    bool bSVR_CEventSupport = false;
    QString sSVR_Version;
    qint16 iSVR_ValidCH = 0;

    PerChannel<SVRChannel> channels = NumberedChannels();
};

// A stream of a Pro channel. The bound lists have one entry for each entry of sResolutionList; -1 is unknown.
struct SVRProStream
{
    QString sResolutionList; // comma-separated sizes
    QString sFMT;
    QString sResolution;
    bool bGOPCap = false;
    qint16 iFrameRate = -1;
    qint16 iQuality = -1;
    QString sRateControl;
    qint16 iBitRate = -1;
    qint16 iGOP = -1;
    qint16 iQualityUpper = -1;
    qint16 iQualityLower = -1;
    bool bRateControlCap = false;
    std::vector<qint16> iFPSUpper{-1};
    std::vector<qint16> iFPSLower{-1};
    std::vector<qint16> iBPSUpper{-1};
    std::vector<qint16> iBPSLower{-1};
};
using SVRProStreams = std::array<SVRProStream, kMaxStream>;

// What a detection tells of a Pro camera.
struct SVRProCameraFacts
{
    SVRProStreams streams;
    QString sCH_Pro_LensModeList;
    QString sCH_Pro_LensMode;
    QString sCH_Pro_LeftDisplayModeList;
    QString sCH_Pro_LeftDisplayMode;
    QString sCH_Pro_RightDisplayModeList;
    QString sCH_Pro_RightDisplayMode;
};

// What only the families OmluPro and TXR632 have of a channel.
struct SVRProChannel : SVRProCameraFacts
{
    bool bCH_Pro_ABS = false;
    bool bCH_Pro_SetPreset = false;
    qint16 iCH_Pro_SyncPreset = 0;
    qint16 iCH_Pro_AutoPanMode = 0;
    QString sCH_Pro_Mac;
    QString sCH_Pro_Model;
    qint32 lCH_Pro_RTPSPort = 0;
    QString sCH_Pro_AudioType;
};

struct SVRProRecord
{
    PerChannel<SVRProChannel> channels;
};

// Whether a stored family text is one of the two Pro families.
inline bool IsProFamily(const QString& family)
{
    return family == kFamilyOmluPro || family == kFamilyTXR632;
}
