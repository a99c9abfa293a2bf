#include "recorders/detect/NVRDetect.h"

#include "recorders/NVRListModel.h"
#include "recorders/camera/CameraSearchModel.h"
#include "recorders/camera/ChannelListModel.h"
#include "recorders/detect/DetectStatusModel.h"
#include "recorders/detect/SearchListModel.h"
#include "tests/support/RecorderStation.h"

using namespace Qt::StringLiterals;
using simulators::DeviceDescription;
using State = DetectStatus::State;

namespace {

class Detecting : public RecorderStation
{
protected:
    // The number of the last message.
    int detect(const NVRDetectItem& wanted, DetectMode mode = DetectMode::Add)
    {
        DetectStatus last;
        const auto tell = [&](const DetectStatus& status) { last = status; };
        const bool done = Await(DetectNVR(context(), wanted, tell, work, mode));
        EXPECT_EQ(done, last.state == State::Done);
        return last.message;
    }
};

TEST_F(Detecting, EveryFamilyIsAddedWithItsCamerasAndSystemFacts)
{
    startSite({Recorder(Family::Txr632, 16, 7), Recorder(Family::OmluPro, 9, 4), Recorder(Family::Svr, 16, 12)});
    const QString families[] = {kFamilyTXR632, kFamilyOmluPro, kFamilySVR};
    const int cameras[] = {7, 4, 12};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(detect(item(static_cast<int>(i))), 297);
        const SVRRecord& record = recorders->SVRWorkList[i];
        EXPECT_EQ(record.sSVR_DeviceType, families[i]);
        EXPECT_EQ(record.iSVR_ValidCH, cameras[i]);
        EXPECT_EQ(CameraCount(record), cameras[i]);
        EXPECT_TRUE(record.bSVR_N_EventSupport);
        EXPECT_GT(record.iSVR_VideoPort, 0);
        EXPECT_EQ(record.iSVR_TimeZoneNum, 28);
        for (qint16 c = 0; c < cameras[i]; ++c) {
            const auto index = static_cast<std::size_t>(c);
            const simulators::Camera camera = simulators::exampleCamera(c + 1, i == 2 ? Family::Svr : Family::Txr632);
            EXPECT_EQ(record.channels[index].sSub_CH_IP, camera.ip);
            EXPECT_EQ(record.channels[index].iSub_Channel, c + 1);
        }
    }
}

// One reply breaks off, in its head or in its body.
TEST_F(Detecting, RepliesThatBreakOffCostTheirRecorderOrTheirValuesOnly)
{
    startSite({Recorder(Family::Svr, 3, 2), Recorder(Family::OmluPro, 4, 2), Recorder(Family::Txr632, 4, 2)});
    // Of an older recorder with two cameras the parameter groups come as device, image, ptz; device, image, ptz;
    // device; system.
    const struct
    {
        int device;
        QByteArray path;
        int command;
        int skip;
        int message;
    } cases[] = {
        {0, "/login.cgi", 0, 0, 221},
        {0, "/getsvrcapability.cgi", 0, 0, 7},
        {0, "/getfwver.cgi", 0, 0, 297},
        {0, "/param.cgi", 0, 0, 7},
        {0, "/param.cgi", 0, 1, 297},
        {0, "/param.cgi", 0, 2, 297},
        {0, "/param.cgi", 0, 6, 7},
        {0, "/param.cgi", 0, 7, 297},
        {1, "/login.cgi", 0, 0, 221},
        {1, "/getsvrcapability.cgi", 0, 0, 7},
        {1, "/cmd.cgi", 24582, 0, 7},
        {1, "/cmd.cgi", 4100, 0, 7},
        {1, "/cmd.cgi", 40965, 0, 297},
        {2, "/login.cgi", 0, 0, 221},
        {2, "/getsvrcapability.cgi", 0, 0, 7},
        {2, "/cmd.cgi", 24582, 0, 7},
        {2, "/cmd.cgi", 4100, 0, 7},
        {2, "/cmd.cgi", 40965, 0, 297},
        {2, "/cmd.cgi", 35844, 0, 297},
    };
    const simulators::Fault faults[] = {{FaultKind::CutOff, 20}, {FaultKind::CutOff, 90}};
    for (const auto& c : cases) {
        for (simulators::Fault fault : faults) {
            SCOPED_TRACE(c.path.toStdString() + ' ' + std::to_string(c.command) + ' ' + std::to_string(c.skip));
            fault.path = c.path;
            fault.cmd = c.command;
            fault.skip = c.skip;
            fault.count = 1;
            onlyFault(c.device, fault);
            EXPECT_EQ(detect(item(c.device)), c.message);
            EXPECT_EQ(OccupiedSlots(recorders->SVRWorkList), c.message == 297 ? 1 : 0);
            EXPECT_EQ(CameraCount(recorders->SVRWorkList[0]), c.message == 297 ? 2 : 0);
            EXPECT_EQ(detect(item((c.device + 1) % 3)), 297) << "the others go on";
            *recorders = RecorderSet();
        }
    }
    // A document that ends in its middle though its page is whole, one with a bad channel behind a good one, and one of
    // more channels than there are.
    const QByteArray good = "<RESPONSE RET=\"0\"><CHList><CH ID=\"1\"><IP>10.0.0.1</IP></CH>";
    const QByteArray texts[] = {"<RESPONSE RET=\"0\"><CHList><CH><ID>1</ID><Na", "",
                                good + "<CH ID=\"2\"><HTTPPort>x</HTTPPort></CH></CHList></RESPONSE>",
                                good + QByteArray("<CH ID=\"2\"></CH>").repeated(200'000) + "</CHList></RESPONSE>"};
    for (const QByteArray& text : texts) {
        onlyFault(1, {FaultKind::Body, 0, "/cmd.cgi", 24582, text, 0, 1});
        EXPECT_EQ(detect(item(1)), 7);
    }
    EXPECT_EQ(OccupiedSlots(recorders->SVRWorkList), 0);
}

TEST_F(Detecting, OlderRecorderGivesPictureMovementAndOnvifValues)
{
    startSite({Recorder(Family::Svr, 16, 8)});
    ASSERT_EQ(detect(item(0)), 297);
    const SVRRecord& record = recorders->SVRWorkList[0];
    EXPECT_EQ(record.channels[3].sSub_CH_Name, u"正門"_s); // escaped on the wire
    EXPECT_EQ(record.channels[0].sSub_CH_VideoFormat, u"MJPEG"_s);
    EXPECT_EQ(record.channels[1].sSub_CH_VideoFormat, u"H.264"_s);
    EXPECT_EQ(record.channels[1].iCH_FPS, 4);
    EXPECT_EQ(record.channels[3].sCH_PTZ_Speed_Range, u"1,10,1"_s);
    EXPECT_EQ(record.channels[5].sCH_Onvif_JPEG_FPS, u"1,15"_s); // the sixth camera speaks Onvif
    EXPECT_TRUE(record.channels[4].sCH_Onvif_JPEG_FPS.isEmpty());
    EXPECT_EQ(record.channels[8].iCH_FPS, -1); // no camera
}

TEST_F(Detecting, EachFaultHasItsMessageAndLeavesTheSlotFree)
{
    DeviceDescription decoder = Recorder(Family::Svd, 16, 4);
    DeviceDescription foreign = Recorder(Family::Txr632, 16, 4);
    foreign.cmsSupport = false;
    startSite({Recorder(Family::Txr632, 16, 4), Recorder(Family::Svr, 16, 4), decoder, foreign,
               Recorder(Family::Svr, 8, 0), Recorder(Family::OmluPro, 8, 0)});
    NVRDetectItem nowhere = item(0);
    nowhere.sIP = u"127.0.0.250"_s;
    nowhere.iPort = 9;
    const std::pair<NVRDetectItem, int> cases[] = {
        {nowhere, 221},
        {item(0, u"admin"_s, u"wrong"_s), 44},
        {item(0, u"viewer"_s, u"viewer"_s), 139}, // group 1 of a Pro recorder
        {item(1, u"viewer"_s, u"viewer"_s), 139}, // group 7 of an older one
        {item(1, u"guest"_s, u"guest"_s), 139},   // lower level
        {item(2), 619},
        {item(3), 619},
        {item(4), 719},
        {item(5), 719},
    };
    for (const auto& [wanted, message] : cases) {
        EXPECT_EQ(detect(wanted), message) << qPrintable(wanted.sIP) << ' ' << qPrintable(wanted.sUser);
        EXPECT_EQ(OccupiedSlots(recorders->SVRWorkList), 0);
    }
    EXPECT_EQ(detect(item(0)), 297); // the others go on
    EXPECT_EQ(detect(item(0)), 78);
    EXPECT_EQ(OccupiedSlots(recorders->SVRWorkList), 1);
}

TEST_F(Detecting, AccountsAreTriedInOrderWhenNoLoginIsGiven)
{
    startSite({Recorder(Family::Svr, 8, 2)});
    accounts = {{0, u"other"_s, u"x"_s}, {1, u"admin"_s, u"admin"_s}, {2, u"viewer"_s, u"viewer"_s}};
    EXPECT_EQ(detect(item(0, {}, {})), 297);
    EXPECT_EQ(recorders->SVRWorkList[0].sSVR_UserName, u"admin"_s);
}

TEST_F(Detecting, ChannelLimitCountsWhatTheStationHasAlready)
{
    startSite({Recorder(Family::Svr, 8, 8)});
    for (std::size_t slot = 0; slot < 4; ++slot) {
        recorders->SVRWorkList[slot].sSVR_IP = u"10.0.0.%1"_s.arg(slot);
        for (SVRChannel& channel : recorders->SVRWorkList[slot].channels)
            channel.sSub_CH_IP = u"10.1.1.1"_s;
    }
    EXPECT_EQ(detect(item(0)), 716); // 256 cameras
    recorders->SVRWorkList[0].channels[0].sSub_CH_IP.clear();
    EXPECT_EQ(detect(item(0)), 297); // 255 do not refuse yet
}

TEST_F(Detecting, NewDetectionKeepsWhatOnlyTheStationKnows)
{
    startSite({Recorder(Family::Svr, 8, 3)});
    ASSERT_EQ(detect(item(0)), 297);
    recorders->SVREdit = recorders->SVRWorkList[0];
    recorders->SVRProEdit = recorders->SVRProWorkList[0];
    recorders->SVREdit.channels[0].lSub_CH_IntelligentID = 5;
    recorders->SVREdit.channels[1].lSub_CH_IntelligentID = 6;
    recorders->SVREdit.channels[1].sSub_CH_IP = u"10.9.9.9"_s; // another camera since
    NVRDetectItem again = item(0);
    again.iSlot = 0;
    EXPECT_EQ(detect(again, DetectMode::Modify), 833);
    EXPECT_EQ(recorders->SVREdit.channels[0].lSub_CH_IntelligentID, 5);
    EXPECT_EQ(recorders->SVREdit.channels[1].lSub_CH_IntelligentID, -1);
    EXPECT_NE(recorders->SVREdit.channels[1].sSub_CH_IP, u"10.9.9.9"_s);
}

TEST_F(Detecting, NewDetectionKeepsWhatTheReplyDoesNotMention)
{
    startSite({Recorder(Family::OmluPro, 8, 3), Recorder(Family::Svr, 3, 3)});
    const struct
    {
        int device;
        simulators::Fault channels;
        simulators::Fault system;
    } cases[] = {{0,
                  {FaultKind::Body, 0, "/cmd.cgi", 24582,
                   "<RESPONSE RET=\"0\"><CHList><CH ID=\"1\"><IP>10.0.0.1</IP></CH>"
                   "<CH ID=\"2\"><IP>10.0.0.2</IP></CH></CHList></RESPONSE>"},
                  {FaultKind::Body, 0, "/cmd.cgi", 4100, "<RESPONSE RET=\"0\"><Name>x</Name></RESPONSE>"}},
                 {1,
                  {FaultKind::Body, 0, "/param.cgi", 0,
                   "OK\ncamera_c1.device.ip=10.0.0.1\ncamera_c2.device.ip=10.0.0.2\ncamera_c3.device.ip=\n"},
                  {FaultKind::Status, 500, "/getfwver.cgi"}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.device);
        ASSERT_EQ(detect(item(c.device)), 297);
        const auto slot = static_cast<std::size_t>(c.device);
        recorders->SVREdit = recorders->SVRWorkList[slot];
        recorders->SVRProEdit = recorders->SVRProWorkList[slot];
        recorders->SVREdit.iSVR_VideoPort = 7777;
        for (std::size_t channel : {0U, 1U, 2U}) {
            SVRChannel& camera = recorders->SVREdit.channels[channel];
            camera.sSub_CH_IP = channel == 1 ? u"10.9.9.9"_s : u"10.0.0.1"_s;
            camera.sSub_CH_Name = u"Hall"_s;
            camera.sCH_Relativeformat = u"{}{}{640x480<1><1>}"_s;
            camera.iSub_CH_VideoID = 2;
            camera.iSub_CH_HttpPort = 8081;
            camera.sCH_ResolutionList = u"640x480;;"_s;
            recorders->SVRProEdit.channels[channel].streams[2].sFMT = u"h264"_s;
            recorders->SVRProEdit.channels[channel].streams[2].sResolutionList = u"640x480"_s;
        }
        fault(c.device, c.channels);
        fault(c.device, c.system);
        NVRDetectItem again = item(c.device);
        again.iSlot = static_cast<qint16>(slot);
        ASSERT_EQ(detect(again, DetectMode::Modify), 833);
        EXPECT_EQ(recorders->SVREdit.iSVR_VideoPort, 7777);
        EXPECT_EQ(recorders->SVREdit.iSVR_TimeZoneNum, 28);
        for (std::size_t channel : {0U, 1U, 2U}) { // the same camera, another one, none
            const SVRChannel& camera = recorders->SVREdit.channels[channel];
            const bool same = channel == 0;
            EXPECT_EQ(camera.sSub_CH_Name, same ? u"Hall"_s : QString());
            EXPECT_EQ(camera.sCH_Relativeformat.isEmpty(), !same);
            EXPECT_EQ(camera.iSub_CH_VideoID, same ? 2 : 0);
            EXPECT_EQ(camera.iSub_CH_HttpPort, same ? 8081 : 80);
            EXPECT_EQ(camera.sCH_ResolutionList.startsWith(u'6'), same);
            const SVRProStream& stream = recorders->SVRProEdit.channels[channel].streams[2];
            EXPECT_EQ(stream.sFMT + stream.sResolutionList, same ? u"h264640x480"_s : QString());
        }
    }
}

TEST_F(Detecting, AddressesAndNamesAreStoredAsTheyAreCompared)
{
    startSite({Recorder(Family::Svr, 8, 2), Recorder(Family::Txr632, 8, 2)});
    NVRDetectItem typed = item(0);
    typed.sIP = u"  "_s + typed.sIP + u' ';
    typed.sName = u" Front door with a name beyond the field "_s;
    onDevice(0, [](simulators::Device& device) { device.channel(1).cameraEvents = 3; });
    EXPECT_EQ(detect(typed), 297);
    const SVRRecord& added = recorders->SVRWorkList[0];
    EXPECT_EQ(added.sSVR_IP, item(0).sIP);
    EXPECT_EQ(added.sSVR_Name, u"Front door with a name beyond t"_s);
    EXPECT_TRUE(added.channels[0].bSub_CH_Cam_MD_Enabled) << "as the recorder has it";
    EXPECT_FALSE(added.channels[1].bSub_CH_Cam_MD_Enabled);
    EXPECT_EQ(added.channels[0].presets[7].iPresetID, 8);
    EXPECT_EQ(detect(typed), 78);
    NVRDetectItem nameless = item(1);
    nameless.sName = u" "_s;
    EXPECT_EQ(detect(nameless), 297);
    EXPECT_EQ(recorders->SVRWorkList[1].sSVR_Name, item(1).sIP);
    EXPECT_EQ(Await(ValidateManualNVR(u"x"_s, u" 10.0.0.3 "_s, u"80"_s, work)).message, 0);
    EXPECT_EQ(Await(ValidateManualNVR(u"x"_s, u" 127.0.0.1 "_s, u"80"_s, work)).message, 554);
    EXPECT_EQ(Await(ValidateManualNVR(u" "_s, u"10.0.0.3"_s, u"80"_s, work)).message, 553);
}

// Wrong logins that each take 20 seconds, and a recorder that falls silent while its channels are read.
TEST_F(Detecting, StopEndsTheRunAtOnceAndChangesNothing)
{
    startSite({Recorder(Family::Svr, 64, 4)});
    accounts.assign(6, {});
    for (NVRAccountRecord& account : accounts)
        account.sUser = account.sPass = u"wrong"_s;
    const struct
    {
        simulators::Fault fault;
        QByteArray path;
        QString user;
    } cases[] = {{{FaultKind::Delay, 20'000, "/login.cgi"}, "/login.cgi", {}},
                 {{FaultKind::Silent, 0, "/param.cgi"}, "/param.cgi", u"admin"_s}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path.constData());
        onlyFault(0, c.fault);
        DetectStatus last;
        ASSERT_TRUE(work.start([&]() -> QCoro::Task<> {
            const auto tell = [&](const DetectStatus& status) { last = status; };
            QCoro::Task<bool> detection = DetectNVR(context(), item(0, c.user, c.user), tell, work);
            co_await detection;
        }));
        ASSERT_TRUE(WaitUntil([&] { return requests(0, c.path) > 0; }, 10));
        EXPECT_TRUE(StopsAtOnce(work));
        EXPECT_EQ(last.message, 963);
        EXPECT_EQ(com.http.open(), 0);
        EXPECT_EQ(requests(0, c.path), 1);
        EXPECT_EQ(OccupiedSlots(recorders->SVRWorkList), 0);
    }
}

// The recorders of a list answer in the reverse of its order; what comes of them is as one after the other.
TEST_F(Detecting, SideBySideChangesNothingButTheTime)
{
    std::vector<DeviceDescription> described(7, Recorder(Family::Txr632, 64, 64));
    described[3] = Recorder(Family::Svr, 4, 4);
    startSite(described);
    std::vector<NVRDetectItem> items;
    for (int i = 0; i < devices(); ++i)
        items.push_back(item(i));
    items.insert(items.begin() + 2, items[0]);        // a device that stands in the list before
    items.insert(items.begin() + 3, NVRDetectItem()); // passed over
    items[4].sPassword = u"wrong"_s;
    items[5].iSlot = 9;
    recorders->SVRWorkList[1].sSVR_IP = u"10.0.0.1"_s;

    const auto outcome = [&](bool sideBySide) {
        QStringList told(static_cast<qsizetype>(items.size()));
        QList<int> filled;
        const auto tell = [&](std::size_t row, const DetectStatus& status) {
            told[static_cast<qsizetype>(row)] = QString::number(status.message) + status.suffix;
            if (status.state == State::Done)
                filled << status.slot;
        };
        if (sideBySide)
            Await(DetectList(context(), items, tell, work));
        for (std::size_t row = 0; row < items.size() && !sideBySide; ++row) {
            const auto tellRow = [&](const DetectStatus& status) { tell(row, status); };
            if (!items[row].sIP.isEmpty())
                Await(DetectNVR(context(), items[row], tellRow, work));
        }
        for (const int slot : std::as_const(filled))
            told += QString::number(slot) + u':' +
                    QString::number(recorders->SVRWorkList[static_cast<std::size_t>(slot)].iSVR_HttpPort);
        return told;
    };
    const auto before = std::make_unique<RecorderSet>(*recorders);
    const QStringList wanted = outcome(false);
    EXPECT_EQ(wanted[2], u"78"_s);
    EXPECT_EQ(wanted[8], u"716(256)"_s);
    *recorders = *before;
    for (int i = 0; i < devices(); ++i)
        fault(i, {FaultKind::Delay, 5 * (devices() - i)});
    EXPECT_EQ(outcome(true), wanted);
}

FoundDevice Found(int n)
{
    return {u"Device %1"_s.arg(n), u"10.0.0.%1"_s.arg(n), 80, u"Brand"_s, u"Model"_s, false};
}

// A view that lags behind asks for cells that have gone; an exception would end the program.
TEST(RecorderModels, AnswerForCellsThatAreNotThere)
{
    const auto recorders = std::make_unique<RecorderSet>();
    HttpClient http;
    DevicePoller poller(http);
    const ConnectionWatch watch(poller, recorders->SVRList);
    SearchListModel found(*recorders);
    found.add(Found(1));
    DetectStatusModel status;
    status.setItems({NVRDetectItem()});
    ChannelListModel channels(*recorders);
    recorders->SVREdit.iSVR_Maxchannel = 1;
    channels.refill();
    NVRListModel list(*recorders, watch);
    CameraSearchModel cameras;
    std::vector<std::pair<QAbstractItemModel*, QModelIndex>> cells;
    for (QAbstractItemModel* model :
         std::initializer_list<QAbstractItemModel*>{&found, &status, &channels, &list, &cameras}) {
        cells.emplace_back(model, QModelIndex());
        cells.emplace_back(model, model->index(0, 0));
    }
    found.clear();
    status.setItems({});
    recorders->SVREdit.iSVR_Maxchannel = 0;
    for (const auto& [model, cell] : cells) {
        for (const int role : {int(Qt::DisplayRole), int(Qt::CheckStateRole), int(Qt::ToolTipRole)}) {
            EXPECT_NO_THROW(model->data(cell, role));
            EXPECT_NO_THROW(model->setData(cell, Qt::Checked, role));
        }
        EXPECT_NO_THROW(model->flags(cell));
        for (const int section : {-1, 99})
            EXPECT_NO_THROW(model->headerData(section, Qt::Horizontal, Qt::DisplayRole));
    }
    EXPECT_NO_THROW(status.setStatus(1, {}));
    EXPECT_NO_THROW(status.setChannels(-1, 4));
}

TEST(SearchList, KnownDevicesAreFixedAndChecksEndWhereTheStationIsFull)
{
    auto recorders = std::make_unique<RecorderSet>();
    for (int slot = 0; slot < 13; ++slot) {
        recorders->SVRWorkList[static_cast<std::size_t>(slot)].sSVR_IP = u"10.0.0.%1"_s.arg(slot + 1);
        recorders->SVRWorkList[static_cast<std::size_t>(slot)].iSVR_HttpPort = slot == 1 ? 8080 : 80;
    }
    SearchListModel model(*recorders);
    FoundDevice decoder = Found(90);
    decoder.IsSvd = true;
    model.add(decoder);
    for (const int n : {1, 2, 20, 21, 22, 23}) {
        FoundDevice device = Found(n);
        device.Name = n == 23 ? u" "_s : n == 22 ? QString(40, u'x') : u"Twin"_s;
        model.add(device);
    }
    ASSERT_EQ(model.rowCount(), 6);
    EXPECT_TRUE(model.known(0));
    EXPECT_FALSE(model.known(1)); // same address on another port
    EXPECT_FALSE(model.setData(model.index(0, 0), Qt::Unchecked, Qt::CheckStateRole));

    for (int row = 0; row < model.rowCount(); ++row)
        model.setData(model.index(row, 0), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(model.checkedRows(), 3);
    EXPECT_FALSE(model.setData(model.index(5, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_TRUE(model.setData(model.index(1, 0), Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_TRUE(model.setData(model.index(5, 0), Qt::Checked, Qt::CheckStateRole));
    std::vector<NVRDetectItem> chosen = model.chosen(u"chief"_s, u"secret"_s);
    ASSERT_EQ(chosen.size(), 3U);
    EXPECT_EQ(chosen.back().sIP, u"10.0.0.23"_s);
    EXPECT_EQ(chosen.back().iSlot, -1);
    EXPECT_EQ(chosen.back().sPassword, u"secret"_s);
    EXPECT_EQ(chosen.back().sName, u"10.0.0.23"_s) << "a device without a name goes by its address";
    EXPECT_EQ(model.index(4, 0).data().toString(), QString(kRecorderNameLength, u'x'));
    EXPECT_EQ(DoubleNames(*recorders, chosen), QStringList(u"Twin"_s)) << "two of the chosen";
    chosen.erase(chosen.begin());
    EXPECT_EQ(DoubleNames(*recorders, chosen), QStringList());
    recorders->SVRWorkList[3].sSVR_Name = u"Twin"_s;
    EXPECT_EQ(DoubleNames(*recorders, chosen), QStringList(u"Twin"_s)) << "one that the station has";
    chosen.front().iSlot = 3;
    EXPECT_EQ(DoubleNames(*recorders, chosen), QStringList()) << "itself";
}

} // namespace
