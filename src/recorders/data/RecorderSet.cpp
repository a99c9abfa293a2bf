#include "recorders/data/RecorderSet.h"

#include "support/Conversions.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

int CameraCount(const SVRRecord& record)
{
    return static_cast<int>(std::count_if(record.sSub_CH_IP.begin(), record.sSub_CH_IP.end(),
                                          [](const QString& address) { return !address.isEmpty(); }));
}

int OccupiedSlots(const std::array<SVRRecord, kMaxSVR>& list)
{
    return static_cast<int>(
        std::count_if(list.begin(), list.end(), [](const SVRRecord& record) { return !record.sSVR_IP.isEmpty(); }));
}

int CameraTotal(const std::array<SVRRecord, kMaxSVR>& list)
{
    int total = 0;
    for (const SVRRecord& record : list) {
        if (!record.sSVR_IP.isEmpty())
            total += CameraCount(record);
    }
    return total;
}

int FirstFreeSlot(const std::array<SVRRecord, kMaxSVR>& list)
{
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        if (At(list, slot).sSVR_IP.isEmpty())
            return slot;
    }
    return -1;
}

void ClearChannel(SVRRecord& record, SVRProRecord& pro, int channel)
{
    // A channel of an empty recorder gives every member that is 0, false or empty here.
    static const SVRRecord emptyRecord;
    static const SVRProRecord emptyPro;
    const auto c = static_cast<std::size_t>(channel);

    record.bSub_CH_Modified[c] = false;
    for (auto member : {&SVRRecord::iSub_CH_Brand, &SVRRecord::iSub_CH_VideoID, &SVRRecord::iSub_CH_VideoIDCount,
                        &SVRRecord::iSub_CH_Audio, &SVRRecord::iCH_PTZ_MoveContCap, &SVRRecord::iCH_PTZ_ZoomContCap,
                        &SVRRecord::iCH_PTZ_FocusContCap, &SVRRecord::iCH_PTZ_IrisContCap})
        (record.*member)[c] = 0;
    for (auto member :
         {&SVRRecord::iSub_ChannelID, &SVRRecord::iCH_MultiStream, &SVRRecord::iCH_FPS, &SVRRecord::iCH_Quality,
          &SVRRecord::iCH_Rotation, &SVRRecord::iCH_RateCtrl, &SVRRecord::iCH_BitRate, &SVRRecord::iCH_GOP})
        (record.*member)[c] = -1;
    for (auto member : {&SVRRecord::bSub_CH_PTZ, &SVRRecord::bSub_CH_Cam_MD_Enabled})
        (record.*member)[c] = false;
    for (auto member : {&SVRRecord::sSub_CH_Name,
                        &SVRRecord::sSub_CH_IP,
                        &SVRRecord::sSub_CH_UserName,
                        &SVRRecord::sSub_CH_Password,
                        &SVRRecord::sSub_CH_VideoFormat,
                        &SVRRecord::sSub_CH_Resolution,
                        &SVRRecord::sSub_CH_PTZCap,
                        &SVRRecord::sSub_CH_MD_FishEyeModeList,
                        &SVRRecord::sSub_CH_Mode4FishEye,
                        &SVRRecord::sCH_ResolutionList,
                        &SVRRecord::sCH_FMTList,
                        &SVRRecord::sCH_FPS_Range,
                        &SVRRecord::sCH_Quality_Range,
                        &SVRRecord::sCH_RateCtrl_Range,
                        &SVRRecord::sCH_BitRate_Range,
                        &SVRRecord::sCH_Relativeformat,
                        &SVRRecord::sCH_FPS_Customer,
                        &SVRRecord::sCH_FPS_List_Customer,
                        &SVRRecord::sCH_PTZ_Speed_Range,
                        &SVRRecord::sCH_PTZ_PanTilt_Range,
                        &SVRRecord::sCH_Onvif_Quality,
                        &SVRRecord::sCH_Onvif_JPEG_FPS,
                        &SVRRecord::sCH_Onvif_MPEG_FPS,
                        &SVRRecord::sCH_Onvif_H264_FPS,
                        &SVRRecord::sCH_Onvif_JPEG_Resolution,
                        &SVRRecord::sCH_Onvif_MPEG_Resolution,
                        &SVRRecord::sCH_Onvif_H264_Resolution})
        (record.*member)[c].clear();
    record.iSub_Channel[c] = static_cast<qint16>(channel + 1);
    record.iSub_CH_HttpPort[c] = 80;
    record.lSub_CH_IntelligentID[c] = -1;
    record.Presets[c] = PresetSlot();
    record.FishEyeModes[c].clear();

    for (auto member : {&SVRProRecord::bCH_Pro_ABS, &SVRProRecord::bCH_Pro_SetPreset})
        (pro.*member)[c] = false;
    for (auto member : {&SVRProRecord::iCH_Pro_SyncPreset, &SVRProRecord::iCH_Pro_AutoPanMode})
        (pro.*member)[c] = 0;
    for (auto member : {&SVRProRecord::sCH_Pro_Mac, &SVRProRecord::sCH_Pro_Model, &SVRProRecord::sCH_Pro_AudioType,
                        &SVRProRecord::sCH_Pro_LensModeList, &SVRProRecord::sCH_Pro_LensMode,
                        &SVRProRecord::sCH_Pro_LeftDisplayModeList, &SVRProRecord::sCH_Pro_LeftDisplayMode,
                        &SVRProRecord::sCH_Pro_RightDisplayModeList, &SVRProRecord::sCH_Pro_RightDisplayMode})
        (pro.*member)[c].clear();
    pro.lCH_Pro_RTPSPort[c] = 0;
    ProChannelStreams streams;
    for (auto member : {&ProChannelStreams::iFrameRate, &ProChannelStreams::iQuality, &ProChannelStreams::iBitRate,
                        &ProChannelStreams::iGOP, &ProChannelStreams::iQualityUpper, &ProChannelStreams::iQualityLower})
        (streams.*member).fill(-1);
    for (auto member : {&ProChannelStreams::iFPSUpper, &ProChannelStreams::iFPSLower, &ProChannelStreams::iBPSUpper,
                        &ProChannelStreams::iBPSLower})
        (streams.*member).fill({-1});
    pro.Streams[c] = std::move(streams);
}

QString GetsDeviceType(const QString& deviceType, qint16 maxHdSupport)
{
    if (deviceType.isEmpty() || deviceType == kFamilySVR || deviceType == "TXR500"_L1)
        return kFamilySVR;
    if (deviceType == kFamilyOmluPro && maxHdSupport != 5)
        return kFamilyOmluPro;
    return kFamilyTXR632;
}

void FishEyeModeListPaser(std::vector<FishEyeMode>& modes, const QString& text)
{
    if (text.trimmed().isEmpty())
        return;
    const QStringList entries = text.split(u';');
    modes.assign(static_cast<std::size_t>(entries.size()), {});
    for (qsizetype i = 0; i < entries.size(); ++i) {
        FishEyeMode& mode = At(modes, i);
        const QStringList pieces = entries[i].split(u':');
        mode.sModeName = pieces[0];
        const QStringList values = At(pieces, 1).split(u',');
        mode.iModeValue1 = ToInt16(values[0]);
        mode.iModeValue2 = ToInt16(At(values, 1));
        const int mask = ToInt16(At(values, 2));
        for (std::size_t bit = 0; bit < mode.bModeFlag.size(); ++bit)
            mode.bModeFlag[bit] = (mask & (1 << bit)) != 0;
    }
}
