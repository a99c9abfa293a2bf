#include "recorders/data/SVRStore.h"
#include "store/tables/SVRTable.h"
#include "support/Conversions.h"
#include "tests/store/StoreFixture.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class SVRStoreTest : public StoreFixture
{
protected:
    // A recorder in slot 2 with cameras on the channels 1 and 64.
    void fill(const QString& family)
    {
        SVRRecord& svr = set->SVRList[2];
        SVRProRecord& pro = set->SVRProList[2];
        svr.iSVR_Num = 3;
        svr.sSVR_Name = u"Tor 'Nord'"_s;
        svr.sSVR_IP = u"127.0.0.2"_s;
        svr.sSVR_DeviceType = family;
        svr.iSVR_Maxchannel = 64;
        svr.iSVR_HttpPort = 65535;
        svr.iSVR_TimeZoneNum = -12;
        for (std::size_t channel : {std::size_t(0), std::size_t(63)}) {
            SVRRow row{&svr, &pro, static_cast<int>(channel)};
            int seed = 1;
            for (const auto& column : SVRColumns)
                assign(column, row, seed);
            for (const auto& column : SVRProColumns)
                assign(column, row, seed);
            svr.channels[channel].iSub_Channel = static_cast<qint16>(channel + 1);
            svr.channels[channel].sSub_CH_MD_FishEyeModeList = u"Quad:3,4,4097;Pano:1,0,2"_s;
            svr.channels[channel].presets[4].iPresetID = 7;
            svr.channels[channel].presets[4].sPresetName = u"Tür"_s;
            svr.channels[channel].presets[4].sPresetImage = u"a.jpg"_s;
        }
        svr.sSVR_IP = u"127.0.0.2"_s;
        svr.sSVR_DeviceType = family;
        svr.iSVR_Maxchannel = 64;
    }
    static void assign(const Column<SVRRow>& column, SVRRow& row, int& seed)
    {
        ++seed;
        const QString name = QString::fromLatin1(column.info.name);
        if (name == "iSVR_Num"_L1 || name == "iSVRId"_L1)
            return;
        const QString streams = u"%1;%2;%3"_s;
        const QStringList numbers{u"sCH_Pro_GOP"_s, u"sCH_Pro_FrameRate"_s, u"sCH_Pro_Quality"_s, u"sCH_Pro_BitRate"_s};
        if (name.endsWith("Upper"_L1) || name.endsWith("Lower"_L1))
            column.read(row, name.contains("Quality"_L1) ? streams.arg(seed).arg(seed + 1).arg(-1)
                                                         : u"30,25,%1;-1;5"_s.arg(seed));
        else if (name.endsWith("Cap"_L1) && name.startsWith("sCH_Pro"_L1))
            column.read(row, u"1;0;1"_s);
        else if (column.info.type == FieldType::Text)
            column.read(row, numbers.contains(name) ? streams.arg(seed).arg(-1).arg(3)
                                                    : u"t%1,640x480;u'%1';\"v\""_s.arg(seed));
        else
            column.read(row, column.info.type == FieldType::Bool ? 1 : seed);
    }
    QVariantList rowValues(const RecorderSet& from, int slot, int channel, bool pro) const
    {
        auto& svr = const_cast<SVRRecord&>(from.SVRList[static_cast<std::size_t>(slot)]);
        auto& proRecord = const_cast<SVRProRecord&>(from.SVRProList[static_cast<std::size_t>(slot)]);
        const SVRRow row{&svr, &proRecord, channel};
        QVariantList values;
        for (const auto& column : SVRColumns) {
            if (column.info.use == FieldUse::ReadWrite)
                values << column.write(row);
        }
        for (const auto& column : SVRPresetColumns)
            values << column.write(row);
        if (pro) {
            for (const auto& column : SVRProColumns)
                values << column.write(row);
        }
        return values;
    }
    std::unique_ptr<RecorderSet> set = std::make_unique<RecorderSet>();
    std::unique_ptr<RecorderSet> back = std::make_unique<RecorderSet>();
};

} // namespace

TEST_F(SVRStoreTest, ARecorderComesBackAsItWasSavedForBothKindsOfFamily)
{
    for (const QString& family : {QString(kFamilyTXR632), QString(kFamilyOmluPro), QString(kFamilySVR)}) {
        SCOPED_TRACE(family.toStdString());
        CloseDatabases(databases);
        open();
        fill(family);
        ASSERT_EQ(SaveMySVR(databases, *set, 2), 1);
        *back = RecorderSet();
        GetSVREx(databases, *back);
        const bool pro = IsProFamily(family);
        EXPECT_EQ(rowValues(*back, 2, 63, pro), rowValues(*set, 2, 63, pro));
        EXPECT_EQ(back->SVRList[2].iSVR_Num, 3);
        EXPECT_EQ(back->SVRList[2].iSVRId, 3);
        EXPECT_EQ(back->SVRList[2].channels[0].iPower, 0) << "never read back";
        EXPECT_EQ(back->iSVR_MaxChannelAll, 64);
        EXPECT_EQ(CameraCount(back->SVRList[2]), 2);
        ASSERT_EQ(back->SVRList[2].channels[0].FishEyeModes.size(), 2u);
        EXPECT_TRUE(back->SVRList[2].channels[0].FishEyeModes[0].bModeFlag[12]);
        EXPECT_EQ(value(u"SELECT COUNT(*) FROM SVR"_s).toInt(), 2);
        EXPECT_EQ(value(u"SELECT sCH_Pro_Mac FROM SVR"_s).toString().isEmpty(), !pro);
        EXPECT_EQ(value(u"SELECT sSub_CH_Preset5||'|'||sSub_CH_Preset6 FROM SVR"_s).toString(), u"7,Tür,a.jpg|6"_s);
        EXPECT_EQ(logLines("Module_DB_Access - GetSVREx") + logLines("Module_DB_Access - SaveMySVR"), 0)
            << allLogs().toStdString();
    }
}

TEST_F(SVRStoreTest, SavingReplacesOnlyTheRowsOfItsSlotAndStopsAtTheChannelMaximum)
{
    open();
    fill(kFamilyTXR632);
    ASSERT_EQ(SaveMySVR(databases, *set, 2), 1);
    set->SVRList[5] = set->SVRList[2];
    set->SVRList[5].iSVR_Num = 6;
    set->SVRList[5].iSVR_Maxchannel = 32; // the camera on channel 64 is beyond it
    ASSERT_EQ(SaveMySVR(databases, *set, 5), 1);
    EXPECT_EQ(value(u"SELECT COUNT(*) FROM SVR WHERE iSVR_Num=6"_s).toInt(), 1);
    set->SVRList[2] = SVRRecord();
    ASSERT_EQ(SaveMySVR(databases, *set, 2), 1);
    EXPECT_EQ(value(u"SELECT COUNT(*) FROM SVR"_s).toInt(), 1);
    EXPECT_EQ(SaveMySVR(databases, *set, 16), 0);
}

TEST_F(SVRStoreTest, BadValuesCostTheirFieldAndAChannelOutsideTheBoundsEndsTheLoad)
{
    open();
    fill(kFamilyTXR632);
    SaveMySVR(databases, *set, 2);
    execute(u"UPDATE SVR SET iSVR_TimeZoneNum=NULL, iSVR_VideoPort=NULL, sSVR_Brand=NULL, sSub_CH_Preset3='9', "
            "sCH_Pro_FrameRate='1;2', sCH_Pro_FPSLower='7,8;;9', iCH_FPS=40000, iSVRId=12 WHERE iSub_Channel=1"_s);
    execute(u"INSERT INTO SVR (iSVR_Num, sSVR_IP, sSVR_Name, iSub_Channel) VALUES (1, '10.0.0.1', 'bad', 65)"_s);
    execute(u"INSERT INTO SVR (iSVR_Num, sSVR_IP, sSVR_Name, iSub_Channel) VALUES (2, '10.0.0.2', 'late', 1)"_s);
    GetSVREx(databases, *back);
    const SVRRecord& svr = back->SVRList[2];
    EXPECT_EQ(svr.iSVR_TimeZoneNum, set->SVRList[2].iSVR_TimeZoneNum) << "the second row's value";
    EXPECT_EQ(svr.channels[0].presets[2].iPresetID, 3) << "a short text means the preset's own number";
    EXPECT_EQ(svr.channels[0].iCH_FPS, -1);
    EXPECT_EQ(back->SVRProList[2].channels[0].streams[0].iFPSLower, (std::vector<qint16>{7, 8}));
    EXPECT_EQ(back->SVRProList[2].channels[0].streams[1].iFPSLower, std::vector<qint16>{-1})
        << "an empty part keeps what was there";
    EXPECT_EQ(svr.iSVRId, 3);
    EXPECT_EQ(back->SVRList[1].sSVR_Name, QString()) << "rows behind the bad one are not read";
    EXPECT_EQ(logLines("Module_DB_Access - GetSVREx"), 4) << allLogs().toStdString();
}

TEST_F(SVRStoreTest, ANullZoneReadsAsZero)
{
    open();
    execute(u"INSERT INTO SVR (iSVR_Num, sSVR_IP, iSVR_Maxchannel, iSub_Channel, iSVR_TimeZoneNum, iSVR_SummerTime) "
            "VALUES (4, '10.0.0.4', 8, 1, NULL, NULL)"_s);
    back->SVRList[3].iSVR_TimeZoneNum = 5;
    GetSVREx(databases, *back);
    EXPECT_EQ(back->SVRList[3].iSVR_TimeZoneNum, 0);
    EXPECT_EQ(logLines("Module_DB_Access - GetSVREx"), 0);
    EXPECT_EQ(back->iSVR_MaxChannelAll, 8);
}

TEST_F(SVRStoreTest, ChannelsWithoutCameraGetTheEmptyChannelInBothGenerations)
{
    open();
    fill(kFamilySVR);
    SaveMySVR(databases, *set, 2);
    for (auto* list : {&back->SVRWorkList, &back->SVRList})
        (*list)[2].channels[5].sCH_FMTList = u"stale"_s;
    GetSVREx(databases, *back);
    for (const auto* list : {&back->SVRWorkList, &back->SVRList}) {
        const SVRChannel& empty = (*list)[2].channels[5];
        EXPECT_EQ(empty.sCH_FMTList, QString());
        EXPECT_EQ(empty.iSub_Channel, 6);
        EXPECT_EQ(empty.iCH_GOP, -1);
        EXPECT_EQ(empty.lSub_CH_IntelligentID, -1);
        EXPECT_EQ(empty.iSub_CH_HttpPort, 80);
        EXPECT_EQ(empty.presets[4].iPresetID, 5);
    }
    EXPECT_EQ(back->SVRProWorkList[2].channels[5].streams[2].iBPSLower, std::vector<qint16>{-1});
}

TEST(Families, FollowTheTextAndTheHdNumber)
{
    EXPECT_EQ(GetsDeviceType(u""_s, 5), kFamilySVR);
    EXPECT_EQ(GetsDeviceType(u"TXR500"_s, 0), kFamilySVR);
    EXPECT_EQ(GetsDeviceType(u"OmluPro"_s, 4), kFamilyOmluPro);
    EXPECT_EQ(GetsDeviceType(u"OmluPro"_s, 5), kFamilyTXR632);
    EXPECT_EQ(GetsDeviceType(u"svr"_s, 0), kFamilyTXR632);
}

TEST(FishEyeModes, BlankTextsKeepWhatWasThereAndShortOnesThrow)
{
    std::vector<FishEyeMode> modes(1);
    FishEyeModeListPaser(modes, u"  "_s);
    EXPECT_EQ(modes.size(), 1u);
    EXPECT_THROW(FishEyeModeListPaser(modes, u"Quad"_s), ConversionError);
    EXPECT_THROW(FishEyeModeListPaser(modes, u"Quad:1,2"_s), ConversionError);
}
