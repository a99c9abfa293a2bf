#include "device/protocol/ReplyParsers.h"
#include "device/protocol/XmlReply.h"
#include "support/Conversions.h"
#include "tests/TestMain.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

namespace {

QByteArray Response(const QByteArray& content)
{
    return R"(<RESPONSE RET="0"><UserData>CMS_Core</UserData>)" + content + "</RESPONSE>";
}

QByteArray Channel(const QByteArray& number, const QByteArray& content)
{
    return R"(<CH ID=")" + number + R"(">)" + content + "</CH>";
}

template <class T>
std::vector<T> OfAll(const SVRProStreams& streams, T SVRProStream::*member)
{
    std::vector<T> values;
    for (const SVRProStream& stream : streams)
        values.push_back(stream.*member);
    return values;
}

class ChannelReplies : public ::testing::Test
{
protected:
    qint16 list(const QByteArray& channels)
    {
        return ParseChannelList(Response("<CHList>" + channels + "</CHList>"), *svr, *pro);
    }
    qint16 probe(const QByteArray& content)
    {
        return ParseDetectedCamera(Response(content), svr->channels[2], pro->channels[2]);
    }
    std::unique_ptr<SVRRecord> svr = std::make_unique<SVRRecord>();
    std::unique_ptr<SVRProRecord> pro = std::make_unique<SVRProRecord>();
};

const QByteArray kFormats =
    R"(<SupportFMT><F FMT="jpeg" QualityLower="1" QualityUpper="10" RateControl="0">)"
    R"(<S FPSLower="1" FPSUpper="25" BPSLower="2" BPSUpper="8">640x480</S><S FPSUpper="30">320x240</S></F>)"
    R"(<F FMT="mpeg4" QualityLower="2" QualityUpper="20" RateControl="1"/>)"
    R"(<F QualityLower="3" QualityUpper="30" RateControl="1" FMT="h264"><S FPSUpper="15">1920x1080</S></F>)"
    R"(<F FMT="JPEG"><S>9x9</S></F></SupportFMT>)";

} // namespace

TEST_F(ChannelReplies, AFullChannelLandsInItsCells)
{
    svr->channels[0].sSub_CH_Name = u"kept"_s;
    svr->channels[1].iCH_Rotation = 90;
    ASSERT_EQ(
        list(Channel("2", R"(<Name>Tor &amp;lt;S&#252;d&amp;gt; "2"</Name><IP>10.0.0.9</IP><HTTPPort>70000</HTTPPort>
        <StartConfig>x</StartConfig><System><UserName>root</UserName><Password>p&lt;&amp;w</Password>
        <Manufacturer>m</Manufacturer><Model>M1</Model><MACAddress>00:11</MACAddress><NumberVideo>4</NumberVideo>
        <VideoNumber> 2 </VideoNumber><RtspPort>65536</RtspPort><BrandCode>55</BrandCode><NumberDI>?</NumberDI></System>
        <Video><FMT>h264</FMT><Size>640x480</Size><FPS>15</FPS><Quality>3</Quality><RateControl>1</RateControl>
        <Bitrate>6</Bitrate><GOP>30</GOP><LensMode>L</LensMode><LeftDisplayMode>a</LeftDisplayMode>
        <FMTList>jpeg mpeg4 h264</FMTList><LensModeList><V>L</V><V>R</V></LensModeList><RightDisplayModeList/>)" +
                              kFormats + R"(</Video><Audio><FMT>g711</FMT></Audio><PTZ><PTZEnable>1</PTZEnable>
        <PTZABS>-1</PTZABS><AutoPan>2</AutoPan><SpeedLower>1</SpeedLower><SpeedUpper>9</SpeedUpper>
        <SpeedStep>2</SpeedStep><MoveCont>1</MoveCont><ZoomCont>2</ZoomCont><FocusCont>3</FocusCont>
        <IrisCont>4</IrisCont><SyncPreset>1</SyncPreset><Move> 08</Move><SetPreset>1</SetPreset>
        <ModeList4FishEye>1O:1,2,3</ModeList4FishEye><Mode4FishEye>1O</Mode4FishEye></PTZ>)")),
        1);
    const SVRChannel& read = svr->channels[1];
    const SVRProChannel& device = pro->channels[1];
    EXPECT_EQ(svr->channels[0].sSub_CH_Name, u"kept"_s);
    EXPECT_EQ(read.sSub_CH_Name, u"Tor <Süd&gt; \"2\""_s);
    EXPECT_EQ(read.sSub_CH_Password, u"p<&w"_s);
    EXPECT_THAT((std::vector<qint32>{read.iSub_CH_HttpPort, device.lCH_Pro_RTPSPort, read.iSub_CH_VideoIDCount,
                                     read.iSub_CH_VideoID, read.iSub_CH_Brand, read.iCH_FPS, read.iCH_Quality,
                                     read.iCH_RateCtrl, read.iCH_BitRate, read.iCH_GOP, read.iCH_Rotation}),
                ElementsAre(70000, 65536, 4, 2, 55, 15, 3, 1, 6, 30, 90));
    EXPECT_THAT((std::vector<qint16>{read.iCH_PTZ_MoveContCap, read.iCH_PTZ_ZoomContCap, read.iCH_PTZ_FocusContCap,
                                     read.iCH_PTZ_IrisContCap}),
                ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(
        (QStringList{read.sSub_CH_IP, read.sSub_CH_UserName, device.sCH_Pro_Model, device.sCH_Pro_Mac,
                     read.sSub_CH_VideoFormat, read.sSub_CH_Resolution, device.sCH_Pro_LensMode,
                     device.sCH_Pro_LeftDisplayMode, device.sCH_Pro_AudioType}),
        ElementsAre(u"10.0.0.9"_s, u"root"_s, u"M1"_s, u"00:11"_s, u"h264"_s, u"640x480"_s, u"L"_s, u"a"_s, u"g711"_s));
    EXPECT_THAT((QStringList{read.sCH_FMTList, device.sCH_Pro_LensModeList, device.sCH_Pro_RightDisplayModeList,
                             read.sCH_ResolutionList, read.sCH_PTZ_Speed_Range, read.sCH_PTZ_PanTilt_Range,
                             read.sSub_CH_MD_FishEyeModeList, read.sSub_CH_Mode4FishEye}),
                ElementsAre(u"jpeg,mpeg4,h264"_s, u"L,R"_s, u""_s, u"640x480,320x240;;1920x1080"_s, u"1,9,2"_s, u"8"_s,
                            u"1O:1,2,3"_s, u"1O"_s));
    EXPECT_TRUE(read.bSub_CH_PTZ && device.bCH_Pro_ABS && device.bCH_Pro_SetPreset);
    EXPECT_EQ(device.iCH_Pro_AutoPanMode, 2);
    EXPECT_EQ(device.iCH_Pro_SyncPreset, 1);
}

TEST_F(ChannelReplies, FormatAttributesLandInTheSlotThatThePreviousFormatLeft)
{
    ASSERT_EQ(list(Channel("1", "<Video>" + kFormats + "</Video>")), 1);
    const SVRProStreams& formats = pro->channels[0].streams;
    // jpeg and mpeg4 both in slot 0, h264 in slot 1; only the sizes go by the format's own name.
    EXPECT_THAT(OfAll(formats, &SVRProStream::iQualityLower), ElementsAre(2, 3, -1));
    EXPECT_THAT(OfAll(formats, &SVRProStream::iQualityUpper), ElementsAre(20, 30, -1));
    EXPECT_THAT(OfAll(formats, &SVRProStream::bRateControlCap), ElementsAre(true, true, false));
    EXPECT_THAT(OfAll(formats, &SVRProStream::sResolutionList),
                ElementsAre(u"640x480,320x240"_s, u""_s, u"1920x1080"_s));
    EXPECT_THAT(formats[0].iFPSLower, ElementsAre(1, 0));
    EXPECT_THAT(formats[0].iFPSUpper, ElementsAre(25, 30));
    EXPECT_THAT(formats[0].iBPSUpper, ElementsAre(8, 0));
    EXPECT_THAT(formats[2].iFPSUpper, ElementsAre(15));

    // A new reading starts from empty lists and one bound, also for what it does not mention.
    ASSERT_EQ(list(Channel("1", "<Video/>")), 1);
    EXPECT_EQ(svr->channels[0].sCH_ResolutionList, u";;"_s);
    for (const auto bounds :
         {&SVRProStream::iFPSLower, &SVRProStream::iFPSUpper, &SVRProStream::iBPSLower, &SVRProStream::iBPSUpper})
        EXPECT_THAT(OfAll(formats, bounds), ElementsAre(ElementsAre(0), ElementsAre(0), ElementsAre(0)));
    EXPECT_THAT(OfAll(formats, &SVRProStream::iQualityUpper), ElementsAre(20, 30, -1));

    qint16 slot = 1;
    ParseSupportFmt(pro->channels[0].streams, pugi::xml_node(), slot);
    EXPECT_EQ(slot, 1);
}

TEST_F(ChannelReplies, OrderOfAudioAndSpeedElementsMatters)
{
    const std::pair<const char*, qint16> cases[] = {
        {"<CapAudioIn>1</CapAudioIn><CapAudioOut>0</CapAudioOut>", 1},
        {"<CapAudioIn>1</CapAudioIn><CapAudioOut>1</CapAudioOut>", 2},
        {"<CapAudioOut>1</CapAudioOut><CapAudioIn>1</CapAudioIn>", 1},
        {"<CapAudioOut>1</CapAudioOut><CapAudioIn>yes</CapAudioIn>", 0},
        {"<CapAudioOut>0</CapAudioOut>", 7},
    };
    for (const auto& [audio, result] : cases) {
        svr->channels[0].iSub_CH_Audio = 7;
        ASSERT_EQ(list(Channel("1", "<Audio>" + QByteArray(audio) + "</Audio>")), 1);
        EXPECT_EQ(svr->channels[0].iSub_CH_Audio, result) << audio;
    }
    ASSERT_EQ(
        list(Channel("1", "<PTZ><SpeedLower>1</SpeedLower><SpeedUpper>9</SpeedUpper><SpeedStep>1</SpeedStep></PTZ>") +
             Channel("2", "<PTZ><SpeedStep>3</SpeedStep><SpeedUpper>5</SpeedUpper></PTZ>")),
        1);
    EXPECT_EQ(svr->channels[1].sCH_PTZ_Speed_Range, u"1,9,3"_s); // bounds of the channel before
}

TEST_F(ChannelReplies, FailuresLeaveWhatWasNotRead)
{
    svr->channels[0].sSub_CH_Name = u"kept"_s;
    pro->channels[0].streams[0].sResolutionList = u"kept"_s;
    for (const char* reply :
         {R"(<RESPONSE RET="3"><CHList><CH ID="1"><Name>x</Name></CH></CHList></RESPONSE>)",
          R"(<RESPONSE><CHList><CH ID="1"><Name>x</Name></CH></CHList></RESPONSE>)",
          R"(<RESPONSE RET="0"><CHList><CH ID="1"><Name>x</Name></CH></CHList>)", "", "OK", "<a/>"}) {
        EXPECT_EQ(ParseChannelList(QByteArray(reply), *svr, *pro), 0) << reply;
        EXPECT_EQ(svr->channels[0].sSub_CH_Name + pro->channels[0].streams[0].sResolutionList, u"keptkept"_s) << reply;
    }
    for (const char* channel :
         {R"(<CH ID="65"/>)", R"(<CH ID="0"/>)", R"(<CH ID="x"/>)", "<CH/>",
          R"(<CH ID="3"><Name>read</Name><Video><FPS>many</FPS></Video></CH>)",
          R"(<CH ID="3"><Video><FPS>40000</FPS></Video></CH>)", R"(<CH ID="3"><Video><GOP></GOP></Video></CH>)"})
        EXPECT_THROW(list(channel), ConversionError) << channel;
    EXPECT_EQ(svr->channels[2].sSub_CH_Name, u"read"_s);
}

TEST_F(ChannelReplies, NamesAndListsAreCapped)
{
    const QByteArray name(1'000'000, 'n');
    ASSERT_EQ(
        list(Channel("1", "<Name>" + name + "</Name><System><Model>" + name + "</Model></System><Video><FMTList>" +
                              name + "</FMTList><LensModeList><M>" + name + "</M></LensModeList></Video>")),
        1);
    EXPECT_EQ(svr->channels[0].sSub_CH_Name.size(), 255);
    EXPECT_EQ(pro->channels[0].sCH_Pro_Model.size(), 255);
    EXPECT_EQ(svr->channels[0].sCH_FMTList.size(), 65536);
    EXPECT_EQ(pro->channels[0].sCH_Pro_LensModeList.size(), 65536);
}

TEST_F(ChannelReplies, AProbeFillsTheStreamSlots)
{
    SVRProStreams& streams = pro->channels[2].streams;
    for (SVRProStream& stream : streams) {
        stream.sFMT = u"old"_s;
        stream.iGOP = 5;
    }
    svr->channels[2].sCH_ResolutionList = u"kept"_s;
    ASSERT_EQ(probe("<System><BrandCode>20</BrandCode></System><Video>" + kFormats + R"(<CurrentSettingsList>
        <S><FMT>H264</FMT><Size>1920x1080</Size><FPS>15</FPS><Quality>4</Quality><RateControl>CBR</RateControl>
        <Bitrate>7</Bitrate><GOP>0</GOP></S>
        <S><FMT>mjpeg</FMT><Size>640x480</Size></S></CurrentSettingsList></Video>
        <PTZ><Zoom>1</Zoom><Focus>2</Focus><Iris>3</Iris><MoveCont>9</MoveCont><Move>4</Move></PTZ>)"),
              0);
    EXPECT_THAT(OfAll(streams, &SVRProStream::sFMT),
                ElementsAre(u"mjpeg"_s, u""_s, u"H264"_s)); // two streams: slots 0 and 1 were cleared
    EXPECT_THAT(OfAll(streams, &SVRProStream::sResolution), ElementsAre(u"640x480"_s, u""_s, u"1920x1080"_s));
    EXPECT_THAT(OfAll(streams, &SVRProStream::sRateControl), ElementsAre(u"-1"_s, u"-1"_s, u"CBR"_s));
    EXPECT_THAT(OfAll(streams, &SVRProStream::iFrameRate), ElementsAre(-1, -1, 15));
    EXPECT_THAT(OfAll(streams, &SVRProStream::iGOP), ElementsAre(-1, -1, 0));
    EXPECT_THAT(OfAll(streams, &SVRProStream::bGOPCap), ElementsAre(false, true, false));
    EXPECT_EQ(streams[2].sResolutionList, u"1920x1080"_s);
    EXPECT_EQ(svr->channels[2].sCH_ResolutionList, u"kept"_s);
    EXPECT_EQ(svr->channels[2].iSub_CH_Brand, 20);
    EXPECT_THAT((std::vector<qint16>{svr->channels[2].iCH_PTZ_ZoomContCap, svr->channels[2].iCH_PTZ_FocusContCap,
                                     svr->channels[2].iCH_PTZ_IrisContCap, svr->channels[2].iCH_PTZ_MoveContCap}),
                ElementsAre(1, 2, 3, 0));

    ASSERT_EQ(probe("<CH><System><BrandCode>21</BrandCode></System></CH>"), 0); // one wrapper deeper
    EXPECT_EQ(svr->channels[2].iSub_CH_Brand, 21);
    EXPECT_EQ(ParseDetectedCamera(QByteArray(R"(<RESPONSE RET="5"/>)"), svr->channels[2], pro->channels[2]), 5);
    EXPECT_EQ(ParseDetectedCamera(QByteArray("<RESPONSE"), svr->channels[2], pro->channels[2]), -100);
}

TEST(Replies, RecorderFacts)
{
    SVRRecord svr;
    ParseSystemInfo(Response("<Name>NVR</Name><IP>1</IP><HTTPPort>8080</HTTPPort><Port>554</Port>"
                             "<DSTEnable>1</DSTEnable><TimeZone>29</TimeZone>"),
                    svr);
    EXPECT_EQ(svr.sSVR_Name, u"NVR"_s);
    EXPECT_EQ(svr.sSVR_IP, QString());
    EXPECT_THAT((std::vector<qint32>{svr.iSVR_HttpPort, svr.iSVR_VideoPort, svr.iSVR_SummerTime, svr.iSVR_TimeZoneNum}),
                ElementsAre(8080, 554, -1, 29));
    ParseTimeSettings(Response("<Time>x</Time><TimeZone>7</TimeZone><SummerTime>2</SummerTime>"), svr);
    EXPECT_THAT((std::vector<qint16>{svr.iSVR_SummerTime, svr.iSVR_TimeZoneNum}), ElementsAre(2, 7));
    ParseTimeSettings(QByteArray("no xml"), svr);
    EXPECT_EQ(svr.iSVR_TimeZoneNum, 7);

    DeviceInfo info;
    ParseDeviceInfo(Response("<Brand>B</Brand><Model>M</Model><URL>/</URL><CMDVersion>1.4</CMDVersion>"
                             "<InternalModel>I</InternalModel><InternalVersion>V</InternalVersion>"
                             "<DeviceType>D</DeviceType><MaxChSupport>32</MaxChSupport><InputPort>1</InputPort>"
                             "<OutputPort>70000</OutputPort>"),
                    info);
    EXPECT_THAT((QStringList{info.Brand, info.Model, info.URL, info.CMDVersion, info.InternalModel,
                             info.InternalVersion, info.DeviceType}),
                ElementsAre(u"B"_s, u"M"_s, u"/"_s, u"1.4"_s, u"I"_s, u"V"_s, u"D"_s));
    EXPECT_THAT((std::vector<qint32>{info.MaxChSupport, info.InputPort, info.OutputPort}), ElementsAre(32, 1, 70000));
}

TEST(Replies, FoundCamerasStandDirectlyOrInAWrapper)
{
    const QByteArray devices = "<Device><IP>1</IP><NetMask>2</NetMask><Manufacturer>3</Manufacturer><Model>4</Model>"
                               "<DeviceName>5</DeviceName><MACAddress>6</MACAddress><HTTPPort>70000</HTTPPort>"
                               "<DeviceType>8</DeviceType></Device><Device><IP>9</IP></Device>";
    for (const QByteArray& reply : {Response(devices), Response("<DeviceList>" + devices + "</DeviceList>")}) {
        std::vector<FoundCamera> found;
        ParseSearchResult(reply, found);
        ASSERT_EQ(found.size(), 2u);
        EXPECT_THAT((QStringList{found[0].IP, found[0].NetMask, found[0].Manufacturer, found[0].Model,
                                 found[0].DeviceName, found[0].MACAddress, found[1].IP}),
                    ElementsAre(u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"9"_s));
        EXPECT_EQ(found[0].HTTPPort, 70000);
        EXPECT_EQ(found[0].DeviceType, 8);
        ParseSearchResult(QByteArray(), found);
        ASSERT_EQ(found.size(), 1u);
        EXPECT_EQ(found[0].IP, QString());
    }
}

TEST(Replies, PresetsPositionsAndSequences)
{
    QByteArray presets;
    for (int number = 1; number <= 9; ++number)
        presets += "<Preset ID=\"" + QByteArray::number(number) + "\"><Name>P&amp;amp;" + QByteArray::number(number) +
                   "</Name><PTZABS>1</PTZABS><Pan>1.5</Pan><Tilt>2</Tilt><Zoom>3</Zoom><Focus>4</Focus></Preset>";
    PresetRecord record;
    EXPECT_EQ(ParsePresetList(Response("<PresetList>" + presets + "</PresetList>"), record), 1);
    const PresetEntry& last = record.Presets[7];
    EXPECT_EQ(last.ID, 8);
    EXPECT_TRUE(last.PTZABS);
    EXPECT_THAT((QStringList{last.Name, last.Pan, last.Tilt, last.Zoom, last.Focus}),
                ElementsAre(u"P&8"_s, u"1.5"_s, u"2"_s, u"3"_s, u"4"_s));
    EXPECT_EQ(ParsePresetList(QByteArray("x"), record), -1);

    EXPECT_EQ(ParsePresetSeq(Response(R"(<CHList><CH ID="1"><SeqList><Seq ID="1"><PresetList>
                                         <Preset ID="4" DwellTime="15"/><Preset ID="1" DwellTime="20"/>
                                         </PresetList></Seq></SeqList></CH></CHList>)")),
              u"4,15,1,20;"_s);
    EXPECT_EQ(ParsePresetSeq(QByteArray()), QString());

    const PositionRecord position =
        ParsePtzPosition(Response("<CH>3</CH><Pan>1</Pan><Tilt>-2</Tilt><Zoom>x</Zoom><Focus/>"));
    EXPECT_EQ(position.CH, 3);
    EXPECT_THAT((QStringList{position.Pan, position.Tilt, position.Zoom, position.Focus}),
                ElementsAre(u"1"_s, u"-2"_s, u"x"_s, u""_s));
    EXPECT_EQ(ParseFishEyeMode(Response("<Mode4FishEye>1<!-- x -->P <![CDATA[<&]]><i>2</i>3</Mode4FishEye>")),
              u"1P <&23"_s);
}

TEST(Replies, ActionsAreReadByAttributeName)
{
    std::vector<ActionRecord> actions(5);
    EXPECT_EQ(ParseActionList(Response(R"(<ActionList><Action Enable="1" Event="70000" CH="3" ActionGroup="2"
        TriggerID="4" DigitalOut="5" Preset="6" DigitalOutID="7" DigitalOutState="8" DODuration="9" PresetDest="10"
        Later="x"/><Action CH="4"/></ActionList>)"),
                              actions),
              1);
    ASSERT_EQ(actions.size(), 2u);
    const ActionRecord& row = actions[0];
    EXPECT_THAT(
        (std::vector<qint32>{row.CH, row.Event, row.ActionGroup, row.TriggerID, row.DigitalOut, row.Preset,
                             row.DigitalOutID, row.DigitalOutState, row.DODuration, row.PresetDest, row.Enable}),
        ElementsAre(3, 70000, 2, 4, 5, 6, 7, 8, 9, 10, 1));
    EXPECT_EQ(ParseActionList(QByteArray("<RESPONSE/>"), actions), -1);
    EXPECT_EQ(actions.size(), 2u);
    EXPECT_EQ(ParseApplyResult(QByteArray(R"(<RESPONSE RET="1"><CHList><CH ID="2" MDRet="1"/></CHList></RESPONSE>)")),
              QString());
}

TEST(Replies, Decoders)
{
    SVDRecord svd;
    ParseSvdChannelInfo(Response("<CHList>" + Channel("64", R"(<Name>A&amp;amp;B</Name><HTTPPort>70000</HTTPPort>
        <CapPTZ>1</CapPTZ><CapPTZMoveCont>2</CapPTZMoveCont><AudioOutLength>3</AudioOutLength><MultiNum>4</MultiNum>
        <VideoList><V ID="2"><FMT>h264</FMT><Size>CIF</Size></V><V ID="1"><FMT>jpeg</FMT></V></VideoList>)") +
                                 "</CHList>"),
                        svd);
    const SVDChannel& channel = svd.Channels[63];
    EXPECT_EQ(channel.sCamName, u"A&B"_s);
    EXPECT_THAT((std::vector<qint32>{channel.iCamCH, channel.lCamHttpPort, channel.iCamCapPTZ,
                                     channel.iCamCapPTZMoveCont, channel.iCamAudioOutLength, channel.iCamMultiNum}),
                ElementsAre(64, 70000, 1, 2, 3, 4));
    ASSERT_EQ(channel.VideoList.size(), 2u);
    EXPECT_EQ(channel.VideoList[1].Size, u"CIF"_s);
    EXPECT_EQ(channel.VideoList[0].FMT, u"jpeg"_s);
    const auto channels = [&](const QByteArray& content) {
        ParseSvdChannelInfo(Response("<CHList>" + content + "</CHList>"), svd);
    };
    EXPECT_THROW(channels(Channel("65", "")), ConversionError);
    EXPECT_THROW(channels(Channel("1", R"(<VideoList><V ID="2"/></VideoList>)")), ConversionError);

    ParseSvdChannels(
        Response("<CHList>" + Channel("64", "<NVRID>2</NVRID><NVRCH>7</NVRCH><Audio>1</Audio>") + "</CHList>"), svd);
    EXPECT_THAT((std::vector<qint16>{channel.iCamNVRID, channel.iCamNVRCH, channel.iCamAudio}), ElementsAre(2, 7, 1));

    ParseSvdSystemInfo(Response("<Language>x</Language><TimeZone>5</TimeZone><DSTEnable>2</DSTEnable>"
                                "<DSTIndex>3</DSTIndex><HTTPPort>70000</HTTPPort>"),
                       svd);
    EXPECT_THAT((std::vector<qint32>{svd.iTimeZone, svd.iSummerTime, svd.iSummerTimeIndex, svd.lHttpPort}),
                ElementsAre(5, 2, 3, 70000));

    ParseSvdResolutions(
        Response("<ResolutionList><Resolution>4</Resolution><Resolution>6</Resolution></ResolutionList>"), 2, svd);
    EXPECT_THAT(svd.Screens[1].ResolutionCodes, ElementsAre(4, 6));
    EXPECT_THROW(ParseSvdResolutions(Response(""), 3, svd), ConversionError);

    ParseSvdScreens(Response(R"(<ScreenList><Screen ID="1"><Resolution>2</Resolution></Screen>
                                <Screen ID="2"><Resolution>3</Resolution></Screen></ScreenList>)"),
                    svd);
    EXPECT_EQ(svd.iScreenCount, 2);
    EXPECT_EQ(svd.Screens[1].ResolutionCode, 3);
    ParseSvdScreens(Response(R"(<ScreenList><Screen ID="2"><Resolution>0</Resolution></Screen></ScreenList>)"), svd);
    EXPECT_EQ(svd.iScreenCount, 0);
    EXPECT_EQ(svd.Screens[1].ResolutionCode, 0); // pulled out since
}

TEST(Replies, HostileTextsEndInTheFailureValue)
{
    const auto svr = std::make_unique<SVRRecord>();
    const auto pro = std::make_unique<SVRProRecord>();
    const auto nested = [](int depth) {
        return Response(QByteArray("<CHList><CH ID=\"1\"><Name>") + QByteArray("<a>").repeated(depth) + "deep" +
                        QByteArray("</a>").repeated(depth) + "</Name></CH></CHList>");
    };
    EXPECT_EQ(ParseChannelList(nested(190'000), *svr, *pro), 1);
    EXPECT_EQ(svr->channels[0].sSub_CH_Name, u"deep"_s);
    EXPECT_EQ(ParseChannelList(nested(210'000), *svr, *pro), 0); // too much markup
    EXPECT_EQ(ParseChannelList(Response("<a" + QByteArray(" b=\"\"").repeated(400'001) + "/>"), *svr, *pro), 0);
    EXPECT_EQ(ParseChannelList(Response(QByteArray(kMaxReplySize, 'x')), *svr, *pro), 0);
    EXPECT_EQ(ParseChannelList(QString(kMaxReplySize + 1, u' '), *svr, *pro), 0);

    // No entity of the document's own is expanded, and bytes that are not UTF-8 are Latin-1.
    EXPECT_EQ(ParseFishEyeMode(QByteArray("<!DOCTYPE x [<!ENTITY e \"boom\">]><RESPONSE RET=\"0\"><Mode4FishEye>&e;\xE9"
                                          "</Mode4FishEye></RESPONSE>")),
              u"&e;é"_s);
}

TEST(Replies, XmlTextDecodesInOneFixedOrder)
{
    EXPECT_EQ(XmlText(0, u"&amp;lt;&lt;&amp;quot;&gt;&apos;"_s), u"&lt;<\"&gt;&apos;"_s);
    EXPECT_EQ(XmlText(1, u"<a & \"b\">'"_s), u"&lt;a &amp; &quot;b&quot;>'"_s);
}
