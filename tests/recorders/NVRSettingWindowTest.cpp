#include "app/language/Languages.h"
#include "app/ui/Form_Initial.h"
#include "look/Theme.h"
#include "platform/MsgBox.h"
#include "platform/Wait.h"
#include "recorders/ChannelListModel.h"
#include "recorders/NVRDetect.h"
#include "recorders/NVRListModel.h"
#include "simulators/SimulatorThread.h"
#include "tests/store/StoreFixture.h"
#include "tests/walkthrough/Driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;
using simulators::DeviceDescription;
using simulators::Family;
using simulators::Site;

namespace {

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv)
{
    auto application = std::make_unique<QApplication>(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyTheme(*application, InitialScheme());
    return application;
}
const bool g_registered = (g_applicationFactory = MakeApplication, true);

DeviceDescription Recorder(Family family, int channels, int cameras)
{
    DeviceDescription device;
    device.family = family;
    device.channels = channels;
    device.cameras = cameras;
    return device;
}

// The desk on its page of recorders, with simulated ones in its slots. Boxes are answered from a list.
class NVRSettingWindow : public StoreFixture
{
protected:
    NVRSettingWindow()
    {
        SetMsgBoxHandler([this](const QString& text, qint32, const QString& title) {
            boxes << text;
            titles << title;
            return answers.isEmpty() ? MsgResult::Ok : answers.takeFirst();
        });
        const int language = qEnvironmentVariableIntValue("DESK_LANGUAGE");
        SetLanguage(language > 0 ? language : 1);
        open();
        execute(u"UPDATE BasicDefault SET iLanguage=%1"_s.arg(Language()));
    }
    ~NVRSettingWindow() override
    {
        desk.reset();
        SetMsgBoxHandler(nullptr);
        SetClosing(false);
        SetLanguage(1);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void start(std::vector<DeviceDescription> devices)
    {
        simulators::SiteDescription description;
        description.port = 0;
        description.discovery = false;
        description.devices = std::move(devices);
        site = std::make_unique<simulators::SimulatorThread>(description);
        CloseDatabases(databases);
        desk = std::make_unique<Form_Initial>(*station);
        ASSERT_TRUE(desk->Form_Load());
        Form_COM com;
        for (int slot = 0; slot < static_cast<int>(description.devices.size()); ++slot) {
            NVRDetectItem item;
            item.iSlot = static_cast<qint16>(slot);
            item.sName = u"Recorder %1"_s.arg(slot + 1);
            item.sUser = item.sPassword = u"admin"_s;
            site->call([&](Site& running) {
                item.sIP = running.device(slot).address().toString();
                item.iPort = running.device(slot).port();
            });
            ASSERT_TRUE(DetectNVR({com, recorders(), station->accounts}, item, [](const DetectStatus&) {}));
        }
        SaveCheck(*station);
        desk->resize(1280, 800);
        desk->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(desk.get()));
        step(u"lbMenu_1"_s, [] { Driver::click(u"lbMenu_1"_s); });
    }
    void openRecorder(int slot)
    {
        step(u"Grid_SVRsList"_s, [slot] { clickCell(u"Grid_SVRsList"_s, slot, NVRListModel::Edit); });
    }
    RecorderSet& recorders() { return station->recorders; }
    simulators::Camera camera(int device, int channel)
    {
        simulators::Camera found;
        site->call([&](Site& running) { found = running.device(device).channel(channel).camera; });
        return found;
    }
    QVariant row(const QString& sql)
    {
        QSqlQuery query(station->databases.DBConn->database());
        return query.exec(sql) && query.next() ? query.value(0) : QVariant();
    }

    void step(const QString& name, std::function<void()> act)
    {
        driver.add(
            name, [name] { return Driver::usable(name); }, std::move(act));
    }
    void waitClosed()
    {
        driver.add(
            u"closed"_s, [] { return !Driver::find(u"Form_NVRSetting"_s); }, [] {});
    }
    // With DESK_SCREENSHOTS set, the window on show is left there as a picture.
    static void picture(const QString& name)
    {
        const QString folder = qEnvironmentVariable("DESK_SCREENSHOTS");
        QWidget* window =
            QApplication::activeModalWidget() ? QApplication::activeModalWidget() : Driver::find(u"Form_Initial"_s);
        if (!folder.isEmpty() && window)
            window->grab().save(folder + u'/' + name + u".png"_s);
    }
    static void clickCell(const QString& grid, int row, int column)
    {
        auto* view = Driver::find<QTableView>(grid);
        const QModelIndex cell = view->model()->index(row, column);
        view->scrollTo(cell);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
    }
    static QVariant cell(const QString& grid, int row, int column, int role = Qt::DisplayRole)
    {
        return Driver::find<QTableView>(grid)->model()->index(row, column).data(role);
    }
    static void press(const QString& name, Qt::Key key) { QTest::keyClick(Driver::find(name), key); }

    std::unique_ptr<Station> station = std::make_unique<Station>();
    std::unique_ptr<simulators::SimulatorThread> site;
    std::unique_ptr<Form_Initial> desk;
    Driver driver;
    QStringList boxes;
    QStringList titles;
    QList<MsgResult> answers;
};

TEST_F(NVRSettingWindow, RenamedAndDetectedAnewUntilApplyWritesIt)
{
    ASSERT_NO_FATAL_FAILURE(start({Recorder(Family::Svr, 64, 40), Recorder(Family::OmluPro, 4, 2)}));
    openRecorder(0);
    step(u"lbModifyApply_0"_s, [this] {
        picture(u"detail"_s);
        EXPECT_EQ(Driver::find<QTableView>(u"Grid_ChannelList"_s)->model()->rowCount(), 64);
        site->call(
            [](Site& running) { running.device(0).channel(41).camera = simulators::exampleCamera(1, Family::Svr); });
        Driver::type(u"TextNVRDetail_0"_s, u"Harbour"_s);
        Driver::type(u"TextNVRDetail_3"_s, u"nobody"_s);
        Driver::click(u"lbModifyApply_0"_s); // 703: another login, not tried
        Driver::click(u"lbNVRDetect"_s);     // 44
        Driver::type(u"TextNVRDetail_3"_s, u"admin"_s);
        Driver::click(u"lbNVRDetect"_s);
        picture(u"detected"_s);
        EXPECT_EQ(cell(u"Grid_ChannelList"_s, 40, ChannelListModel::State).toString(), GetLangString(968));
        Driver::click(u"lbModifyApply_0"_s);
    });
    waitClosed();
    openRecorder(1);
    step(u"lbModifyApply_1"_s, [] {
        picture(u"short"_s);
        Driver::click(u"lbModifyApply_1"_s);
    });
    waitClosed();
    driver.run(20000);
    EXPECT_EQ(boxes, QStringList({GetLangString(703), GetLangString(44), GetLangString(833)}));
    EXPECT_EQ(row(u"SELECT COUNT(*)||sSVR_Name FROM SVR WHERE iSVR_Num=1"_s).toString(), u"41Harbour"_s);
}

} // namespace
