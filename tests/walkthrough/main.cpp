// walkthrough <station folder> [<screenshot folder>]: the desk's real windows add a simulated recorder by mouse and
// keyboard; the rows written are compared with the recorder and printed, and a second start must find everything again.
#include "app/Station.h"
#include "app/language/Languages.h"
#include "app/ui/Form_Initial.h"
#include "app/ui/MsgBoxWindow.h"
#include "look/Theme.h"
#include "platform/AppPath.h"
#include "platform/clsOSInfo.h"
#include "simulators/SimulatorThread.h"
#include "store/SystemLog.h"
#include "tests/walkthrough/Driver.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QScreen>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTableView>
#include <cstdio>

using namespace Qt::StringLiterals;
using simulators::Site;

namespace {

void Expect(bool condition, const QString& what)
{
    if (!condition)
        throw std::runtime_error(what.toStdString());
}

void Print(const QString& line)
{
    std::printf("%s\n", qPrintable(line));
}

// One run of the desk, from start to the end of its close sequence.
class DeskRun
{
public:
    explicit DeskRun(const QString& screenshots)
        : m_screenshots(screenshots)
        , m_station(std::make_unique<Station>())
        , m_window(std::make_unique<Form_Initial>(*m_station))
    {
        Expect(m_window->Form_Load(), u"the desk does not start"_s);
        m_window->resize(QGuiApplication::primaryScreen()->availableSize().boundedTo(QSize(1280, 800)));
        m_window->show();
    }
    Station& station() { return *m_station; }
    Driver driver;

    void screenshot(const QString& name)
    {
        if (m_screenshots.isEmpty())
            return;
        QCoreApplication::processEvents();
        QDir().mkpath(m_screenshots);
        QPixmap picture = m_window->grab();
        if (QWidget* modal = QApplication::activeModalWidget()) {
            QPixmap dialog = modal->grab();
            QPainter painter(&picture);
            painter.drawPixmap(m_window->mapFromGlobal(modal->mapToGlobal(QPoint(0, 0))), dialog);
        }
        picture.save(m_screenshots + u'/' + name + u".png"_s);
    }
    void leave()
    {
        const auto box = [](int number) { return [number] { return Driver::boxText() == GetLangString(number); }; };
        driver.add(
            u"exit"_s, [] { return Driver::usable(u"lbMenu_12"_s); }, [] { Driver::click(u"lbMenu_12"_s); });
        driver.add(u"exit question"_s, box(509), [] { Driver::answerBox(u"btnYes"_s); });
        driver.add(u"viewer question"_s, box(508), [] { Driver::answerBox(u"btnNo"_s); });
        driver.add(
            u"unloaded"_s, [this] { return m_window->unloaded(); }, [] {});
    }

private:
    QString m_screenshots;
    std::unique_ptr<Station> m_station;
    std::unique_ptr<Form_Initial> m_window;
};

void AddRecorder(DeskRun& desk, const QString& address, int port)
{
    Driver& driver = desk.driver;
    const auto usable = [](const char* name) {
        return [name = QString::fromLatin1(name)] { return Driver::usable(name); };
    };
    driver.add(u"system page"_s, usable("Text1_fm0_0"), [&] { desk.screenshot(u"1-system"_s); });
    driver.add(u"page NVR"_s, usable("lbMenu_1"), [] { Driver::click(u"lbMenu_1"_s); });
    driver.add(u"empty list"_s, usable("btnEmptyState"), [&] {
        desk.screenshot(u"2-no-recorder"_s);
        Driver::click(u"btnEmptyState"_s);
    });
    driver.add(u"wizard"_s, usable("Text_Manual_0"), [&, address, port] {
        Driver::type(u"Text_Manual_0"_s, u"Warehouse north"_s);
        Driver::type(u"Text_Manual_1"_s, address);
        Driver::type(u"Text_Manual_2"_s, QString::number(port));
        Driver::type(u"Text_Manual_3"_s, u"admin"_s);
        Driver::type(u"Text_Manual_4"_s, u"admin"_s);
        desk.screenshot(u"3-wizard"_s);
        Driver::click(u"lbNext_0"_s);
    });
    driver.add(u"detected"_s, usable("lbNext_2"), [&] {
        desk.screenshot(u"4-detected"_s);
        Driver::click(u"lbNext_2"_s);
    });
    driver.add(u"recorder in the list"_s, usable("Grid_SVRsList"), [&] {
        auto* grid = Driver::find<QTableView>(u"Grid_SVRsList"_s);
        Expect(grid->model()->rowCount() == 1, u"the list has no row"_s);
        Expect(grid->model()->index(0, 2).data().toString() == address + u':' + QString::number(port),
               u"the list shows another address"_s);
        desk.screenshot(u"5-recorder"_s);
    });
    desk.leave();
    driver.run();
}

QSqlDatabase OpenRows(const QString& file)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, file);
    database.setDatabaseName(StationPath(file));
    Expect(database.open(), u"cannot open "_s + file);
    return database;
}

// Compares the rows with what the recorder itself says, and prints them.
void CheckRows(const QString& address, int port, simulators::SimulatorThread& site)
{
    const QSqlDatabase database = OpenRows(u"\\Database\\Database.mdb"_s);
    QSqlQuery rows(database);
    Expect(rows.exec(u"SELECT * FROM SVR ORDER BY iSub_Channel"_s), u"no table SVR"_s);
    int count = 0;
    while (rows.next()) {
        ++count;
        const int channel = rows.value(u"iSub_Channel"_s).toInt();
        QString name;
        QString camera;
        site.call([&](Site& s) {
            const simulators::Camera& source = s.device(0).channel(channel).camera;
            name = source.name;
            camera = source.ip;
        });
        Expect(rows.value(u"sSVR_IP"_s).toString() == address && rows.value(u"iSVR_HttpPort"_s).toInt() == port,
               u"a row has another address"_s);
        Expect(
            rows.value(u"sSub_CH_Name"_s).toString() == name,
            u"channel %1 is named '%2', not '%3'"_s.arg(channel).arg(rows.value(u"sSub_CH_Name"_s).toString(), name));
        Expect(rows.value(u"sSub_CH_IP"_s).toString() == camera, u"a row has another camera"_s);
        Print(u"\nSVR row %1"_s.arg(count));
        const QSqlRecord record = rows.record();
        for (int i = 0; i < record.count(); ++i)
            Print(u"  %1 = %2"_s.arg(record.fieldName(i), -28).arg(record.value(i).toString()));
    }
    int cameras = 0;
    site.call([&](Site& s) {
        for (const simulators::Channel& channel : s.device(0).state().channels)
            cameras += channel.camera.ip.isEmpty() ? 0 : 1;
    });
    Expect(count == cameras && count > 0, u"%1 rows for %2 cameras"_s.arg(count).arg(cameras));

    QSqlQuery rights(database);
    Expect(rights.exec(u"SELECT COUNT(*) FROM NVRPrivilege WHERE NVRID=1 AND CHPrivilege LIKE '1:15,15,%15'"_s) &&
               rights.next() && rights.value(0).toInt() == kGroups,
           u"the groups' rights on the recorder are missing"_s);

    const QSqlDatabase log = OpenRows(u"\\Database\\SystemLog.mdb"_s);
    QSqlQuery audit(log);
    Expect(audit.exec(u"SELECT TimeStamp, User, Description FROM SystemLog"_s), u"no table SystemLog"_s);
    QStringList lines;
    Print(u"\nSystemLog"_s);
    while (audit.next()) {
        lines << audit.value(2).toString();
        Print(u"  %1 | %2 | %3"_s.arg(audit.value(0).toString(), audit.value(1).toString(), lines.last()));
    }
    Expect(lines.contains(u"Modify Setting of NVR"_s), u"the audit line is missing"_s);
}

void FindAgain(DeskRun& desk, const QString& address)
{
    Driver& driver = desk.driver;
    driver.add(
        u"page NVR"_s, [] { return Driver::usable(u"lbMenu_1"_s); }, [] { Driver::click(u"lbMenu_1"_s); });
    driver.add(
        u"recorder is there again"_s, [] { return Driver::usable(u"Grid_SVRsList"_s); },
        [&] {
            const SVRRecord& record = desk.station().recorders.SVRList[0];
            Expect(record.sSVR_IP == address && record.sSVR_Name == u"Warehouse north"_s, u"the recorder is gone"_s);
            Expect(record.sSVR_DeviceType == kFamilyTXR632, u"the family is gone"_s);
            desk.screenshot(u"6-after-restart"_s);
        });
    desk.leave();
    driver.run();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (argc < 2) {
        std::fputs("usage: walkthrough STATION [SCREENSHOTS]\n", stderr);
        return 2;
    }
    SetAppPath(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
    const QString screenshots = argc > 2 ? QDir(QString::fromLocal8Bit(argv[2])).absolutePath() : QString();
    clsOSInfo::setScreenCounter([] { return 1; });
    ApplyTheme(application, InitialScheme());
    InstallMsgBoxWindow();
    try {
        simulators::SiteDescription description;
        description.discovery = false;
        description.port = 0;
        simulators::DeviceDescription recorder;
        recorder.channels = 16;
        recorder.cameras = 6;
        description.devices = {recorder};
        simulators::SimulatorThread site(description);
        int port = 0;
        QString address;
        site.call([&](Site& s) {
            port = s.device(0).port();
            address = s.device(0).address().toString();
        });
        {
            DeskRun desk(screenshots);
            AddRecorder(desk, address, port);
        }
        CheckRows(address, port, site);
        {
            DeskRun desk(screenshots);
            FindAgain(desk, address);
        }
        Print(
            u"\nWalkthrough passed: recorder %1:%2 added, its rows stand in the tables and are there after a restart."_s
                .arg(address)
                .arg(port));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "walkthrough: %s\n", error.what());
        return 1;
    }
}
