#include "recorders/detect/ModifyApply.h"

#include "platform/MsgBox.h"
#include "recorders/camera/ChannelListModel.h"
#include "tests/TestMain.h"

#include <QSortFilterProxyModel>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Slot 3 holds a recorder of eight channels with cameras on the first two, open in the edit pair.
class Applying : public ::testing::Test
{
protected:
    Applying()
    {
        SVRRecord& work = set->SVRWorkList[3];
        work.iSVR_Num = 4;
        work.sSVR_Name = u"Yard"_s;
        work.sSVR_IP = u"10.0.0.4"_s;
        work.iSVR_HttpPort = 80;
        work.sSVR_UserName = u"admin"_s;
        work.iSVR_Maxchannel = 8;
        for (std::size_t c = 0; c < 2; ++c)
            work.channels[c].sSub_CH_IP = u"10.1.0.%1"_s.arg(c + 1);
        OpenEditPair(*set, 3);
        events.readAgain.subscribe([](int) { throw std::runtime_error("a subscriber that fails"); });
        events.readAgain.subscribe([this](int slot) { called << u"read %1"_s.arg(slot); });
        events.renamed.subscribe(
            [this](int slot, const QString& name) { called << u"renamed %1 "_s.arg(slot) + name; });
        events.channelChanged.subscribe(
            [this](int slot, int channel) { called << u"changed %1 %2"_s.arg(slot).arg(channel); });
        events.channelGone.subscribe([this](int slot, int channel, const SVRChannel& held) {
            called << u"gone %1 %2 "_s.arg(slot).arg(channel) + held.sSub_CH_IP;
        });
        SetMsgBoxHandler([this](const QString&, qint32, const QString&) { return answer; });
    }
    ~Applying() override { SetMsgBoxHandler(nullptr); }

    SVRRecord& work() { return set->SVRWorkList[3]; }
    SVRRecord& edit() { return set->SVREdit; }

    std::unique_ptr<RecorderSet> set = std::make_unique<RecorderSet>();
    RecorderEvents events;
    TemporaryStation station; // for the log of the failing subscriber
    QStringList called;
    MsgResult answer = MsgResult::Yes;
};

TEST_F(Applying, TakesTheEditPairOverAndTellsWhatFollows)
{
    edit().channels[0].sSub_CH_IP = u"10.1.0.9"_s;
    edit().channels[4].sSub_CH_IP = u"10.1.0.5"_s;
    edit().channels[4].bSub_CH_Modified = true;
    set->SVRProEdit.channels[4].sCH_Pro_Model = u"M"_s;
    ASSERT_EQ(ModifyApply(*set, 3, u"Yard"_s, events), Modified::Applied);
    EXPECT_EQ(called, QStringList({u"gone 3 0 10.1.0.1"_s, u"read 3"_s}));
    EXPECT_EQ(CameraCount(work()), 3);
    EXPECT_EQ(work().iSVR_ValidCH, 3);
    EXPECT_TRUE(work().bSVR_Changed);
    EXPECT_FALSE(work().bSVR_ConnChanged);
    EXPECT_FALSE(work().channels[4].bSub_CH_Modified);
    EXPECT_EQ(set->SVRProWorkList[3].channels[4].sCH_Pro_Model, u"M"_s);

    called.clear();
    ASSERT_EQ(ModifyApply(*set, 3, u"Depot"_s, events), Modified::Applied);
    EXPECT_EQ(called, QStringList({u"read 3"_s, u"renamed 3 Depot"_s}));
    EXPECT_EQ(work().sSVR_Name, u"Depot"_s);
    EXPECT_TRUE(work().bSVR_ConnChanged);
}

TEST_F(Applying, RecorderWithoutCamerasIsRemovedOrStaysOpen)
{
    edit().channels = SVRRecord().channels;
    edit().channels[8].sSub_CH_IP = u"10.1.0.9"_s; // beyond the recorder's channels
    answer = MsgResult::No;
    EXPECT_EQ(ModifyApply(*set, 3, u"Depot"_s, events), Modified::Kept);
    EXPECT_EQ(work().sSVR_Name, u"Yard"_s);
    EXPECT_EQ(CameraCount(work()), 2);
    EXPECT_EQ(LeaveUnapplied(*set, 3), Modified::Nothing);
    EXPECT_EQ(called, QStringList());
    // The last cameras were cleared on the device: Cancel does not bring them back.
    for (const int channel : {0, 1})
        ASSERT_TRUE(TakeOverWritten(*set, 3, channel, events));
    EXPECT_EQ(called, QStringList({u"gone 3 0 10.1.0.1"_s, u"gone 3 1 10.1.0.2"_s}));
    EXPECT_EQ(LeaveUnapplied(*set, 3), Modified::Kept);
    answer = MsgResult::Yes;
    EXPECT_EQ(LeaveUnapplied(*set, 3), Modified::Remove);
    EXPECT_EQ(ModifyApply(*set, 3, u"Depot"_s, events), Modified::Remove);
}

TEST_F(Applying, TheWrittenChannelFollowsAtOnceAndNothingElse)
{
    edit().sSVR_Name = u"Depot"_s;
    edit().sSVR_UserName = u"operator"_s;
    edit().channels[0].sSub_CH_Name = edit().channels[1].sSub_CH_Name = u"detected anew"_s;
    edit().channels[0].bSub_CH_Cam_MD_Enabled = true;
    ASSERT_TRUE(TakeOverWritten(*set, 3, 1, events));
    EXPECT_EQ(work().sSVR_Name + work().sSVR_UserName, u"Yardadmin"_s);
    EXPECT_EQ(work().channels[0].sSub_CH_Name, QString());
    EXPECT_EQ(work().channels[1].sSub_CH_Name, u"detected anew"_s);
    EXPECT_EQ(called, QStringList(u"changed 3 1"_s));
    EXPECT_EQ(LeaveUnapplied(*set, 3), Modified::Applied);
    ASSERT_TRUE(TakeOverSwitches(*set, 3));
    EXPECT_TRUE(work().channels[0].bSub_CH_Cam_MD_Enabled);
    EXPECT_EQ(work().channels[0].sSub_CH_Name, QString());

    edit().iSVR_HttpPort = 8080; // detected anew elsewhere
    edit().channels[1].sSub_CH_IP.clear();
    EXPECT_FALSE(TakeOverWritten(*set, 3, 1, events) || TakeOverSwitches(*set, 3));
    EXPECT_EQ(CameraCount(work()), 2);
}

TEST_F(Applying, ChannelListSortsAddressesByNumberAndCountsSwitchesOverTheStation)
{
    edit().channels[0].sSub_CH_IP = u"10.1.0.20"_s;
    edit().channels[2].sSub_CH_IP = u"10.1.0.100"_s;
    edit().channels[3].sSub_CH_IP = u"lobby.lan"_s;
    for (std::size_t c = 0; c < 31; ++c) {
        set->SVRWorkList[5].channels[c].sSub_CH_IP = u"x"_s;
        set->SVRWorkList[5].channels[c].bSub_CH_Cam_MD_Enabled = true;
    }
    set->SVRWorkList[5].channels[40].bSub_CH_Cam_MD_Enabled = true; // without a camera
    set->SVRWorkList[5].sSVR_IP = u"10.0.0.6"_s;
    ChannelListModel model(*set);
    model.setCameraEvents(true);
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&model);
    sorted.setSortRole(ChannelListModel::kSortRole);
    sorted.sort(ChannelListModel::Address, Qt::DescendingOrder);
    QStringList addresses;
    for (int row = 0; row < 4; ++row)
        addresses << sorted.index(row, ChannelListModel::Address).data().toString();
    EXPECT_EQ(addresses, QStringList({u"lobby.lan"_s, u"10.1.0.100"_s, u"10.1.0.20"_s, u"10.1.0.2"_s}));

    const auto set1 = [&](int channel, Qt::CheckState state) {
        return model.setData(model.index(channel, ChannelListModel::CameraEvent), state, Qt::CheckStateRole);
    };
    int refused = 0;
    QObject::connect(&model, &ChannelListModel::limitReached, &model, [&] { ++refused; });
    EXPECT_FALSE(set1(7, Qt::Checked)) << "no camera";
    EXPECT_TRUE(set1(0, Qt::Checked)); // the 32nd
    EXPECT_FALSE(set1(1, Qt::Checked));
    EXPECT_EQ(refused, 1);
    EXPECT_TRUE(set1(0, Qt::Unchecked));
    EXPECT_TRUE(set1(1, Qt::Checked));
    EXPECT_EQ(model.switched(), (std::vector<std::pair<int, bool>>{{1, true}}));
    edit().channels[1].sSub_CH_IP.clear(); // cleared meanwhile: its switch goes with it
    model.refreshChannel(1);
    edit().channels[1].sSub_CH_IP = u"10.1.0.2"_s;
    EXPECT_TRUE(model.switched().empty());
}

} // namespace
