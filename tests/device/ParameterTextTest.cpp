#include "device/protocol/ParameterText.h"
#include "support/Conversions.h"
#include "tests/TestMain.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

TEST(ParameterTexts, LinesFillTheChannel)
{
    SVRChannel svr;
    CHImageInfoPaser(svr,
                     u"OK\r\ncamera_c4.image.resolution=640x480\r\ncamera_c4.image.liveformat=768\n"
                     "camera_c4.image.fps=15\r\ncamera_c4.image.jpegquality=3\ncamera_c4.image.qualityrange=1,5\n"
                     "camera_c4.image.ratectrlmode=1\ncamera_c4.image.maxbitrate=6\ncamera_c4.image.goplength=30\n"
                     "camera_c4.image.resolutionlist=640x480,320x240;;=x\ncamera_c4.image.formatlist=256;768\n"
                     "camera_c4.image.fpsrange=0,5\ncamera_c4.image.customfpslist=1,2\ncamera_c4.image.customfps=2\n"
                     "camera_c4.image.rotation= 90 "_s);
    EXPECT_THAT(
        (QStringList{svr.sSub_CH_Resolution, svr.sSub_CH_VideoFormat, svr.sCH_Quality_Range, svr.sCH_ResolutionList,
                     svr.sCH_FMTList, svr.sCH_FPS_Range, svr.sCH_FPS_List_Customer, svr.sCH_FPS_Customer}),
        ElementsAre(u"640x480"_s, u"768"_s, u"1,5"_s, u"640x480,320x240;;"_s, u"256;768"_s, u"0,5"_s, u"1,2"_s,
                    u"2"_s));
    EXPECT_THAT((std::vector<qint16>{svr.iCH_FPS, svr.iCH_Quality, svr.iCH_RateCtrl, svr.iCH_BitRate, svr.iCH_GOP,
                                     svr.iCH_Rotation, svr.iCH_MultiStream}),
                ElementsAre(15, 3, 1, 6, 30, 90, -1));

    CHPTZInfoPaser(svr, u"camera_c4.ptz.speedrange=1,9\ncamera_c4.ptz.moverange=8\ncamera_c4.ptz.movecontcap=1\n"
                        "camera_c4.ptz.zoomcontcap=2\ncamera_c4.ptz.focuscontcap=3\ncamera_c4.ptz.iriscontcap=4\n"_s);
    EXPECT_EQ(svr.sCH_PTZ_Speed_Range + svr.sCH_PTZ_PanTilt_Range, u"1,98"_s);
    EXPECT_THAT((std::vector<qint16>{svr.iCH_PTZ_MoveContCap, svr.iCH_PTZ_ZoomContCap, svr.iCH_PTZ_FocusContCap,
                                     svr.iCH_PTZ_IrisContCap}),
                ElementsAre(1, 2, 3, 4));

    CHOnvifInfoPaser(svr,
                     u"camera_c4.onvif.qualityrange=1\ncamera_c4.onvif.jpegfpsrange=2\ncamera_c4.onvif.mpegfpsrange=3\n"
                     "camera_c4.onvif.h264fpsrange=4\ncamera_c4.onvif.jpegresolution=5\n"
                     "camera_c4.onvif.mpegresolution=6\ncamera_c4.onvif.h264resolution=7"_s);
    EXPECT_THAT(
        (QStringList{svr.sCH_Onvif_Quality, svr.sCH_Onvif_JPEG_FPS, svr.sCH_Onvif_MPEG_FPS, svr.sCH_Onvif_H264_FPS,
                     svr.sCH_Onvif_JPEG_Resolution, svr.sCH_Onvif_MPEG_Resolution, svr.sCH_Onvif_H264_Resolution}),
        ElementsAre(u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s));
}

TEST(ParameterTexts, ABadNumberCostsItsKeyAndOneLineOfTheLog)
{
    const TemporaryStation station;
    SVRChannel svr;
    const QString flood = u"camera_c1.image.quality=best\n"_s.repeated(5000);
    CHImageInfoPaser(svr, u"camera_c1.image.fps=15\n"_s + flood + u"camera_c1.image.rotation=1"_s);
    EXPECT_EQ(svr.iCH_FPS, 15);
    EXPECT_EQ(svr.iCH_Quality, -1);
    EXPECT_EQ(svr.iCH_Rotation, 1);
    const QString log = QDir(station.path(u"\\log")).entryList({u"LogSys-*"_s}).value(0);
    EXPECT_EQ(station.read(QString(u"\\log\\"_s + log)).count("CHImageInfoPaser"), 1);
}

TEST(ParameterTexts, CodesAndNames)
{
    TemporaryStation station; // a code that is no number leaves a line in its log
    const std::tuple<QString (*)(const QString&, qint16), QString, qint16, QString> cases[] = {
        {GetFMTNameFromCode, u" 1024 "_s, 0, u"H.264"_s},
        {GetFMTNameFromCode, u"MJPEG"_s, 1, u"256"_s},
        {GetFMTNameFromCode, u"mjpeg"_s, 1, u""_s},
        {GetFMTNameFromCode, u""_s, 1, u""_s},
        {GetFMTNameFromCode, u"768"_s, 2, u""_s},
        {GetFMTNameFromCode, u"767"_s, 0, u""_s},
        {GetFPSMapping, u"0"_s, 0, u"Full"_s},
        {GetFPSMapping, u"full"_s, 1, u"0"_s},
        {GetFPSMapping, u"20"_s, 1, u"5"_s},
        {GetFPSMapping, u""_s, 1, u"-1"_s},
        {GetFPSMapping, u""_s, 0, u""_s},
        {GetFPSMapping, u"99999"_s, 0, u""_s},
        {GetsBitrate, u"8"_s, 0, u"2048K"_s},
        {GetsBitrate, u"1536k"_s, 1, u"7"_s},
        {GetsRateControl, u"1"_s, 0, u"CBR"_s},
        {GetsRateControl, u"VBR"_s, 1, u"0"_s},
        {GetsRateControl, u"vbr"_s, 1, u""_s},
        {GetsRateControl, u"-1"_s, 0, u"N/A"_s},
    };
    for (const auto& [translate, text, mode, result] : cases)
        EXPECT_EQ(translate(text, mode), result) << text.toStdString() << " mode " << mode;
    EXPECT_EQ(GetFPSMapping(u"N/A"_s, 0), QString());
    EXPECT_EQ(station.logs().count("\"Module_PublicFunction - GetFPSMapping\""), 3);

    const std::tuple<QString, qint32, QString> types[] = {{u""_s, 0, u"SVR"_s},
                                                          {u"SVR"_s, 5, u"SVR"_s},
                                                          {u"TXR500"_s, 0, u"SVR"_s},
                                                          {u"OmluPro"_s, 5, u"TXR632"_s},
                                                          {u"OmluPro"_s, 4, u"OmluPro"_s},
                                                          {u"TXR632"_s, 0, u"TXR632"_s},
                                                          {u"svr"_s, 0, u""_s}};
    for (const auto& [source, brand, family] : types)
        EXPECT_EQ(ParameterText::GetsDeviceType(source, brand), family);
}

TEST(ParameterTexts, EscapeAndItsReverse)
{
    const std::pair<QString, QString> cases[] = {
        {u""_s, u""_s},
        {u"azAZ09@*_+-./"_s, u"azAZ09@*_+-./"_s},
        {u"a b%\t~'"_s, u"a%20b%25%09%7E%27"_s},
        {u"Süd\u00ff"_s, u"S%FCd%FF"_s},
        {u"\u0100門"_s, u"%u0100%u9580"_s},
        {u"\U0001F600"_s, u"%uD83D%uDE00"_s},
    };
    for (const auto& [plain, escaped] : cases) {
        EXPECT_EQ(Escape(plain), escaped);
        EXPECT_EQ(Unescape(escaped), plain);
    }
    EXPECT_EQ(Unescape(u"%fc%U0041%u00e9"_s), u"ü%U0041é"_s);
    EXPECT_EQ(Unescape(u"100%|%4|%u12|%zz|%+1|%"_s), u"100%|%4|%u12|%zz|%+1|%"_s);

    TemporaryStation station;
    EXPECT_EQ(Escape(u"the \"big\" gate"_s), QString());
    EXPECT_EQ(Unescape(u"\""_s), QString());
}

TEST(ParameterTexts, Addresses)
{
    for (const QString& good : {u"1.2.3.4"_s, u"01.2.3.4"_s, u"0.0.0.0"_s, u"255.255.255.255"_s, u"+1.2.3.4"_s})
        EXPECT_TRUE(CheckIP(good)) << good.toStdString();
    for (const QString& bad : {u""_s, u"1.2.3"_s, u"1.2.3.4.5"_s, u"1.2.3.256"_s, u"-1.2.3.4"_s, u" 1.2.3.4"_s,
                               u"1.2. 3.4"_s, u"1.2.3."_s, u"a.b.c.d"_s, u"nan.0.0.0"_s, u"1.2.3.4\n"_s})
        EXPECT_FALSE(CheckIP(bad)) << bad.toStdString();
}
