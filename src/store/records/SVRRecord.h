#pragma once

#include <QString>
#include <array>
#include <vector>

// The recorder as the station knows it. Channel-indexed members hold one entry a channel, index 0 for channel number 1.
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

// Eight presets of one channel as parallel arrays. A preset without a name is not set.
struct PresetSlot
{
    std::array<qint16, kMaxPreset> iPresetID{};
    std::array<QString, kMaxPreset> sPresetName;
    std::array<QString, kMaxPreset> sPresetImage; // file name under \Images\PresetImage
    std::array<qint16, kMaxPreset> iPresetFlag{}; // not persisted
};

struct FishEyeMode
{
    QString sModeName;
    qint16 iModeValue1 = 0;
    qint16 iModeValue2 = 0;
    std::array<bool, 13> bModeFlag{};
};

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

    PerChannel<bool> bSub_CH_Modified{}; // edited in this visit; not in the table
    PerChannel<qint16> iSub_Channel{};
    PerChannel<qint16> iSub_ChannelID{};
    PerChannel<QString> sSub_CH_Name;
    PerChannel<QString> sSub_CH_IP; // empty: no camera
    PerChannel<qint32> iSub_CH_HttpPort{};
    PerChannel<QString> sSub_CH_UserName;
    PerChannel<QString> sSub_CH_Password;
    PerChannel<qint16> iSub_CH_Brand{}; // 55: driven over ONVIF
    PerChannel<qint16> iSub_CH_VideoID{};
    PerChannel<qint16> iSub_CH_VideoIDCount{}; // saved for the Pro families only
    PerChannel<QString> sSub_CH_VideoFormat;
    PerChannel<QString> sSub_CH_Resolution;
    PerChannel<qint16> iSub_CH_Audio{};
    PerChannel<bool> bSub_CH_PTZ{};
    PerChannel<QString> sSub_CH_PTZCap;
    PerChannel<qint32> lSub_CH_IntelligentID{}; // above 0: takes part in analysis
    PerChannel<bool> bSub_CH_Cam_MD_Enabled{};
    PerChannel<qint16> iPower{}; // written, never read back
    PerChannel<PresetSlot> Presets;
    PerChannel<bool> bEventSet{};
    PerChannel<QString> sSub_CH_MD_FishEyeModeList;
    PerChannel<std::vector<FishEyeMode>> FishEyeModes; // parsed form of the text above
    PerChannel<QString> sSub_CH_Mode4FishEye;          // present mode as the device said it; not in the table

    PerChannel<qint16> iCH_MultiStream{}; // -1 when unknown, as the numbers below
    PerChannel<qint16> iCH_FPS{};
    PerChannel<qint16> iCH_Quality{};
    PerChannel<qint16> iCH_Rotation{};
    PerChannel<qint16> iCH_RateCtrl{};
    PerChannel<qint16> iCH_BitRate{};
    PerChannel<QString> sCH_ResolutionList;
    PerChannel<QString> sCH_FMTList;
    PerChannel<qint16> iCH_GOP{};
    PerChannel<QString> sCH_FPS_Range;
    PerChannel<QString> sCH_Quality_Range;
    PerChannel<QString> sCH_RateCtrl_Range;
    PerChannel<QString> sCH_BitRate_Range;
    PerChannel<QString> sCH_Relativeformat;
    PerChannel<QString> sCH_FPS_Customer;
    PerChannel<QString> sCH_FPS_List_Customer;
    PerChannel<QString> sCH_PTZ_Speed_Range;
    PerChannel<QString> sCH_PTZ_PanTilt_Range;
    PerChannel<qint16> iCH_PTZ_MoveContCap{};
    PerChannel<qint16> iCH_PTZ_ZoomContCap{};
    PerChannel<qint16> iCH_PTZ_FocusContCap{};
    PerChannel<qint16> iCH_PTZ_IrisContCap{};
    PerChannel<QString> sCH_Onvif_Quality;
    PerChannel<QString> sCH_Onvif_JPEG_FPS;
    PerChannel<QString> sCH_Onvif_MPEG_FPS;
    PerChannel<QString> sCH_Onvif_H264_FPS;
    PerChannel<QString> sCH_Onvif_JPEG_Resolution;
    PerChannel<QString> sCH_Onvif_MPEG_Resolution;
    PerChannel<QString> sCH_Onvif_H264_Resolution;
};

// Three streams of one Pro channel. The bound lists have one entry for each entry of sResolutionList of their stream.
struct ProChannelStreams
{
    template <class T>
    using PerStream = std::array<T, kMaxStream>;
    PerStream<QString> sResolutionList; // comma-separated sizes
    PerStream<QString> sFMT;
    PerStream<QString> sResolution;
    PerStream<bool> bGOPCap{};
    PerStream<qint16> iFrameRate{};
    PerStream<qint16> iQuality{};
    PerStream<QString> sRateControl;
    PerStream<qint16> iBitRate{};
    PerStream<qint16> iGOP{};
    PerStream<qint16> iQualityUpper{};
    PerStream<qint16> iQualityLower{};
    PerStream<bool> bRateControlCap{};
    PerStream<std::vector<qint16>> iFPSUpper;
    PerStream<std::vector<qint16>> iFPSLower;
    PerStream<std::vector<qint16>> iBPSUpper;
    PerStream<std::vector<qint16>> iBPSLower;
};

// What only the families OmluPro and TXR632 have.
struct SVRProRecord
{
    PerChannel<bool> bCH_Pro_ABS{};
    PerChannel<bool> bCH_Pro_SetPreset{};
    PerChannel<qint16> iCH_Pro_SyncPreset{};
    PerChannel<qint16> iCH_Pro_AutoPanMode{};
    PerChannel<ProChannelStreams> Streams;
    PerChannel<QString> sCH_Pro_Mac;
    PerChannel<QString> sCH_Pro_Model;
    PerChannel<qint32> lCH_Pro_RTPSPort{};
    PerChannel<QString> sCH_Pro_AudioType;
    PerChannel<QString> sCH_Pro_LensModeList;
    PerChannel<QString> sCH_Pro_LensMode;
    PerChannel<QString> sCH_Pro_LeftDisplayModeList;
    PerChannel<QString> sCH_Pro_LeftDisplayMode;
    PerChannel<QString> sCH_Pro_RightDisplayModeList;
    PerChannel<QString> sCH_Pro_RightDisplayMode;
};

// Whether a stored family text is one of the two Pro families.
inline bool IsProFamily(const QString& family)
{
    return family == kFamilyOmluPro || family == kFamilyTXR632;
}
