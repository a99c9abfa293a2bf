#include "device/protocol/Module_XML.h"
#include "support/Conversions.h"
#include "tests/Await.h"
#include "tests/TestMain.h"

#include <QMap>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

namespace {

// In the order of the request.
ChannelSettings FullChannel()
{
    return {3,        u"Gate 2 & Süd"_s, u"10.0.0.9"_s, 70000, u"root"_s, u"a<b"_s, 1, 55, u"M1"_s, u"00:11"_s, 554,
            0,        u"h264"_s,         u"640x480"_s,  15,    -1,        1,        5, 30, u"L"_s,  u"D1"_s,    u"D2"_s,
            u"g711"_s};
}

std::vector<ActionRecord> Actions()
{
    return {{.CH = 2, .Event = 2001, .Enable = 1},
            {.CH = 1, .Event = 2001, .Enable = 0},
            {3, 1, 2, 3, 4, 5, 6, 7, 8, 9, 1}};
}

PresetRecord Presets()
{
    PresetRecord record;
    record.Presets[0] = {1, u"Gate"_s, u"10"_s, u"-5"_s, u"2"_s, u"0"_s, 64, true, false};
    record.Presets[1] = {2, u"Gone"_s, {}, {}, {}, {}, 64, false, true};
    record.Presets[2] = {3, u"Other channel's"_s, {}, {}, {}, {}, 63, false, false};
    record.Presets[7] = {8, u"Yard"_s, {}, {}, {}, {}, 64, false, false};
    return record;
}

const QString kRefused = u"<RESPONSE RET=\"-4\"/>"_s;
const QString kDone = u"<RESPONSE RET=\"0\"/>"_s;

} // namespace

TEST(Requests, GoOutByteForByte)
{
    std::vector<SVRRecord> recorders(2);
    recorders[1].iSVR_Maxchannel = 2;
    std::vector<PresetRecord> presets(64);
    presets[63] = Presets();

    const std::pair<QString, const char*> cases[] = {
        {BuildGetSystemInfo(), R"(<CMD ID="4100"><UserData>CMS_Core</UserData><Param></Param></CMD>)"},
        {BuildGetDeviceInfo(), R"(<CMD ID="40965" />)"},
        {BuildGetTime(), R"(<CMD ID="35844"></CMD>)"},
        {BuildSaveConfig(kSaveChannels), R"(<CMD ID="40963"><Param><Type>7</Type></Param></CMD>)"},
        {BuildGetChannels(false, 3),
         R"(<CMD ID="24582"><UserData>CMS_Core</UserData><Param><CHList><CH>1</CH><CH>2</CH>)"
         R"(<CH>3</CH></CHList></Param></CMD>)"},
        {BuildGetChannels(true, 3),
         R"(<CMD ID="24582"><UserData>CMS_Core</UserData><Param><CHList><CH>3</CH></CHList></Param></CMD>)"},
        {BuildSetChannel(FullChannel()),
         R"(<CMD ID="24581"><UserData>CMS_Core</UserData><Param><CH>3</CH><Name>Gate%202%20%26%20S%FCd</Name>)"
         R"(<IP>10.0.0.9</IP><HTTPPort>70000</HTTPPort><UserName>root</UserName><Password>a<b</Password>)"
         R"(<VideoNumber>1</VideoNumber><BrandCode>55</BrandCode><Model>M1</Model><MACAddress>00:11</MACAddress>)"
         R"(<RtspPort>554</RtspPort><StartConfig>0</StartConfig><Video><FMT>h264</FMT><Size>640x480</Size>)"
         R"(<FPS>15</FPS><Quality>-1</Quality><RateControl>1</RateControl><Bitrate>5</Bitrate><GOP>30</GOP>)"
         R"(<LensMode>L</LensMode><LeftDisplayMode>D1</LeftDisplayMode><RightDisplayMode>D2</RightDisplayMode>)"
         R"(</Video><Audio><FMT>g711</FMT></Audio></Param></CMD>)"},
        {BuildClearChannel(12), R"(<CMD ID="24581"><UserData>CONFIG_AP</UserData><Param><CH>12</CH></Param></CMD>)"},
        {BuildSearchCameras(), R"(<CMD ID="8194" />)"},
        {BuildDetectCamera(u"cam"_s, 80, u"u"_s, u"p"_s, 2),
         R"(<CMD ID="8193"><Param><IP>cam</IP><HTTPPort>80</HTTPPort><UserName>u</UserName><Password>p</Password>)"
         R"(<VideoNumber>2</VideoNumber></Param></CMD>)"},
        {BuildGetFishEyeMode(0), R"(<CMD ID="12302" ><UserData>CMS_Core</UserData><Param><CH>1</CH></Param></CMD>)"},
        {BuildPtz(kPtzButtons[11].id, 4, kPtzButtons[11].direction, 5, 1, u"left"_s),
         R"(<CMD ID="12291"><Param><CH>5</CH><Target>left</Target><Direction>2</Direction><Speed>5</Speed>)"
         R"(<Cont>1</Cont></Param></CMD>)"},
        {BuildPtzStop(4, true, {}),
         R"(<CMD ID="12290"><Param><CH>5</CH><Direction>1</Direction><Speed>1</Speed><Cont>2</Cont></Param></CMD>)"},
        {BuildGetPtzPosition(1), R"(<CMD ID="12297" ><UserData>CMS_Core</UserData><Param><CH>2</CH></Param></CMD>)"},
        {BuildGetPresetList(63), R"(<CMD ID="4101" ><UserData>CMS_Core</UserData><Param><CH>64</CH></Param></CMD>)"},
        {BuildGotoPreset(0, 8, 3),
         R"(<CMD ID="12294" ><UserData>CMS_Core</UserData><Param><CH>1</CH><Preset>8</Preset>)"
         R"(<Speed>3</Speed></Param></CMD>)"},
        {BuildSetPresetName(0, 7, u"  North gate "_s),
         R"(<CMD ID="12301" ><UserData>CMS_Core</UserData><Param><CH>1</CH><ID>8</ID><Name>North gate</Name>)"
         R"(</Param></CMD>)"},
        {BuildSetPresetList(presets, 63),
         R"(<CMD ID="32814"><UserData>CMS_Core</UserData><Param><CH>64</CH><PresetList>)"
         R"(<Preset Name="Gate" PTZABS="1" Pan="10" Tilt="-5" Zoom="2" Focus="0" Description="">1</Preset>)"
         R"(<Preset Name="Yard" PTZABS="0" Pan="" Tilt="" Zoom="" Focus="" Description="">8</Preset>)"
         R"(</PresetList></Param></CMD>)"},
        {BuildGetPresetSeq(2), R"(<CMD ID="32858" ><Param><CHList><CH>3</CH></CHList></Param></CMD>)"},
        {BuildSetPresetSeq(2, u"4,1"_s, 15),
         R"(<CMD ID="32859"><UserData>CMS_Core</UserData><Param><CHList><CH ID="3"><SeqList><Seq ID="1"><PresetList>)"
         R"(<Preset ID="4" DwellTime="15"/><Preset ID="1" DwellTime="15"/></PresetList></Seq></SeqList></CH></CHList>)"
         R"(</Param></CMD>)"},
        {BuildSetPresetSeq(2, u"4"_s, 15), ""},
        {BuildSetPresetSeq(2, u","_s, 15), ""}, // which would clear the device's sequence
        {BuildGetActionList(), R"(<CMD ID="32777" ></CMD>)"},
        {BuildSetActionList(std::vector(1, Actions().back())),
         "<CMD ID=\"32775\"><Param><ActionList><Action CH=\"3\" Event=\"1\" ActionGroup=\"2\" TriggerID=\"3\" "
         "DigitalOut=\"4\" Preset=\"5\" DigitalOutID=\"6\" DigitalOutState=\"7\" DODuration=\"8\" PresetDest=\"9\" "
         "Enable=\"1\"/>\r\n</ActionList></Param></CMD>"},
        {BuildSetMotionDetect(recorders, 1, Actions()),
         "<CMD ID=\"32788\"><Param><MotionDetectList><MotionDetect CH=\"1\" Enable=\"0\" CameraEnable =\"0\" "
         "AlarmInterval =\"0\" AlarmLevel = \"0\" History =\"0\" Sensitivity=\"0\"/>\r\n<MotionDetect CH=\"2\" "
         "Enable=\"0\" CameraEnable =\"1\" AlarmInterval =\"0\" AlarmLevel = \"0\" History =\"0\" "
         "Sensitivity=\"0\"/>\r\n</MotionDetectList></Param></CMD>"},
        {BuildGetMotionDiResult(), R"(<CMD ID="4113" />)"},
        {BuildQueryEventLog(u"1"_s, u"2"_s, u"<CHList><CH>0</CH></CHList>"_s, u"<TypeList><Type>0</Type></TypeList>"_s,
                            100, u"<X>1</X>"_s),
         R"(<CMD ID="16389"><UserData><X>1</X></UserData><Param><Order>1</Order><BeginTime>1</BeginTime>)"
         R"(<EndTime>2</EndTime><CHList><CH>0</CH></CHList><TypeList><Type>0</Type></TypeList><Count>100</Count>)"
         R"(</Param></CMD>)"},
        {BuildSvdChannelInfo(),
         R"(<CMD ID="24577"><UserData>CMS_Core</UserData><Param><CHList></CHList></Param></CMD>)"},
        {BuildGetSvdResolutions(2), R"(<CMD ID="4198402"><Param><Screen>2</Screen></Param></CMD>)"},
        {BuildGetSvdScreens(), R"(<CMD ID="4198422"/>)"},
        {BuildGetSvdChannels(), R"(<CMD ID="4202501"/>)"},
    };
    for (const auto& [built, expected] : cases)
        EXPECT_EQ(built.toStdString(), expected);
}

TEST(Requests, ChannelsAndRecordersOutOfRangeAreRefused)
{
    std::vector<SVRRecord> recorders(1);
    recorders[0].iSVR_Maxchannel = 65;
    const std::vector<PresetRecord> presets(64);
    for (const qint16 channel : {qint16(-1), qint16(64)}) {
        EXPECT_THROW(BuildGetPresetList(channel), ConversionError);
        EXPECT_THROW(BuildPtz(CMD_PTZ_MOVE, channel, 1, 1, 1, {}), ConversionError);
        EXPECT_THROW(BuildSetPresetList(presets, channel), ConversionError);
        EXPECT_THROW(BuildSetPresetSeq(channel, u"1,2"_s, 5), ConversionError);
    }
    EXPECT_THROW(BuildSetMotionDetect(recorders, 1, {}), ConversionError);
    EXPECT_THROW(BuildSetMotionDetect(recorders, 0, {}), ConversionError);
}

TEST(Requests, OutcomeOfAWrite)
{
    const std::tuple<const char*, qint16, bool> cases[] = {
        {R"(<RESPONSE RET="0"><UserData>CMS_Core</UserData></RESPONSE>)", 1, true},
        {R"(<?xml version="1.0" encoding="gb2312"?><RESPONSE Time="9" RET="0"/>)", 1, true},
        {R"(<RESPONSE RET="5"/>)", 5, true},
        {R"(<RESPONSE RET="-4"/>)", -4, false},
        {R"(<RESPONSE RET="70000"/>)", -1, false},
        {R"(<RESPONSE Time="0"/>)", -1, false},
        {R"(<RESPONSE RET="0">)", -1, false},
        {R"(<OTHER RET="0"/>)", -1, false},
        {"-7", -1, false},
        {"", -1, false},
    };
    for (const auto& [reply, outcome, accepted] : cases) {
        EXPECT_EQ(CheckCmdResult(QString::fromUtf8(reply)), outcome) << reply;
        EXPECT_EQ(Accepted(QString::fromUtf8(reply)), accepted) << reply;
    }
}

class EventSettings : public ::testing::Test
{
protected:
    // Applies the settings; the device answers what `replies` holds for a request and accepts everything else.
    qint16 apply(bool motion, const QMap<qint32, QString>& replies = {})
    {
        sent.clear();
        const std::vector<ActionRecord> actions = Actions();
        const auto send = [&](QString xml) -> QCoro::Task<QString> {
            sent.push_back(xml.section(u'"', 1, 1).toInt());
            co_return replies.value(sent.back(), kDone);
        };
        const EventWrite write = Await(ApplyEventSettings(recorders, 1, motion, actions, send));
        told = write.refused;
        return write.result;
    }
    void SetUp() override
    {
        recorders[1].iSVR_Maxchannel = 4;
        for (SVRChannel& channel : recorders[1].channels)
            channel.bSub_CH_Cam_MD_Enabled = true;
    }
    TemporaryStation station;
    std::vector<SVRRecord> recorders = std::vector<SVRRecord>(2);
    std::vector<qint32> sent;
    QString told;
};

TEST_F(EventSettings, AreWrittenInTheDevicesOrderAndStopAtARefusal)
{
    EXPECT_EQ(apply(true), 1);
    EXPECT_THAT(sent,
                ElementsAre(CMD_SET_MOTION_DETECT, CMD_SET_ACTION_LIST, CMD_GET_MOTION_DI_RESULT, CMD_SAVE_CONFIG));
    EXPECT_EQ(apply(false), 1);
    EXPECT_THAT(sent, ElementsAre(CMD_SET_ACTION_LIST, CMD_SAVE_CONFIG));
    EXPECT_TRUE(told.isEmpty());

    EXPECT_EQ(apply(true, {{CMD_SET_MOTION_DETECT, kRefused}}), -1);
    EXPECT_THAT(sent, ElementsAre(CMD_SET_MOTION_DETECT));
    EXPECT_EQ(apply(true, {{CMD_SET_ACTION_LIST, QString()}}), -1);
    EXPECT_EQ(sent.back(), CMD_SET_ACTION_LIST);
    EXPECT_EQ(apply(false, {{CMD_SAVE_CONFIG, kRefused}}), -1);
}

TEST_F(EventSettings, RefusedChannelsLoseTheirSwitchAndAreTold)
{
    const QString reply =
        u"<RESPONSE RET=\"0\"><CHList><CH ID=\"1\" MDRet=\"0\" DIRet=\"0\"/><CH ID=\"2\" MDRet=\"7\"/>"
        "<CH ID=\"3\" MDRet=\"none\"/><CH ID=\"99\" DIRet=\"1\"/><CH ID=\"4\" MDRet=\"0\" DIRet=\"-1\"/></CHList></RESPONSE>"_s;
    EXPECT_EQ(apply(true, {{CMD_GET_MOTION_DI_RESULT, reply}}), 1);
    EXPECT_EQ(told, u"2,99,4"_s);
    std::vector<bool> on;
    for (const SVRChannel& channel : recorders[1].channels)
        on.push_back(channel.bSub_CH_Cam_MD_Enabled);
    EXPECT_THAT(std::vector(on.begin(), on.begin() + 4), ElementsAre(true, false, true, false));
    EXPECT_EQ(sent.back(), CMD_SAVE_CONFIG);

    EXPECT_EQ(apply(true, {{CMD_GET_MOTION_DI_RESULT, kRefused}}), 1); // the question itself is no write
    EXPECT_TRUE(told.isEmpty());
}
