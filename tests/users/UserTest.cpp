#include "screens/UserRows.h"
#include "tests/store/StoreFixture.h"
#include "users/AccountStore.h"
#include "users/UserModels.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

class UserTest : public StoreFixture
{
protected:
    UserTest()
    {
        open();
        events.usersGone.subscribe([this](const QStringList& left) { DeleteRowsOfOthers(databases, left); });
        events.usersSaved.subscribe([this](const QStringList& names) { AddFirstStarts(databases, names, 2); });
    }
    UserFields fields(const QString& name, qint16 group = 1)
    {
        UserFields made;
        made.sUser = name;
        made.sPSWD = u"pw"_s;
        made.iGroup = group;
        return made;
    }
    bool save() { return UserFamily(databases, users, events).save(); }
    UserSet users;
    RecorderEvents events;
};

SVRRecord Recorder(qint16 channels, std::initializer_list<int> named)
{
    SVRRecord recorder;
    recorder.sSVR_Name = u"Gatehouse"_s;
    recorder.iSVR_Maxchannel = channels;
    for (const int channel : named)
        recorder.channels[static_cast<std::size_t>(channel)].sSub_CH_Name = u"Camera"_s;
    return recorder;
}

TEST_F(UserTest, AwkwardNamesComeBackAsTheyWere)
{
    const QStringList names{u"O'Brien \"Bob\""_s, u"a,b;c"_s, u"משה 山田"_s, QString(255, u'x'), u"Empty"_s};
    for (const QString& name : names)
        SetUser_Modify(users, fields(name));
    save();
    UserSet again;
    ASSERT_EQ(GetUser(databases, again), 1);
    ASSERT_EQ(again.stored.size(), 5u);
    for (std::size_t i = 0; i < again.stored.size(); ++i)
        EXPECT_EQ(again.stored[i].sUser, names[static_cast<int>(i)]);
    EXPECT_EQ(value(u"SELECT COUNT(*) FROM DefaultStart"_s).toInt(), 5);
    EXPECT_EQ(allLogs(), QByteArray());
}

TEST_F(UserTest, FirstStartRowOfANewOwner)
{
    SetUser_Modify(users, fields(u"ann"_s, 0));
    save();
    const QString row = u"SELECT bFixStart||'|'||bSEQStart||'|'||iStartSplit||'|'||iLastSplit||'|'||iSEQTime||'|'||"
                        "iForm_MainViewer||'|'||sForm_FullScreen||'|'||length(MVChannel) FROM DefaultStart"_s;
    EXPECT_EQ(value(row).toString(), u"0|0|16|16|5|1|0:0,0:0|191"_s);
    execute(u"UPDATE DefaultStart SET iSEQTime=30"_s);
    save(); // a row that is there stays
    EXPECT_EQ(value(u"SELECT iSEQTime FROM DefaultStart"_s).toInt(), 30);
}

TEST_F(UserTest, DeletingAUserTakesWhatHeOwned)
{
    SetUser_Modify(users, fields(u"ann"_s, 0));
    SetUser_Modify(users, fields(u"bob"_s));
    save();
    execute(u"INSERT INTO Pattern (iID,sOwner,sName) VALUES (1,'ann','a'),(1,'bob','b'),(1,'','c')"_s);
    SetUser_Delete(users, 1);
    const QString names = u"SELECT group_concat(sUser) FROM UserData"_s;
    execute(u"CREATE TRIGGER t BEFORE DELETE ON Pattern BEGIN SELECT RAISE(FAIL,'no'); END"_s);
    EXPECT_FALSE(save());
    EXPECT_EQ(value(names).toString(), u"ann,bob"_s) << "one step: what cannot be taken keeps its owner";
    execute(u"DROP TRIGGER t"_s);
    EXPECT_TRUE(save());
    EXPECT_EQ(value(names).toString(), u"ann"_s);
    EXPECT_EQ(value(u"SELECT group_concat(sOwner) FROM DefaultStart"_s).toString(), u"ann"_s);
    EXPECT_EQ(value(u"SELECT group_concat(sName) FROM Pattern"_s).toString(), u"a"_s);
}

TEST_F(UserTest, GroupsThatDoNotExistMakeNoAdministrator)
{
    execute(u"INSERT INTO UserData (sUser,sPSWD,iGroup) VALUES ('a','p',7),('b','p',NULL),('c','p',-3),('d','p',0),"
            "('e','p',99999)"_s);
    GetUser(databases, users);
    users.edit = users.stored;
    EXPECT_EQ(users.stored.size(), 5u);
    EXPECT_EQ(users.AdminCount, 1);
    EXPECT_GE(logLines("Module_DB_Access - GetUser"), 4);
    GroupSet groups;
    UserListModel list(users, groups);
    list.User_Table_Set();
    EXPECT_EQ(list.rowCount(), 5);
    EXPECT_EQ(list.index(0, UserListModel::Group).data().toString(), QString());
    EXPECT_TRUE(IsLastAdmin(users, 3));
    EXPECT_FALSE(IsLastAdmin(users, 1));
}

TEST_F(UserTest, NamesInUse)
{
    SetUser_Modify(users, fields(u"ann"_s, 0));
    SetUser_Modify(users, fields(u"bob"_s));
    EXPECT_EQ(SetUser_CheckName(users, u"ann"_s), 0);
    EXPECT_EQ(SetUser_CheckName(users, u"Ann"_s), -1);
    users.EditUserIndex = 0;
    EXPECT_EQ(SetUser_CheckName(users, u"ann"_s), -1); // his own
    EXPECT_EQ(SetUser_CheckName(users, u"bob"_s), 0);
}

TEST_F(UserTest, Login)
{
    for (const auto& [name, password] : {std::pair{u"ann"_s, u"one"_s}, {u"bob"_s, u"two"_s}, {u"ann"_s, u"three"_s}}) {
        UserFields user = fields(name);
        user.sPSWD = password;
        SetUser_Modify(users, user);
    }
    const std::tuple<QString, QString, LoginResult, quint32> cases[] = {
        {u"ann"_s, u"one"_s, LoginResult::Ok, 0},
        {u"bob"_s, u"two"_s, LoginResult::Ok, 1},
        {u"ann"_s, u"three"_s, LoginResult::WrongPassword, 99},
        {u"Bob"_s, u"two"_s, LoginResult::Unknown, 99},
        {u"bob"_s, u"TWO"_s, LoginResult::WrongPassword, 99}};
    for (const auto& [name, password, result, place] : cases) {
        quint32 index = 99;
        EXPECT_EQ(CheckLogin(users.edit, name, password, index), result) << name.toStdString();
        EXPECT_EQ(index, place);
    }
}

TEST_F(UserTest, DeviceAccounts)
{
    std::vector<NVRAccountRecord> accounts;
    GetMyAccount(databases, accounts);
    AddAccount(accounts, u"root"_s, u"it's"_s);
    AddAccount(accounts, u"root"_s, u"b"_s);
    AddAccount(accounts, u"admin"_s, u"c"_s);
    EXPECT_TRUE(HasAccount(accounts, u"root"_s, u"b"_s));
    EXPECT_FALSE(HasAccount(accounts, u"root"_s, u"c"_s));
    RemoveAccount(accounts, 1);
    SaveMyAccount(databases, accounts);
    GetMyAccount(databases, accounts);
    ASSERT_EQ(accounts.size(), 2u);
    EXPECT_EQ(accounts[0].sPass, u"it's"_s);
    EXPECT_EQ(accounts[1].sUser, u"admin"_s);
    EXPECT_EQ(accounts[1].iIndex, 1);
    RemoveAccount(accounts, 0);
    RemoveAccount(accounts, 0);
    SaveMyAccount(databases, accounts);
    EXPECT_EQ(accounts.size(), 1u);
    EXPECT_EQ(value(u"SELECT COUNT(*) FROM NVRAccount"_s).toInt(), 0);
}

TEST_F(UserTest, RightsTexts)
{
    const QString tooLong = u"0:"_s + QStringList(200, u"15"_s).join(u',');
    // The text again for four channels of which number 3 has no name, and the lines that it costs.
    const std::tuple<QString, QString, int> cases[] = {
        {QString(), u"0:0,0,15,0"_s, 0},         {u"1:15,8,3,12"_s, u"1:15,8,15,12"_s, 0},
        {u"0:15"_s, u"0:15,0,15,0"_s, 0},        {u"0:15,8,"_s, u"0:15,8,15,0"_s, 0},
        {u"1:16,8,15,-1"_s, u"1:0,8,15,0"_s, 1}, {u"0:x,9,,99999999999"_s, u"0:0,9,15,0"_s, 1},
        {u"garbage"_s, u"0:0,0,15,0"_s, 1},      {u"1"_s, u"1:0,0,15,0"_s, 1},
        {tooLong, u"0:15,15,15,15"_s, 1}};
    for (const auto& [text, again, logged] : cases) {
        const qsizetype before = allLogs().count('\n');
        EXPECT_EQ(FormCHPrivilege(ParseCHPrivilege(text), Recorder(4, {0, 1, 3})), again) << text.toStdString();
        EXPECT_EQ(allLogs().count('\n') - before, logged) << text.toStdString();
    }
}

TEST_F(UserTest, ADamagedTextCostsOneLine)
{
    const SVRRecord recorder = [] {
        SVRRecord made = Recorder(64, {});
        for (SVRChannel& channel : made.channels)
            channel.sSub_CH_Name = u"Camera"_s;
        return made;
    }();
    GroupSet groups;
    groups.edit[2].Live = 1;
    groups.edit[2].CHPrivilege[0] = u"0:15,99,x"_s;
    const ChannelRightsModel grid(groups, users, recorder, 1, 0);
    EXPECT_EQ(grid.rowCount(), 64);
    EXPECT_EQ(allLogs().count('\n'), 1);
    const auto masks = EffectiveRights(groups, 2, 0);
    EXPECT_EQ(masks[0], 15);
    EXPECT_EQ(masks[1], 0);
}

TEST_F(UserTest, LiveGoverns)
{
    ChannelRights rights;
    rights.set(0, 2, true);
    EXPECT_EQ(rights.masks[0], 10);
    rights.set(0, 1, true);
    rights.set(0, 2, false);
    EXPECT_EQ(rights.masks[0], 9);
    rights.set(0, kLiveRight, false);
    EXPECT_EQ(rights.masks[0], 0);
}

TEST_F(UserTest, WholeStationIsDerivedFromWholeRecorders)
{
    std::array<SVRRecord, kMaxSVR> recorders;
    GroupPrivilegeRecord group;
    EXPECT_EQ(DeriveLiveAll(group, recorders), 1); // no recorder at all
    recorders[0] = Recorder(4, {0});
    recorders[15] = Recorder(4, {0});
    group.CHPrivilege[0] = u"1:15"_s;
    EXPECT_EQ(DeriveLiveAll(group, recorders), 0);
    group.CHPrivilege[15] = u"1:0"_s;
    EXPECT_EQ(DeriveLiveAll(group, recorders), 1);
}

TEST_F(UserTest, WhoReachesWhat)
{
    auto recorders = std::make_unique<std::array<SVRRecord, kMaxSVR>>();
    (*recorders)[1] = Recorder(4, {0, 2, 3});
    GroupSet groups;
    groups.edit[1].Live = groups.edit[2].Live = groups.edit[4].Live = 1;
    groups.edit[1].CHPrivilege[1] = u"0:8,15,0,7"_s; // channel 4 has no live, so nothing
    groups.edit[2].CHPrivilege[1] = u"1:0,0,0,0"_s;
    groups.edit[3].CHPrivilege[1] = u"1:15,15,15,15"_s; // no live at all
    groups.edit[4].Live_all = 1;
    for (qint16 group = 0; group < 5; ++group)
        SetUser_Modify(users, fields(u"u%1"_s.arg(group), group));
    EXPECT_EQ(UsersOf(groups, users, 1, 0), QStringList({u"u0"_s, u"u1"_s, u"u2"_s, u"u4"_s}));
    EXPECT_EQ(UsersOf(groups, users, 1, 3), QStringList({u"u0"_s, u"u2"_s, u"u4"_s}));
    const std::array<std::size_t, 6> counts{3, 1, 3, 0, 3, 0};
    for (int group = 0; group < 6; ++group)
        EXPECT_EQ(CamerasOf(groups, group, *recorders).size(), counts[static_cast<std::size_t>(group)]) << group;
    EXPECT_TRUE(CamerasOf(groups, 9, *recorders).empty());

    // The grid shows the same before anything is changed.
    ChannelRightsModel grid(groups, users, (*recorders)[1], 1, 1);
    ASSERT_EQ(grid.rowCount(), 3);
    EXPECT_EQ(grid.index(0, ChannelRightsModel::Reach).data().toString(), u"u0, u1, u2, u4"_s);
    grid.flip({grid.index(0, ChannelRightsModel::Live)});
    EXPECT_EQ(grid.index(0, ChannelRightsModel::Reach).data().toString(), u"u0, u2, u4"_s);
    QModelIndexList column;
    for (int row = 0; row < 3; ++row)
        column << grid.index(row, ChannelRightsModel::Playback) << grid.index(row, ChannelRightsModel::Name);
    grid.flip(column);
    EXPECT_EQ(FormCHPrivilege(grid.rights(), (*recorders)[1]), u"0:10,15,10,15"_s);
    grid.give(column, false);
    EXPECT_EQ(FormCHPrivilege(grid.rights(), (*recorders)[1]), u"0:8,15,8,13"_s);
    ChannelRightsModel fixed(groups, users, (*recorders)[1], 0, 1);
    fixed.flip({fixed.index(0, ChannelRightsModel::Live)});
    EXPECT_EQ(fixed.rights().masks[0], kAllRights);
}

} // namespace
