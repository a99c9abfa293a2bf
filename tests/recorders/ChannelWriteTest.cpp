#include "device/protocol/ParameterText.h"
#include "recorders/camera/CameraEvents.h"
#include "recorders/camera/CameraWrite.h"
#include "recorders/camera/ChannelClear.h"
#include "tests/recorders/CameraFixture.h"

using namespace Qt::StringLiterals;

namespace {

using ChannelWrite = CameraStation;

TEST_F(ChannelWrite, ClearedChannelIsEmptyOnTheRecorderAndOnThePage)
{
    for (const Family family : kFamilies) {
        SCOPED_TRACE(qPrintable(simulators::familyName(family)));
        start(family);
        RecorderOutcome outcome = Await(ClearRecorderChannel(com, *recorders, 2, work));
        EXPECT_TRUE(outcome.ok);
        // The same by emptied fields.
        page->open(3);
        page->setFields({{}, {}, u"80"_s, u"root"_s, {}});
        EXPECT_TRUE(page->checkApply().ok);
        EXPECT_TRUE(Await(page->writeBack(work)).ok);
        onDevice([](simulators::Device& device) { device.reboot(); });
        for (const std::size_t channel : {2U, 3U}) {
            EXPECT_TRUE(deviceCamera(static_cast<int>(channel) + 1).ip.isEmpty());
            EXPECT_TRUE(recorders->SVREdit.channels[channel].sSub_CH_IP.isEmpty());
            EXPECT_EQ(recorders->SVREdit.channels[channel].iSub_Channel, channel + 1);
            EXPECT_TRUE(recorders->SVREdit.channels[channel].bSub_CH_Modified);
        }
        EXPECT_FALSE(deviceCamera(2).ip.isEmpty());
        const std::vector<simulators::LoggedRequest> sent = requests();
        if (family != Family::Svr) {
            ASSERT_EQ(sent.size(), 4U);
            EXPECT_TRUE(sent[0].body.contains("<UserData>CONFIG_AP</UserData><Param><CH>3</CH></Param>"));
        } else { // a strict device takes no empty number
            EXPECT_TRUE(sent[0].target.contains(".device.httpport=80&"));
            EXPECT_TRUE(sent[0].target.endsWith(".device.brand=0"));
        }
        EXPECT_TRUE(Await(ClearRecorderChannel(com, *recorders, 2, work)).ok); // nothing is left to clear
        EXPECT_TRUE(requests().empty());
        EXPECT_ANY_THROW(Await(ClearRecorderChannel(com, *recorders, 64, work)));
    }
}

TEST_F(ChannelWrite, FailedClearingLeavesTheChannel)
{
    const std::tuple<Family, simulators::Fault, int> cases[] = {
        {Family::Txr632, {FaultKind::Reset, 0, "/cmd.cgi"}, 76},
        {Family::Txr632, {FaultKind::Refuse, -4, "/cmd.cgi", CMD_SET_CHANNEL}, 76},
        {Family::OmluPro, {FaultKind::Refuse, -1, "/cmd.cgi", CMD_SAVE_CONFIG}, 722},
        {Family::Svr, {FaultKind::Reset, 0, "/param.cgi"}, 76},
        {Family::Svr, {FaultKind::Refuse, -4, "/param.cgi"}, 608},
    };
    for (const auto& [family, trouble, message] : cases) {
        start(family);
        fault(trouble);
        const RecorderOutcome outcome = Await(ClearRecorderChannel(com, *recorders, 1, work));
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.message, message);
        EXPECT_EQ(outcome.title, u"Notice"_s);
        EXPECT_FALSE(recorders->SVREdit.channels[1].sSub_CH_IP.isEmpty());
        EXPECT_FALSE(recorders->SVREdit.channels[1].bSub_CH_Modified);
    }
}

TEST_F(ChannelWrite, TheLogOfARefusalKeepsThePassword)
{
    EXPECT_EQ(RefusedWrite(u"camera_c1.device.password=s3cret RET=\"-4\""_s).message, 608);
    EXPECT_EQ(Escape(u"s3cret\""_s), QString());
    EXPECT_TRUE(log().contains("result -4"));
    EXPECT_FALSE(log().contains("s3cret"));
}

TEST_F(ChannelWrite, CameraEventsAreReadBackAsWritten)
{
    for (const Family family : kFamilies) {
        SCOPED_TRACE(qPrintable(simulators::familyName(family)));
        const bool pro = family != Family::Svr;
        start(family, 16, 5);
        if (pro) // what else the device does on events stays
            onDevice([](simulators::Device& device) {
                device.state().actions = {{4, 2001, 0, 0, 0, 0, 0, 0, 0, 0, 1}, {4, 7, 0, 0, 0, 0, 0, 0, 0, 0, 1}};
            });
        SVRRecord& svr = recorders->SVREdit;
        const CameraEventBits bits{3, 2, 1, 0, 0, 1}; // channel 6 has no camera
        EXPECT_TRUE(Await(WriteRecorderCameraEvents(com, svr, bits, work)).ok);
        EXPECT_TRUE(svr.channels[0].bSub_CH_Cam_MD_Enabled && svr.channels[2].bSub_CH_Cam_MD_Enabled);
        EXPECT_FALSE(svr.channels[3].bSub_CH_Cam_MD_Enabled || svr.channels[5].bSub_CH_Cam_MD_Enabled);
        CameraEventBits read;
        read.fill(9);
        EXPECT_TRUE(Await(ReadRecorderCameraEvents(com, svr, read, work)).ok);
        CameraEventBits expected{};
        for (std::size_t channel = 0; channel < 3; ++channel)
            expected[channel] = pro ? qint16(1) : bits[channel];
        EXPECT_EQ(read, expected);
        onDevice([&](simulators::Device& device) {
            if (pro) {
                EXPECT_TRUE(device.channel(2).motionEnabled);
                EXPECT_FALSE(device.channel(4).motionEnabled);
                EXPECT_EQ(device.state().actions.size(), 5U);
                EXPECT_EQ(device.state().actions[1].enable, 1);
            } else {
                EXPECT_EQ(device.channel(1).cameraEvents, 3);
                EXPECT_EQ(device.state().eventSlot, 1);
                EXPECT_TRUE(device.state().eventHttp);
            }
        });
    }
}

TEST_F(ChannelWrite, RefusedCameraEventsAreNamed)
{
    for (const Family family : kFamilies) {
        start(family, 16, 5);
        onDevice([](simulators::Device& device) { device.state().refusedEventChannels = {2, 4}; });
        SVRRecord& svr = recorders->SVREdit;
        const RecorderOutcome outcome =
            Await(WriteRecorderCameraEvents(com, svr, CameraEventBits{1, 1, 1, 1, 0}, work));
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.message, 834);
        EXPECT_EQ(outcome.suffix, u" SVR:1 CH: 2,4"_s);
        EXPECT_TRUE(svr.channels[0].bSub_CH_Cam_MD_Enabled && svr.channels[2].bSub_CH_Cam_MD_Enabled);
        EXPECT_FALSE(svr.channels[1].bSub_CH_Cam_MD_Enabled || svr.channels[3].bSub_CH_Cam_MD_Enabled);
    }
}

TEST_F(ChannelWrite, EachAnswerToCameraEventsHasItsMessage)
{
    const std::pair<QByteArray, int> answers[] = {
        {"OK", 0}, {"Error -5341", 35}, {"-5341", 35}, {"Error -2", 9}, {"", 9}, {"channel 3 has no camera", 34},
    };
    start(Family::Svr, 8, 3);
    SVRRecord& svr = recorders->SVREdit;
    for (const auto& [answer, message] : answers) {
        for (SVRChannel& channel : svr.channels)
            channel.bSub_CH_Cam_MD_Enabled = false;
        fault({FaultKind::Body, 0, "/event/basicevent.cgi", 0, answer});
        const RecorderOutcome outcome = Await(WriteRecorderCameraEvents(com, svr, CameraEventBits{1, 0, 2}, work));
        EXPECT_EQ(outcome.message, message) << answer.constData();
        EXPECT_EQ(outcome.ok, message == 0);
        EXPECT_EQ(svr.channels[0].bSub_CH_Cam_MD_Enabled, message == 0);
        EXPECT_EQ(requests().back().target,
                  "/event/basicevent.cgi?action=set&svr=1&camera_c1=1&camera_c2=&camera_c3=2&httpenabled=1");
    }
    CameraEventBits bits{};
    fault({FaultKind::Body, 0, "/event/basicevent.cgi", 0, "Error"});
    EXPECT_EQ(Await(ReadRecorderCameraEvents(com, svr, bits, work)).message, 9);

    for (const int cmd : {CMD_GET_ACTION_LIST, CMD_SET_MOTION_DETECT, CMD_SET_ACTION_LIST, CMD_SAVE_CONFIG}) {
        start(Family::OmluPro, 8, 3);
        fault({FaultKind::Reset, 0, "/cmd.cgi", cmd});
        EXPECT_EQ(Await(WriteRecorderCameraEvents(com, recorders->SVREdit, CameraEventBits{1}, work)).message, 9)
            << cmd;
        EXPECT_FALSE(recorders->SVREdit.channels[0].bSub_CH_Cam_MD_Enabled);
    }
}

} // namespace
