#pragma once

#include "store/TableDescription.h"
#include "store/records/SVRRecord.h"

#include <QStringList>
#include <array>
#include <charconv>

// A row of table SVR is one channel of one recorder: the recorder's fields stand in each of its rows.
struct SVRRow
{
    SVRRecord* svr;
    SVRProRecord* pro;
    int channel; // index, from 0
};

namespace svr_table {

using table_detail::DefaultOf;
using table_detail::FromVariant;
using table_detail::MemberOf;
using table_detail::Put;
using table_detail::TypeOf;

// A field of the recorder.
template <auto Member>
constexpr auto Device(const char* name)
{
    using T = typename MemberOf<decltype(Member)>::Type;
    return Column<SVRRow>{{name, TypeOf<T>(), DefaultOf<T>()},
                          [](SVRRow& row, const QVariant& v) { row.svr->*Member = FromVariant<T>(v); },
                          [](const SVRRow& row, CellSink& sink) { Put(sink, row.svr->*Member); }}
        .sharedByRows();
}

// The same, but null (older databases) reads as 0.
template <auto Member>
constexpr auto DeviceOrZero(const char* name)
{
    using T = typename MemberOf<decltype(Member)>::Type;
    return Column<SVRRow>{
        {name, TypeOf<T>(), DefaultOf<T>()},
        [](SVRRow& row, const QVariant& v) { row.svr->*Member = v.isNull() ? T(0) : FromVariant<T>(v); },
        [](const SVRRow& row, CellSink& sink) { Put(sink, row.svr->*Member); }}
        .sharedByRows();
}

inline SVRChannel& ChannelOf(const SVRRow& row)
{
    return At(row.svr->channels, row.channel);
}
inline SVRProChannel& ProChannelOf(const SVRRow& row)
{
    return At(row.pro->channels, row.channel);
}

// A field of the channel, in either of the two records.
template <auto Member>
constexpr auto Channel(const char* name)
{
    using T = typename MemberOf<decltype(Member)>::Type;
    if constexpr (std::is_base_of_v<typename MemberOf<decltype(Member)>::Class, SVRChannel>)
        return Column<SVRRow>{{name, TypeOf<T>(), DefaultOf<T>()},
                              [](SVRRow& row, const QVariant& v) { ChannelOf(row).*Member = FromVariant<T>(v); },
                              [](const SVRRow& row, CellSink& sink) { Put(sink, ChannelOf(row).*Member); }};
    else
        return Column<SVRRow>{{name, TypeOf<T>(), DefaultOf<T>()},
                              [](SVRRow& row, const QVariant& v) { ProChannelOf(row).*Member = FromVariant<T>(v); },
                              [](const SVRRow& row, CellSink& sink) { Put(sink, ProChannelOf(row).*Member); }};
}

template <class T>
T StreamValue(QStringView text)
{
    if constexpr (std::is_same_v<T, QString>)
        return text.toString();
    else if constexpr (std::is_same_v<T, bool>)
        return text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0 ||
               (text.compare(QLatin1String("False"), Qt::CaseInsensitive) != 0 && ToInt16(text) != 0);
    else
        return ToInt16(text);
}

// Texts of numbers are put together without a text of their own for each: a full station has 16,000 of them.
inline constexpr int kTextReserve = 64;
inline void AppendNumber(QString& text, int number)
{
    std::array<char, 12> digits;
    const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text += QLatin1String(digits.data(), end - digits.data());
}

// The three stream values of a channel, joined by ";"; a boolean is "1" or "0".
template <auto Member>
constexpr auto Streams(const char* name)
{
    using T = typename MemberOf<decltype(Member)>::Type;
    return Column<SVRRow>{{name, FieldType::Text, "''"},
                          [](SVRRow& row, const QVariant& v) {
                              const QString text = TextField(v);
                              const QList<QStringView> parts = QStringView(text).split(u';');
                              for (qsizetype i = 0; auto& stream : ProChannelOf(row).streams)
                                  stream.*Member = StreamValue<T>(At(parts, i++));
                          },
                          [](const SVRRow& row, CellSink& sink) {
                              QString text;
                              text.reserve(kTextReserve);
                              const SVRProStreams& streams = ProChannelOf(row).streams;
                              for (const SVRProStream& stream : streams) {
                                  if (&stream != &streams.front())
                                      text += u';';
                                  if constexpr (std::is_same_v<T, QString>)
                                      text += stream.*Member;
                                  else
                                      AppendNumber(text, static_cast<int>(stream.*Member));
                              }
                              sink.text(text);
                          }};
}

// A list of numbers per stream: "," inside a stream, ";" between the three. With KeepWhenEmpty an empty part leaves the
// stream's list as it was.
template <auto Member, bool KeepWhenEmpty>
constexpr auto StreamLists(const char* name)
{
    return Column<SVRRow>{{name, FieldType::Text, "''"},
                          [](SVRRow& row, const QVariant& v) {
                              const QString text = TextField(v);
                              const QList<QStringView> parts = QStringView(text).split(u';');
                              for (qsizetype i = 0; auto& stream : ProChannelOf(row).streams) {
                                  const QStringView part = At(parts, i++);
                                  if (part.isEmpty() && KeepWhenEmpty)
                                      continue;
                                  std::vector<qint16> list;
                                  if (!part.isEmpty()) {
                                      for (QStringView piece : part.tokenize(u','))
                                          list.push_back(ToInt16(piece));
                                  }
                                  stream.*Member = std::move(list);
                              }
                          },
                          [](const SVRRow& row, CellSink& sink) {
                              QString text;
                              text.reserve(kTextReserve);
                              const SVRProStreams& streams = ProChannelOf(row).streams;
                              for (const SVRProStream& stream : streams) {
                                  if (&stream != &streams.front())
                                      text += u';';
                                  const std::vector<qint16>& list = stream.*Member;
                                  for (std::size_t i = 0; i < list.size(); ++i) {
                                      if (i > 0)
                                          text += u',';
                                      AppendNumber(text, list[i]);
                                  }
                              }
                              sink.text(text);
                          }};
}

// Preset Index (from 0): "id,name,image" when it has a name, "id" otherwise. A text of up to two characters reads as
// preset Index + 1 without a name, whatever it says.
template <std::size_t Index>
constexpr auto Preset(const char* name)
{
    return Column<SVRRow>{{name, FieldType::Text, "''"},
                          [](SVRRow& row, const QVariant& v) {
                              SVRPreset& preset = ChannelOf(row).presets[Index];
                              const QString text = TextField(v);
                              if (text.size() <= 2) {
                                  preset.iPresetID = static_cast<qint16>(Index + 1);
                                  preset.sPresetName.clear();
                                  return;
                              }
                              const QStringList parts = text.split(u',');
                              preset.iPresetID = ToInt16(parts[0]);
                              preset.sPresetName = At(parts, 1);
                              preset.sPresetImage = At(parts, 2);
                          },
                          [](const SVRRow& row, CellSink& sink) {
                              const SVRPreset& preset = ChannelOf(row).presets[Index];
                              QString text;
                              AppendNumber(text, preset.iPresetID);
                              if (!preset.sPresetName.isEmpty())
                                  text += u',' + preset.sPresetName + u',' + preset.sPresetImage;
                              sink.text(text);
                          }};
}

} // namespace svr_table

// Columns of every family, in the order of writing.
inline constexpr std::array SVRColumns{
    svr_table::Device<&SVRRecord::iSVR_Num>("iSVR_Num").with(FieldUse::WriteOnly), // chooses the slot, see GetSVREx
    svr_table::Device<&SVRRecord::sSVR_Name>("sSVR_Name").named(283),
    svr_table::Device<&SVRRecord::sSVR_IP>("sSVR_IP").named(550),
    svr_table::Device<&SVRRecord::iSVR_HttpPort>("iSVR_HttpPort").named(551),
    svr_table::Device<&SVRRecord::iSVR_VideoPort>("iSVR_VideoPort").named(580),
    svr_table::Device<&SVRRecord::sSVR_UserName>("sSVR_UserName").named(465),
    svr_table::Device<&SVRRecord::sSVR_Password>("sSVR_Password").named(466),
    svr_table::Device<&SVRRecord::iSVR_Maxchannel>("iSVR_Maxchannel"),
    svr_table::Device<&SVRRecord::sSVR_Brand>("sSVR_Brand"),
    svr_table::Device<&SVRRecord::sSVR_DeviceType>("sSVR_DeviceType"),
    svr_table::Device<&SVRRecord::sSVR_DeviceTypeSource>("sSVR_DeviceTypeSource"),
    svr_table::Device<&SVRRecord::sSVR_DisplayDeviceType>("sSVR_DisplayDeviceType"),
    svr_table::Device<&SVRRecord::bSVR_N_EventSupport>("bSVR_N_EventSupport"),
    svr_table::Device<&SVRRecord::bSVR_Pro20Support>("bSVR_Pro20Support"),
    svr_table::Device<&SVRRecord::iSVRId>("iSVRId").with(FieldUse::WriteOnly),
    svr_table::Device<&SVRRecord::sSVR_Version>("sSVR_Version"),
    svr_table::Device<&SVRRecord::iSVR_ValidCH>("iSVR_ValidCH"),
    svr_table::DeviceOrZero<&SVRRecord::iSVR_SummerTime>("iSVR_SummerTime"),
    svr_table::DeviceOrZero<&SVRRecord::iSVR_TimeZoneNum>("iSVR_TimeZoneNum"),
    svr_table::Device<&SVRRecord::bSVR_CEventSupport>("bSVR_CEventSupport"),
    svr_table::Channel<&SVRChannel::sSub_CH_Name>("sSub_CH_Name").named(579),
    svr_table::Channel<&SVRChannel::sSub_CH_IP>("sSub_CH_IP").named(550),
    svr_table::Channel<&SVRChannel::iSub_Channel>("iSub_Channel"),
    svr_table::Channel<&SVRChannel::iSub_ChannelID>("iSub_ChannelID").withDefault("-1"),
    svr_table::Channel<&SVRChannel::iSub_CH_HttpPort>("iSub_CH_HttpPort").withDefault("80").named(551),
    svr_table::Channel<&SVRChannel::sSub_CH_UserName>("sSub_CH_UserName").named(465),
    svr_table::Channel<&SVRChannel::sSub_CH_Password>("sSub_CH_Password").named(466),
    svr_table::Channel<&SVRChannel::iSub_CH_Brand>("iSub_CH_Brand"),
    svr_table::Channel<&SVRChannel::sSub_CH_VideoFormat>("sSub_CH_VideoFormat").named(581),
    svr_table::Channel<&SVRChannel::sSub_CH_Resolution>("sSub_CH_Resolution").named(582),
    svr_table::Channel<&SVRChannel::iSub_CH_VideoID>("iSub_CH_VideoID").named(977),
    svr_table::Channel<&SVRChannel::bSub_CH_PTZ>("bSub_CH_PTZ"),
    svr_table::Channel<&SVRChannel::sSub_CH_PTZCap>("sSub_CH_PTZCap"),
    svr_table::Channel<&SVRChannel::iSub_CH_Audio>("iSub_CH_Audio"),
    svr_table::Channel<&SVRChannel::bEventSet>("bEventSet"),
    svr_table::Channel<&SVRChannel::sSub_CH_MD_FishEyeModeList>("sSub_CH_MD_FishEyeModeList"),
    svr_table::Channel<&SVRChannel::lSub_CH_IntelligentID>("lSub_CH_IntelligentID").withDefault("-1"),
    svr_table::Channel<&SVRChannel::iPower>("iPower").with(FieldUse::WriteOnly),
    svr_table::Channel<&SVRChannel::bSub_CH_Cam_MD_Enabled>("bSub_CH_Cam_MD_Enabled"),
    svr_table::Channel<&SVRChannel::iCH_MultiStream>("iCH_MultiStream").withDefault("-1"),
    svr_table::Channel<&SVRChannel::iCH_FPS>("iCH_FPS").withDefault("-1").named(614),
    svr_table::Channel<&SVRChannel::iCH_Quality>("iCH_Quality").withDefault("-1").named(600),
    svr_table::Channel<&SVRChannel::iCH_Rotation>("iCH_Rotation").withDefault("-1"),
    svr_table::Channel<&SVRChannel::iCH_RateCtrl>("iCH_RateCtrl").withDefault("-1").named(602),
    svr_table::Channel<&SVRChannel::iCH_BitRate>("iCH_BitRate").withDefault("-1").named(601),
    svr_table::Channel<&SVRChannel::sCH_ResolutionList>("sCH_ResolutionList"),
    svr_table::Channel<&SVRChannel::sCH_FMTList>("sCH_FMTList"),
    svr_table::Channel<&SVRChannel::iCH_GOP>("iCH_GOP").withDefault("-1"),
    svr_table::Channel<&SVRChannel::sCH_FPS_Range>("sCH_FPS_Range"),
    svr_table::Channel<&SVRChannel::sCH_Quality_Range>("sCH_Quality_Range"),
    svr_table::Channel<&SVRChannel::sCH_RateCtrl_Range>("sCH_RateCtrl_Range"),
    svr_table::Channel<&SVRChannel::sCH_BitRate_Range>("sCH_BitRate_Range"),
    svr_table::Channel<&SVRChannel::sCH_Relativeformat>("sCH_Relativeformat"),
    svr_table::Channel<&SVRChannel::sCH_FPS_Customer>("sCH_FPS_Customer"),
    svr_table::Channel<&SVRChannel::sCH_FPS_List_Customer>("sCH_FPS_List_Customer"),
    svr_table::Channel<&SVRChannel::sCH_PTZ_Speed_Range>("sCH_PTZ_Speed_Range"),
    svr_table::Channel<&SVRChannel::sCH_PTZ_PanTilt_Range>("sCH_PTZ_PanTilt_Range"),
    svr_table::Channel<&SVRChannel::iCH_PTZ_MoveContCap>("iCH_PTZ_MoveContCap"),
    svr_table::Channel<&SVRChannel::iCH_PTZ_ZoomContCap>("iCH_PTZ_ZoomContCap"),
    svr_table::Channel<&SVRChannel::iCH_PTZ_FocusContCap>("iCH_PTZ_FocusContCap"),
    svr_table::Channel<&SVRChannel::iCH_PTZ_IrisContCap>("iCH_PTZ_IrisContCap"),
    svr_table::Channel<&SVRChannel::sCH_Onvif_Quality>("sCH_Onvif_Quality"),
    svr_table::Channel<&SVRChannel::sCH_Onvif_JPEG_FPS>("sCH_Onvif_JPEG_FPS"),
    svr_table::Channel<&SVRChannel::sCH_Onvif_MPEG_FPS>("sCH_Onvif_MPEG_FPS"),
    svr_table::Channel<&SVRChannel::sCH_Onvif_H264_FPS>("sCH_Onvif_H264_FPS"),
    svr_table::Channel<&SVRChannel::sCH_Onvif_JPEG_Resolution>("sCH_Onvif_JPEG_Resolution"),
    svr_table::Channel<&SVRChannel::sCH_Onvif_MPEG_Resolution>("sCH_Onvif_MPEG_Resolution"),
    svr_table::Channel<&SVRChannel::sCH_Onvif_H264_Resolution>("sCH_Onvif_H264_Resolution")};

// Columns that are set and read for the Pro families only.
inline constexpr std::array SVRProColumns{
    svr_table::Channel<&SVRChannel::iSub_CH_VideoIDCount>("iSub_CH_VideoIDCount"),
    svr_table::Channel<&SVRProChannel::bCH_Pro_ABS>("bCH_Pro_ABS"),
    svr_table::Channel<&SVRProChannel::bCH_Pro_SetPreset>("bCH_Pro_SetPreset"),
    svr_table::Channel<&SVRProChannel::iCH_Pro_SyncPreset>("iCH_Pro_SyncPreset"),
    svr_table::Channel<&SVRProChannel::iCH_Pro_AutoPanMode>("iCH_Pro_AutoPanMode"),
    svr_table::Channel<&SVRProChannel::sCH_Pro_Mac>("sCH_Pro_Mac"),
    svr_table::Channel<&SVRProChannel::sCH_Pro_Model>("sCH_Pro_Model"),
    svr_table::Channel<&SVRProChannel::lCH_Pro_RTPSPort>("lCH_Pro_RTPSPort"),
    svr_table::Channel<&SVRProChannel::sCH_Pro_AudioType>("sCH_Pro_AudioType"),
    svr_table::Channel<&SVRProChannel::sCH_Pro_LensModeList>("sCH_Pro_LensModeList"),
    svr_table::Channel<&SVRProChannel::sCH_Pro_LensMode>("sCH_Pro_LensMode").named(767),
    svr_table::Channel<&SVRProChannel::sCH_Pro_LeftDisplayModeList>("sCH_Pro_LeftDisplayModeList"),
    svr_table::Channel<&SVRProChannel::sCH_Pro_LeftDisplayMode>("sCH_Pro_LeftDisplayMode").named(248),
    svr_table::Channel<&SVRProChannel::sCH_Pro_RightDisplayModeList>("sCH_Pro_RightDisplayModeList"),
    svr_table::Channel<&SVRProChannel::sCH_Pro_RightDisplayMode>("sCH_Pro_RightDisplayMode").named(249),
    svr_table::Streams<&SVRProStream::sResolutionList>("sCH_Pro_ResolutionList"),
    svr_table::Streams<&SVRProStream::sFMT>("sCH_Pro_FMT"),
    svr_table::Streams<&SVRProStream::sResolution>("sCH_Pro_Resolution"),
    svr_table::Streams<&SVRProStream::bGOPCap>("sCH_Pro_GOPCap"),
    svr_table::Streams<&SVRProStream::iGOP>("sCH_Pro_GOP"),
    svr_table::Streams<&SVRProStream::bRateControlCap>("sCH_Pro_RateControlCap"),
    svr_table::Streams<&SVRProStream::sRateControl>("sCH_Pro_RateControl"),
    svr_table::Streams<&SVRProStream::iFrameRate>("sCH_Pro_FrameRate"),
    svr_table::Streams<&SVRProStream::iQuality>("sCH_Pro_Quality"),
    svr_table::Streams<&SVRProStream::iBitRate>("sCH_Pro_BitRate"),
    svr_table::Streams<&SVRProStream::iQualityUpper>("sCH_Pro_QualityUpper"),
    svr_table::Streams<&SVRProStream::iQualityLower>("sCH_Pro_QualityLower"),
    svr_table::StreamLists<&SVRProStream::iFPSUpper, false>("sCH_Pro_FPSUpper"),
    svr_table::StreamLists<&SVRProStream::iFPSLower, true>("sCH_Pro_FPSLower"),
    svr_table::StreamLists<&SVRProStream::iBPSUpper, true>("sCH_Pro_BPSUpper"),
    svr_table::StreamLists<&SVRProStream::iBPSLower, true>("sCH_Pro_BPSLower")};

inline constexpr std::array SVRPresetColumns{
    svr_table::Preset<0>("sSub_CH_Preset1"), svr_table::Preset<1>("sSub_CH_Preset2"),
    svr_table::Preset<2>("sSub_CH_Preset3"), svr_table::Preset<3>("sSub_CH_Preset4"),
    svr_table::Preset<4>("sSub_CH_Preset5"), svr_table::Preset<5>("sSub_CH_Preset6"),
    svr_table::Preset<6>("sSub_CH_Preset7"), svr_table::Preset<7>("sSub_CH_Preset8")};
