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

void ForgetCamera(SVRChannel& svr, SVRProChannel& pro)
{
    static_cast<SVRCameraFacts&>(svr) = {};
    static_cast<SVRProCameraFacts&>(pro) = {};
}

bool TakeDetectedText(const DetectedCameraText& camera, SVRChannel& svr, FormatStates& states)
{
    svr.sCH_Relativeformat = camera.RelativeFormat;
    svr.sCH_ResolutionList = camera.ResolutionList;
    svr.sCH_FMTList = FormatNames(camera);
    svr.sCH_FPS_Range = camera.FPSRange;
    svr.sCH_Quality_Range = camera.QualityRange;
    svr.sCH_RateCtrl_Range = camera.RateCtrlRange;
    svr.sCH_BitRate_Range = camera.BitRateRange;
    svr.sCH_PTZ_Speed_Range = camera.SpeedRange;
    svr.sCH_PTZ_PanTilt_Range = camera.MoveRange;
    svr.iCH_PTZ_MoveContCap = NumberOr(camera.MoveContCap, 0);
    svr.iCH_PTZ_ZoomContCap = NumberOr(camera.ZoomContCap, 0);
    svr.iCH_PTZ_FocusContCap = NumberOr(camera.FocusContCap, 0);
    svr.iCH_PTZ_IrisContCap = NumberOr(camera.IrisContCap, 0);
    svr.sCH_Onvif_Quality = camera.OnvifQuality;
    svr.sCH_Onvif_JPEG_FPS = camera.OnvifJpegFPS;
    svr.sCH_Onvif_MPEG_FPS = camera.OnvifMpegFPS;
    svr.sCH_Onvif_H264_FPS = camera.OnvifH264FPS;
    svr.sCH_Onvif_JPEG_Resolution = camera.OnvifJpegResolution;
    svr.sCH_Onvif_MPEG_Resolution = camera.OnvifMpegResolution;
    svr.sCH_Onvif_H264_Resolution = camera.OnvifH264Resolution;
    svr.iSub_CH_Brand = BrandOf(camera, svr.iSub_CH_Brand);
    svr.iSub_CH_VideoIDCount = camera.VideoSources;
    svr.iCH_MultiStream = camera.MultiStream ? 1 : 0;
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

FormatStates StatesOfStreams(const SVRProStreams& streams)
{
    FormatStates states;
    for (std::size_t slot = 0; slot < kMaxStream; ++slot)
        states[slot] = {streams[slot].sResolution, streams[slot].iFrameRate, NumberOr(streams[slot].sRateControl, -1),
                        streams[slot].iQuality, streams[slot].iBitRate};
    return states;
}

void PutState(SVRProStreams& streams, std::size_t slot, const FormatState& state)
{
    streams[slot].sResolution = state.resolution;
    streams[slot].iFrameRate = state.frameRate;
    streams[slot].sRateControl = QString::number(state.rateControl);
    streams[slot].iQuality = state.quality;
    streams[slot].iBitRate = state.bitRate;
}

void FitStreams(SVRProStreams& streams, std::size_t except)
{
    for (std::size_t slot = 0; slot < kMaxStream; ++slot) {
        if (slot == except || streams[slot].sFMT.isEmpty())
            continue;
        const QStringList sizes = streams[slot].sResolutionList.split(u',', Qt::SkipEmptyParts);
        Fit(streams[slot].sResolution, sizes);
        const qsizetype position = sizes.indexOf(streams[slot].sResolution);
        Fit(streams[slot].iFrameRate, streams[slot].iFPSLower, streams[slot].iFPSUpper, position);
        Fit(streams[slot].iBitRate, streams[slot].iBPSLower, streams[slot].iBPSUpper, position);
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
