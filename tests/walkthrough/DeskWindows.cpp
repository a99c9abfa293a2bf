#include "tests/walkthrough/DeskWindows.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "app/ui/FileChooserWindow.h"
#include "app/ui/KeysWindow.h"
#include "app/ui/MsgBoxWindow.h"
#include "app/ui/UpdateWindow.h"
#include "look/widgets/ProgressWindow.h"
#include "platform/Clock.h"
#include "platform/FileChooser.h"
#include "platform/MsgBox.h"
#include "recorders/camera/ChannelListModel.h"
#include "recorders/ui/Form_NVRSetting.h"
#include "store/SystemLog.h"
#include "support/TimeSeconds.h"
#include "tests/support/SimulatedSite.h"
#include "tests/walkthrough/EMapWindows.h"
#include "users/ui/Form_AccountEdit.h"
#include "users/ui/Form_GroupPrivilege.h"
#include "users/ui/Form_Login.h"
#include "users/ui/Form_UserPass.h"
#include "users/ui/Form_UserSetting.h"

#include <QCheckBox>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestQuestion = 84;
constexpr int kFishEye = 6; // row of the simulated recorder's fish-eye camera
constexpr int kLongestNotice = 610;

void ClickCell(const QString& table, int row, int column)
{
    auto* view = Driver::find<QTableView>(table);
    if (!view)
        throw std::runtime_error("no table " + table.toStdString());
    const QModelIndex cell = view->model()->index(row, column);
    view->scrollTo(cell);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
}

class Visitor : public WindowTour
{
public:
    Visitor(Form_Initial& desk, Station& station, const VisitWindow& visit)
        : WindowTour(desk, station, visit)
        , m_user(CurrentUser())
        , m_users(station.users)
        , m_accounts(station.accounts)
        , m_recorders(std::make_unique<RecorderSet>(station.recorders))
    {
    }

    void furnish();
    void clear();
    void dialogs();
    void wizard();
    void recorder();

    static constexpr int kAnswering = 2; // slot of the recorder that answers
    static constexpr int kRecorders = 1;
    static constexpr int kUsers = 3;

private:
    // What the station itself holds, back at the end.
    QString m_user;
    UserSet m_users;
    std::vector<NVRAccountRecord> m_accounts;
    std::unique_ptr<RecorderSet> m_recorders;
    Form_COM m_com;
};

void Visitor::furnish()
{
    m_station.recorders = *std::make_unique<RecorderSet>();
    static constexpr std::array names{u"Gatehouse", u"Склад 2"};
    static constexpr std::array addresses{u"192.168.10.21", u"nvr-2.local"};
    for (int slot = 0; slot < 2; ++slot) {
        SVRRecord& recorder = m_station.recorders.SVRWorkList[static_cast<std::size_t>(slot)];
        recorder.iSVR_Num = static_cast<qint16>(slot + 1);
        recorder.sSVR_Name = QString::fromUtf16(names[static_cast<std::size_t>(slot)]);
        recorder.sSVR_IP = QString::fromUtf16(addresses[static_cast<std::size_t>(slot)]);
        recorder.iSVR_HttpPort = 8080;
        recorder.sSVR_DisplayDeviceType = u"TXR632"_s;
        recorder.sSVR_DeviceType = kFamilyTXR632;
        recorder.iSVR_Maxchannel = 32;
        for (std::size_t channel = 0; channel < 12; ++channel) {
            recorder.channels[channel].sSub_CH_Name = u"Camera %1"_s.arg(channel + 1);
            recorder.channels[channel].sSub_CH_IP = u"192.168.10.%1"_s.arg(channel + 100);
        }
        m_station.recorders.SVRList[static_cast<std::size_t>(slot)] = recorder;
    }
    UserRecord chief;
    chief.sUser = u"chief"_s;
    chief.sMainEmail = u"chief@example.net"_s;
    chief.sPhone = u"+49 30 1234-56"_s;
    UserRecord night = chief;
    night.sUser = u"Nachtwache"_s;
    night.iGroup = 4;
    SetCurrentUser(chief.sUser);
    m_station.users.edit = m_station.users.stored = {chief, night};
    m_station.accounts = {{0, u"admin"_s, u"admin"_s}, {1, u"root"_s, u"pass"_s}};
    const qint32 now = TimeToUtcSeconds(Now());
    SaveSystemLog(m_station.databases, now - 60, u"chief"_s, u"Modify Setting of NVR"_s);
    SaveSystemLog(m_station.databases, now - 30, u"Nachtwache"_s, u"Export system log: \\log\\2026-11-24.csv"_s);
}

void Visitor::clear()
{
    m_station.recorders = *m_recorders;
    m_station.users = m_users;
    m_station.accounts = m_accounts;
    SetCurrentUser(m_user);
    for (const int page : {kUsers, kRecorders, 0})
        Driver::click(u"lbMenu_%1"_s.arg(page));
}

void Visitor::wizard()
{
    Form_NVRSetting dialog({m_com, m_station.recorders, m_station.accounts, m_station.events}, {}, &m_desk);
    show(u"wizard-0"_s, dialog);
    show(u"wizard-1"_s, dialog, [&] {
        dialog.LoadFrame(1);
        emit m_com.finder.DeviceFound({u"North gate"_s, u"192.168.10.40"_s, 80, {}, u"TXR632"_s});
        emit m_com.finder.DeviceFound({u"South gate"_s, u"fe80::21"_s, 8080, {}, u"OmluPro"_s});
        Driver::find<QCheckBox>(u"Chk_SelectAll"_s)->click();
    });
    // Nobody answers at this address, so that the row ends with the longest of the texts of failure.
    show(u"wizard-2"_s, dialog, [&] {
        dialog.LoadFrame(0);
        Driver::type(u"Text_Manual_0"_s, u"North gate"_s);
        Driver::type(u"Text_Manual_1"_s, u"127.0.0.77"_s);
        Driver::type(u"Text_Manual_3"_s, u"admin"_s);
        Driver::click(u"lbNext_0"_s);
        if (!QTest::qWaitFor([] { return Driver::usable(u"lbNext_2"_s); }))
            throw std::runtime_error("the detection does not end");
        // The table tells of a change some milliseconds later, and its row grows with the words.
        auto* states = Driver::find<QTableView>(u"Grid_DetectStatus"_s);
        const QAbstractItemView* cells = states;
        [[maybe_unused]] const bool grown =
            QTest::qWaitFor([=] { return states->rowHeight(0) >= cells->sizeHintForRow(0); }, 1000);
    });
}

// A recorder that answers, so that its pages have what a device tells of itself.
void Visitor::recorder()
{
    SimulatedSite site;
    site.startSite({Recorder(simulators::Family::Txr632, 16, 8)});
    NVRDetectItem item = site.item(0);
    item.sName = u"Gatehouse"_s;
    const DetectContext context{m_com, m_station.recorders, m_station.accounts, m_station.events};
    Work work;
    if (!Await(DetectNVR(
            context, item, [](const DetectStatus&) {}, work)))
        throw std::runtime_error("the simulated recorder is not detected");
    Form_NVRSetting dialog(context, {}, &m_desk);
    dialog.SetNVR(kAnswering, {}, {});
    show(u"recorder-3"_s, dialog);
    show(u"recorder-4"_s, dialog, [] { ClickCell(u"Grid_ChannelList"_s, kFishEye, ChannelListModel::Edit); });
    show(u"recorder-4-detected"_s, dialog, [] { Driver::click(u"lbCamDetect"_s); });
    show(u"recorder-5"_s, dialog, [] { Driver::click(u"lbCamSearch"_s); });
}

void Visitor::dialogs()
{
    const auto save = [] {};
    Station& station = m_station;
    show(u"login"_s, Form_Login(station.users.stored));
    show(u"user"_s, Form_UserSetting(station.users, MyGroup_GetList(station.groups), false, save, &m_desk));
    {
        Form_GroupPrivilege rights(station.groups, station.users, station.recorders, save, &m_desk);
        rights.SetGroupPrivilege(4);
        rights.LoadFrame(0);
        show(u"rights-0"_s, rights);
        show(u"rights-1"_s, rights, [] { ClickCell(u"Grid_NVRList"_s, 1, GroupRecorderModel::Edit); });
    }
    show(u"accounts"_s, Form_AccountEdit(station.databases, station.accounts, &m_desk));
    modal(u"account"_s, [this] { Form_UserPass(&m_desk); });
    Driver::click(u"lbMenu_%1"_s.arg(kUsers));
    modal(u"reach"_s, [] { Driver::click(u"btnReach"_s); });
    wizard();
    recorder();

    const MsgBoxHandler boxes = SetMsgBoxHandler(nullptr);
    const FileChooserHandler files = SetFileChooserHandler(nullptr);
    InstallMsgBoxWindow();
    InstallFileChooserWindow();
    modal(u"question"_s, [] { MsgBox(GetLangString(kLongestQuestion), AskBoxStyle(), GetLangString(570)); });
    modal(u"notice"_s, [] { MsgBox(GetLangString(kLongestNotice), InfoBoxStyle(), GetLangString(570)); });
    modal(u"destroy"_s, [] { AskToDestroy(483, u"NVR 1  ·  Warehouse north  ·  192.168.10.40:8080"_s); });
    modal(u"leave"_s, [] { AskToLeave(); });
    modal(u"keys"_s, [this] { ShowKeys(&m_desk); });
    modal(u"file"_s, [] { Form_OpenFile({QDir::rootPath(), u"*.bmp;*.jpg;*.gif;*.png"_s, GetLangString(643)}); });
    SetMsgBoxHandler(boxes);
    SetFileChooserHandler(files);

    UpdateWindow update;
    update.begin();
    update.row(u"SVRCHList"_s, 1, 4);
    visit(u"update"_s, *Driver::find(u"formProgressBar"_s));
    update.end();
    ProgressWindow closing(GetLangString(62), &m_desk);
    closing.setWindowTitle(GetLangString(570));
    closing.setMaximum(4);
    closing.setValue(1);
    closing.setCancelText(GetLangString(475));
    show(u"closing"_s, closing);
}

} // namespace

void VisitWindows(Form_Initial& desk, Station& station, const VisitWindow& visit)
{
    const MsgBoxHandler boxes = SetMsgBoxHandler([](const QString&, qint32, const QString&) { return MsgResult::No; });
    Visitor visitor(desk, station, visit);
    QList<int> all;
    for (int page = 0; page < kPages; ++page)
        all << page;
    visitor.pages({}, all);
    visitor.furnish();
    visitor.pages(u"filled-"_s, {Visitor::kRecorders, Visitor::kUsers, Visitor::kTooling});
    visitor.dialogs();
    EMapWindows(visitor);
    visitor.clear();
    SetMsgBoxHandler(boxes);
}
