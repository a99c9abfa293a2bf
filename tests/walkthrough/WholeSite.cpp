#include "app/language/Languages.h"
#include "platform/Work.h"
#include "recorders/NVRListModel.h"
#include "recorders/detect/DetectStatusModel.h"
#include "store/Databases.h"
#include "tests/support/SimulatedSite.h"
#include "tests/walkthrough/DeskRun.h"

#include <QTableView>
#include <QTest>
#include <map>

using namespace Qt::StringLiterals;
using simulators::Device;
using simulators::Family;
using simulators::Site;

namespace {

// A search may meet devices of other sites on the machine: this site's own are told by their network.
const QString kNetwork = simulators::ownNetwork();
constexpr int kRemoved = 3;
constexpr int kTunedChannel = 1; // from 0
constexpr int kTuned = 3;        // recorders from the top of the list, one of each family

std::vector<simulators::DeviceDescription> MixedSite()
{
    constexpr std::array families{Family::Svr, Family::Txr632, Family::OmluPro};
    std::vector<simulators::DeviceDescription> devices;
    for (std::size_t i = 0; i < kMaxSVR; ++i) {
        const int channels = i % 4 == 3 ? 64 : 16; // 448 cameras: more than a station takes
        devices.push_back(Recorder(families[i % 3], channels, channels));
    }
    return devices;
}

std::function<bool()> Usable(const QString& widget)
{
    return [widget] { return Driver::usable(widget) && !AnyWorkRunning(); };
}

// What is expected of the station: which recorder of the site stands in which slot number, and the audit lines.
class WholeSite
{
public:
    explicit WholeSite(const QString& screenshots)
        : m_screenshots(screenshots)
    {
        m_site.startSite(MixedSite(), true);
        m_site.site->call([this](Site& site) {
            Expect(site.discoveryRunning(), u"the site cannot answer searches"_s);
            for (int i = 0; i < site.count(); ++i) {
                m_devices[site.device(i).address().toString()] = i;
                site.device(i).channel(1).customEvents = 3;
            }
        });
    }

    void walk()
    {
        {
            DeskRun desk(m_screenshots);
            m_audit << u"Open Rigging Desk"_s;
            addAccount(desk);
            openPage(desk);
            addFound(desk, u"btnEmptyState"_s, u"1"_s);
            for (int row = 0; row < kTuned; ++row)
                tune(desk, row);
            for (int i = 0; i < kRemoved; ++i)
                remove(desk);
            desk.driver.add(u"removed"_s, Usable(u"lbAdd"_s), [&] { desk.screenshot(u"4-removed"_s); });
            addFound(desk, u"lbAdd"_s, u"5"_s);
            desk.leave();
            desk.driver.run();
            m_audit << u"Close Rigging Desk"_s;
        }
        check(u"after the first run"_s);
        {
            DeskRun desk(m_screenshots);
            m_audit << u"Open Rigging Desk"_s;
            openPage(desk);
            desk.driver.add(
                u"every recorder answers"_s, [this] { return connectedRows() == static_cast<int>(m_slots.size()); },
                [&] { desk.screenshot(u"8-after-restart"_s); });
            desk.leave();
            desk.driver.run();
            m_audit << u"Close Rigging Desk"_s;
        }
        check(u"after the restart"_s);
        Print(u"\nWalkthrough of a site passed: %1 recorders with %2 cameras stand in the tables."_s.arg(m_slots.size())
                  .arg(cameras()));
    }

private:
    // The login that found recorders are tried with.
    static void addAccount(DeskRun& desk)
    {
        desk.driver.add(u"page users"_s, Usable(u"lbMenu_3"_s), [] { Driver::click(u"lbMenu_3"_s); });
        desk.driver.add(u"accounts"_s, Usable(u"btnAccounts"_s), [] { Driver::click(u"btnAccounts"_s); });
        desk.driver.add(u"login"_s, Usable(u"Text_Account_0"_s), [] {
            Driver::type(u"Text_Account_0"_s, u"admin"_s);
            Driver::type(u"Text_Account_1"_s, u"admin"_s);
            Driver::click(u"lbAccountApply"_s);
            Driver::click(u"lbAccountClose"_s);
        });
    }

    static void openPage(DeskRun& desk)
    {
        desk.driver.add(u"page NVR"_s, Usable(u"lbMenu_1"_s), [] { Driver::click(u"lbMenu_1"_s); });
    }

    // Search, all of the site, detection, and what must be true afterwards.
    void addFound(DeskRun& desk, const QString& button, const QString& step)
    {
        Driver& driver = desk.driver;
        driver.add(u"add"_s, Usable(button), [button] { Driver::click(button); });
        driver.add(u"search"_s, Usable(u"OptMode_0"_s), [] {
            QTest::keyClick(Driver::find(u"OptMode_0"_s), Qt::Key_Space);
            Driver::click(u"lbNext_0"_s);
        });
        driver.add(u"found"_s, Usable(u"lbSearch"_s), [this, &desk, step] { // usable again: the search is over
            Driver::type(u"txtSearchFilter"_s, kNetwork);
            const QAbstractItemModel* found = Driver::find<QTableView>(u"Grid_SearchList"_s)->model();
            Expect(found->rowCount() == kMaxSVR, u"%1 recorders found"_s.arg(found->rowCount()));
            std::size_t known = 0;
            for (int row = 0; row < found->rowCount(); ++row)
                known += found->index(row, 0).flags().testFlag(Qt::ItemIsEnabled) ? 0 : 1;
            Expect(known == m_slots.size(), u"%1 recorders are known"_s.arg(known));
            QTest::keyClick(Driver::find(u"Chk_SelectAll"_s), Qt::Key_Space);
            desk.screenshot(step + u"-found"_s);
            clearLogs();
            Driver::click(u"lbNext_1"_s);
        });
        driver.add(u"detected"_s, Usable(u"lbNext_2"_s), [this, &desk, step] {
            checkDetected();
            desk.screenshot(step + u"-detected"_s);
            Driver::click(u"lbNext_2"_s);
            m_audit << u"Modify Setting of NVR"_s << u"Modify Setting of Emap"_s;
        });
        driver.add(u"saved"_s, Usable(u"Grid_SVRsList"_s), [this, &desk, step] {
            check(u"after adding"_s);
            desk.screenshot(step + u"-added"_s);
        });
    }

    // Each row of the status goes by the rule: refused from 256 cameras on, else into the first free slot.
    void checkDetected()
    {
        const QAbstractItemModel* status = Driver::find<QTableView>(u"Grid_DetectStatus"_s)->model();
        int refused = 0;
        for (int row = 0; row < status->rowCount(); ++row) {
            const auto cell = [&](int column) { return status->index(row, column).data().toString(); };
            const int device = m_devices.at(cell(DetectStatusModel::Address));
            const bool full = cameras() > iChannelLimit;
            const QString wanted = full ? GetLangString(716) + u"(256)"_s : GetLangString(297);
            Expect(cell(DetectStatusModel::Status) == wanted,
                   u"row %1 says '%2'"_s.arg(row).arg(cell(DetectStatusModel::Status)));
            if (full) {
                ++refused;
                continue;
            }
            int slot = 1;
            while (m_slots.contains(slot))
                ++slot;
            m_slots[slot] = device;
            Expect(cell(DetectStatusModel::Channels).toInt() == camerasOf(device), u"another number of channels"_s);
        }
        Expect(refused > 0, u"the station took more cameras than it holds"_s);
        m_site.site->call([](Site& site) {
            for (int i = 0; i < site.count(); ++i) {
                for (const simulators::LoggedRequest& request : site.device(i).log())
                    Expect(request.status == 200 && !request.target.contains("action=set"),
                           u"adding wrote to a recorder"_s);
            }
        });
    }

    // Opens the recorder of a list row and gives its second camera another name, detected anew and written back.
    void tune(DeskRun& desk, int row)
    {
        Driver& driver = desk.driver;
        const QString name = u"Gate %1"_s.arg(row + 1);
        pressInRow(
            desk, u"Grid_SVRsList"_s, [row](int) { return row; }, Qt::Key_Return);
        pressInRow(
            desk, u"Grid_ChannelList"_s, [](int) { return kTunedChannel; }, Qt::Key_Return);
        driver.add(u"camera"_s, Usable(u"txtCam_0"_s), [name] {
            Driver::type(u"txtCam_0"_s, name);
            Driver::click(u"lbCamDetect"_s);
        });
        answer(desk, 833, u"btnOk"_s);
        driver.add(u"detected camera"_s, Usable(u"lbCamModifyApply_0"_s), [&desk, row] {
            desk.screenshot(u"2-camera-%1"_s.arg(row + 1));
            Driver::click(u"lbCamModifyApply_0"_s);
        });
        answer(desk, 611, u"btnYes"_s);
        driver.add(u"written camera"_s, Usable(u"lbModifyApply_0"_s), [this, &desk, row, name] {
            const int device = m_slots.at(row + 1);
            Expect(m_site.camera(device, kTunedChannel + 1).name == name,
                   u"the recorder's camera is not called "_s + name);
            desk.screenshot(u"3-tuned-%1"_s.arg(row + 1));
            m_audit << u"Modify Setting of NVR"_s;
            Driver::click(u"lbModifyApply_0"_s);
        });
        driver.add(u"tuned"_s, Usable(u"lbAdd"_s), [this] { check(u"after tuning"_s); });
    }
    static void answer(DeskRun& desk, int message, const QString& button)
    {
        desk.driver.add(
            u"box %1"_s.arg(message), [message] { return Driver::boxText() == GetLangString(message); },
            [button] { Driver::answerBox(button); });
    }
    // Goes to the row that `which` picks from the number of rows, and presses a key there once the grid has the focus.
    static void pressInRow(DeskRun& desk, const QString& name, const std::function<int(int)>& which, Qt::Key key)
    {
        desk.driver.add(u"row of "_s + name, Usable(name), [name, which] {
            auto* grid = Driver::find<QTableView>(name);
            grid->activateWindow();
            grid->setFocus();
            grid->setCurrentIndex(grid->model()->index(which(grid->model()->rowCount()), 0));
        });
        desk.driver.add(
            u"key in "_s + name, [name] { return Driver::find(name)->hasFocus(); },
            [name, key] { QTest::keyClick(Driver::find(name), key); });
    }

    // Removes the recorder in the list's last row by the keyboard.
    void remove(DeskRun& desk)
    {
        Driver& driver = desk.driver;
        pressInRow(
            desk, u"Grid_SVRsList"_s, [](int rows) { return rows - 1; }, Qt::Key_Delete);
        driver.add(
            u"question"_s, [] { return Driver::boxText().startsWith(GetLangString(483)); },
            [this] {
                m_audit << u"Modify Setting of NVR"_s << u"Modify Setting of Emap"_s;
                const int device = m_slots.rbegin()->second;
                m_slots.erase(std::prev(m_slots.end()));
                m_gone << device;
                Driver::answerBox(u"btnYes"_s);
            });
        driver.add(
            u"gone"_s,
            [this] {
                auto* grid = Driver::find<QTableView>(u"Grid_SVRsList"_s);
                return grid && !AnyWorkRunning() && grid->model()->rowCount() == static_cast<int>(m_slots.size());
            },
            [this] { check(u"after removing"_s); });
    }

    // Rows of every table that knows recorders, the devices' state and the audit lines, all as they must be.
    void check(const QString& when)
    {
        QList<QStringList> rows;
        QList<QStringList> maps;
        QList<QStringList> icons;
        m_site.site->call([&](Site& site) {
            for (const auto& [slot, index] : m_slots) {
                const simulators::Device& device = site.device(index);
                const QString number = QString::number(slot);
                maps << QStringList{number, device.state().name, {}, u"\\MAP\\map1.jpg"_s};
                for (std::size_t c = 0; c < device.state().channels.size(); ++c) {
                    const simulators::Camera& camera = device.state().channels[c].camera;
                    const QString channel = QString::number(c + 1);
                    rows << QStringList{number,  device.state().name, device.address().toString(),
                                        channel, camera.name,         camera.ip};
                    icons << QStringList{number, channel, {}};
                }
            }
            for (int i = 0; i < site.count(); ++i)
                Expect(site.device(i).channel(1).customEvents == (m_gone.contains(i) ? 0 : 3),
                       u"recorder %1 has other events %2"_s.arg(i + 1).arg(when));
        });
        const QStringView file = kDatabaseFile;
        const auto same = [&](const QString& sql, const QList<QStringList>& wanted) {
            const QList<QStringList> found = Rows(file, sql);
            Expect(found == wanted,
                   u"%1: %2 rows, %3 wanted: %4"_s.arg(when).arg(found.size()).arg(wanted.size()).arg(sql));
        };
        same(u"SELECT iSVR_Num, sSVR_Name, sSVR_IP, iSub_Channel, sSub_CH_Name, sSub_CH_IP FROM SVR "
             "ORDER BY iSVR_Num, iSub_Channel"_s,
             rows);
        same(u"SELECT iMap_ID, sName, sParent, sMap_Path FROM EMapGroup WHERE iMap_Type=2 ORDER BY iMap_ID"_s, maps);
        same(u"SELECT iSVR, iChannel, sParent FROM EMapIcon ORDER BY iSVR, iChannel"_s, icons);
        const QList<QStringList> rights = Rows(
            file, u"SELECT NVRID, COUNT(*) FROM NVRPrivilege WHERE CHPrivilege LIKE '1:15,15,%15' GROUP BY NVRID"_s);
        for (const auto& [slot, index] : m_slots)
            Expect(rights.contains(QStringList{QString::number(slot), QString::number(kGroups)}),
                   u"no rights on recorder %1 %2"_s.arg(slot).arg(when));
        QStringList lines;
        for (const QStringList& line : Rows(kSystemLogFile, u"SELECT Description FROM SystemLog ORDER BY rowid"_s))
            lines << line[0];
        Expect(lines == m_audit, when + u": the audit says "_s + lines.join(u", "_s));
    }

    int connectedRows() const
    {
        const auto* grid = Driver::find<QTableView>(u"Grid_SVRsList"_s);
        int connected = 0;
        for (int row = 0; grid && row < grid->model()->rowCount(); ++row) {
            const QString state = grid->model()->index(row, NVRListModel::Connection).data().toString();
            connected += state == GetLangString(896) ? 1 : 0;
        }
        return connected;
    }
    int camerasOf(int device)
    {
        return m_site.onDevice(device, [](Device& one) { return static_cast<int>(one.state().channels.size()); });
    }
    int cameras()
    {
        int total = 0;
        for (const auto& [slot, device] : m_slots)
            total += camerasOf(device);
        return total;
    }
    void clearLogs()
    {
        for (int i = 0; i < m_site.devices(); ++i)
            m_site.onDevice(i, [](Device& one) { one.clearLog(); });
    }

    QString m_screenshots;
    SimulatedSite m_site;
    std::map<QString, int> m_devices; // by address, from 0
    std::map<int, int> m_slots;       // device by slot number (from 1)
    QList<int> m_gone;                // devices that were removed once
    QStringList m_audit;
};

} // namespace

void WalkWholeSite(const QString& screenshots)
{
    WholeSite(screenshots).walk();
}
