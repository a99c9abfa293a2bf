#pragma once

#include "store/TableDescription.h"
#include "store/records/BasicDefaultRecord.h"
#include "store/records/EMapRecords.h"
#include "store/records/EventRecords.h"
#include "store/records/SVDRecord.h"
#include "store/records/ScreenRecords.h"
#include "store/records/UserRecords.h"

#include <array>

// The columns of every table but SVR (see SVRTable.h), in the order of writing.

inline constexpr std::array BasicDefaultColumns{
    Field<&BasicDefaultRecord::sBrand>("sBrand").with(FieldUse::ReadOnly),
    Field<&BasicDefaultRecord::iLangCount>("iLangCount").withDefault("14"),
    Field<&BasicDefaultRecord::iLanguage>("iLanguage").withDefault("99").named(333),
    Field<&BasicDefaultRecord::sDBVer>("sDBVer").named(332), Field<&BasicDefaultRecord::iDBCount>("iDBCount"),
    Field<&BasicDefaultRecord::sSystemIP>("sSystemIP"),
    Field<&BasicDefaultRecord::sSystemName>("sSystemName").named(331),
    Field<&BasicDefaultRecord::iHttpPort>("iHttpPort").withDefault("80"),
    Field<&BasicDefaultRecord::iRTSPPort>("iRTSPPort").withDefault("554"),
    Field<&BasicDefaultRecord::iAlertPort>("iAlertPort"), Field<&BasicDefaultRecord::iPollingTime>("iPollingTime"),
    Field<&BasicDefaultRecord::bRecycle>("bRecycle"), Field<&BasicDefaultRecord::lReserveSpace>("lReserveSpace"),
    Field<&BasicDefaultRecord::bStartup>("bStartup").named(334),
    Field<&BasicDefaultRecord::bStartupToHide>("bStartupToHide").named(353),
    Field<&BasicDefaultRecord::iPreAlarmTime>("iPreAlarmTime"),
    Field<&BasicDefaultRecord::iPostAlarmTime>("iPostAlarmTime"), Field<&BasicDefaultRecord::sCpu>("sCpu"),
    Field<&BasicDefaultRecord::iSyncTime>("iSyncTime"),
    Field<&BasicDefaultRecord::iSnapCount>("iSnapCount").withDefault("1").named(336),
    // Honoured by the desk only on a database whose fourth version part starts with 22 or more.
    Field<&BasicDefaultRecord::iVideoWallStyle>("iVideoWallStyle").with(FieldUse::WriteOnly),
    Field<&BasicDefaultRecord::iResolutionSum>("iResolutionSum").with(FieldUse::ReadOnly)};

inline constexpr std::array UserColumns{Field<&UserRecord::sUser>("sUser").named(649),
                                        Field<&UserRecord::sPSWD>("sPSWD").named(41),
                                        Field<&UserRecord::bEnable>("bEnable"),
                                        Field<&UserRecord::sCorp>("sCorp").named(417),
                                        Field<&UserRecord::sPhone>("sPhone").named(418),
                                        Field<&UserRecord::sMainEmail>("sMainEmail").named(419),
                                        Field<&UserRecord::sSubEmail>("sSubEmail").named(420),
                                        Field<&UserRecord::sMobile>("sMobile").named(421),
                                        Field<&UserRecord::sPhoto>("sPhoto").named(646),
                                        Field<&UserRecord::iGroup>("iGroup").named(423)};

inline constexpr std::array NVRAccountColumns{Field<&NVRAccountRecord::iIndex>("iIndex"),
                                              Field<&NVRAccountRecord::sUser>("sUser"),
                                              Field<&NVRAccountRecord::sPass>("sPass")};

inline constexpr std::array GroupPrivilegeColumns{Field<&GroupPrivilegeRecord::GroupID>("GroupID"),
                                                  Field<&GroupPrivilegeRecord::Name>("Name").named(362),
                                                  Field<&GroupPrivilegeRecord::Setting>("Setting").named(432),
                                                  Field<&GroupPrivilegeRecord::Export>("Export").named(740),
                                                  Field<&GroupPrivilegeRecord::SVDControl>("SVDControl"),
                                                  Field<&GroupPrivilegeRecord::Live>("Live").named(100),
                                                  Field<&GroupPrivilegeRecord::Live_all>("Live_all").named(909)};

inline constexpr std::array NVRPrivilegeColumns{Field<&NVRPrivilegeRow::GroupID>("GroupID"),
                                                Field<&NVRPrivilegeRow::NVRID>("NVRID"),
                                                Field<&NVRPrivilegeRow::CHPrivilege>("CHPrivilege").named(784)};

inline constexpr std::array ListenServerColumns{
    Field<&ListenServerRec::aID>("aID"),
    Field<&ListenServerRec::sMailFrom>("sMailFrom").named(463),
    Field<&ListenServerRec::sMailServer>("sMailServer").named(464),
    Field<&ListenServerRec::lMailPort>("lMailPort").withDefault("25").named(470),
    Field<&ListenServerRec::sMailUser>("sMailUser").named(465),
    Field<&ListenServerRec::sMailPassword>("sMailPassword").named(466),
    Field<&ListenServerRec::sMailName>("sMailName"),
    Field<&ListenServerRec::sMailReceipt>("sMailReceipt").named(468),
    Field<&ListenServerRec::sFTPserverIP>("sFTPserverIP").named(469),
    Field<&ListenServerRec::iFTPPort>("iFTPPort").withDefault("21").named(470),
    Field<&ListenServerRec::sFTPUser>("sFTPUser").named(465),
    Field<&ListenServerRec::sFTPPassword>("sFTPPassword").named(466),
    Field<&ListenServerRec::sFTPPath>("sFTPPath"),
    Field<&ListenServerRec::sAlertIP>("sAlertIP").named(469),
    Field<&ListenServerRec::iAlertPort>("iAlertPort").withDefault("80").named(470),
    Field<&ListenServerRec::sAlertUser>("sAlertUser").named(465),
    Field<&ListenServerRec::sAlertPassword>("sAlertPassword").named(466),
    Field<&ListenServerRec::sAlertText>("sAlertText"),
    Field<&ListenServerRec::sWaringName>("sWaringName").named(472),
    Field<&ListenServerRec::sWarningPath>("sWarningPath").named(473)};

inline constexpr std::array EventHandlingColumns{Field<&EventHandlingRecord::bSystemStartup>("bSystemStartup"),
                                                 Field<&EventHandlingRecord::bConfigModify>("bConfigModify"),
                                                 Field<&EventHandlingRecord::bSoftTrigger>("bSoftTrigger"),
                                                 Field<&EventHandlingRecord::bNVRTrigger>("bNVRTrigger"),
                                                 Field<&EventHandlingRecord::bTriActMail>("bTriActMail"),
                                                 Field<&EventHandlingRecord::bTriActFTP>("bTriActFTP"),
                                                 Field<&EventHandlingRecord::bTriActSound>("bTriActSound"),
                                                 Field<&EventHandlingRecord::bTriActHttpMsg>("bTriActHttpMsg"),
                                                 Field<&EventHandlingRecord::strMailAddress>("strMailAddress"),
                                                 Field<&EventHandlingRecord::strFTPUploadPath>("strFTPUploadPath"),
                                                 Field<&EventHandlingRecord::strHttpMsgContent>("strHttpMsgContent"),
                                                 Field<&EventHandlingRecord::strContentMsg>("strContentMsg"),
                                                 Field<&EventHandlingRecord::bAttachSnapshot>("bAttachSnapshot")};

// MotionSettings, MaliciousAttackSettings, ObjectLossSettings, TripwireSettings.
inline constexpr std::array ChannelSettingColumns{
    Field<&ChannelSettingRow::Channel>("Channel"), Field<&ChannelSettingRow::Enable>("Enable"),
    Field<&ChannelSettingRow::Sensitivity>("Sensitivity").withDefault("50").named(398)};

inline constexpr std::array MotionROIColumns{
    Field<&MotionROIRow::Channel>("Channel"),   Field<&MotionROIRow::Height>("Height"),
    Field<&MotionROIRow::Width>("Width"),       Element<&MotionROIRow::sROI, 0>("ROI_00"),
    Element<&MotionROIRow::sROI, 1>("ROI_01"),  Element<&MotionROIRow::sROI, 2>("ROI_02"),
    Element<&MotionROIRow::sROI, 3>("ROI_03"),  Element<&MotionROIRow::sROI, 4>("ROI_04"),
    Element<&MotionROIRow::sROI, 5>("ROI_05"),  Element<&MotionROIRow::sROI, 6>("ROI_06"),
    Element<&MotionROIRow::sROI, 7>("ROI_07"),  Element<&MotionROIRow::sROI, 8>("ROI_08"),
    Element<&MotionROIRow::sROI, 9>("ROI_09"),  Element<&MotionROIRow::sROI, 10>("ROI_10"),
    Element<&MotionROIRow::sROI, 11>("ROI_11"), Element<&MotionROIRow::sROI, 12>("ROI_12"),
    Element<&MotionROIRow::sROI, 13>("ROI_13"), Element<&MotionROIRow::sROI, 14>("ROI_14"),
    Element<&MotionROIRow::sROI, 15>("ROI_15"), Element<&MotionROIRow::sROI, 16>("ROI_16"),
    Element<&MotionROIRow::sROI, 17>("ROI_17"), Element<&MotionROIRow::sROI, 18>("ROI_18"),
    Element<&MotionROIRow::sROI, 19>("ROI_19"), Element<&MotionROIRow::sROI, 20>("ROI_20"),
    Element<&MotionROIRow::sROI, 21>("ROI_21"), Element<&MotionROIRow::sROI, 22>("ROI_22"),
    Element<&MotionROIRow::sROI, 23>("ROI_23")};

inline constexpr std::array ObjectLossROIColumns{Field<&RegionRow::Channel>("Channel"),
                                                 Field<&RegionRow::ID>("ID"),
                                                 Field<&RegionRow::Height>("Height"),
                                                 Field<&RegionRow::Width>("Width"),
                                                 Field<&RegionRow::LeftTopX>("LeftTopX"),
                                                 Field<&RegionRow::LeftTopY>("LeftTopY"),
                                                 Field<&RegionRow::RightBottomX>("RightBottomX"),
                                                 Field<&RegionRow::RightBottomY>("RightBottomY")};

inline constexpr std::array TripwireLineColumns{Field<&RegionRow::Channel>("Channel"),
                                                Field<&RegionRow::ID>("ID"),
                                                Field<&RegionRow::Height>("Height"),
                                                Field<&RegionRow::Width>("Width"),
                                                Field<&RegionRow::LeftTopX>("LeftTopX"),
                                                Field<&RegionRow::LeftTopY>("LeftTopY"),
                                                Field<&RegionRow::RightBottomX>("RightBottomX"),
                                                Field<&RegionRow::RightBottomY>("RightBottomY"),
                                                Field<&RegionRow::Direction>("Direction")};

inline constexpr std::array EMapGroupColumns{Field<&EMapGroupRow::iMap_Type>("iMap_Type"),
                                             Field<&EMapGroupRow::iMap_ID>("iMap_ID"),
                                             Field<&EMapGroupRow::sName>("sName").named(362),
                                             Field<&EMapGroupRow::sParent>("sParent"),
                                             Field<&EMapGroupRow::dMapX>("dMapX"),
                                             Field<&EMapGroupRow::dMapY>("dMapY"),
                                             Field<&EMapGroupRow::dSMapX>("dSMapX"),
                                             Field<&EMapGroupRow::dSMapY>("dSMapY"),
                                             Field<&EMapGroupRow::dInfoX>("dInfoX"),
                                             Field<&EMapGroupRow::dInfoY>("dInfoY"),
                                             Field<&EMapGroupRow::iInfo_Position>("iInfo_Position"),
                                             Field<&EMapGroupRow::sMap_Path>("sMap_Path")};

inline constexpr std::array EMapIconColumns{Field<&EMapIconRow::iSVR>("iSVR"),
                                            Field<&EMapIconRow::iChannel>("iChannel"),
                                            Field<&EMapIconRow::sParent, EMapIconRow>("sParent"),
                                            Field<&EMapIconRow::dMapX, EMapIconRow>("dMapX"),
                                            Field<&EMapIconRow::dMapY, EMapIconRow>("dMapY"),
                                            Field<&EMapIconRow::dInfoX, EMapIconRow>("dInfoX"),
                                            Field<&EMapIconRow::dInfoY, EMapIconRow>("dInfoY"),
                                            Field<&EMapIconRow::iInfo_Position, EMapIconRow>("iInfo_Position")};

inline constexpr std::array ScreenLayoutColumns{
    Field<&ScreenLayoutTableRow::Form_MainViewer>("Form_MainViewer").withDefault("1").named(45),
    Field<&ScreenLayoutTableRow::Form_EventMonitor>("Form_EventMonitor").withDefault("1").named(101),
    Field<&ScreenLayoutTableRow::Form_EMapView>("Form_EMapView").withDefault("1").named(103),
    Field<&ScreenLayoutTableRow::Form_PlayBack>("Form_PlayBack").withDefault("1").named(102),
    Field<&ScreenLayoutTableRow::Form_Console>("Form_Console").withDefault("1").named(749),
    Field<&ScreenLayoutTableRow::Form_SVDConsole>("Form_SVDConsole").withDefault("1").named(839),
    Field<&ScreenLayoutTableRow::Form_FullScreen>("Form_FullScreen").named(438),
    Field<&ScreenLayoutTableRow::Form_VideoWall>("Form_VideoWall").named(752)};

inline constexpr std::array PatternColumns{
    Field<&PatternTableRow::iID>("iID"), Field<&PatternTableRow::sOwner>("sOwner"),
    Field<&PatternTableRow::iSplit>("iSplit"), Field<&PatternTableRow::sCHSequence>("sCHSequence"),
    Field<&PatternTableRow::sName>("sName")};

inline constexpr std::array DefaultStartColumns{
    Field<&DefaultStartTableRow::sOwner>("sOwner"),
    Field<&DefaultStartTableRow::bFixStart>("bFixStart").withDefault("1"),
    Field<&DefaultStartTableRow::bSEQStart>("bSEQStart"),
    Field<&DefaultStartTableRow::bEventNotify>("bEventNotify").withDefault("1"),
    Field<&DefaultStartTableRow::bSearchNotify>("bSearchNotify").withDefault("1"),
    Field<&DefaultStartTableRow::iStartSplit>("iStartSplit").withDefault("16"),
    Field<&DefaultStartTableRow::iLastSplit>("iLastSplit").withDefault("16"),
    Field<&DefaultStartTableRow::MVChannel>("MVChannel"),
    Field<&DefaultStartTableRow::sStartPatternName>("sStartPatternName"),
    Field<&DefaultStartTableRow::iSEQMode>("iSEQMode"),
    Field<&DefaultStartTableRow::iSEQTime>("iSEQTime").withDefault("5"),
    Field<&DefaultStartTableRow::sSEQSVRList>("sSEQSVRList"),
    Field<&DefaultStartTableRow::sSEQPatternList>("sSEQPatternList"),
    Field<&DefaultStartTableRow::iForm_MainViewer>("iForm_MainViewer").withDefault("1").named(45),
    Field<&DefaultStartTableRow::iForm_EventMonitor>("iForm_EventMonitor").named(101),
    Field<&DefaultStartTableRow::iForm_EMapView>("iForm_EMapView").named(103),
    Field<&DefaultStartTableRow::iForm_PlayBack>("iForm_PlayBack").named(102),
    Field<&DefaultStartTableRow::iForm_Console>("iForm_Console").named(749),
    Field<&DefaultStartTableRow::iForm_SVDConsole>("iForm_SVDConsole").named(839),
    Field<&DefaultStartTableRow::iFixDisplayMode>("iFixDisplayMode"),
    Field<&DefaultStartTableRow::sForm_FullScreen>("sForm_FullScreen").named(438)};

inline constexpr std::array FullscreenSEQByChannelColumns{
    Field<&FullscreenSEQRow::ID>("ID").withDefault("1"),
    Field<&FullscreenSEQRow::UserName>("UserName"),
    Field<&FullscreenSEQRow::FullscreenID>("FullscreenID"),
    Field<&FullscreenSEQRow::DurationTime>("DurationTime").withDefault("15"),
    Field<&FullscreenSEQRow::DisplayMode>("DisplayMode").withDefault("16"),
    Field<&FullscreenSEQRow::ChannelList>("ChannelList"),
    Field<&FullscreenSEQRow::DisplayAll>("DisplayAll")};

inline constexpr std::array FullscreenSEQByNVRColumns{
    Field<&FullscreenSEQRow::ID>("ID").withDefault("1"),
    Field<&FullscreenSEQRow::UserName>("UserName"),
    Field<&FullscreenSEQRow::FullscreenID>("FullscreenID"),
    Field<&FullscreenSEQRow::DurationTime>("DurationTime").withDefault("15"),
    Field<&FullscreenSEQRow::NVRList>("NVRList"),
    Field<&FullscreenSEQRow::DisplayAll>("DisplayAll")};

inline constexpr std::array FullscreenSEQPatternColumns{
    Field<&FullscreenSEQRow::ID>("ID").withDefault("1"),
    Field<&FullscreenSEQRow::UserName>("UserName"),
    Field<&FullscreenSEQRow::FullscreenID>("FullscreenID"),
    Field<&FullscreenSEQRow::DurationTime>("DurationTime").withDefault("15"),
    Field<&FullscreenSEQRow::PatternList>("PatternList"),
    Field<&FullscreenSEQRow::DisplayAll>("DisplayAll")};

inline constexpr std::array VideoWallColumns{Field<&VideoWallTableRow::sLoginUser>("sLoginUser"),
                                             Field<&VideoWallTableRow::VideoWallIndex>("VideoWallIndex"),
                                             Field<&VideoWallTableRow::iSplit>("iSplit"),
                                             Field<&VideoWallTableRow::iLastSplit>("iLastSplit"),
                                             Field<&VideoWallTableRow::iVideoWallPosition>("iVideoWallPosition"),
                                             Field<&VideoWallTableRow::sSEQPatternList>("sSEQPatternList"),
                                             Field<&VideoWallTableRow::iDS_DisplayMode>("iDS_DisplayMode"),
                                             Field<&VideoWallTableRow::iDS_FixDisplayMode>("iDS_FixDisplayMode"),
                                             Field<&VideoWallTableRow::sDS_Pattern>("sDS_Pattern"),
                                             Field<&VideoWallTableRow::sScreenPosition>("sScreenPosition"),
                                             Field<&VideoWallTableRow::Channel>("Channel")};

// The two screen texts have a form of their own and are read and written by the decoder's procedures.
inline constexpr std::array SVDColumns{
    Field<&SVDRecord::iSvdIndex>("iSvdIndex"),
    Field<&SVDRecord::sIP>("sIP"),
    Field<&SVDRecord::sDevicetype>("sDevicetype"),
    Field<&SVDRecord::lHttpPort>("lHttpPort"),
    Field<&SVDRecord::lStreamingPort>("lStreamingPort"),
    Field<&SVDRecord::sUserName>("sUserName"),
    Field<&SVDRecord::sPassword>("sPassword"),
    Field<&SVDRecord::sBrand>("sBrand"),
    Field<&SVDRecord::sModel>("sModel"),
    Field<&SVDRecord::sVersion>("sVersion"),
    Field<&SVDRecord::sDeviceName>("sDeviceName"),
    Field<&SVDRecord::iMaxChSupport>("iMaxChSupport"),
    Field<&SVDRecord::iTimeZone>("iTimeZone"),
    Field<&SVDRecord::iSummerTime>("iSummerTime"),
    Column<SVDRecord>{{"sSVDScreen", FieldType::Text, "''", FieldUse::ByHand}, nullptr, nullptr},
    Column<SVDRecord>{{"sSVDScreen2", FieldType::Text, "''", FieldUse::ByHand}, nullptr, nullptr}};

inline constexpr std::array SVD_CHColumns{
    Column<SVDChannel>{{"iSvdIndex", FieldType::Int16, "0", FieldUse::ByHand}, nullptr, nullptr},
    Field<&SVDChannel::iCamCH>("iCamCH"),
    Field<&SVDChannel::sCamName>("sCamName"),
    Field<&SVDChannel::sCamIP>("sCamIP"),
    Field<&SVDChannel::lCamHttpPort>("lCamHttpPort"),
    Field<&SVDChannel::iCamNVRID>("iCamNVRID"),
    Field<&SVDChannel::iCamNVRCH>("iCamNVRCH"),
    Field<&SVDChannel::iCamAudio>("iCamAudio"),
    Field<&SVDChannel::iCamCapPTZ>("iCamCapPTZ"),
    Field<&SVDChannel::iCamCapPTZSpeedUpper>("iCamCapPTZSpeedUpper"),
    Field<&SVDChannel::iCamCapPTZSpeedLower>("iCamCapPTZSpeedLower"),
    Field<&SVDChannel::iCamCapPTZSpeedStep>("iCamCapPTZSpeedStep"),
    Field<&SVDChannel::iCamCapPTZAutoPan>("iCamCapPTZAutoPan"),
    Field<&SVDChannel::iCamCapPTZMove>("iCamCapPTZMove"),
    Field<&SVDChannel::iCamCapPTZZoom>("iCamCapPTZZoom"),
    Field<&SVDChannel::iCamCapPTZIris>("iCamCapPTZIris"),
    Field<&SVDChannel::iCamCapPTZFocus>("iCamCapPTZFocus"),
    Field<&SVDChannel::iCamCapPTZMoveCont>("iCamCapPTZMoveCont"),
    Field<&SVDChannel::iCamCapPTZZoomCont>("iCamCapPTZZoomCont"),
    Field<&SVDChannel::iCamCapPTZIrisCont>("iCamCapPTZIrisCont"),
    Field<&SVDChannel::iCamCapPTZFocusCont>("iCamCapPTZFocusCont"),
    Field<&SVDChannel::iCamCapAudioIn>("iCamCapAudioIn"),
    Field<&SVDChannel::iCamCapAudioOut>("iCamCapAudioOut"),
    Field<&SVDChannel::sCamLensMode>("sCamLensMode"),
    Field<&SVDChannel::sCamLeftDisplayMode>("sCamLeftDisplayMode"),
    Field<&SVDChannel::sCamRightDisplayMode>("sCamRightDisplayMode"),
    Field<&SVDChannel::sCamAudioOutFMT>("sCamAudioOutFMT"),
    Field<&SVDChannel::iCamAudioOutSampleRate>("iCamAudioOutSampleRate"),
    Field<&SVDChannel::iCamAudioOutChannel>("iCamAudioOutChannel"),
    Field<&SVDChannel::iCamAudioOutLength>("iCamAudioOutLength"),
    Field<&SVDChannel::sCamModeList4FishEye>("sCamModeList4FishEye"),
    Field<&SVDChannel::sCamMode4FishEye>("sCamMode4FishEye"),
    Field<&SVDChannel::sCamModeCapList4FishEye>("sCamModeCapList4FishEye"),
    Field<&SVDChannel::iCamMultiEnable>("iCamMultiEnable"),
    Field<&SVDChannel::iCamMultiNum>("iCamMultiNum"),
    Field<&SVDChannel::iCamMultiDynamicEnable>("iCamMultiDynamicEnable"),
    Field<&SVDChannel::sCamVideoList>("sCamVideoList")};

inline constexpr std::array SVD_PatternColumns{Field<&SVDPatternTableRow::sOwner>("sOwner"),
                                               Field<&SVDPatternTableRow::iSVDIndex>("iSVDIndex"),
                                               Field<&SVDPatternTableRow::iScreenIndex>("iScreenIndex"),
                                               Field<&SVDPatternTableRow::iID>("iID"),
                                               Field<&SVDPatternTableRow::iSplit>("iSplit"),
                                               Field<&SVDPatternTableRow::sCHSequence>("sCHSequence"),
                                               Field<&SVDPatternTableRow::sName>("sName")};
