#include "app/language/Languages.h"
#include "store/Databases.h"
#include "tests/support/SimulatedSite.h"
#include "tests/walkthrough/DeskRun.h"

#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

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

// Compares the rows with what the recorder itself says, and prints them.
void CheckRows(const QString& address, int port, SimulatedSite& site)
{
    const QStringView file = kDatabaseFile;
    QStringList columns;
    for (const QStringList& column : Rows(file, u"SELECT name FROM pragma_table_info('SVR')"_s))
        columns << column[0];
    const QList<QStringList> rows = Rows(file, u"SELECT * FROM SVR ORDER BY iSub_Channel"_s);
    for (const QStringList& row : rows) {
        const auto value = [&](const QString& column) { return row.at(columns.indexOf(column)); };
        const int channel = value(u"iSub_Channel"_s).toInt();
        const simulators::Camera camera = site.camera(0, channel);
        Expect(value(u"sSVR_IP"_s) == address && value(u"iSVR_HttpPort"_s).toInt() == port,
               u"a row has another address"_s);
        Expect(value(u"sSub_CH_Name"_s) == camera.name,
               u"channel %1 is named '%2', not '%3'"_s.arg(channel).arg(value(u"sSub_CH_Name"_s), camera.name));
        Expect(value(u"sSub_CH_IP"_s) == camera.ip, u"a row has another camera"_s);
        Print(u"\nSVR row of channel %1"_s.arg(channel));
        for (qsizetype i = 0; i < columns.size(); ++i)
            Print(u"  %1 = %2"_s.arg(columns[i], -28).arg(row[i]));
    }
    const auto cameras = site.onDevice(0, [](simulators::Device& device) {
        return std::ranges::count_if(device.state().channels, [](const auto& one) { return !one.camera.ip.isEmpty(); });
    });
    Expect(rows.size() == cameras && cameras > 0, u"%1 rows for %2 cameras"_s.arg(rows.size()).arg(cameras));
    const QString rights = u"SELECT COUNT(*) FROM NVRPrivilege WHERE NVRID=1 AND CHPrivilege LIKE '1:15,15,%15'"_s;
    Expect(Rows(file, rights)[0][0].toInt() == kGroups, u"the groups' rights on the recorder are missing"_s);

    QStringList lines;
    Print(u"\nSystemLog"_s);
    for (const QStringList& line : Rows(kSystemLogFile, u"SELECT TimeStamp, User, Description FROM SystemLog"_s)) {
        Print(u"  "_s + line.join(u" | "_s));
        lines << line[2];
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

void WalkOneRecorder(const QString& screenshots)
{
    SimulatedSite site;
    site.startSite({Recorder(simulators::Family::Txr632, 16, 6)});
    const NVRDetectItem recorder = site.item(0);
    const QString& address = recorder.sIP;
    const int port = recorder.iPort;
    {
        DeskRun desk(screenshots);
        AddRecorder(desk, address, port);
    }
    CheckRows(address, port, site);
    {
        DeskRun desk(screenshots);
        FindAgain(desk, address);
    }
    Print(u"\nWalkthrough passed: recorder %1:%2 added, its rows stand in the tables and are there after a restart."_s
              .arg(address)
              .arg(port));
}
