#include "recorders/camera/CameraDetect.h"

#include "device/protocol/ParameterText.h"
#include "device/protocol/RelativeFormat.h"
#include "recorders/camera/CameraLists.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

qint16 NumberOr(const QString& text, qint16 otherwise)
{
    bool ok = false;
    const short number = text.trimmed().toShort(&ok);
    return ok ? number : otherwise;
}

// The names of the formats that are on, "MJPEG,H.264"; empty when the camera tells of none.
QString FormatNames(const DetectedCameraText& camera)
{
    const QStringList states = camera.FormatState.split(u',');
    const auto off = [&](int format) { return format < states.size() && states[format].trimmed() == "0"_L1; };
    QStringList codes = camera.FormatList.split(u';', Qt::SkipEmptyParts);
    if (codes.isEmpty() && !camera.FormatState.isEmpty())
        codes = QStringList{u"256"_s, u"768"_s, u"1024"_s}.first(std::min<qsizetype>(states.size(), kMaxStream));
    QStringList names;
    for (const QString& code : codes) {
        const QString name = NumberOr(code, 0) > 0 ? GetFMTNameFromCode(code, 0) : QString();
        if (!name.isEmpty() && !off(FormatIndex(name)) && !names.contains(name))
            names += name;
    }
    return names.join(u',');
}

bool HasOnvifSizes(const DetectedCameraText& camera)
{
    return !camera.OnvifJpegResolution.isEmpty() || !camera.OnvifMpegResolution.isEmpty() ||
           !camera.OnvifH264Resolution.isEmpty();
}

// The camera's number, or what its other words say of it.
qint16 BrandOf(const DetectedCameraText& camera, qint16 known)
{
    return NumberOr(camera.Brand, HasOnvifSizes(camera) ? kOnvifBrand : known);
}

// A value that the stream's list has, or the first one.
void Fit(QString& value, const QStringList& list)
{
    if (!list.isEmpty() && !list.contains(value))
        value = list.first();
}

void Fit(qint16& value, const std::vector<qint16>& lower, const std::vector<qint16>& upper, qsizetype position)
{
    if (value < 0 || position < 0 || position >= std::ssize(lower) || position >= std::ssize(upper))
        return;
    const auto at = static_cast<std::size_t>(position);
    if (upper[at] >= lower[at] && upper[at] > 0)
        value = std::clamp(value, lower[at], upper[at]);
}

} // namespace

void ForgetCamera(SVRRecord& svr, SVRProRecord& pro, int channel)
{
    const auto c = static_cast<std::size_t>(channel);
    for (auto member :
         {&SVRRecord::sCH_ResolutionList, &SVRRecord::sCH_FMTList, &SVRRecord::sCH_FPS_Range,
          &SVRRecord::sCH_Quality_Range, &SVRRecord::sCH_RateCtrl_Range, &SVRRecord::sCH_BitRate_Range,
          &SVRRecord::sCH_Relativeformat, &SVRRecord::sCH_FPS_List_Customer, &SVRRecord::sCH_PTZ_Speed_Range,
          &SVRRecord::sCH_PTZ_PanTilt_Range, &SVRRecord::sSub_CH_MD_FishEyeModeList, &SVRRecord::sSub_CH_Mode4FishEye,
          &SVRRecord::sCH_Onvif_Quality, &SVRRecord::sCH_Onvif_JPEG_FPS, &SVRRecord::sCH_Onvif_MPEG_FPS,
          &SVRRecord::sCH_Onvif_H264_FPS, &SVRRecord::sCH_Onvif_JPEG_Resolution, &SVRRecord::sCH_Onvif_MPEG_Resolution,
          &SVRRecord::sCH_Onvif_H264_Resolution})
        (svr.*member)[c].clear();
    for (auto member : {&SVRRecord::iCH_PTZ_MoveContCap, &SVRRecord::iCH_PTZ_ZoomContCap,
                        &SVRRecord::iCH_PTZ_FocusContCap, &SVRRecord::iCH_PTZ_IrisContCap})
        (svr.*member)[c] = 0;
    svr.FishEyeModes[c].clear();
    for (auto member : {&SVRProRecord::sCH_Pro_LensModeList, &SVRProRecord::sCH_Pro_LensMode,
                        &SVRProRecord::sCH_Pro_LeftDisplayModeList, &SVRProRecord::sCH_Pro_LeftDisplayMode,
                        &SVRProRecord::sCH_Pro_RightDisplayModeList, &SVRProRecord::sCH_Pro_RightDisplayMode})
        (pro.*member)[c].clear();
    ProChannelStreams streams;
    for (std::size_t slot = 0; slot < kMaxStream; ++slot)
        PutState(streams, slot, {});
    streams.iGOP.fill(-1);
    streams.iQualityLower.fill(-1);
    streams.iQualityUpper.fill(-1);
    pro.Streams[c] = std::move(streams);
}

bool TakeDetectedText(const DetectedCameraText& camera, SVRRecord& svr, int channel, FormatStates& states)
{
    const auto c = static_cast<std::size_t>(channel);
    svr.sCH_Relativeformat[c] = camera.RelativeFormat;
    svr.sCH_ResolutionList[c] = camera.ResolutionList;
    svr.sCH_FMTList[c] = FormatNames(camera);
    svr.sCH_FPS_Range[c] = camera.FPSRange;
    svr.sCH_Quality_Range[c] = camera.QualityRange;
    svr.sCH_RateCtrl_Range[c] = camera.RateCtrlRange;
    svr.sCH_BitRate_Range[c] = camera.BitRateRange;
    svr.sCH_PTZ_Speed_Range[c] = camera.SpeedRange;
    svr.sCH_PTZ_PanTilt_Range[c] = camera.MoveRange;
    svr.iCH_PTZ_MoveContCap[c] = NumberOr(camera.MoveContCap, 0);
    svr.iCH_PTZ_ZoomContCap[c] = NumberOr(camera.ZoomContCap, 0);
    svr.iCH_PTZ_FocusContCap[c] = NumberOr(camera.FocusContCap, 0);
    svr.iCH_PTZ_IrisContCap[c] = NumberOr(camera.IrisContCap, 0);
    svr.sCH_Onvif_Quality[c] = camera.OnvifQuality;
    svr.sCH_Onvif_JPEG_FPS[c] = camera.OnvifJpegFPS;
    svr.sCH_Onvif_MPEG_FPS[c] = camera.OnvifMpegFPS;
    svr.sCH_Onvif_H264_FPS[c] = camera.OnvifH264FPS;
    svr.sCH_Onvif_JPEG_Resolution[c] = camera.OnvifJpegResolution;
    svr.sCH_Onvif_MPEG_Resolution[c] = camera.OnvifMpegResolution;
    svr.sCH_Onvif_H264_Resolution[c] = camera.OnvifH264Resolution;
    svr.iSub_CH_Brand[c] = BrandOf(camera, svr.iSub_CH_Brand[c]);
    svr.iSub_CH_VideoIDCount[c] = camera.VideoSources;
    svr.iCH_MultiStream[c] = camera.MultiStream ? 1 : 0;
    for (int format = 0; format < kMaxStream; ++format) {
        FormatState& state = states[static_cast<std::size_t>(format)];
        state.resolution = FormatPart(camera.ResolutionState, format).trimmed();
        state.frameRate = NumberOr(FormatPart(camera.FPSState, format), -1);
        state.rateControl = NumberOr(FormatPart(camera.RateCtrlState, format), -1);
        state.quality = NumberOr(FormatPart(camera.QualityState, format), -1);
        state.bitRate = NumberOr(FormatPart(camera.BitRateState, format), -1);
    }
    return !MarksUnusableCamera(camera.RelativeFormat) && (camera.ResolutionList != ";;"_L1 || HasOnvifSizes(camera));
}

FormatStates StatesOfStreams(const ProChannelStreams& streams)
{
    FormatStates states;
    for (std::size_t slot = 0; slot < kMaxStream; ++slot)
        states[slot] = {streams.sResolution[slot], streams.iFrameRate[slot], NumberOr(streams.sRateControl[slot], -1),
                        streams.iQuality[slot], streams.iBitRate[slot]};
    return states;
}

void PutState(ProChannelStreams& streams, std::size_t slot, const FormatState& state)
{
    streams.sResolution[slot] = state.resolution;
    streams.iFrameRate[slot] = state.frameRate;
    streams.sRateControl[slot] = QString::number(state.rateControl);
    streams.iQuality[slot] = state.quality;
    streams.iBitRate[slot] = state.bitRate;
}

void FitStreams(ProChannelStreams& streams, std::size_t except)
{
    for (std::size_t slot = 0; slot < kMaxStream; ++slot) {
        if (slot == except || streams.sFMT[slot].isEmpty())
            continue;
        const QStringList sizes = streams.sResolutionList[slot].split(u',', Qt::SkipEmptyParts);
        Fit(streams.sResolution[slot], sizes);
        const qsizetype position = sizes.indexOf(streams.sResolution[slot]);
        Fit(streams.iFrameRate[slot], streams.iFPSLower[slot], streams.iFPSUpper[slot], position);
        Fit(streams.iBitRate[slot], streams.iBPSLower[slot], streams.iBPSUpper[slot], position);
    }
}

int ProbeMessage(qint16 result)
{
    switch (result) {
    case 1:
        return 74;
    case 3:
        return 71;
    case 5:
        return 72;
    case -100:
        return 75;
    default:
        return 73;
    }
}
