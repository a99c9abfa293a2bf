#include "tests/recorders/CameraFixture.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

namespace {

class CameraPage : public CameraStation
{
protected:
    // What a page on a record made by hand shows; no recorder is asked.
    void show(const std::function<void(SVRRecord&, SVRProRecord&)>& make)
    {
        recorders = std::make_unique<RecorderSet>();
        for (int channel = 0; channel < kMaxChannel; ++channel)
            ClearChannel(recorders->SVREdit, recorders->SVRProEdit, channel);
        SVRRecord& svr = recorders->SVREdit;
        svr.sSVR_DeviceType = kFamilySVR;
        svr.channels[0].sSub_CH_IP = u"10.0.0.1"_s;
        svr.channels[0].sSub_CH_VideoFormat = u"H.264"_s;
        svr.channels[0].sSub_CH_Resolution = u"640x480"_s;
        svr.channels[0].sCH_FMTList = u"MJPEG,H.264"_s;
        svr.channels[0].sCH_ResolutionList = u"320x240;;1280x720,640x480"_s;
        svr.channels[0].sCH_FPS_Range = u"0,1,2;;0,1,2,3,4,5"_s;
        svr.channels[0].sCH_BitRate_Range = u"-1;;1,2,3"_s;
        svr.channels[0].sCH_RateCtrl_Range = u"-1;;0,1"_s;
        svr.channels[0].sCH_Quality_Range = u"0,1,2;;1,2"_s;
        svr.channels[0].iCH_FPS = 3;
        svr.channels[0].iCH_BitRate = 2;
        svr.channels[0].iCH_RateCtrl = 1;
        make(svr, recorders->SVRProEdit);
        page = std::make_unique<CameraEdit>(com, *recorders);
        page->open(0);
    }
};

TEST_F(CameraPage, FieldsAreCheckedInOrderBeforeAnythingIsAsked)
{
    start(Family::Svr);
    page->open(10);
    const CameraEdit::Fields good = fieldsOf(101);
    const std::pair<CameraEdit::Fields, std::pair<int, int>> cases[] = {
        {{}, {603, 0}},
        {{good.name, {}, {}, {}, {}}, {604, 1}},
        {{good.name, u"1.2.3"_s, {}, {}, {}}, {605, 2}},
        {{good.name, u"1.2.3"_s, u"80"_s, {}, {}}, {606, 3}},
        {{good.name, u"1.2.3"_s, u"80"_s, good.user, {}}, {607, 4}},
        {{good.name, u"no such host.invalid"_s, u"80"_s, good.user, u"x"_s}, {554, 1}},
        {{good.name, good.address, u"65536"_s, good.user, u"x"_s}, {556, 2}},
    };
    for (const auto& [fields, fault] : cases) {
        page->setFields(fields);
        const CameraEdit::Outcome outcome = Await(page->detect(work));
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.message, fault.first);
        EXPECT_EQ(outcome.field, fault.second);
        EXPECT_EQ(outcome.title, u"Notice"_s);
        EXPECT_FALSE(page->detected());
    }
    EXPECT_TRUE(requests().empty());
}

TEST_F(CameraPage, KnownCameraWithUnchangedFieldsAsksNothing)
{
    start(Family::Svr);
    page->open(1);
    EXPECT_EQ(entries(Control::Format), (QStringList{u"MJPEG"_s, u"MPEG4"_s, u"H.264"_s}));
    EXPECT_EQ(chosen(Control::Format), u"H.264"_s);
    EXPECT_EQ(chosen(Control::Resolution), u"1280x720"_s);
    EXPECT_EQ(chosen(Control::FrameRate), u"15"_s);
    EXPECT_EQ(Await(page->detect(work)).message, 833);
    EXPECT_TRUE(page->detected());
    EXPECT_TRUE(requests().empty());

    CameraEdit::Fields renamed = page->fields();
    renamed.name += u" 2"_s;
    page->setFields(renamed);
    EXPECT_FALSE(page->detected());
    EXPECT_EQ(Await(page->detect(work)).message, 833);
    EXPECT_EQ(requests().size(), 2U); // reachable, probe
}

TEST_F(CameraPage, NewCameraIsDetectedTunedAndWrittenInEveryFamily)
{
    for (const Family family : kFamilies) {
        SCOPED_TRACE(qPrintable(simulators::familyName(family)));
        const bool pro = family != Family::Svr;
        start(family);
        page->open(11);
        CameraEdit::Fields fields = fieldsOf(101);
        fields.name = u"Zufahrt 南"_s;
        page->setFields(fields);
        EXPECT_EQ(page->checkApply().message, 616);
        EXPECT_EQ(Await(page->detect(work)).message, 833);
        EXPECT_TRUE(recorders->SVREdit.channels[11].sSub_CH_IP.isEmpty()); // the edit record waits for the write

        EXPECT_TRUE(choose(Control::Format, pro ? u"h264"_s : u"H.264"_s));
        EXPECT_TRUE(choose(Control::Resolution, u"640x480"_s));
        EXPECT_TRUE(choose(Control::FrameRate, u"10"_s));
        EXPECT_TRUE(choose(Control::RateControl, u"CBR"_s));
        EXPECT_FALSE(page->choice(Control::Quality).shown);
        EXPECT_TRUE(choose(Control::BitRate, u"512K"_s));
        EXPECT_TRUE(page->checkApply().ok);
        requests();
        EXPECT_TRUE(Await(page->writeBack(work)).ok);

        const simulators::Camera camera = deviceCamera(12);
        EXPECT_THAT((QStringList{camera.name, camera.ip, camera.password, camera.live.format, camera.live.size}),
                    ElementsAre(fields.name, fields.address, fields.password, u"h264"_s, u"640x480"_s));
        EXPECT_EQ(camera.live.rateControl, 1);
        EXPECT_EQ(camera.live.fps, pro ? 10 : 3); // the older family counts in steps
        EXPECT_EQ(camera.live.bitrate, pro ? 512 : 4);
        const std::vector<simulators::LoggedRequest> sent = requests();
        ASSERT_EQ(sent.size(), pro ? 3U : 1U);
        if (pro) {
            EXPECT_EQ(sent[0].cmd, CMD_SET_CHANNEL);
            EXPECT_TRUE(sent[0].body.contains("<Name>Zufahrt%20%u5357</Name>"));
            EXPECT_TRUE(sent[0].body.contains("<CH>12</CH>"));
            EXPECT_EQ(sent[1].cmd, CMD_SAVE_CONFIG);
            EXPECT_EQ(sent[2].cmd, CMD_GET_CHANNELS);
        } else {
            EXPECT_FALSE(sent[0].target.contains(".quality=")); // its row is hidden
        }
        onDevice([](simulators::Device& device) { device.reboot(); });
        EXPECT_EQ(deviceCamera(12).ip, fields.address);

        const SVRRecord& edit = recorders->SVREdit;
        EXPECT_TRUE(edit.channels[11].bSub_CH_Modified);
        EXPECT_THAT((QStringList{edit.channels[11].sSub_CH_Name, edit.channels[11].sSub_CH_Resolution,
                                 edit.channels[11].sCH_FPS_Customer}),
                    ElementsAre(fields.name, u"640x480"_s, u"10"_s));
        EXPECT_EQ(edit.channels[11].iCH_FPS, pro ? 10 : 3);
        EXPECT_EQ(edit.channels[11].iSub_Channel, 12);
        EXPECT_FALSE(edit.channels[0].bSub_CH_Modified);
        EXPECT_FALSE(page->changed());
        EXPECT_EQ(chosen(Control::FrameRate), u"10"_s);
    }
}

TEST_F(CameraPage, AnotherCameraBeginsAsAnEmptyChannel)
{
    for (const Family family : kFamilies) {
        start(family);
        SVRChannel& channel = recorders->SVREdit.channels[1];
        channel.presets[0].sPresetName = u"Gate"_s;
        channel.lSub_CH_IntelligentID = 5;
        channel.bEventSet = channel.bSub_CH_Cam_MD_Enabled = true;
        page->open(1);
        const CameraEdit::Fields own = page->fields();
        page->setFields(fieldsOf(101));
        ASSERT_EQ(Await(page->detect(work)).message, 833);
        page->setFields(own); // back to the one that the channel has, and away again
        ASSERT_EQ(Await(page->detect(work)).message, 833);
        EXPECT_TRUE(Await(page->writeBack(work)).ok);
        EXPECT_EQ(channel.presets[0].sPresetName + QString::number(channel.lSub_CH_IntelligentID), u"Gate5"_s);
        page->setFields(fieldsOf(101));
        ASSERT_EQ(Await(page->detect(work)).message, 833);
        EXPECT_TRUE(Await(page->writeBack(work)).ok);
        EXPECT_EQ(channel.sSub_CH_IP, fieldsOf(101).address);
        EXPECT_EQ(channel.iSub_Channel, 2);
        EXPECT_EQ(channel.presets[0].sPresetName + QString::number(channel.lSub_CH_IntelligentID), u"-1"_s);
        EXPECT_FALSE(channel.bEventSet || channel.bSub_CH_Cam_MD_Enabled);
    }
}

TEST_F(CameraPage, EachFaultOfADetectionHasItsMessageAndLeavesTheEditRecord)
{
    const QByteArray probe = "/system/detectcam.cgi";
    const simulators::Fault none{FaultKind::Delay, 0};
    // 103 cannot be used, 104 is of an unknown make; true: a wrong password.
    const std::tuple<Family, int, bool, simulators::Fault, int, QString> cases[] = {
        {Family::Svr, 101, false, {FaultKind::Status, 404, "/getgid.cgi"}, 609, {}},
        {Family::Svr, 101, true, none, 608, u" : Error -3 login"_s},
        {Family::Svr, 200, false, none, 608, u" : Error -2 no camera"_s},
        {Family::Svr, 101, false, {FaultKind::Reset, 0, probe}, 608, u" : "_s},
        {Family::Svr, 101, false, {FaultKind::CutOff, 120, probe}, 608, u" : "_s},
        {Family::Svr, 103, false, none, 73, {}},
        {Family::Svr, 101, false, {FaultKind::Body, 0, probe, 0, "OK\nrelativeformat=0,0,0;0,0,0;0,0,0\n"}, 73, {}},
        {Family::Svr, 101, false, {FaultKind::Body, 0, probe, 0, "OK\nresolutionlist=;;\n"}, 73, {}},
        {Family::Txr632, 101, false, {FaultKind::Reset, 0, "/getgid.cgi"}, 609, {}},
        {Family::Txr632, 200, false, none, 74, {}},
        {Family::Txr632, 101, true, none, 71, {}},
        {Family::Txr632, 104, false, none, 72, {}},
        {Family::OmluPro, 103, false, none, 73, {}},
        {Family::OmluPro, 101, false, {FaultKind::GarbageBody, 900, "/cmd.cgi"}, 75, {}},
        {Family::OmluPro, 101, false, {FaultKind::Reset, 0, "/cmd.cgi"}, 75, {}},
        {Family::OmluPro,
         101,
         false,
         {FaultKind::Body, 0, "/cmd.cgi", 0,
          "<RESPONSE RET=\"0\"><System><NumberVideo>many</NumberVideo></System></RESPONSE>"},
         75,
         {}},
    };
    std::optional<Family> running;
    for (const auto& [family, camera, wrongPassword, trouble, message, suffix] : cases) {
        if (running != family)
            start(family);
        running = family;
        fault(trouble);
        page->open(1);
        const QString stored = recorders->SVREdit.channels[1].sCH_ResolutionList;
        CameraEdit::Fields fields = fieldsOf(camera);
        if (wrongPassword)
            fields.password = u"wrong"_s;
        page->setFields(fields);
        const CameraEdit::Outcome outcome = Await(page->detect(work));
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.message, message) << camera << ' ' << trouble.path.constData();
        EXPECT_EQ(outcome.suffix, suffix);
        EXPECT_EQ(outcome.title, message < 600 ? u"Information"_s : u"Notice"_s);
        EXPECT_EQ(recorders->SVREdit.channels[1].sCH_ResolutionList, stored);
        EXPECT_EQ(page->checkApply().message, 616);
        EXPECT_EQ(page->fields(), fields); // what was typed can be corrected
        if (message != 609) {
            EXPECT_TRUE(entries(Control::Format).isEmpty());
        }
    }
}

TEST_F(CameraPage, AnswerOfAProbeFillsTheChannel)
{
    start(Family::Svr);
    page->open(11);
    page->setFields(fieldsOf(101));
    fault({FaultKind::Body, 0, "/system/detectcam.cgi", 0,
           "OK\r\nbrand=12\r\nvideoformatstate=1,0,1\r\nresolutionlist=640x480;800x600;1280x720,640x480\r\n"
           "resolutionstate=640x480;800x600;640x480\r\nfpsrange=1,2;1;0,4\r\nfpsstate=2;1;4\r\n"
           "qualityrange=1,2;1;3,4\r\nqualitystate=2;1;4\r\nratectrlrange=-1;0;0,1\r\nratectrlstate=-1;0;1\r\n"
           "bitraterange=-1;1;5,6\r\nbitratestate=-1;1;6\r\nrelativeformat={}{}{}\r\nspeedrange=1,9,1\r\n"
           "moverange=8\r\nzoomcontcap=1\r\nmovecontcap=x\r\n"});
    EXPECT_EQ(Await(page->detect(work)).message, 833);
    EXPECT_EQ(page->brand(), u"12"_s);
    EXPECT_EQ(entries(Control::Format), (QStringList{u"MJPEG"_s, u"H.264"_s})); // MPEG4 is off
    EXPECT_EQ(chosen(Control::FrameRate), u"5"_s);
    EXPECT_TRUE(choose(Control::Format, u"H.264"_s)); // as the camera has it set
    EXPECT_THAT((QStringList{chosen(Control::Resolution), chosen(Control::FrameRate), chosen(Control::RateControl),
                             chosen(Control::BitRate)}),
                ElementsAre(u"640x480"_s, u"15"_s, u"CBR"_s, u"1024K"_s));
    EXPECT_TRUE(Await(page->writeBack(work)).ok);
    const SVRChannel& edit = recorders->SVREdit.channels[11];
    EXPECT_THAT(
        (QStringList{edit.sCH_FMTList, edit.sCH_Relativeformat, edit.sCH_PTZ_Speed_Range, edit.sCH_FPS_List_Customer}),
        ElementsAre(u"MJPEG,H.264"_s, u"{}{}{}"_s, u"1,9,1"_s, u"Full,15"_s));
    EXPECT_THAT(
        (std::vector<int>{edit.iSub_CH_Brand, edit.iCH_PTZ_ZoomContCap, edit.iCH_PTZ_MoveContCap, edit.iCH_BitRate}),
        ElementsAre(12, 1, 0, 6));
    EXPECT_EQ(deviceCamera(12).brandCode, 12);

    // "N/A" is not sent, and the stored rate stays.
    recorders->SVREdit.channels[11].sCH_Relativeformat = u"{}{}{640x480<-1|1><6>}"_s;
    page->open(11);
    EXPECT_EQ(chosen(Control::FrameRate), u"N/A"_s);
    requests();
    EXPECT_TRUE(Await(page->writeBack(work)).ok);
    EXPECT_FALSE(requests().back().target.contains(".fps="));
    EXPECT_EQ(edit.iCH_FPS, 4);
}

TEST_F(CameraPage, BoundsOfTheRuleComeBeforeThePlainRanges)
{
    const QStringList plainRates{u"Full"_s, u"1"_s, u"5"_s, u"10"_s, u"15"_s, u"20"_s};
    const QStringList plainBits{u"64K"_s, u"128K"_s, u"256K"_s};
    const std::tuple<QString, QStringList, QString, QStringList> cases[] = {
        {{}, plainRates, u"10"_s, plainBits},
        {u"{}{}{}"_s, plainRates, u"10"_s, plainBits},
        {u"{}{}{640x480<1|3|9|x><8>}"_s, {u"1"_s, u"10"_s}, u"10"_s, {u"2048K"_s}},
        {u"{}{}{640x480<2|1><1|2>}"_s, {u"5"_s, u"1"_s}, u"5"_s, {u"64K"_s, u"128K"_s}},
        {u"{640x480<1><1>}{}{1280x720<1><1>}"_s, plainRates, u"10"_s, plainBits},
        {u"{}{}{640x480<-1|1><-1>}"_s, {u"N/A"_s, u"1"_s}, u"N/A"_s, {u"N/A"_s}},
    };
    for (const auto& [rule, rates, rate, bits] : cases) {
        show([&, text = rule](SVRRecord& svr, SVRProRecord&) { svr.channels[0].sCH_Relativeformat = text; });
        EXPECT_EQ(entries(Control::FrameRate), rates) << qPrintable(rule);
        EXPECT_EQ(chosen(Control::FrameRate), rate) << qPrintable(rule);
        EXPECT_EQ(entries(Control::BitRate), bits) << qPrintable(rule);
        EXPECT_EQ(page->choice(Control::BitRate).shown, bits != QStringList{u"N/A"_s});
        // Another size and back: the stored rate is the one that the list left.
        EXPECT_TRUE(choose(Control::Resolution, u"1280x720"_s));
        EXPECT_TRUE(choose(Control::Resolution, u"640x480"_s));
        EXPECT_EQ(recorders->SVREdit.channels[0].iCH_FPS, 3);
    }
    show([](SVRRecord& svr, SVRProRecord&) {
        svr.channels[0].sCH_Relativeformat = u"{}{}{640x480<1><1>,1280x720<2|1><1>}"_s;
    });
    EXPECT_EQ(chosen(Control::FrameRate), u"1"_s); // has taken the place of 10
    EXPECT_TRUE(choose(Control::Resolution, u"1280x720"_s));
    EXPECT_EQ(chosen(Control::FrameRate), u"1"_s);
}

TEST_F(CameraPage, RowsFollowFormatAndRateControl)
{
    show([](SVRRecord&, SVRProRecord&) {});
    const auto shown = [this](Control control) { return page->choice(control).shown; };
    EXPECT_TRUE(shown(Control::RateControl) && shown(Control::BitRate) && !shown(Control::Quality)); // CBR
    choose(Control::RateControl, u"VBR"_s);
    EXPECT_TRUE(!shown(Control::BitRate) && shown(Control::Quality));
    choose(Control::Format, u"MJPEG"_s);
    EXPECT_TRUE(shown(Control::FrameRate) && !shown(Control::RateControl) && !shown(Control::BitRate));
    EXPECT_EQ(entries(Control::Quality), (QStringList{u"FULL"_s, u"1"_s, u"2"_s}));
    EXPECT_EQ(chosen(Control::Resolution), u"320x240"_s);
    choose(Control::Format, u"H.264"_s);
    EXPECT_EQ(chosen(Control::Resolution), u"640x480"_s); // as it was left
    EXPECT_EQ(chosen(Control::RateControl), u"VBR"_s);
    EXPECT_TRUE(page->changed());
    page->choose(Control::Format, 99);
    EXPECT_EQ(chosen(Control::Format), u"H.264"_s);
    EXPECT_FALSE(shown(Control::VideoSource) || shown(Control::LensMode));
}

TEST_F(CameraPage, OnvifCameraGoesByItsOwnRanges)
{
    const auto onvif = [](qint16 brand) {
        return [brand](SVRRecord& svr, SVRProRecord&) {
            svr.channels[0].iSub_CH_Brand = brand;
            svr.channels[0].sCH_Onvif_JPEG_Resolution = u"352x288"_s;
            svr.channels[0].sCH_Onvif_H264_Resolution = u"640x480,1920x1080"_s;
            svr.channels[0].sCH_Onvif_H264_FPS = u"2,12"_s;
            svr.channels[0].sCH_Onvif_Quality = u"3,5"_s;
            svr.channels[0].iCH_RateCtrl = 0;
        };
    };
    show(onvif(55));
    EXPECT_EQ(entries(Control::Resolution), (QStringList{u"640x480"_s, u"1920x1080"_s}));
    EXPECT_EQ(entries(Control::FrameRate), (QStringList{u"Full"_s, u"5"_s, u"10"_s}));
    EXPECT_EQ(entries(Control::Quality), (QStringList{u"3"_s, u"4"_s, u"5"_s}));
    choose(Control::Format, u"MJPEG"_s);
    EXPECT_EQ(entries(Control::Resolution), (QStringList{u"352x288"_s}));
    EXPECT_EQ(page->brand(), u"55"_s);
    show(onvif(7));
    EXPECT_EQ(entries(Control::Resolution), (QStringList{u"1280x720"_s, u"640x480"_s}));
    EXPECT_EQ(entries(Control::FrameRate).size(), 6);
}

TEST_F(CameraPage, SourcesOfOneCameraHaveListsOfTheirOwn)
{
    start(Family::Svr);
    onDevice([](simulators::Device& device) {
        for (simulators::Camera& camera : device.state().network)
            camera.multiStream = camera.ip == u"192.168.10.25"_s;
    });
    page->open(11);
    page->setFields(fieldsOf(5));
    EXPECT_EQ(Await(page->detect(work)).message, 833);
    ASSERT_EQ(entries(Control::VideoSource), (QStringList{u"1"_s, u"2"_s}));
    EXPECT_EQ(entries(Control::Format), (QStringList{u"MJPEG"_s, u"H.264"_s})); // of its streams
    EXPECT_TRUE(choose(Control::Format, u"H.264"_s));
    EXPECT_TRUE(entries(Control::Resolution).contains(u"1280x720"_s));
    requests();
    EXPECT_TRUE(choose(Control::VideoSource, u"2"_s));
    EXPECT_FALSE(entries(Control::Resolution).contains(u"1280x720"_s));
    EXPECT_TRUE(requests().empty());
    EXPECT_EQ(Await(page->detect(work)).message, 833);
    EXPECT_TRUE(requests().back().target.contains("&camera=2&brand="));
    EXPECT_EQ(chosen(Control::VideoSource), u"2"_s);
    EXPECT_TRUE(Await(page->writeBack(work)).ok);
    EXPECT_EQ(deviceCamera(12).videoNumber, 2);
    EXPECT_EQ(recorders->SVREdit.channels[11].iSub_CH_VideoID, 2);

    // The lists of a source that no answer tells of want a detection, though no field has changed.
    EXPECT_TRUE(choose(Control::VideoSource, u"1"_s));
    EXPECT_EQ(page->checkApply().message, 616);
    EXPECT_EQ(Await(page->detect(work)).message, 833);
    EXPECT_TRUE(requests().back().target.contains("&camera=1&brand="));
    EXPECT_TRUE(page->checkApply().ok);
    EXPECT_EQ(entries(Control::VideoSource).size(), 2);
    page->setFields(fieldsOf(101)); // another camera: its sources are not known yet
    EXPECT_FALSE(page->choice(Control::VideoSource).shown);
}

TEST_F(CameraPage, StreamsOfANewerRecorderKeepTheirOwnSettings)
{
    start(Family::Txr632, 16, 5);
    page->open(11);
    page->setFields(fieldsOf(5)); // two lenses, 1280x720 and below
    ASSERT_EQ(Await(page->detect(work)).message, 833);
    EXPECT_TRUE(choose(Control::Format, u"h264"_s));
    EXPECT_TRUE(choose(Control::Resolution, u"1280x720"_s));
    EXPECT_EQ(entries(Control::FrameRate).last(), u"30"_s);
    EXPECT_TRUE(choose(Control::FrameRate, u"29"_s));
    EXPECT_TRUE(choose(Control::Format, u"jpeg"_s));
    EXPECT_FALSE(page->choice(Control::BitRate).shown);
    EXPECT_TRUE(choose(Control::Resolution, u"640x480"_s));
    EXPECT_TRUE(choose(Control::Format, u"h264"_s));
    EXPECT_EQ(chosen(Control::Resolution), u"1280x720"_s);
    EXPECT_EQ(chosen(Control::FrameRate), u"29"_s);
    EXPECT_TRUE(choose(Control::LensMode, u"both"_s));
    EXPECT_TRUE(choose(Control::RightMode, u"normal"_s));
    EXPECT_TRUE(Await(page->writeBack(work)).ok);
    const simulators::Camera camera = deviceCamera(12);
    EXPECT_EQ(camera.live.fps, 29);
    EXPECT_EQ(camera.lensMode, u"both"_s);
    EXPECT_EQ(camera.rightDisplayMode, u"normal"_s);
    EXPECT_EQ(recorders->SVRProEdit.channels[11].streams[0].sResolution, u"320x240"_s) << "the other was never sent";
    EXPECT_EQ(recorders->SVRProEdit.channels[11].streams[2].iFrameRate, 29);

    // A size that allows less brings the rate down to what it allows; the other streams come within theirs.
    recorders->SVRProEdit.channels[11].streams[2].iFPSUpper = {15, 20, 30};
    recorders->SVRProEdit.channels[11].streams[0].sResolution = u"9x9"_s;
    page->open(11);
    EXPECT_EQ(chosen(Control::FrameRate), u"15"_s);
    EXPECT_TRUE(choose(Control::Resolution, u"640x480"_s));
    EXPECT_EQ(entries(Control::FrameRate).last(), u"20"_s);
    EXPECT_TRUE(choose(Control::Format, u"jpeg"_s));
    EXPECT_EQ(chosen(Control::Resolution), u"640x480"_s) << "a size that the other format has stays";
}

TEST_F(CameraPage, SettingsOfANewerRecorderStayUnlessTheSizeForbidsThem)
{
    const std::tuple<qint16, QString, qint16, QString> cases[] = {
        {500, u"500K"_s, 7, u"7"_s},     // between two steps
        {6000, u"4000K"_s, 40, u"25"_s}, // beyond the bounds
        {1, u"64K"_s, 0, u"5"_s},
    };
    for (const auto& [bits, shownBits, rate, shownRate] : cases) {
        show([&](SVRRecord& svr, SVRProRecord& pro) {
            svr.sSVR_DeviceType = kFamilyOmluPro;
            svr.channels[0].sCH_FMTList = u"jpeg,h264"_s;
            svr.channels[0].sSub_CH_VideoFormat = u"h264"_s;
            svr.channels[0].iCH_BitRate = bits;
            svr.channels[0].iCH_FPS = rate;
            SVRProStreams& streams = pro.channels[0].streams;
            streams[2].sResolutionList = u"1280x720,640x480"_s;
            streams[2].iFPSLower = streams[2].iFPSUpper = {30, 5};
            streams[2].iFPSUpper[1] = 25;
            streams[2].iBPSLower = {64, 64};
            streams[2].iBPSUpper = {8192, 4000};
        });
        EXPECT_EQ(chosen(Control::BitRate), shownBits);
        EXPECT_EQ(chosen(Control::FrameRate), shownRate);
    }
}

TEST_F(CameraPage, FishEyeViewsComeFromTheProbe)
{
    start(Family::OmluPro);
    page->open(12);
    page->setFields(fieldsOf(7));
    ASSERT_EQ(Await(page->detect(work)).message, 833);
    EXPECT_EQ(entries(Control::FishEyeMode), (QStringList{u"Original"_s, u"Panorama"_s, u"Quad"_s}));
    EXPECT_EQ(chosen(Control::FishEyeMode), u"Panorama"_s);
    EXPECT_TRUE(choose(Control::FishEyeMode, u"Quad"_s));
    EXPECT_EQ(chosen(Control::FishEyeMode), u"Panorama"_s) << "no recorder can be told";
    // One that the list lacks is told all the same, in place of the first.
    recorders->SVREdit.channels[6].sSub_CH_Mode4FishEye = u"Ceiling"_s;
    page->open(6);
    EXPECT_EQ(chosen(Control::FishEyeMode), u"Ceiling"_s);
}

TEST_F(CameraPage, StationHoldsNoMoreThanItsCameras)
{
    start(Family::Svr);
    for (std::size_t slot = 1; slot < 5; ++slot) {
        recorders->SVRWorkList[slot].sSVR_IP = u"10.0.0.%1"_s.arg(slot);
        for (SVRChannel& channel : recorders->SVRWorkList[slot].channels)
            channel.sSub_CH_IP = u"10.1.1.1"_s;
    }
    SVRRecord& last = recorders->SVRWorkList[4];                              // 7 of this recorder, 192 of three others
    std::fill(last.channels.begin() + 57, last.channels.end(), SVRChannel()); // and 57: 256
    page->open(11);
    page->setFields(fieldsOf(101));
    EXPECT_EQ(page->checkApply().message, 716);
    EXPECT_EQ(page->checkApply().suffix, u"(256)"_s);
    last.channels[56].sSub_CH_IP.clear();
    EXPECT_EQ(page->checkApply().message, 616);                 // there is room; the camera is not detected yet
    recorders->SVREdit.channels[10].sSub_CH_IP = u"10.1.1.1"_s; // added on this page and not applied yet
    EXPECT_EQ(page->checkApply().message, 716);
    page->open(1);
    EXPECT_TRUE(page->checkApply().ok); // a camera that is there already may be tuned
}

TEST_F(CameraPage, EachFaultOfAWriteHasItsMessageAndLeavesTheEditRecord)
{
    const std::tuple<Family, simulators::Fault, int, bool> cases[] = {
        {Family::Svr, {FaultKind::Refuse, -3, "/param.cgi"}, 608, true},
        {Family::Svr, {FaultKind::Reset, 0, "/param.cgi"}, 608, true},
        {Family::Txr632, {FaultKind::Refuse, -3, "/cmd.cgi", CMD_SET_CHANNEL}, 608, true},
        {Family::Txr632, {FaultKind::Reset, 0, "/cmd.cgi", CMD_SET_CHANNEL}, 7, false},
        {Family::Txr632, {FaultKind::Refuse, -1, "/cmd.cgi", CMD_SAVE_CONFIG}, 722, false},
        // The recorder has taken it and cannot be read afterwards: what was sent holds.
        {Family::OmluPro, {FaultKind::Reset, 0, "/cmd.cgi", CMD_GET_CHANNELS}, 7, true},
        {Family::OmluPro, {FaultKind::Body, 0, "/cmd.cgi", CMD_GET_CHANNELS, "<RESPONSE RET=\"-6\"/>"}, 7, true},
        {Family::OmluPro,
         {FaultKind::Body, 0, "/cmd.cgi", CMD_GET_CHANNELS,
          "<RESPONSE RET=\"0\"><CHList><CH ID=\"2\"><HTTPPort>x</HTTPPort></CH></CHList></RESPONSE>"},
         7,
         true},
    };
    std::optional<Family> running;
    for (const auto& [family, trouble, message, logged] : cases) {
        if (running != family)
            start(family);
        running = family;
        const qsizetype before = log().count("Form_CameraSetting - cmbeditCam_Click");
        page->open(1);
        const QString size = recorders->SVREdit.channels[1].sSub_CH_Resolution;
        EXPECT_TRUE(choose(Control::Resolution, u"320x240"_s));
        fault(trouble);
        const CameraEdit::Outcome outcome = Await(page->writeBack(work));
        const bool taken = trouble.cmd == CMD_GET_CHANNELS;
        EXPECT_EQ(outcome.ok, taken);
        EXPECT_EQ(outcome.message, message) << trouble.cmd;
        EXPECT_EQ(outcome.title, u"Notice"_s);
        EXPECT_EQ(log().count("Form_CameraSetting - cmbeditCam_Click") > before, logged) << trouble.cmd;
        EXPECT_EQ(recorders->SVREdit.channels[1].sSub_CH_Resolution, taken ? u"320x240"_s : size);
        EXPECT_EQ(std::exchange(recorders->SVREdit.channels[1].bSub_CH_Modified, false), taken);
        EXPECT_EQ(entries(Control::Format).isEmpty(), family == Family::Svr); // emptied
    }

    // Without a format the short form goes out; a name that cannot be written is not sent at all.
    start(Family::Svr);
    recorders->SVREdit.channels[1].sCH_FMTList.clear();
    recorders->SVREdit.channels[1].sCH_ResolutionList.clear();
    page->open(1);
    fault({FaultKind::Refuse, -3, "/param.cgi"});
    EXPECT_EQ(Await(page->writeBack(work)).message, 615);
    EXPECT_FALSE(requests().back().target.contains(".format="));
    page->open(2);
    CameraEdit::Fields fields = page->fields();
    fields.name = u"a \" b"_s;
    page->setFields(fields);
    EXPECT_EQ(Await(page->writeBack(work)).message, 980);
    EXPECT_TRUE(requests().empty());
}

TEST_F(CameraPage, SearchListsWhatTheRecorderSees)
{
    for (const Family family : kFamilies) {
        start(family, 8, 3);
        const auto [outcome, found] = Await(page->searchCameras(work));
        EXPECT_TRUE(outcome.ok);
        ASSERT_EQ(found.size(), 7U); // three in use and four others
        EXPECT_EQ(found[2].IP, fieldsOf(3).address);
        EXPECT_EQ(found[2].HTTPPort, 8081);
        EXPECT_EQ(found[2].Manufacturer, u"Veltrano"_s);
        EXPECT_EQ(found[2].Model, simulators::exampleCamera(3, family).model);
        for (const FaultKind kind : {FaultKind::Reset, FaultKind::GarbageBody, FaultKind::Unauthorized}) {
            fault({kind, 100});
            const CameraEdit::Search none = Await(page->searchCameras(work));
            EXPECT_TRUE(none.found.empty());
            EXPECT_EQ(none.outcome.message, 609);
        }
    }
}

TEST_F(CameraPage, AStopEndsWhatARecorderDoesNotAnswer)
{
    for (const Family family : kFamilies) {
        start(family);
        page->open(11);
        page->setFields(fieldsOf(101));
        const bool svr = family == Family::Svr;
        const QByteArray probe = svr ? "/system/detectcam.cgi" : "/cmd.cgi";
        using Call = std::function<QCoro::Task<CameraEdit::Outcome>(Work&)>;
        const std::pair<QByteArray, Call> cases[] = {
            // the path that is not answered
            {probe, [this](Work& running) { return page->detect(running); }},
            {svr ? "/param.cgi" : "/cmd.cgi", [this](Work& running) { return page->writeBack(running); }},
            {svr ? "/system/searchcam.cgi" : "/cmd.cgi",
             [this](Work& running) -> QCoro::Task<CameraEdit::Outcome> {
                 const CameraEdit::Search search = co_await page->searchCameras(running);
                 co_return search.outcome;
             }},
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.first.constData());
            fault({FaultKind::Silent, 0, c.first});
            requests();
            CameraEdit::Outcome outcome = CameraEdit::Outcome::Done();
            Work running;
            ASSERT_TRUE(running.start([&]() -> QCoro::Task<> {
                QCoro::Task<CameraEdit::Outcome> call = c.second(running);
                outcome = co_await call;
            }));
            ASSERT_TRUE(WaitUntil([&] { return requests(0, c.first) > 0; }, 10));
            EXPECT_TRUE(StopsAtOnce(running));
            EXPECT_FALSE(outcome.ok);
            EXPECT_EQ(com.http.open(), 0);
            EXPECT_EQ(page->fields().address, fieldsOf(101).address);
        }
    }
}

} // namespace
