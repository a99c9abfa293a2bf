#include "platform/Work.h"
#include "recorders/NVRListModel.h"
#include "recorders/camera/ChannelListModel.h"
#include "tests/support/SimulatedDesk.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QToolButton>

using namespace Qt::StringLiterals;
using simulators::Device;

namespace {

// The desk on its page of recorders.
class NVRSettingWindow : public SimulatedDesk
{
protected:
    void start(std::vector<simulators::DeviceDescription> devices)
    {
        ASSERT_NO_FATAL_FAILURE(SimulatedDesk::start(std::move(devices)));
        step(u"lbMenu_1"_s, [] { Driver::click(u"lbMenu_1"_s); });
    }
    void openRecorder(int slot)
    {
        step(u"Grid_SVRsList"_s, [slot] { Driver::clickCell(u"Grid_SVRsList"_s, slot, NVRListModel::Edit); });
    }
    void waitClosed() { DeskFixture::waitClosed(u"Form_NVRSetting"_s); }
    void runToEnd()
    {
        waitClosed();
        driver.run(20000);
    }
    static QVariant cell(const QString& grid, int row, int column, int role = Qt::DisplayRole)
    {
        return Driver::find<QTableView>(grid)->model()->index(row, column).data(role);
    }
    static int rows(const QString& grid) { return Driver::find<QTableView>(grid)->model()->rowCount(); }
    static QString text(const QString& name) { return Driver::find<QLineEdit>(name)->text(); }
    static QString buttonText(const QString& name)
    {
        const auto* button = Driver::find<QAbstractButton>(name);
        return button ? button->text() : QString();
    }
    // Picks an entry of a box with the keys of a user.
    static void choose(const QString& name, const QString& entry)
    {
        auto* box = Driver::find<QComboBox>(name);
        ASSERT_TRUE(box) << qPrintable(name);
        const int wanted = box->findText(entry);
        ASSERT_GE(wanted, 0) << qPrintable(name + u": "_s + entry);
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < wanted; ++i)
            QTest::keyClick(box, Qt::Key_Down);
        EXPECT_EQ(box->currentText(), entry);
    }
};

TEST_F(NVRSettingWindow, RenamedAndDetectedAnewUntilApplyWritesIt)
{
    ASSERT_NO_FATAL_FAILURE(start({Recorder(Family::Svr, 64, 40), Recorder(Family::OmluPro, 4, 2)}));
    openRecorder(0);
    step(u"lbModifyApply_0"_s, [this] {
        Driver::picture(u"detail"_s);
        EXPECT_EQ(rows(u"Grid_ChannelList"_s), 64);
        onDevice(0, [](Device& device) {
            device.channel(41).camera = simulators::exampleCamera(1, Family::Svr);
            device.channel(2).cameraEvents = 2;
        });
        Driver::type(u"TextNVRDetail_0"_s, u"Harbour"_s);
        Driver::type(u"TextNVRDetail_3"_s, u"nobody"_s);
        Driver::click(u"lbModifyApply_0"_s); // another login, not tried yet
        Driver::click(u"lbNVRDetect"_s);
        Driver::type(u"TextNVRDetail_3"_s, u"admin"_s);
        Driver::click(u"lbNVRDetect"_s);
        Driver::type(u"TextNVRDetail_4"_s, u"wrong"_s);
        Driver::press(u"TextNVRDetail_4"_s, Qt::Key_Return); // detects first
        Driver::type(u"TextNVRDetail_4"_s, u"admin"_s);
        Driver::picture(u"detected"_s);
        EXPECT_EQ(cell(u"Grid_ChannelList"_s, 40, ChannelListModel::State).toString(), GetLangString(968));
        EXPECT_EQ(cell(u"Grid_ChannelList"_s, 1, ChannelListModel::CameraEvent, Qt::CheckStateRole), Qt::Checked);
        Driver::click(u"lbModifyApply_0"_s);
    });
    waitClosed();
    openRecorder(1);
    step(u"lbModifyApply_1"_s, [] {
        Driver::picture(u"short"_s);
        Driver::type(u"TextNVRDetail_0"_s, u"Nobody's"_s);
        Driver::click(u"lbModifyApply_1"_s);
    });
    runToEnd();
    EXPECT_EQ(boxes, QStringList({GetLangString(703), GetLangString(44), GetLangString(833), GetLangString(44)}));
    EXPECT_EQ(row(u"SELECT COUNT(*)||sSVR_Name FROM SVR WHERE iSVR_Num=1"_s).toString(), u"41Harbour"_s);
    EXPECT_EQ(row(u"SELECT bSub_CH_Cam_MD_Enabled FROM SVR WHERE iSVR_Num=1 AND iSub_Channel=2"_s).toInt(), 1);
    EXPECT_EQ(row(u"SELECT sSVR_Name FROM SVR WHERE iSVR_Num=2"_s).toString(), u"Recorder 2"_s);
}

TEST_F(NVRSettingWindow, StopEndsADetectionAndLeavesTheRecorderAsItWas)
{
    ASSERT_NO_FATAL_FAILURE(start({Recorder(Family::Svr, 64, 3)}));
    openRecorder(0);
    step(u"lbNVRDetect"_s, [this] {
        onDevice(0, [](Device& device) { device.channel(3).camera.ip = u"10.9.9.9"_s; });
        fault(0, {FaultKind::Delay, 60, "/param.cgi"});
        Driver::click(u"lbNVRDetect"_s);
        EXPECT_EQ(recorders().SVREdit.channels[2].sSub_CH_IP, u"192.168.10.23"_s);
        Driver::click(u"lbModifyApply_0"_s);
    });
    driver.add(
        u"stop"_s, [] { return AnyWorkRunning() && buttonText(u"lbModifyApply_1"_s) == GetLangString(951); },
        [] {
            Driver::picture(u"detecting"_s);
            EXPECT_FALSE(Driver::find(u"lbModifyApply_0"_s)->isEnabled());
            Driver::click(u"lbModifyApply_1"_s);
        });
    runToEnd();
    EXPECT_EQ(boxes, QStringList());
    EXPECT_EQ(row(u"SELECT COUNT(*) FROM SVR WHERE sSub_CH_IP='10.9.9.9'"_s).toInt(), 0);
}

// By keyboard: an empty channel takes a camera that the search has found, and keeps it although the page of the
// recorder is then left by Esc.
TEST_F(NVRSettingWindow, SearchedCameraIsWrittenAndStaysAfterCancel)
{
    ASSERT_NO_FATAL_FAILURE(start({Recorder(Family::Svr, 4, 3)}));
    answers = {MsgResult::Ok, MsgResult::Ok, MsgResult::No, MsgResult::Yes};
    openRecorder(0);
    step(u"Grid_ChannelList"_s, [] {
        auto* grid = Driver::find<QTableView>(u"Grid_ChannelList"_s);
        grid->setCurrentIndex(grid->model()->index(3, 0));
        Driver::press(u"Grid_ChannelList"_s, Qt::Key_Return);
    });
    step(u"lbCamSearch"_s, [] {
        Driver::picture(u"camera-empty"_s);
        Driver::type(u"txtCam_0"_s, u"South & gate"_s);
        Driver::click(u"lbCamSearch"_s);
    });
    step(u"Grid_CamSearchList"_s, [this] {
        Driver::picture(u"camera-search"_s);
        onDevice(0, [](Device& device) { device.state().network.erase(device.state().network.begin()); });
        EXPECT_EQ(rows(u"Grid_CamSearchList"_s), 7);
        Driver::press(u"Grid_CamSearchList"_s, Qt::Key_F5);
        EXPECT_EQ(rows(u"Grid_CamSearchList"_s), 6);
        Driver::type(u"txtCamSearchFilter"_s, u"10.121"_s);
        EXPECT_EQ(rows(u"Grid_CamSearchList"_s), 1);
        Driver::press(u"txtCamSearchFilter"_s, Qt::Key_Return); // goes to the list
        EXPECT_TRUE(Driver::find(u"Grid_CamSearchList"_s)->hasFocus());
        Driver::press(u"Grid_CamSearchList"_s, Qt::Key_Return);
    });
    step(u"txtCam_4"_s, [] {
        EXPECT_EQ(text(u"txtCam_1"_s), u"192.168.10.121"_s);
        EXPECT_EQ(text(u"txtCam_2"_s), u"80"_s);
        Driver::type(u"txtCam_3"_s, u"root"_s);
        Driver::press(u"txtCam_3"_s, Qt::Key_Return); // Return detects what is not detected yet: 607
        Driver::type(u"txtCam_4"_s, u"pass101"_s);
        Driver::press(u"txtCam_4"_s, Qt::Key_Return);
        Driver::picture(u"camera"_s);
        choose(u"cmbFormat"_s, u"H.264"_s);
        choose(u"cmbResolution"_s, u"1280x720"_s);
        choose(u"cmbCameraDetail_0"_s, u"10"_s);
        Driver::press(u"txtCam_4"_s, Qt::Key_Return); // and writes what is: 611, No
        EXPECT_TRUE(Driver::usable(u"txtCam_4"_s));
        Driver::press(u"txtCam_4"_s, Qt::Key_Return); // Yes
    });
    step(u"Grid_ChannelList"_s, [] {
        Driver::picture(u"written"_s);
        EXPECT_EQ(cell(u"Grid_ChannelList"_s, 3, ChannelListModel::State).toString(), GetLangString(967));
        Driver::press(u"Grid_ChannelList"_s, Qt::Key_Escape);
    });
    runToEnd();
    EXPECT_EQ(boxes, QStringList({GetLangString(607), GetLangString(833), GetLangString(611), GetLangString(611)}));
    EXPECT_EQ(camera(0, 4).ip, u"192.168.10.121"_s);
    EXPECT_EQ(camera(0, 4).name, u"South & gate"_s);
    EXPECT_EQ(row(u"SELECT sSub_CH_Name||sSub_CH_IP||sSub_CH_VideoFormat||sSub_CH_Resolution FROM SVR"
                  " WHERE iSub_Channel=4"_s)
                  .toString(),
              u"South & gate192.168.10.121H.2641280x720"_s);
}

TEST_F(NVRSettingWindow, ProCameraIsTunedAndChannelsAreClearedUntilTheRecorderGoes)
{
    for (const Family family : {Family::OmluPro, Family::Txr632}) {
        ASSERT_NO_FATAL_FAILURE(start({Recorder(family, 16, 2)}));
        boxes.clear();
        titles.clear();
        QList<QStringList> cameras; // what the questions call them
        answers = {MsgResult::Yes, MsgResult::No, MsgResult::Yes, MsgResult::Yes,
                   MsgResult::No,  MsgResult::Ok, MsgResult::Yes};
        openRecorder(0);
        step(u"Grid_ChannelList"_s, [] { Driver::clickCell(u"Grid_ChannelList"_s, 1, ChannelListModel::Edit); });
        step(u"cmbFormat"_s, [this] {
            Driver::picture(u"pro"_s);
            choose(u"cmbFormat"_s, u"jpeg"_s);
            EXPECT_TRUE(Driver::find(u"cmbCameraDetail_2"_s));
            choose(u"cmbFormat"_s, u"h264"_s);
            choose(u"cmbResolution"_s, u"640x480"_s);
            choose(u"cmbCameraDetail_0"_s, u"7"_s);
            Driver::click(u"lbCamModifyApply_0"_s);
        });
        step(u"Grid_ChannelList"_s, [this, &cameras] {
            cameras = {{camera(0, 1).name, camera(0, 1).ip}, {camera(0, 2).name, camera(0, 2).ip}};
            EXPECT_EQ(camera(0, 2).live.size, u"640x480"_s);
            EXPECT_EQ(camera(0, 2).live.fps, 7);
            Driver::clickCell(u"Grid_ChannelList"_s, 0, ChannelListModel::Delete); // No
            Driver::clickCell(u"Grid_ChannelList"_s, 0, ChannelListModel::Delete); // Yes
            Driver::press(u"Grid_ChannelList"_s, Qt::Key_Delete);                  // no camera any more: nothing
            Driver::clickCell(u"Grid_ChannelList"_s, 1, ChannelListModel::Delete); // Yes, the last one
            Driver::picture(u"cleared"_s);
            EXPECT_TRUE(camera(0, 2).ip.isEmpty());
            Driver::click(u"lbModifyApply_0"_s); // No
            EXPECT_EQ(row(u"SELECT COUNT(*) FROM SVR"_s).toInt(), 2);
            Driver::click(u"lbModifyApply_0"_s); // Yes
        });
        runToEnd();
        const auto clear = [&](int channel) -> QString {
            const QStringList& camera = cameras[channel - 1];
            return GetLangString(970).arg(channel) + u"\n\n"_s + camera.join(u"  ·  "_s);
        };
        const QString remove = GetLangString(721) + u"\n\nRecorder 1"_s;
        EXPECT_EQ(boxes,
                  QStringList({GetLangString(611), clear(1), clear(1), clear(2), remove, GetLangString(720), remove}));
        EXPECT_EQ(titles.mid(4), QStringList({u"Delete"_s, u"Notice"_s, u"Delete"_s}));
        EXPECT_EQ(row(u"SELECT COUNT(*) FROM SVR"_s).toInt(), 0);
        EXPECT_EQ(OccupiedSlots(recorders().SVRList), 0);
        desk.reset();
        station = std::make_unique<Station>();
    }
}

TEST_F(NVRSettingWindow, NothingTypedIsLostUnaskedAndOneClickOnlySelects)
{
    ASSERT_NO_FATAL_FAILURE(start({Recorder(Family::Svr, 4, 3), Recorder(Family::Svr, 4, 3)}));
    const auto escape = [](const QString& widget) { Driver::press(widget, Qt::Key_Escape); };
    step(u"Grid_SVRsList"_s, [] {
        auto* grid = Driver::find<QTableView>(u"Grid_SVRsList"_s);
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_F, Qt::ControlModifier);
        EXPECT_TRUE(Driver::find(u"txtFilter"_s)->hasFocus());
        Driver::clickCell(u"Grid_SVRsList"_s, 0, NVRListModel::Name);
        QTest::keyClick(grid, Qt::Key_F2);
    });
    step(u"lbModifyApply_0"_s, [this, escape] {
        EXPECT_EQ(Driver::find<QLineEdit>(u"TextNVRDetail_0"_s)->selectedText(), u"Recorder 1"_s);
        Driver::type(u"TextNVRDetail_0"_s, u"Recorder 2"_s);
        answers = {MsgResult::Cancel, MsgResult::Yes, MsgResult::No};
        escape(u"TextNVRDetail_0"_s); // 514: stays
        escape(u"TextNVRDetail_0"_s); // 514: Yes; another recorder has this name: No
        EXPECT_TRUE(Driver::find(u"TextNVRDetail_0"_s)->hasFocus());
        Driver::type(u"TextNVRDetail_0"_s, u"Recorder 3"_s);
        Driver::clickCell(u"Grid_ChannelList"_s, 1, ChannelListModel::Name);
        EXPECT_FALSE(Driver::find(u"txtCam_0"_s)) << "one click selects";
        auto* grid = Driver::find<QTableView>(u"Grid_ChannelList"_s);
        QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(grid->currentIndex()).center());
        Driver::type(u"txtCam_0"_s, u"Gate"_s);
        answers = {MsgResult::Cancel, MsgResult::No};
        auto* close = QApplication::activeModalWidget()->findChild<QToolButton*>();
        EXPECT_EQ(close->accessibleName(), GetLangString(881));
        close->click();
        EXPECT_EQ(text(u"txtCam_0"_s), u"Gate"_s);
        close->click();
        EXPECT_TRUE(Driver::find(u"Grid_ChannelList"_s)) << "back one level";
        answers = {MsgResult::Yes};
        escape(u"Grid_ChannelList"_s);
    });
    runToEnd();
    EXPECT_EQ(boxes.count(GetLangString(514)), 5);
    EXPECT_EQ(boxes.count(GetLangString(1037).arg(u"Recorder 2"_s)), 1);
    EXPECT_EQ(row(u"SELECT group_concat(DISTINCT sSVR_Name) FROM SVR"_s).toString(), u"Recorder 2,Recorder 3"_s);
}

TEST_F(NVRSettingWindow, CameraPageRefusesWhatCannotBeWritten)
{
    ASSERT_NO_FATAL_FAILURE(start({Recorder(Family::Svr, 8, 2)}));
    openRecorder(0);
    step(u"Grid_ChannelList"_s, [] { Driver::clickCell(u"Grid_ChannelList"_s, 1, ChannelListModel::Edit); });
    step(u"txtCam_1"_s, [this] {
        Driver::type(u"txtCam_1"_s, u"192.168.10.124"_s); // of a make the recorder does not know
        Driver::click(u"lbCamModifyApply_0"_s);           // 616
        fault(0, {FaultKind::Delay, 200, "/system/detectcam.cgi"});
        Driver::click(u"lbCamDetect"_s); // 608
        EXPECT_FALSE(Driver::find(u"cmbFormat"_s)) << "a failed detection leaves nothing to choose";
        Driver::picture(u"camera-refused"_s);
        Driver::type(u"txtCam_0"_s, {});
        Driver::click(u"lbCamDetect"_s); // 603
        EXPECT_TRUE(Driver::find(u"txtCam_0"_s)->hasFocus());
        onDevice(0, [](Device& device) { device.state().network.clear(); });
        Driver::click(u"lbCamSearch"_s);
    });
    driver.add(
        u"asking"_s, [] { return AnyWorkRunning() && Driver::find(u"barCam"_s); },
        [] {
            Driver::picture(u"camera-asking"_s);
            EXPECT_FALSE(Driver::find(u"lbCamModifyApply_0"_s)->isEnabled());
            EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
        });
    step(u"btnEmptyState"_s, [] {
        Driver::picture(u"camera-none"_s);
        EXPECT_FALSE(QApplication::overrideCursor());
        EXPECT_FALSE(Driver::find(u"lbCamChoose"_s)->isEnabled());
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        EXPECT_TRUE(Driver::find(u"txtCam_0"_s));
        Driver::click(u"lbCamModifyApply_1"_s);
        Driver::click(u"lbModifyApply_1"_s);
    });
    runToEnd();
    ASSERT_GE(boxes.size(), 3);
    EXPECT_EQ(boxes[0], GetLangString(616));
    EXPECT_TRUE(boxes[1].startsWith(GetLangString(608) + u" : Error"_s)) << qPrintable(boxes[1]);
    EXPECT_EQ(boxes[2], GetLangString(603));
    EXPECT_EQ(row(u"SELECT sSub_CH_IP FROM SVR WHERE iSub_Channel=2"_s).toString(), camera(0, 2).ip);
}

// What assistive technology calls each control on show.
QStringList Unnamed(QWidget* window)
{
    QStringList unnamed;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus)
            continue;
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
        if (!spoken || spoken->text(QAccessible::Name).isEmpty())
            unnamed << widget->objectName();
    }
    return unnamed;
}

// The controls that Tab reaches, from one of them until it comes round; those without a name as "-".
QString TabOrder(const QString& first)
{
    QStringList names;
    Driver::find(first)->setFocus();
    for (int i = 0; i < 40 && (names.isEmpty() || QApplication::focusWidget()->objectName() != first); ++i) {
        const QString name = QApplication::focusWidget()->objectName();
        names << (name.isEmpty() ? u"-"_s : name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    return names.join(u' ');
}

TEST_F(NVRSettingWindow, TabLeadsThroughEveryControlInItsOrder)
{
    ASSERT_NO_FATAL_FAILURE(start({Recorder(Family::Svr, 8, 2)}));
    openRecorder(0);
    step(u"Grid_ChannelList"_s, [] {
        EXPECT_EQ(TabOrder(u"TextNVRDetail_0"_s).toStdString(),
                  "TextNVRDetail_0 TextNVRDetail_1 TextNVRDetail_2 TextNVRDetail_3 TextNVRDetail_4 lbNVRDetect"
                  " txtChannelFilter Grid_ChannelList lbModifyApply_1 lbModifyApply_0");
        Driver::clickCell(u"Grid_ChannelList"_s, 1, ChannelListModel::Edit);
    });
    step(u"txtCam_0"_s, [] {
        EXPECT_TRUE(Driver::find(u"txtCam_0"_s)->hasFocus());
        EXPECT_EQ(TabOrder(u"txtCam_0"_s).toStdString(),
                  "txtCam_0 txtCam_1 txtCam_2 txtCam_3 txtCam_4 lbCamSearch lbCamDetect cmbFormat cmbResolution"
                  " cmbCameraDetail_0 cmbCameraDetail_1 cmbCameraDetail_2 lbCamModifyApply_1 lbCamModifyApply_0");
        Driver::click(u"lbCamSearch"_s);
    });
    step(u"Grid_CamSearchList"_s, [] {
        EXPECT_EQ(TabOrder(u"txtCamSearchFilter"_s).toStdString(),
                  "txtCamSearchFilter lb_CamReSearch Grid_CamSearchList lbCamBack lbCamChoose");
        Driver::click(u"lbCamBack"_s);
        Driver::click(u"lbCamModifyApply_1"_s);
        EXPECT_TRUE(Driver::find(u"Grid_ChannelList"_s)->hasFocus());
        Driver::click(u"lbModifyApply_1"_s);
    });
    runToEnd();
}

TEST_F(NVRSettingWindow, RowsWithNothingToOfferTakeNoPlaceAndEveryControlIsNamed)
{
    ASSERT_NO_FATAL_FAILURE(start({Recorder(Family::Txr632, 8, 7)}));
    const auto inspect = [](const QString& shown, const QString& name) {
        Driver::picture(name);
        EXPECT_EQ(Unnamed(QApplication::activeModalWidget()).join(u' '), QString());
        QStringList onShow;
        QList<int> tops;
        const QList<QComboBox*> all = Driver::find(u"Frame_4"_s)->findChildren<QComboBox*>();
        for (const QComboBox* box : all) {
            if (!box->isVisible())
                continue;
            onShow << box->objectName();
            tops << box->y();
        }
        EXPECT_EQ(onShow.join(u' ').toStdString(), shown.toStdString());
        for (qsizetype i = 2; i < tops.size(); ++i)
            EXPECT_EQ(tops[i] - tops[i - 1], tops[1] - tops[0]) << "rows are stacked without gaps";
    };
    const auto openChannel = [this](int row) {
        step(u"Grid_ChannelList"_s, [row] {
            EXPECT_EQ(Unnamed(QApplication::activeModalWidget()).join(u' '), QString());
            Driver::clickCell(u"Grid_ChannelList"_s, row, ChannelListModel::Edit);
        });
    };
    openRecorder(0);
    openChannel(7);
    step(u"lbCamSearch"_s, [inspect] {
        inspect({}, u"nothing"_s);
        Driver::click(u"lbCamModifyApply_1"_s);
    });
    openChannel(4);
    step(u"Cmb_LensMode"_s, [inspect] {
        Driver::click(u"lbCamDetect"_s);
        choose(u"cmbCameraDetail_1"_s, u"CBR"_s);
        inspect(
            u"Cmb_VideoID cmbFormat cmbResolution cmbCameraDetail_0 cmbCameraDetail_1 cmbCameraDetail_3 Cmb_LensMode"
            " cmbLeftMode cmbRightMode"_s,
            u"lenses"_s);
        choose(u"cmbCameraDetail_1"_s, u"VBR"_s);
        EXPECT_TRUE(Driver::find(u"cmbCameraDetail_2"_s));
        EXPECT_FALSE(Driver::find(u"cmbCameraDetail_3"_s));
        Driver::click(u"lbCamModifyApply_1"_s);
    });
    openChannel(6);
    step(u"cmbVideoID"_s, [inspect] {
        inspect(u"cmbFormat cmbResolution cmbCameraDetail_0 cmbCameraDetail_1 cmbCameraDetail_2"_s, u"fish-eye"_s);
        EXPECT_FALSE(Driver::find<QLabel>(u"cmbVideoID"_s)->text().isEmpty()) << "the view is told, not chosen";
        Driver::click(u"lbCamModifyApply_1"_s);
    });
    step(u"Grid_ChannelList"_s, [] { Driver::press(u"Grid_ChannelList"_s, Qt::Key_Escape); });
    runToEnd();
    EXPECT_EQ(boxes, QStringList(GetLangString(833)));
}

TEST_F(NVRSettingWindow, CameraEventsAreSwitchedOnTheRecorderWithApply)
{
    ASSERT_NO_FATAL_FAILURE(start({Recorder(Family::Svr, 64, 40), Recorder(Family::Txr632, 8, 3)}));
    onDevice(0, [](Device& device) {
        device.channel(1).cameraEvents = 1;
        device.state().refusedEventChannels = {3};
    });
    recorders().SVRWorkList[0].channels[0].bSub_CH_Cam_MD_Enabled = true;
    const auto toggle = [](int row) {
        auto* grid = Driver::find<QTableView>(u"Grid_ChannelList"_s);
        grid->setFocus();
        grid->setCurrentIndex(grid->model()->index(row, ChannelListModel::Name));
        Driver::press(u"Grid_ChannelList"_s, Qt::Key_Space);
    };
    openRecorder(0);
    step(u"Grid_ChannelList"_s, [this, toggle] {
        for (int row = 1; row <= 32; ++row)
            toggle(row); // 32 are the most, with the first one: the last is refused
        toggle(40);      // no camera
        Driver::picture(u"events"_s);
    });
    driver.add(
        u"limit"_s, [this] { return !boxes.isEmpty(); },
        [this, toggle] {
            EXPECT_EQ(boxes, QStringList({GetLangString(91)}));
            for (int row = 4; row <= 31; ++row)
                toggle(row);
            Driver::click(u"lbModifyApply_0"_s); // channel 3 refused
            EXPECT_EQ(cell(u"Grid_ChannelList"_s, 2, ChannelListModel::CameraEvent, Qt::CheckStateRole), Qt::Unchecked);
            Driver::click(u"lbModifyApply_0"_s);
        });
    waitClosed();
    openRecorder(1);
    step(u"Grid_ChannelList"_s, [] {
        auto* grid = Driver::find<QTableView>(u"Grid_ChannelList"_s);
        QStyleOptionViewItem cell;
        cell.rect = grid->visualRect(grid->model()->index(2, ChannelListModel::CameraEvent));
        cell.features = QStyleOptionViewItem::HasCheckIndicator;
        cell.widget = grid;
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                          grid->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &cell, grid).center());
        Driver::click(u"lbModifyApply_0"_s);
    });
    runToEnd();
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_EQ(boxes[1], GetLangString(834) + u" SVR:1 CH: 3"_s);
    QList<int> events;
    for (int n = 1; n <= 5; ++n)
        events << onDevice(0, [n](Device& device) { return device.channel(n).cameraEvents; });
    EXPECT_EQ(events, (QList<int>{1, 3, 0, 3, 0}));
    EXPECT_EQ(
        row(u"SELECT group_concat(iSVR_Num||'.'||iSub_Channel) FROM SVR WHERE bSub_CH_Cam_MD_Enabled<>0"_s).toString(),
        u"1.1,1.2,1.4,2.3"_s);
}

} // namespace
