#include "app/StartUp.h"
#include "platform/FileChooser.h"
#include "tests/support/DeskFixture.h"
#include "users/UserModels.h"
#include "users/ui/Form_GroupPrivilege.h"
#include "users/ui/Form_UserPass.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

using UserWindowTest = DeskFixture;

TEST_F(UserWindowTest, AFreshStationMakesItsFirstAdministrator)
{
    ASSERT_TRUE(start());
    EXPECT_TRUE(CurrentUser().isEmpty());
    QFile photo(path(u"\\photo.jpg"));
    ASSERT_TRUE(photo.open(QIODevice::WriteOnly) && photo.resize(10000001));
    SetFileChooserHandler([&](const FileQuestion&) { return photo.fileName(); });
    step(u"btnFirstUser"_s, [] {
        Driver::picture(u"fresh"_s);
        Driver::click(u"btnFirstUser"_s);
    });
    step(u"txtUser_0"_s, [] {
        EXPECT_FALSE(Driver::find(u"cmbUser"_s)->isEnabled());
        EXPECT_FALSE(Driver::find(u"lbUserApply_0"_s)->isEnabled());
        Driver::type(u"txtUser_0"_s, u"x"_s);
        Driver::type(u"txtUser_0"_s, u""_s);
        Driver::click(u"lbUserApply_0"_s); // no name
        Driver::type(u"txtUser_0"_s, u"chief"_s);
        Driver::click(u"lbUserApply_0"_s); // no password
        Driver::type(u"txtUser_1"_s, u"secret"_s);
        Driver::click(u"lbUserApply_0"_s); // not the same
        Driver::click(u"btnPhoto"_s);      // too large
        Driver::picture(u"user"_s);
        Driver::type(u"txtUser_7"_s, u"secret"_s);
        Driver::click(u"lbUserApply_0"_s);
    });
    step(u"txtLogin_0"_s, [] {
        Driver::type(u"txtLogin_0"_s, u"chief"_s);
        Driver::type(u"txtLogin_1"_s, u"secret"_s);
        Driver::click(u"imgBtn_OK"_s);
    });
    waitClosed(u"Form_Login"_s);
    driver.run(10000);
    EXPECT_EQ(CurrentUser(), u"chief"_s) << "the one who was made logs in at once";
    EXPECT_EQ(boxes, QStringList({GetLangString(606), GetLangString(607), GetLangString(359), GetLangString(640)}));
    EXPECT_EQ(row(u"SELECT sUser||'/'||sPSWD||'/'||iGroup||'/'||sPhoto FROM UserData"_s).toString(),
              u"chief/secret/0/"_s);
    EXPECT_EQ(allLogs().count("save user error: pswd is not same"), 1);
    EXPECT_FALSE(Driver::find(u"firstUserNotice"_s));
}

TEST_F(UserWindowTest, LoginLeadsToWhatTheGroupMayDo)
{
    execute(u"INSERT INTO UserData (sUser,sPSWD,iGroup) VALUES ('chief','s',0),('night','n',3)"_s);
    step(u"txtLogin_0"_s, [] {
        Driver::picture(u"login"_s);
        QTest::keyClick(Driver::find(u"txtLogin_0"_s), Qt::Key_Return); // does nothing
        Driver::click(u"imgBtn_OK"_s);
        Driver::type(u"txtLogin_0"_s, u"night"_s);
        Driver::click(u"imgBtn_OK"_s);
        Driver::type(u"txtLogin_1"_s, u"wrong"_s);
        QTest::keyClick(Driver::find(u"txtLogin_1"_s), Qt::Key_Return);
        EXPECT_EQ(Driver::find<QLineEdit>(u"txtLogin_0"_s)->text(), u"night"_s);
        EXPECT_EQ(Driver::find<QLineEdit>(u"txtLogin_1"_s)->text(), QString());
        Driver::type(u"txtLogin_0"_s, u"nobody"_s);
        Driver::type(u"txtLogin_1"_s, u"n"_s);
        QTest::keyClick(Driver::find(u"txtLogin_1"_s), Qt::Key_Return);
        EXPECT_EQ(Driver::find<QLineEdit>(u"txtLogin_0"_s)->text(), QString());
        Driver::type(u"txtLogin_0"_s, u"night"_s);
        Driver::type(u"txtLogin_1"_s, u"n"_s);
        QTest::keyClick(Driver::find(u"txtLogin_1"_s), Qt::Key_Return);
    });
    bool started = false;
    driver.add(
        u"menu by rights"_s,
        [this] { return desk && desk->isVisible() && !Driver::find(u"lbMenu_3"_s) && Driver::find(u"lbMenu_8"_s); },
        [] {});
    QTimer::singleShot(0, &driver, [&] { started = start(); });
    driver.run(10000);
    EXPECT_TRUE(started);
    EXPECT_EQ(boxes, QStringList({GetLangString(42), GetLangString(43), GetLangString(44), GetLangString(44)}));
    EXPECT_EQ(CurrentUser(), u"night"_s);
    EXPECT_EQ(station->CurrentGroupIndex, 3);
    EXPECT_EQ(desk->m_PageIndex(), 8);
}

TEST_F(UserWindowTest, GivingUpTheLoginEndsTheProgram)
{
    execute(u"INSERT INTO UserData (sUser,sPSWD,iGroup) VALUES ('chief','s',0)"_s);
    execute(u"ALTER TABLE UserData RENAME COLUMN sUser TO gone"_s); // nobody is known: nobody gets in
    step(u"imgBtn_Exit"_s, [] {
        Driver::type(u"txtLogin_0"_s, u"chief"_s);
        Driver::type(u"txtLogin_1"_s, u"s"_s);
        Driver::click(u"imgBtn_OK"_s);
        Driver::click(u"imgBtn_Exit"_s);
    });
    driver.add(
        u"gone"_s, [] { return !Driver::find(u"Form_Login"_s); }, [] {});
    bool started = true;
    QTimer::singleShot(0, &driver, [&] { started = start(); });
    driver.run(10000);
    EXPECT_FALSE(started);
    EXPECT_EQ(boxes, QStringList(GetLangString(982)));
    EXPECT_FALSE(station->LoginOk);
    EXPECT_TRUE(Closing());
}

TEST_F(UserWindowTest, TheLastAdministratorStaysAndOthersGo)
{
    execute(u"INSERT INTO UserData (sUser,sPSWD,iGroup,sPhoto) VALUES ('','',0,''),('chief','s',0,'gone.png'),"
            "('night','n',3,'')"_s);
    answers = {MsgResult::Ok, MsgResult::No, MsgResult::Yes};
    step(u"txtLogin_0"_s, [] { // a first row without a name is no fresh station
        Driver::type(u"txtLogin_0"_s, u"chief"_s);
        Driver::type(u"txtLogin_1"_s, u"s"_s);
        Driver::click(u"imgBtn_OK"_s);
    });
    QTimer::singleShot(0, &driver, [&] { start(); });
    step(u"lbMenu_3"_s, [] { Driver::click(u"lbMenu_3"_s); });
    step(u"Grid_UsersList"_s, [] {
        Driver::picture(u"page"_s);
        Driver::clickCell(u"Grid_UsersList"_s, 0, UserListModel::Delete); // refused
        Driver::clickCell(u"Grid_UsersList"_s, 1, UserListModel::Delete); // No
        Driver::clickCell(u"Grid_UsersList"_s, 1, UserListModel::Delete); // Yes
        const auto* groups = Driver::find<QTableView>(u"Grid_GroupList"_s);
        EXPECT_LE(groups->visualRect(groups->model()->index(6, 0)).bottom(), groups->viewport()->height());
        QTest::keyClick(Driver::find(u"Grid_UsersList"_s), Qt::Key_Enter, Qt::KeypadModifier);
    });
    step(u"Form_UserSetting"_s, [] {
        EXPECT_FALSE(Driver::find(u"cmbUser"_s)->isEnabled());
        EXPECT_EQ(Driver::find<QLabel>(u"Text_Filename"_s)->text(), u"gone.png"_s);
        auto* password = Driver::find<QLineEdit>(u"txtUser_1"_s);
        for (auto* eye : password->findChildren<QAbstractButton*>())
            eye->click();
        EXPECT_EQ(password->echoMode(), QLineEdit::Password) << "a stored password is not shown";
        Driver::click(u"lbUserApply_1"_s);
    });
    waitClosed(u"Form_UserSetting"_s);
    driver.run(10000);
    EXPECT_EQ(boxes, QStringList({GetLangString(502), GetLangString(501) + u"\n\nnight"_s,
                                  GetLangString(501) + u"\n\nnight"_s}));
    EXPECT_EQ(row(u"SELECT group_concat(sUser) FROM UserData"_s).toString(), u"chief"_s);
    EXPECT_EQ(logLines("Form_UserSetting - Form_Activate"), 1); // the photo that is missing
}

TEST_F(UserWindowTest, ANewUserNeedsAGroupAndIsNotLostByEsc)
{
    ASSERT_TRUE(start());
    station->users.edit[0].sUser = station->users.edit[0].sPSWD = u"chief"_s;
    station->users.stored = station->users.edit;
    SetCurrentUser(u"chief"_s);
    answers = {MsgResult::Cancel, MsgResult::Yes};
    step(u"lbMenu_3"_s, [] { Driver::click(u"lbMenu_3"_s); });
    step(u"lbUserAdd"_s, [] { Driver::click(u"lbUserAdd"_s); });
    step(u"txtUser_0"_s, [] {
        for (const auto& [field, text] :
             {std::pair{u"txtUser_0"_s, u"night"_s}, {u"txtUser_1"_s, u"n"_s}, {u"txtUser_7"_s, u"n"_s}})
            Driver::type(field, text);
        EXPECT_EQ(Driver::find<QLabel>(u"lbGroup"_s)->text(), u'*' + GetLangString(423));
        EXPECT_FALSE(Driver::find(u"lbUserApply_0"_s)->isEnabled());
        QTest::keyClick(Driver::find(u"txtUser_7"_s), Qt::Key_Escape);
        ASSERT_TRUE(Driver::find(u"Form_UserSetting"_s)) << "Cancel stays";
        QTest::keyClick(Driver::find(u"cmbUser"_s), Qt::Key_End);
        EXPECT_TRUE(Driver::find(u"lbUserApply_0"_s)->isEnabled());
        QTest::keyClick(Driver::find(u"txtUser_7"_s), Qt::Key_Escape);
    });
    waitClosed(u"Form_UserSetting"_s);
    driver.run(10000);
    EXPECT_EQ(boxes, QStringList({GetLangString(514), GetLangString(514)}));
    EXPECT_EQ(row(u"SELECT iGroup FROM UserData WHERE sUser='night'"_s).toInt(), 6);
}

TEST_F(UserWindowTest, ChannelRightsByMouseAndKeyboard)
{
    ASSERT_TRUE(start());
    SVRRecord& recorder = station->recorders.SVRWorkList[1];
    recorder.sSVR_Name = u"Gatehouse"_s;
    recorder.iSVR_Maxchannel = 64;
    for (int channel = 0; channel < 64; ++channel) {
        if (channel != 2)
            recorder.channels[static_cast<std::size_t>(channel)].sSub_CH_Name = u"Camera %1"_s.arg(channel + 1);
    }
    step(u"lbMenu_3"_s, [] { Driver::click(u"lbMenu_3"_s); });
    step(u"Grid_GroupList"_s, [] { Driver::clickCell(u"Grid_GroupList"_s, 4, GroupListModel::Edit); });
    step(u"Grid_NVRList"_s, [] {
        Driver::picture(u"group"_s);
        Driver::clickCell(u"Grid_NVRList"_s, 0, 0);
        EXPECT_FALSE(Driver::find(u"Grid_ChannelPrivilege"_s)) << "a click selects";
        Driver::clickCell(u"Grid_NVRList"_s, 0, GroupRecorderModel::Edit);
    });
    // A whole column by the keyboard, then Esc: it asks and stays, asks again and nothing is stored.
    step(u"Grid_ChannelPrivilege"_s, [this] {
        auto* grid = Driver::find<QTableView>(u"Grid_ChannelPrivilege"_s);
        QTest::keyClick(grid, Qt::Key_F, Qt::ControlModifier);
        EXPECT_TRUE(Driver::find(u"txtFilter"_s)->hasFocus());
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Space, Qt::ControlModifier);
        QTest::keyClick(grid, Qt::Key_Space);
        for (int channel = 0; channel < 63; ++channel)
            EXPECT_EQ(grid->model()->index(channel, ChannelRightsModel::Live).data(Qt::CheckStateRole), Qt::Checked);
        EXPECT_EQ(grid->model()->index(4, ChannelRightsModel::PTZ).data(Qt::AccessibleTextRole).toString(),
                  u"Camera 6, PTZ: "_s + GetLangString(879));
        answers = {MsgResult::Cancel};
        QTest::keyClick(grid, Qt::Key_Escape);
        EXPECT_TRUE(grid->isVisible());
        answers = {MsgResult::No};
        QTest::keyClick(grid, Qt::Key_Escape);
    });
    const auto listHasFocus = [] {
        return Driver::usable(u"Grid_NVRList"_s) && Driver::find(u"Grid_NVRList"_s)->hasFocus();
    };
    driver.add(u"back at the list"_s, listHasFocus,
               [] { QTest::keyClick(Driver::find(u"Grid_NVRList"_s), Qt::Key_Enter, Qt::KeypadModifier); });
    step(u"Grid_ChannelPrivilege"_s, [] {
        QWidget* grid = Driver::find(u"Grid_ChannelPrivilege"_s);
        Driver::clickCell(u"Grid_ChannelPrivilege"_s, 0, ChannelRightsModel::PTZ); // brings live along
        Driver::clickCell(u"Grid_ChannelPrivilege"_s, 1, ChannelRightsModel::Live);
        QTest::keyClick(grid, Qt::Key_Down); // camera 4
        QTest::keyClick(grid, Qt::Key_Space, Qt::ShiftModifier);
        QTest::keyClick(grid, Qt::Key_Space); // the whole row
        Driver::picture(u"channels"_s);
        Driver::click(u"lbNVRPrivilege_0"_s);
    });
    step(u"lbGroupPrivilege_0"_s, [this] {
        const QString text = row(u"SELECT CHPrivilege FROM NVRPrivilege WHERE GroupID=5 AND NVRID=2"_s).toString();
        EXPECT_EQ(text, u"0:12,8,15,15,"_s + QStringList(60, u"0"_s).join(u','));
        Driver::find(u"Chk_GroupPrivilege_1"_s)->setFocus();
        QTest::keyClick(Driver::find(u"Chk_GroupPrivilege_1"_s), Qt::Key_Space);
        Driver::click(u"lbGroupPrivilege_0"_s);
    });
    waitClosed(u"Form_GroupPrivilege"_s);
    driver.run(10000);
    EXPECT_EQ(boxes, QStringList({GetLangString(514), GetLangString(514)}));
    EXPECT_EQ(row(u"SELECT Export||Live||Live_all||Setting FROM GroupPrivilege WHERE GroupID=5"_s).toString(),
              u"1100"_s);
}

TEST_F(UserWindowTest, TheAccountOfADeviceIsHandedBack)
{
    ASSERT_TRUE(start());
    DeviceAccount given;
    DeviceAccount closed;
    const auto active = [] { return Driver::usable(u"Text1"_s) && Driver::find(u"Text1"_s)->hasFocus(); };
    driver.add(u"asked"_s, active, [] {
        QTest::keyClicks(Driver::find(u"Text1"_s), u"admin"_s);
        QTest::keyClick(Driver::find(u"Text1"_s), Qt::Key_Return); // does nothing
        QTest::keyClick(Driver::find(u"Text1"_s), Qt::Key_Tab);
        QTest::keyClicks(Driver::find(u"Text2"_s), u"old"_s);
        Driver::find(u"Text1"_s)->setFocus();
        Driver::find(u"Text2"_s)->setFocus();
        QCoreApplication::processEvents();
        QTest::keyClicks(Driver::find(u"Text2"_s), u"secret"_s); // over the selection
        QTest::keyClick(Driver::find(u"Text2"_s), Qt::Key_Return);
    });
    const auto askedAgain = [] {
        const auto* user = Driver::find<QLineEdit>(u"Text1"_s);
        return user && user->text().isEmpty();
    };
    driver.add(u"asked again"_s, askedAgain, [] { QTest::keyClick(Driver::find(u"Text1"_s), Qt::Key_Escape); });
    waitClosed(u"Form_UserPass"_s);
    QTimer::singleShot(0, &driver, [&] {
        given = Form_UserPass(desk.get());
        closed = Form_UserPass(desk.get());
    });
    driver.run(10000);
    EXPECT_TRUE(given.DeviceAccountGiven);
    EXPECT_EQ(given.DeviceUser, u"admin"_s);
    EXPECT_EQ(given.DevicePassword.toStdString(), "secret");
    EXPECT_FALSE(closed.DeviceAccountGiven);
}

TEST_F(UserWindowTest, DeviceAccounts)
{
    ASSERT_TRUE(start());
    step(u"lbMenu_3"_s, [] { Driver::click(u"lbMenu_3"_s); });
    step(u"btnAccounts"_s, [] { Driver::click(u"btnAccounts"_s); });
    step(u"Text_Account_0"_s, [this] {
        Driver::click(u"lbAccountApply"_s); // no user
        EXPECT_TRUE(Driver::find(u"Text_Account_0"_s)->property("faulty").toBool());
        for (const QString& password : {u"a"_s, u"b"_s, u"a"_s}) {
            Driver::type(u"Text_Account_0"_s, u"root"_s);
            Driver::type(u"Text_Account_1"_s, password);
            Driver::click(u"lbAccountApply"_s);
        }
        Driver::picture(u"accounts"_s);
        auto* list = Driver::find<QTableView>(u"Grid_Account"_s);
        const QPoint bin = list->visualRect(list->model()->index(0, 1)).center();
        answers = {MsgResult::No, MsgResult::Yes, MsgResult::Cancel, MsgResult::No};
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, bin);
        EXPECT_EQ(list->model()->rowCount(), 2);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, bin);
        EXPECT_EQ(list->model()->rowCount(), 1);
        Driver::click(u"lbAccountClose"_s); // what is typed stays
        EXPECT_EQ(Driver::find<QLineEdit>(u"Text_Account_1"_s)->text(), u"a"_s);
        QTest::keyClick(Driver::find(u"Text_Account_0"_s), Qt::Key_Escape);
    });
    waitClosed(u"Form_AccountEdit"_s);
    driver.run(10000);
    const QString ask = GetLangString(1084) + u"\n\nroot"_s;
    EXPECT_EQ(boxes,
              QStringList({GetLangString(595), GetLangString(620), ask, ask, GetLangString(514), GetLangString(514)}));
    EXPECT_EQ(row(u"SELECT group_concat(iIndex||sUser||sPass) FROM NVRAccount"_s).toString(), u"0rootb"_s);
}

} // namespace
