#include "app/ui/Form_Initial.h"

#include "app/RemoveSVR.h"
#include "app/StartUp.h"
#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/StartWork.h"
#include "app/shell/Boxes.h"
#include "app/ui/MenuTable.h"
#include "app/ui/PendingPage.h"
#include "app/ui/RecordersPage.h"
#include "app/ui/SystemPage.h"
#include "app/ui/ToolingPage.h"
#include "app/ui/UpdateWindow.h"
#include "app/ui/UsersPage.h"
#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/widgets/NavRail.h"
#include "look/widgets/PageHeader.h"
#include "look/widgets/ProgressWindow.h"
#include "platform/Autostart.h"
#include "platform/Clock.h"
#include "platform/MsgBox.h"
#include "platform/Wait.h"
#include "recorders/ui/Form_NVRSetting.h"
#include "recorders/ui/NVRPage.h"
#include "store/SystemLog.h"
#include "support/Conversions.h"
#include "support/TimeSeconds.h"
#include "users/ui/Form_Login.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kLoadSource("Form_Initial - Form_Load");
constexpr int kSystem = 0;
constexpr int kStartup = 8;
constexpr int kVideoWall = 9;
constexpr int kSVD = 10;
constexpr int kTooling = 11;
constexpr int kExit = 12;
constexpr int kWriting = 976;

// Asks for the room of the page on show alone, so that on a small screen no page is scrolled for the widest one's sake.
class PageStack : public QStackedWidget
{
public:
    PageStack() { connect(this, &QStackedWidget::currentChanged, this, &QWidget::updateGeometry); }
    QSize sizeHint() const override { return currentWidget() ? currentWidget()->sizeHint() : QSize(); }
    QSize minimumSizeHint() const override { return currentWidget() ? currentWidget()->minimumSizeHint() : QSize(); }
};

} // namespace

Form_Initial::Form_Initial(Station& station, QWidget* parent)
    : QWidget(parent)
    , m_station(station)
    , m_close(station, *this)
{
    setObjectName(u"Form_Initial"_s);
    TimerCloseSystem.setInterval(500);
    connect(&TimerCloseSystem, &QTimer::timeout, this, [this] { m_close.tick(); });
    TimerCloseSystem.start();
    m_headerClock.setInterval(1000);
    connect(&m_headerClock, &QTimer::timeout, this,
            [this] { m_header->setClock(Now().toString(u"yyyy/MM/dd hh:mm:ss")); });
}

Form_Initial::~Form_Initial()
{
    m_work.stop();
    delete m_frames; // pages use the bridges
}

bool Form_Initial::Form_Load()
{
    SetBoxStyles(false);
    m_station.Loading = true;
    OpenDatabases(m_station);
    UpdateWindow updateWindow;
    ReadDefaults(m_station, updateWindow);
    Trapped(kLoadSource, [&] { buildWindow(); });

    if (!m_instance.acquire()) {
        Tell(Tone::Warning, 10);
        return false;
    }
    Trapped(kLoadSource, [&] { loadRecordsAndPages(); });

    m_station.LoginOk = true;
    if (!login()) {
        m_station.LoginOk = false;
        SetClosing(true);
        return false;
    }
    SettleCurrentGroup(m_station);
    CheckRecords(m_station);
    updateHeader();
    showFirstUserNotice();
    m_systemPage->SystemControl_Frame_Set();

    Trapped(kLoadSource, [&] {
        if (m_station.currentRights().Setting != 1 && m_pageIndex != kStartup) {
            openPage(kStartup);
            m_pageIndex = kStartup;
            PaintMenu(kStartup);
        }
    });
    Trapped(kLoadSource, [&] { m_com.SetProToDeviceBridge(m_station.recorders.SVRList); });
    m_station.Loading = false;
    SetClosing(false);
    m_station.m_bDataSaved = false;
    SaveSystemLog(m_station.databases, TimeToUtcSeconds(Now()), CurrentUser(), u"Open Rigging Desk"_s);
    QTimer::singleShot(100, this, &Form_Initial::Timer_PrivilegeCheck);
    return true;
}

// Nobody is asked on a fresh station: everyone is the unnamed administrator there. Where the users could not be read
// the login stands and refuses everybody.
bool Form_Initial::login()
{
    const UserSet& users = m_station.users;
    if (IsFreshStation(users))
        return true;
    Form_Login form(users.stored);
    if (!users.read)
        form.refuse(GetLangString(982));
    if (form.exec() != QDialog::Accepted)
        return false;
    m_station.CurrentUserIndex = form.CurrentUserIndex();
    SetCurrentUser(form.userName());
    return true;
}

void Form_Initial::showFirstUserNotice()
{
    if (m_firstUser)
        m_firstUser->setVisible(CurrentUser().isEmpty() && SetUser_TotalNum(m_station.users) == 0);
}

void Form_Initial::buildWindow()
{
    setWindowIcon(ProgramIcon());
    m_rail = new NavRail;
    m_header = new PageHeader;
    m_frames = new PageStack;
    m_frames->setObjectName(u"Frame_Setting"_s);
    buildPages();

    for (int index = 0; index < kPages; ++index) {
        NavEntry* entry = m_rail->addEntry(At(kMenuTable, index).icon, QString());
        entry->setObjectName(u"lbMenu_%1"_s.arg(index));
    }
    m_rail->addBottomEntry(At(kMenuTable, kExit).icon, QString())->setObjectName(u"lbMenu_12"_s);
    connect(m_rail, &NavRail::entryClicked, this, &Form_Initial::lbMenu_Click);

    m_header->themeToggle()->setObjectName(u"btnTheme"_s);
    connect(m_header->themeToggle(), &QToolButton::clicked, this, [this] {
        ApplyTheme(*qApp, CurrentScheme() == Scheme::Dark ? Scheme::Light : Scheme::Dark);
        updateHeader();
    });

    auto* page = new QVBoxLayout;
    page->setSpacing(0);
    page->addWidget(m_header);
    m_firstUser = new QFrame;
    m_firstUser->setObjectName(u"firstUserNotice"_s);
    SetRole(m_firstUser, "panel"_L1);
    auto* notice = new QHBoxLayout(m_firstUser);
    notice->setContentsMargins(24, 10, 24, 10);
    auto* words = new QLabel;
    words->setWordWrap(true);
    words->setProperty("tag", u"Caption:900"_s);
    auto* make = new QPushButton;
    make->setObjectName(u"btnFirstUser"_s);
    make->setProperty("tag", u"Caption:901"_s);
    auto* later = new QPushButton;
    later->setObjectName(u"btnFirstUserLater"_s);
    later->setProperty("tag", u"Caption:902"_s);
    SetKind(later, "quiet"_L1);
    notice->addWidget(words, 1);
    notice->addWidget(make);
    notice->addWidget(later);
    m_firstUser->hide();
    connect(make, &QPushButton::clicked, this, [this] {
        lbMenu_Click(3);
        m_usersPage->lists()->lbUserAdd_Click();
    });
    connect(later, &QPushButton::clicked, this, [this] {
        m_firstUser->deleteLater();
        m_firstUser = nullptr;
    });
    page->addWidget(m_firstUser);
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setWidget(m_frames);
    page->addWidget(scroll, 1);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_rail);
    row->addLayout(page, 1);
    m_headerClock.start();
}

void Form_Initial::buildPages()
{
    m_systemPage = new SystemPage(m_station);
    connect(m_systemPage, &SystemPage::languageChanged, this, &Form_Initial::ChangeLanguage);
    auto* recorders = new RecordersPage(m_station.recorders, m_com.http);
    m_nvrPage = recorders->list();
    connect(m_nvrPage, &NVRPage::wizardWanted, this, &Form_Initial::showWizard);
    connect(m_nvrPage, &NVRPage::editWanted, this, [this](int slot) { showRecorder(slot, false); });
    connect(m_nvrPage, &NVRPage::renameWanted, this, [this](int slot) { showRecorder(slot, true); });
    connect(m_nvrPage, &NVRPage::removeWanted, this, [this](int slot) {
        const auto remove = [this, slot] {
            m_work.say(GetLangString(kWriting));
            return RemoveSVR(m_station, m_com, slot, m_work);
        };
        StartWork(m_work, "Form_Initial - RemoveSVR"_L1, remove, [this] {
            m_nvrPage->Grid_SVR_Set_withDB();
            updateHeader();
        });
    });
    m_nvrPage->showWork(m_work);
    connect(&m_work, &Work::runningChanged, m_rail, &QWidget::setDisabled);

    m_pages[0] = m_systemPage;
    m_pages[1] = recorders;
    m_usersPage = new UsersPage({m_station.databases, m_station.users, m_station.groups, m_station.recorders,
                                 m_station.accounts, [this] { SaveCheck(m_station); }});
    connect(m_usersPage->lists(), &UserPage::usersChanged, this, &Form_Initial::showFirstUserNotice);
    m_pages[3] = m_usersPage;
    m_pages[kTooling] = new ToolingPage(m_station);
    for (int index = 0; index < kPages; ++index) {
        SettingsPage*& page = m_pages[static_cast<std::size_t>(index)];
        if (!page)
            page = new PendingPage;
        page->setObjectName(u"Frame_Setting_%1"_s.arg(index));
        connect(page, &SettingsPage::changesChanged, this, [this, index] {
            m_rail->entry(index)->setDirty(m_pages[static_cast<std::size_t>(index)]->hasChanges(), GetLangString(868));
        });
        connect(page, &SettingsPage::subtitleChanged, this, &Form_Initial::updateHeader);
        m_frames->addWidget(page);
    }
}

void Form_Initial::loadRecordsAndPages()
{
    LoadRecords(m_station);
    m_station.basicDefault.edit = m_station.basicDefault.stored;
    PaintMenu(kSystem);
    m_systemPage->SystemControl_Frame_Set();
    LoadFrame(kSystem);
    m_station.families.InitialSetValue();
    ChangeLanguage();
}

void Form_Initial::ChangeLanguage()
{
    Trapped("Form_Initial - ChangeLanguage", [&] {
        ApplyLanguage(this);
        setWindowTitle(GetLangString(320));
        m_rail->setBrand(u"Rigging Desk"_s);
        m_rail->setAccessibleName(GetLangString(882));
        for (int index = 0; index < kMenuEntries; ++index)
            m_rail->entry(index)->setText(MenuText(index));
        for (SettingsPage* page : m_pages)
            page->changeLanguage();
        updateHeader();
    });
}

void Form_Initial::updateHeader()
{
    if (!m_header)
        return;
    m_header->setTitle(PageTitle(m_pageIndex));
    m_header->setSubtitle(At(m_pages, m_pageIndex)->subtitle());
    m_header->setUser(CurrentUser());
    m_header->setClock(Now().toString(u"yyyy/MM/dd hh:mm:ss"));
    m_header->setThemeToggleText(GetLangString(CurrentScheme() == Scheme::Dark ? 871 : 870));
}

void Form_Initial::PaintMenu(int index)
{
    if (index < kPages)
        m_rail->setCurrentIndex(index);
}

void Form_Initial::LoadFrame(int page)
{
    m_frames->setCurrentWidget(At(m_pages, page));
}

void Form_Initial::openPage(int page)
{
    At(m_pages, page)->open();
    LoadFrame(page);
}

void Form_Initial::lbMenu_Click(int index)
{
    Trapped("Form_Initial - lbMenu_Click", [&] {
        m_systemPage->stopClock();
        PaintMenu(index);
        if (!PageLeaveCheck(m_pageIndex, index)) {
            PaintMenu(m_pageIndex);
            return;
        }
        if (index == kExit) {
            askExit();
            return;
        }
        if (index == kSVD && m_station.currentRights().SVDControl != 1) {
            Tell(Tone::Warning, 139);
            return;
        }
        if (m_pageIndex != index) {
            openPage(index);
            m_pageIndex = index;
            updateHeader();
        }
    });
}

bool Form_Initial::PageLeaveCheck(int current, int next)
{
    SettingsPage* page = At(m_pages, current);
    if (current == next || !page->hasChanges())
        return true;
    switch (AskToLeave()) {
    case Leave::Stay:
        return false;
    case Leave::Save:
        page->applyAtLeave();
        return !page->hasChanges(); // what cannot be applied keeps the page
    case Leave::Discard:
        page->revertAtLeave();
        break;
    }
    return true;
}

void Form_Initial::Timer_PrivilegeCheck()
{
    Trapped("Form_Initial - Timer_PrivilegeCheck", [&] {
        const GroupPrivilegeRecord group = m_station.currentRights();
        if (group.Setting == 1)
            return;
        for (int index = 0; index < kMenuEntries; ++index)
            m_rail->entry(index)->setVisible(index == kStartup || index == kExit);
        if (group.Export == 1) {
            m_rail->entry(kTooling)->setVisible(true);
            m_rail->entry(kVideoWall)->setVisible(false);
        } else if (group.Export == 0) {
            m_rail->entry(kTooling)->setVisible(false);
        }
    });
}

DetectContext Form_Initial::detectContext()
{
    return {m_com, m_station.recorders, m_station.accounts, m_station.events};
}

void Form_Initial::showWizard()
{
    Form_NVRSetting wizard(detectContext(),
                           {[this] { finishNewRecorders(); }, [this] { DropNewRecorders(m_station.recorders); }}, this);
    wizard.exec();
    m_nvrPage->Grid_SVR_Set_withDB();
    updateHeader();
}

void Form_Initial::showRecorder(int slot, bool rename)
{
    const auto save = [this] {
        SaveCheck(m_station);
        m_com.SetProToDeviceBridge(m_station.recorders.SVRList);
    };
    Form_NVRSetting form(detectContext(), {}, this);
    form.SetNVR(slot, save, [this](int removed, Work& work) { return RemoveSVR(m_station, m_com, removed, work); });
    if (rename)
        form.editName();
    form.exec();
    m_nvrPage->Grid_SVR_Set_withDB();
    updateHeader();
}

void Form_Initial::finishNewRecorders()
{
    FinishNewRecorders(m_station);
    m_com.SetProToDeviceBridge(m_station.recorders.SVRList);
}

void Form_Initial::askExit()
{
    if (Ask(509))
        m_close.start();
    else
        PaintMenu(m_pageIndex);
}

// Enter presses the button that has the focus, as it does in dialogs.
void Form_Initial::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    if (enter && button && !button->isCheckable() && !event->isAutoRepeat())
        button->click();
    else
        QWidget::keyPressEvent(event);
}

void Form_Initial::closeEvent(QCloseEvent* event)
{
    if (m_unloaded) {
        event->accept();
        return;
    }
    event->ignore();
    m_work.stop();
    if (m_close.m_CloseState() == 0)
        lbMenu_Click(kExit);
}

void Form_Initial::disableWindows()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        window->setEnabled(false);
}

void Form_Initial::showProgress(int maximum, const QString& count)
{
    if (!m_progress)
        m_progress = new ProgressWindow(GetLangString(62));
    m_progress->setWindowTitle(GetLangString(570));
    m_progress->setMaximum(maximum);
    m_progress->setCancelText(GetLangString(475));
    if (!count.isEmpty())
        m_progress->setText(count);
    connect(m_progress, &ProgressWindow::cancelled, this, [this] { m_progressCancelled = true; });
    m_progress->setModal(false);
    m_progress->show();
}

void Form_Initial::updateProgress(int done, const QString& count)
{
    m_progress->setValue(done);
    m_progress->setText(count);
}

void Form_Initial::closeProgressAndHide()
{
    if (m_progress) {
        m_progress->hide();
        m_progress->deleteLater();
        m_progress = nullptr;
    }
    hide();
}

void Form_Initial::unloadAll()
{
    TimerCloseSystem.stop();
    m_unloaded = true;
    Form_QueryUnload();
    close();
    Form_Unload();
    emit closed();
}

void Form_Initial::Form_QueryUnload()
{
    if (m_station.m_bDataSaved)
        RotateBackups();
}

void Form_Initial::Form_Unload()
{
    m_com.Unload();
    if (!m_close.m_bOpenMainViewer())
        return;
    Trapped("Form_Initial - Form_Unload", [&] {
        const QString program = ProgramPath(CMS_Core);
        if (!QFileInfo::exists(program) || !QProcess::startDetached(program, {}))
            throw StoreError(u"Cannot start '%1'"_s.arg(program));
    });
}
