#include "app/StartUp.h"
#include "platform/clsOSInfo.h"
#include "screens/PatternStore.h"
#include "screens/ScreenLists.h"
#include "screens/ScreenRules.h"
#include "screens/StartStore.h"
#include "support/Conversions.h"
#include "tests/store/StoreFixture.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

// Recorders 1 to 3 with channels 1 to 4 each, and what ann and bob keep of screens.
class ScreenRecordsTest : public StoreFixture
{
protected:
    ScreenRecordsTest()
    {
        SetCurrentUser(u"ann"_s);
        open();
        execute(u"DELETE FROM GroupPrivilege"_s);
    }
    ~ScreenRecordsTest() override
    {
        clsOSInfo::setScreenCounter(nullptr);
        SetCurrentUser({});
    }
    // Starts a desk on that many monitors.
    ScreenSet& load(int monitors)
    {
        clsOSInfo::setScreenCounter([monitors] { return monitors; });
        CloseDatabases(databases);
        desk = std::make_unique<Station>();
        EXPECT_EQ(InitialDB(desk->databases), 1);
        LoadRecords(*desk);
        desk->families.InitialSetValue();
        for (int slot = 0; slot < 3; ++slot) {
            SVRRecord& recorder = At(desk->recorders.SVRWorkList, slot);
            recorder.sSVR_Name = recorder.sSVR_IP = u"nvr"_s + QString::number(slot + 1);
            recorder.iSVR_Num = static_cast<qint16>(slot + 1);
            for (int channel = 0; channel < 4; ++channel)
                At(recorder.channels, channel).sSub_CH_Name = u"camera"_s;
        }
        LoadUserRecords(*desk);
        return desk->screens;
    }
    void removeRecorder(int slot)
    {
        const auto held = std::make_unique<SVRRecord>(At(desk->recorders.SVRWorkList, slot));
        At(desk->recorders.SVRWorkList, slot) = SVRRecord();
        desk->events.removed.send(slot, *held);
        EXPECT_TRUE(SaveCheck(*desk));
    }
    QString rows(const QString& sql) { return Rows(*desk->databases.DBConn, sql, u'|', u'/'); }
    QString layout()
    {
        return rows(u"SELECT Form_EMapView, Form_PlayBack, Form_FullScreen, Form_VideoWall FROM ScreenLayout"_s);
    }

    std::unique_ptr<Station> desk;
};

TEST_F(ScreenRecordsTest, ALayoutIsFittedToTheMonitorsThatAreThere)
{
    struct Case
    {
        QString stored; // columns of the row
        int monitors;
        QString saved;
        bool repaired;
    };
    const QString letters = QStringList(10000, u"x"_s).join(u',');
    const Case cases[]{
        {u"1, 1, '', ''"_s, 1, u"1|1|1|-1"_s, false},
        {u"2, 1, '2,1', '2'"_s, 2, u"2|1|2,1|2"_s, false},
        {u"4, 3, '1,2,4,3', '2,4,3'"_s, 2, u"1|1|1,2|2"_s, true},
        {u"4, 2, '1,2,4,3', '3'"_s, 1, u"1|1|1|-1"_s, true},
        {u"3, 1, '1', '1,0,-7'"_s, 5, u"3|1|1,2,3,4,5|-1,-1,-1,-1"_s, false},
        {u"-2, 40000, ' 3 ,-1,40000', 'a,3, ,3'"_s, 4, u"1|1|3,2,3,4|-1,3,-1"_s, true},
        {u"1, 1, '%1', '%1'"_s.arg(letters), 3, u"1|1|1,2,3|-1,-1"_s, true},
        {u"1, 1, '1,2,3,4,5,6', '2,3,4,5,6'"_s, 6, u"1|1|1,2,3,4,5,6|2,3,4,5"_s, false},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.stored.left(60).toStdString());
        ASSERT_EQ(InitialDB(databases), 1);
        execute(u"UPDATE ScreenLayout SET (Form_EMapView, Form_PlayBack, Form_FullScreen, Form_VideoWall) = (%1)"_s.arg(
            test.stored));
        const QByteArray before = allLogs();
        ScreenSet& set = load(test.monitors);
        EXPECT_EQ(desk->families.ExitCheck(), test.repaired);
        EXPECT_LT(allLogs().count('\n') - before.count('\n'), 6);
        set.layoutEdit.bChanged = true;
        EXPECT_TRUE(SaveCheck(*desk));
        EXPECT_EQ(layout(), test.saved);
        EXPECT_FALSE(desk->families.ExitCheck());
    }
}

TEST_F(ScreenRecordsTest, StartsAreReadWithTheirRepairs)
{
    execute(u"INSERT INTO DefaultStart (sOwner, bFixStart, iLastSplit, sStartPatternName, iForm_MainViewer, "
            "sForm_FullScreen) VALUES ('ann', 0, 0, 'N/A', 0, '1'), ('ann', 0, 9, 'twice', 1, '')"_s);
    const ScreenSet& set = load(2);
    EXPECT_TRUE(set.startEdit.bFixStart);
    EXPECT_EQ(set.startEdit.iLastSplit, 16);
    EXPECT_EQ(set.startEdit.MVChannel.count(u"-1"_s), 64);
    EXPECT_EQ(set.startEdit.sStartPatternName, u""_s);
    EXPECT_THAT(set.startEdit.aFullScreen, ::testing::ElementsAre(1, 0));
    EXPECT_EQ(set.startEdit.iForm_MainViewer, 0);
    EXPECT_TRUE(SaveCheck(*desk)); // two rows of one owner become one
    EXPECT_EQ(rows(u"SELECT iLastSplit, sForm_FullScreen FROM DefaultStart WHERE sOwner='ann'"_s), u"16|1:0,0:0"_s);

    SetCurrentUser(u"eve"_s); // without a row
    load(3);
    EXPECT_EQ(rows(u"SELECT bFixStart, iForm_MainViewer, sForm_FullScreen FROM DefaultStart WHERE sOwner='eve'"_s),
              u"1|1|0:0,0:0,0:0"_s);
    EXPECT_FALSE(desk->families.ExitCheck());

    ASSERT_EQ(InitialDB(databases), 1);
    execute(u"UPDATE ScreenLayout SET Form_PlayBack=9"_s);
    execute(u"UPDATE DefaultStart SET iForm_MainViewer=0, iForm_PlayBack=1, sForm_FullScreen='1:2,1:1,x:'"_s);
    const ScreenSet& moved = load(3); // what starts is not trusted after a repair of the layout
    EXPECT_EQ(moved.startEdit.iForm_MainViewer, 1);
    EXPECT_EQ(TableRowOf(moved.startEdit).sForm_FullScreen, u"0:0,0:0,0:0"_s);
}

TEST_F(ScreenRecordsTest, PatternsAndWallsOfAUserAreReadAndWritten)
{
    execute(
        u"INSERT INTO Pattern (iID, sOwner, iSplit, sCHSequence, sName) VALUES (2, 'ann', 4, '1, x,40000,-9', 'b'), "
        "(1, 'ann', 4, '0,1', 'O''Brien'), (1, 'bob', 1, '5', 'other')"_s);
    execute(u"UPDATE ScreenLayout SET Form_VideoWall='2,4'"_s);
    execute(
        u"INSERT INTO VideoWall (sLoginUser, VideoWallIndex, iSplit, Channel, sSEQPatternList) VALUES "
        "('ann', 1, 4, '0,a,70000,3', '1,2'), ('ann', 1, 9, '', ''), ('ann', 7, 6, '8', ''), ('bob', 1, 1, '2', '')"_s);
    ScreenSet& set = load(3);
    EXPECT_EQ(set.patternsEdit[1].sCHSequence, u"1,-1,-1,-1"_s);
    EXPECT_THAT(set.wallsEdit[0].aChannel, ::testing::ElementsAre(0, -1, -1, 3));
    EXPECT_EQ(set.layoutEdit.aVideoWall[1], -1); // its screen is gone
    EXPECT_GT(logLines("Module_DB_Access - GetVideoWall"), 1);
    set.wallsEdit[0].bChanged = set.wallsEdit[1].bChanged = true;
    EXPECT_TRUE(desk->families.ExitCheck()); // the layout's repair, not the walls
    set.patternsEdit[0].iSplit = 9;
    set.patternsEdit[0].bChanged = true;
    EXPECT_TRUE(SaveCheck(*desk));
    EXPECT_EQ(rows(u"SELECT sOwner, iID, iSplit, sName FROM Pattern ORDER BY sOwner, iID"_s),
              u"ann|1|9|O'Brien/ann|2|4|b/bob|1|1|other"_s);
    EXPECT_EQ(rows(u"SELECT sLoginUser, VideoWallIndex, iSplit, Channel FROM VideoWall ORDER BY 1, 2"_s),
              u"ann|1|4|0,-1,-1,3/ann|2|16|/ann|7|6|8/bob|1|1|2"_s);
    EXPECT_EQ(load(1).wallsEdit.size(), 0u);
}

TEST_F(ScreenRecordsTest, WhatIsGoneLeavesEveryList)
{
    execute(
        u"INSERT INTO Pattern (iID, sOwner, iSplit, sCHSequence, sName) VALUES (1, 'ann', 4, '64,65,66,67', 'gone'), "
        "(2, 'ann', 4, '0,64,-1,128', 'two'), (3, 'ann', 4, '1,1,1,1', 'three'), (1, 'bob', 4, '64,65,-1,-1', 'his'), "
        "(2, 'bob', 1, '3', 'whole')"_s);
    execute(u"UPDATE ScreenLayout SET Form_FullScreen='1,2,3', Form_VideoWall='3,-1'"_s);
    execute(u"INSERT INTO DefaultStart (sOwner, MVChannel, sStartPatternName, iSEQMode, sSEQSVRList, sSEQPatternList, "
            "sForm_FullScreen) VALUES ('ann', '0,64,x', 'gone', 1, '1,2', '3,1', '1:1,0:2,0:3'), "
            "('bob', '64,1', 'his', 1, '2,3', '1,2', '0:1,1:2,0:3')"_s);
    execute(u"INSERT INTO FullscreenSEQByChannel (UserName, FullscreenID, ChannelList, DisplayAll) VALUES "
            "('ann', 0, '1\\1,2\\1', 1), ('bob', 0, '2\\1,17\\1,1\\65,1\\4,letters', 0)"_s);
    execute(
        u"INSERT INTO FullscreenSEQByNVR (UserName, FullscreenID, NVRList) VALUES ('ann', 1, '2,3'), ('bob', 1, '1,2,3')"_s);
    execute(u"INSERT INTO FullscreenSEQPattern (UserName, FullscreenID, PatternList) VALUES ('ann', 2, '3,2,1'), "
            "('ann', 9, '1,3'), ('bob', 2, '1,2')"_s);
    execute(
        u"INSERT INTO VideoWall (sLoginUser, VideoWallIndex, sSEQPatternList, iDS_DisplayMode, sDS_Pattern, Channel) "
        "VALUES ('ann', 1, '1,2', 1, 'gone', '64,0'), ('ann', 4, '2,3', 1, 'three', '65'), ('bob', 1, '1,2', 1, 'his', '64')"_s);
    load(3);
    removeRecorder(1);
    EXPECT_EQ(rows(u"SELECT sOwner, iID, sCHSequence, sName FROM Pattern ORDER BY sOwner, iID"_s),
              u"ann|1|0,-1,-1,128|two/ann|2|1,1,1,1|three/bob|1|-1,-1,-1,-1|his/bob|2|3|whole"_s);
    EXPECT_EQ(rows(u"SELECT MVChannel, sStartPatternName, iSEQMode, sSEQSVRList, sSEQPatternList, sForm_FullScreen "
                   "FROM DefaultStart ORDER BY sOwner"_s),
              u"0,-1,-1||0|1|2|1:1,0:0,0:3/-1,1|his|0|3|1,2|0:0,1:2,0:3"_s);
    EXPECT_EQ(rows(u"SELECT ChannelList FROM FullscreenSEQByChannel ORDER BY UserName"_s), u"1\\1/1\\4"_s);
    EXPECT_EQ(rows(u"SELECT NVRList FROM FullscreenSEQByNVR ORDER BY UserName"_s), u"3/1,3"_s);
    EXPECT_EQ(rows(u"SELECT PatternList FROM FullscreenSEQPattern ORDER BY UserName, FullscreenID"_s), u"2,1/2/1,2"_s);
    EXPECT_EQ(rows(u"SELECT sSEQPatternList, iDS_DisplayMode, sDS_Pattern, Channel FROM VideoWall ORDER BY sLoginUser, "
                   "VideoWallIndex"_s),
              u"1|0||-1,0/1,2|1|three|-1/1,2|1|his|-1"_s);

    // A channel goes at a recorder that stays.
    At(At(desk->recorders.SVRWorkList, 0).channels, 1) = SVRChannel();
    desk->events.channelGone.send(0, 1, SVRChannel());
    EXPECT_EQ(PatternCount(desk->screens.patternsEdit), 1);
    EXPECT_EQ(desk->screens.startEdit.sSEQPatternList, u""_s);
}

TEST_F(ScreenRecordsTest, WhoGoesTakesHisRowsAlong)
{
    execute(u"INSERT INTO FullscreenSEQByNVR (UserName) VALUES ('ann'), ('gone'), ('')"_s);
    execute(u"INSERT INTO VideoWall (sLoginUser) VALUES ('gone'), ('ann')"_s);
    load(2);
    SetUser_Modify(desk->users, [] {
        UserFields ann;
        ann.sUser = u"ann"_s;
        ann.sPSWD = u"p"_s;
        return ann;
    }());
    EXPECT_TRUE(SaveCheck(*desk));
    EXPECT_EQ(rows(u"SELECT UserName FROM FullscreenSEQByNVR UNION ALL SELECT sLoginUser FROM VideoWall"_s),
              u"ann/ann"_s);
}

TEST_F(ScreenRecordsTest, ASequenceKeepsOneRowForASurface)
{
    execute(
        u"INSERT INTO FullscreenSEQByNVR (UserName, FullscreenID, NVRList) VALUES ('ann', 1, '1,2'), ('ann', 1, '3')"_s);
    load(2);
    FullscreenSEQRow row;
    EXPECT_TRUE(GetMyFullscreenSEQ(desk->databases, SequenceByNVR, u"ann"_s, 0, row));
    EXPECT_EQ(row.ID, -1);
    EXPECT_EQ(row.DurationTime, 15);
    EXPECT_TRUE(GetMyFullscreenSEQ(desk->databases, SequenceByNVR, u"ann"_s, 1, row));
    row.NVRList += u",5"_s;
    EXPECT_TRUE(SaveFullscreenSEQ(desk->databases, SequenceByNVR, row));
    EXPECT_EQ(rows(u"SELECT NVRList, DurationTime FROM FullscreenSEQByNVR"_s), u"1,2,5|15"_s);
    EXPECT_TRUE(CheckFSSEQContent(desk->databases, SequenceByNVR, u"ann"_s, 1));
    EXPECT_FALSE(CheckFSSEQContent(desk->databases, SequenceByPattern, u"ann"_s, 1));
}

// A step of a layout that starts as: four monitors, wall 1 on screen 3, event monitor and surface 2 (by NVR) started on
// screen 2, nothing but the live viewer on screen 1.
TEST_F(ScreenRecordsTest, RulesOfScreens)
{
    struct Case
    {
        std::function<bool(ScreenSet&)> step;
        bool done;
        QString outcome; // event monitor, surface 2, walls, marks of viewer, event monitor, console, surface 2
    };
    const auto move = [](const QString& key, qint16 screen) {
        return [key, screen](ScreenSet& set) { return MoveToScreen(set, ItemOfKey(key), screen); };
    };
    bool moved = false;
    const Case cases[]{
        {move(u"Form_EventMonitor"_s, 2), false, u"2 2 3,-1,-1 1 1 1 1:2"_s},
        {move(u"Form_EventMonitor"_s, 1), true, u"1 2 3,-1,-1 1 0 1 1:2"_s},
        {move(u"Form_EventMonitor"_s, 3), false, u"2 2 3,-1,-1 1 1 1 1:2"_s},
        {move(u"Form_MainViewer"_s, 2), false, u"2 2 3,-1,-1 1 1 1 1:2"_s},
        {move(u"FS1"_s, 4), true, u"2 4 3,-1,-1 1 1 1 0:0"_s},
        {move(u"FS7"_s, 4), false, u"2 2 3,-1,-1 1 1 1 1:2"_s},
        {move(u"Screen-1"_s, 4), false, u"2 2 3,-1,-1 1 1 1 1:2"_s},
        {[&](ScreenSet& set) { return SwitchWallOn(set, 1, moved) == 2 && moved; }, true, u"1 1 3,2,-1 1 0 1 0:2"_s},
        {[&](ScreenSet& set) { return SwitchWallOff(set, 0), true; }, true, u"2 2 -1,-1,-1 1 1 0 1:2"_s},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        SCOPED_TRACE(i);
        ScreenSet& set = load(4);
        set.layoutEdit.aVideoWall[0] = 3;
        set.layoutEdit.Form_EventMonitor = 2;
        set.startEdit.iForm_EventMonitor = set.startEdit.iForm_Console = 1;
        set.startEdit.aFullScreen[1] = 1;
        set.startEdit.aFullScreenMode[1] = 2;
        EXPECT_EQ(cases[i].step(set), cases[i].done);
        EXPECT_EQ(u"%1 %2 "_s.arg(set.layoutEdit.Form_EventMonitor).arg(set.layoutEdit.aFullScreen[1]) +
                      ToList(set.layoutEdit.aVideoWall) +
                      u" %1 %2 %3 %4:%5"_s.arg(set.startEdit.iForm_MainViewer)
                          .arg(set.startEdit.iForm_EventMonitor)
                          .arg(set.startEdit.iForm_Console)
                          .arg(set.startEdit.aFullScreen[1])
                          .arg(set.startEdit.aFullScreenMode[1]),
                  cases[i].outcome);
        EXPECT_EQ(set.layoutEdit.bChanged, cases[i].done);
    }
    ScreenSet& set = load(2); // the only one that starts leaves the first screen
    set.startEdit.iForm_MainViewer = 0;
    set.startEdit.iForm_PlayBack = 1;
    EXPECT_TRUE(MoveToScreen(set, ItemOfKey(u"Form_PlayBack"_s), 2));
    EXPECT_EQ(set.startEdit.iForm_MainViewer, 1);
    EXPECT_NE(SwitchWallOn(set, 0, moved), kNoScreen);
    EXPECT_EQ(set.wallsEdit[0].sScreenPosition, u"0.0000,0.0000,0.2500,1.0000"_s);
    EXPECT_EQ(SwitchWallOn(set, 0, moved), kNoScreen);
}

} // namespace
