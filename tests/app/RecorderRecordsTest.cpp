#include "app/RemoveSVR.h"
#include "emap/EMapStore.h"
#include "support/Conversions.h"
#include "tests/support/SimulatedStation.h"

using namespace Qt::StringLiterals;

namespace {

// The maps, detection settings and rows that hang on the recorders, on a station of its own.
class RecorderRecords : public SimulatedStation
{
protected:
    // A recorder with cameras on its first channels, saved.
    void addRecorder(int slot, const QString& name, int cameras)
    {
        SVRRecord& work = At(desk->recorders.SVRWorkList, slot);
        work.iSVR_Num = static_cast<qint16>(slot + 1);
        work.sSVR_Name = name;
        work.sSVR_IP = u"127.0.0.%1"_s.arg(100 + slot);
        work.iSVR_HttpPort = 9;
        work.iSVR_Maxchannel = 64;
        for (int channel = 0; channel < kMaxChannel; ++channel) {
            ClearChannel(work, At(desk->recorders.SVRProWorkList, slot), channel);
            if (channel >= cameras)
                continue;
            At(work.channels, channel).sSub_CH_Name = u"%1 camera %2"_s.arg(name).arg(channel + 1);
            At(work.channels, channel).sSub_CH_IP = u"10.0.0.1"_s;
        }
        work.bSVR_Changed = true;
        FinishNewRecorders(*desk);
    }
    QString maps() { return rows(u"SELECT iMap_Type, iMap_ID, sName, sParent FROM EMapGroup"_s); }
    QString audit()
    {
        const QString all = u"SELECT Description FROM SystemLog ORDER BY rowid"_s;
        return Rows(*desk->databases.LogConn, all, u' ', u',').remove(u"Modify Setting of "_s);
    }
    QString editMaps() const
    {
        QStringList all;
        for (const EMapGroupRow& map : desk->emap.edit)
            all << u"%1%2:%3"_s.arg(u"RGST"_s.at(map.iMap_Type)).arg(map.iMap_ID).arg(map.sName);
        return all.join(u' ');
    }
    void addMap(qint16 type, qint16 id, const QString& name, const QString& parent)
    {
        EMapGroupRow& map = desk->emap.edit.emplace_back();
        std::tie(map.iMap_Type, map.iMap_ID, map.sName, map.sParent, map.bChanged) =
            std::tuple(type, id, name, parent, true);
    }
};

} // namespace

TEST_F(RecorderRecords, EveryMapComesBackAndTheRootIsAlwaysThere)
{
    start();
    EXPECT_EQ(desk->emap.edit.size(), 1U);
    EXPECT_EQ(desk->emap.edit[0].sMap_Path, u"\\MAP\\Main_Map.jpg"_s);
    addMap(kMapSub, 2, u"Hall 'B'"_s, u"S4"_s);
    addMap(kMapGroup, 1, u"Süd"_s, u"MainMap"_s);
    desk->emap.edit[1].dMapX = 0.3333;
    desk->emap.edit[1].dInfoY = 1;
    desk->emap.edit[1].dSMapX = 0.25;
    desk->emap.edit[1].iInfo_Position = 7;
    SaveCheck(*desk);
    EXPECT_EQ(audit(), u"Emap"_s);
    start();
    EXPECT_EQ(editMaps(), u"R0:MainMap G1:Süd T2:Hall 'B'"_s) << "ordered by level and number";
    const EMapGroupRow& map = desk->emap.stored[2];
    EXPECT_EQ(map.dMapX, 0.3333);
    EXPECT_EQ(map.dInfoY, 1);
    EXPECT_EQ(map.dSMapX, 0.25);
    EXPECT_EQ(map.iInfo_Position, 7);
    EXPECT_EQ(map.sParent, u"S4"_s);
    EXPECT_FALSE(desk->families.ExitCheck());

    for (const QString& remaining : {u"DELETE FROM EMapGroup WHERE iMap_Type=0"_s, u"DELETE FROM EMapGroup"_s}) {
        execute(remaining);
        EXPECT_TRUE(GetEMapGroup(desk->databases, desk->emap));
        EXPECT_EQ(desk->emap.edit[0].sName, u"MainMap"_s);
    }
    EXPECT_EQ(desk->emap.stored.size(), 1U);
    execute(u"DROP TABLE EMapGroup"_s);
    addMap(kMapGroup, 1, u"kept"_s, {});
    EXPECT_FALSE(GetEMapGroup(desk->databases, desk->emap));
    EXPECT_FALSE(SaveEMapGroup(desk->databases, desk->emap));
    EXPECT_EQ(editMaps(), u"R0:MainMap G1:kept"_s);
}

TEST_F(RecorderRecords, CompactionRenumbersGroupsAndSubMapsAndLeavesRecordersTheirs)
{
    start();
    addMap(kMapGroup, 1, u"one"_s, {});
    addMap(kMapSub, 5, u"sub"_s, u"S9"_s);
    addMap(kMapGroup, 2, {}, {});
    addMap(kMapRecorder, 9, u"recorder"_s, {});
    addMap(kMapGroup, 3, u"three"_s, {});
    ReDimEMapGroup(desk->emap);
    EXPECT_EQ(editMaps(), u"R0:MainMap G1:one G2:three S9:recorder T4:sub"_s);
    EXPECT_TRUE(desk->emap.edit[0].bChanged);
}

TEST_F(RecorderRecords, ARecordersMapComesFollowsItsNameAndGoes)
{
    start();
    addMap(kMapGroup, 1, u"Group"_s, u"MainMap"_s);
    addMap(kMapSub, 2, u"Cellar"_s, u"S2"_s);
    addMap(kMapSub, 3, u"Attic"_s, u"S1"_s);
    addRecorder(1, u"North"_s, 2);
    addRecorder(0, u"South"_s, 1);
    EXPECT_EQ(editMaps(), u"R0:MainMap G1:Group S2:North S1:South T2:Cellar T3:Attic"_s);
    EXPECT_EQ(desk->emap.edit[2].sMap_Path, u"\\MAP\\map1.jpg"_s);
    EXPECT_FALSE(AddRecorderMap(desk->emap, 1, u"again"_s));
    EXPECT_EQ(rows(u"SELECT iSVR, iChannel, sParent FROM EMapIcon"_s), u"1,1, 2,1, 2,2,"_s);

    desk->emap.iconsEdit[1].channels[0].sParent = u"North"_s;
    desk->emap.iconsEdit[1].channels[1].sParent = u"Cellar"_s;
    desk->emap.iconsEdit[1].channels[1].dMapX = 0.5;
    desk->emap.iconsEdit[0].channels[0].sParent = u"North"_s; // another recorder's, whatever it names
    RenameRecorderMap(desk->emap, 1, u"Far North"_s);
    SaveCheck(*desk);
    start();
    EXPECT_EQ(maps(), u"0,0,MainMap, 1,1,Group,MainMap 2,2,Far North, 2,1,South, 3,2,Cellar,S2 3,3,Attic,S1"_s);
    EXPECT_EQ(rows(u"SELECT iSVR, iChannel, sParent, dMapX FROM EMapIcon"_s),
              u"1,1,North,0 2,1,Far North,0 2,2,Cellar,0.5"_s);
    EXPECT_EQ(desk->emap.iconsEdit[1].channels[1].dMapX, 0.5);

    RemoveRecorderMaps(desk->emap, 1);
    SaveCheck(*desk);
    EXPECT_EQ(maps(), u"0,0,MainMap, 1,1,Group,MainMap 2,1,South, 3,3,Attic,S1"_s);
    EXPECT_EQ(desk->emap.iconsStored[1].channels[1].sParent, QString());
    execute(u"INSERT INTO EMapIcon (iSVR, iChannel, sParent) VALUES (17, 1, 'x'), (1, 65, 'x'), (1, 64, 'y')"_s);
    GetEMapIconEx(desk->databases, desk->emap);
    EXPECT_EQ(logLines("Module_DB_Access - GetEMapIconEx"), 2);
    EXPECT_EQ(desk->emap.iconsStored[0].channels[63].sParent, u"y"_s);
}

TEST_F(RecorderRecords, DetectionRowsBelongToTheChannelOfTheirAnalysisId)
{
    start();
    addRecorder(0, u"a"_s, 3);
    addRecorder(3, u"b"_s, 2);
    EXPECT_EQ(audit(), u"NVR,Emap,NVR,Emap"_s) << "new cameras have no analysis: no row, no line";
    for (const auto& [slot, channel, id] : {std::tuple(0, 0, 0), {0, 1, 7}, {3, 1, 9}}) {
        At(At(desk->recorders.SVRWorkList, slot).channels, channel).lSub_CH_IntelligentID = id;
        At(desk->recorders.SVRWorkList, slot).bSVR_Changed = true;
    }
    IntelligentSettings& settings = desk->channelEvents.edit[3];
    settings.channels[1].bMotionEnable = -1;
    settings.channels[1].iTripwireSensitivity = 33;
    settings.channels[1].bChanged = true;
    SaveCheck(*desk);
    EXPECT_EQ(audit(), u"NVR,Emap,NVR,Emap,NVR,Intelligent"_s);
    execute(u"INSERT INTO MotionSettings VALUES (0, -1, 1), (8, -1, 1)"_s);
    execute(u"UPDATE TripwireSettings SET Sensitivity='much' WHERE Channel=7"_s);
    start();
    EXPECT_EQ(rows(u"SELECT * FROM MotionSettings"_s), u"7,0,50 9,-1,50 0,-1,1 8,-1,1"_s);
    const auto& edit = desk->channelEvents.edit;
    EXPECT_EQ(edit[3].channels[1].bMotionEnable, -1);
    EXPECT_EQ(edit[3].channels[1].iTripwireSensitivity, 33);
    EXPECT_EQ(edit[0].channels[1].iTripwireSensitivity, 80) << "an unreadable field keeps its default";
    EXPECT_EQ(edit[0].channels[0].bMotionEnable, 0) << "an id of 0 is none";
    desk->channelEvents.edit[0].channels[1].bThreatEnable = -1;
    desk->channelEvents.edit[0].channels[1].bChanged = true;
    SaveCheck(*desk);
    EXPECT_EQ(rows(u"SELECT * FROM MotionSettings"_s), u"7,0,50 9,-1,50"_s) << "rows without a channel are gone";
    EXPECT_EQ(rows(u"SELECT * FROM MaliciousAttackSettings"_s), u"7,-1,50 9,0,50"_s);
}

TEST_F(RecorderRecords, ARemovedRecorderLeavesNothingBehind)
{
    startSite({Recorder(Family::Txr632)});
    start();
    addRecorder(0, u"goes"_s, 4);
    addRecorder(5, u"stays"_s, 2);
    SVRRecord& work = desk->recorders.SVRWorkList[0];
    place(work, 0);
    onDevice(0, [](simulators::Device& device) { device.channel(3).customEvents = 3; });
    work.sSVR_DeviceType = kFamilyTXR632;
    work.bSVR_CEventSupport = true;
    work.channels[2].lSub_CH_IntelligentID = 4;
    work.bSVR_Changed = true;
    desk->recorders.SVRWorkList[5].channels[1].lSub_CH_IntelligentID = 6;
    desk->recorders.SVRWorkList[5].bSVR_Changed = true;
    desk->channelEvents.edit[0].channels[2].bMotionEnable = -1;
    desk->channelEvents.edit[0].channels[2].bChanged = true;
    addMap(kMapSub, 3, u"Cellar"_s, u"S1"_s);
    for (GroupPrivilegeRecord& group : desk->groups.edit)
        group.CHPrivilege[0] = u"1:0,0"_s;
    desk->groups.edit[0].bChanged = true;
    SaveCheck(*desk);
    ASSERT_EQ(rows(u"SELECT Channel FROM MotionSettings"_s), u"4 6"_s);
    ASSERT_EQ(desk->channelEvents.events[0][2].sName, u"goes camera 3"_s);
    QSqlQuery(desk->databases.LogConn->database()).exec(u"DELETE FROM SystemLog"_s);

    com.SetProToDeviceBridge(desk->recorders.SVRList);
    EXPECT_EQ(com.FindServiceSlot(0), 0);
    Work removal;
    Await(RemoveSVR(*desk, com, 0, removal));
    EXPECT_EQ(com.FindServiceSlot(0), -1) << "nobody polls it any more";
    EXPECT_EQ(onDevice(0, [](simulators::Device& device) { return device.channel(3).customEvents; }), 0);
    EXPECT_EQ(requests(0, "/event/basicevent.cgi?action=set&customevent_c1=0"), 1);
    EXPECT_EQ(rows(u"SELECT DISTINCT iSVR_Num FROM SVR"_s), u"6"_s);
    EXPECT_EQ(maps(), u"0,0,MainMap, 2,6,stays,"_s);
    EXPECT_EQ(rows(u"SELECT iSVR, iChannel FROM EMapIcon"_s), u"6,1 6,2"_s);
    for (const QString& table :
         {u"MotionSettings"_s, u"MaliciousAttackSettings"_s, u"ObjectLossSettings"_s, u"TripwireSettings"_s})
        EXPECT_EQ(rows(u"SELECT Channel FROM "_s + table), u"6"_s);
    EXPECT_EQ(rows(u"SELECT COUNT(*) FROM NVRPrivilege WHERE NVRID=1 AND CHPrivilege LIKE '1:15,15,%,15'"_s), u"7"_s);
    EXPECT_EQ(audit(), u"NVR,Intelligent,Emap"_s);
    EXPECT_TRUE(desk->recorders.SVRList[0].sSVR_IP.isEmpty());
    EXPECT_EQ(FirstFreeSlot(desk->recorders.SVRWorkList), 0);
    EXPECT_EQ(work.channels[63].iPower, 1);
    EXPECT_EQ(desk->channelEvents.events[0][2].sName, QString());
    EXPECT_EQ(desk->channelEvents.stored[0].channels[2].bMotionEnable, 0);
    EXPECT_FALSE(desk->families.ExitCheck());

    // A channel that goes takes its detection settings and its place on the maps along.
    SVRRecord& stays = desk->recorders.SVRWorkList[5];
    for (int channel : {0, 1}) {
        desk->emap.iconsEdit[5].channels[static_cast<std::size_t>(channel)].sParent = u"stays"_s;
        const SVRChannel held = std::exchange(At(stays.channels, channel), SVRChannel());
        if (channel == 0)
            stays.channels[0].sSub_CH_IP = u"10.9.9.9"_s; // for another camera
        desk->events.channelGone.send(5, channel, held);
    }
    EXPECT_EQ(desk->emap.iconsEdit[5].channels[0].sParent, u"stays"_s);
    EXPECT_EQ(desk->emap.iconsEdit[5].channels[1].sParent, QString());
    stays.bSVR_Changed = true;
    SaveCheck(*desk);
    EXPECT_EQ(rows(u"SELECT Channel FROM MotionSettings"_s), QString());

    // One that takes no custom events is not asked. A stop ends the question to one that does not answer, and the
    // removal goes on.
    Await(RemoveSVR(*desk, com, 5, removal));
    addRecorder(1, u"silent"_s, 1);
    desk->recorders.SVRWorkList[1].bSVR_CEventSupport = true;
    place(desk->recorders.SVRWorkList[1], 0);
    const int asked = requests(0, "/event/");
    fault(0, {FaultKind::Silent, 0, "/event/"});
    ASSERT_TRUE(removal.start([&] { return RemoveSVR(*desk, com, 1, removal); }));
    ASSERT_TRUE(WaitUntil([&] { return requests(0, "/event/") > asked; }, 10));
    EXPECT_FALSE(desk->recorders.SVRList[1].sSVR_IP.isEmpty());
    EXPECT_TRUE(StopsAtOnce(removal));
    EXPECT_EQ(rows(u"SELECT * FROM SVR"_s), QString());
    EXPECT_EQ(OccupiedSlots(desk->recorders.SVRList), 0);
    EXPECT_EQ(logLines("Form_Initial - RemoveSVR"), 0) << allLogs().toStdString();
}
