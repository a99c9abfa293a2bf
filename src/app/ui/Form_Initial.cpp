#include "app/ui/Form_Initial.h"

#include "app/StartUp.h"
#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "app/ui/KeysWindow.h"
#include "app/ui/Remembered.h"
#include "app/ui/UpdateWindow.h"
#include "app/ui/ui_Form_Initial.h"
#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/widgets/Fields.h"
#include "look/widgets/NavRail.h"
#include "look/widgets/PageHeader.h"
#include "look/widgets/ProgressWindow.h"
#include "platform/Autostart.h"
#include "platform/Clock.h"
#include "platform/Closing.h"
#include "platform/MsgBox.h"
#include "store/SystemLog.h"
#include "support/Conversions.h"
#include "support/TimeSeconds.h"
#include "users/ui/Form_Login.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QProcess>
#include <QScrollArea>
#include <QShortcut>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kLoadSource("Form_Initial - Form_Load");
constexpr int kAskExit = 509;
constexpr int kRunsAlready = 10;

} // namespace

Form_Initial::Form_Initial(Station& station, QWidget* parent)
    : QWidget(parent)
    , m_station(station)
    , m_com(station.com)
    , m_close(station, *this)
    , m_ui(std::make_unique<Ui::Form_Initial>())
{
    setObjectName(u"Form_Initial"_s);
    m_context.save = [this] { SaveCheck(m_station); };
    m_context.languageChanged = [this] { ChangeLanguage(); };
    m_context.usersChanged = [this] { usersChanged(); };
    TimerCloseSystem.setInterval(500);
    connect(&TimerCloseSystem, &QTimer::timeout, this, [this] { m_close.tick(); });
    TimerCloseSystem.start();
    m_headerClock.setInterval(1000);
    connect(&m_headerClock, &QTimer::timeout, this,
            [this] { m_header->setClock(Now().toString(u"yyyy/MM/dd hh:mm:ss")); });
}

Form_Initial::~Form_Initial()
{
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
        Tell(Tone::Warning, kRunsAlready);
        return false;
    }
    m_station.sendEvent.startTimer();
    Trapped(kLoadSource, [&] { loadRecordsAndPages(); });

    m_station.LoginOk = true;
    if (!login()) {
        m_station.LoginOk = false;
        SetClosing(true);
        return false;
    }
    SettleCurrentGroup(m_station);
    Trapped(kLoadSource, [&] { LoadUserRecords(m_station); });
    CheckRecords(m_station);
    updateHeader();
    showFirstUserNotice();
    At(m_pages, PageFor(PageUse::First))->enter();
    Trapped(kLoadSource, [&] { openFirstPage(); });
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
    Form_Login form(users.stored, isVisible() ? this : nullptr);
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
    m_ui->firstUserNotice->setVisible(m_noticeWanted && CurrentUser().isEmpty() &&
                                      SetUser_TotalNum(m_station.users) == 0);
}

// From the first user on everybody logs in, the one who made him too: the audit log names who does what.
void Form_Initial::usersChanged()
{
    showFirstUserNotice();
    if (m_station.Loading || IsFreshStation(m_station.users) || !CurrentUser().isEmpty() ||
        std::exchange(m_loginWanted, true))
        return;
    const auto ask = [this] {
        m_loginWanted = false;
        if (!login()) {
            m_close.start();
            return;
        }
        SettleCurrentGroup(m_station);
        Trapped(kLoadSource, [&] { LoadUserRecords(m_station); });
        updateHeader();
        Timer_PrivilegeCheck();
        if (!isShown(m_pageIndex))
            openFirstPage();
    };
    QMetaObject::invokeMethod(this, ask, Qt::QueuedConnection); // the window in which he was made closes first
}

void Form_Initial::buildWindow()
{
    m_ui->setupUi(this);
    setWindowIcon(ProgramIcon());
    m_rail = m_ui->rail;
    m_header = m_ui->header;
    m_frames = m_ui->Frame_Setting;
    buildPages();

    for (int index = 0; index < kPages; ++index) {
        NavEntry* entry = m_rail->addEntry(At(PageTable(), index).face.icon, QString());
        entry->setObjectName(u"lbMenu_%1"_s.arg(index));
    }
    m_rail->addBottomEntry(ExitFace().icon, QString())->setObjectName(u"lbMenu_%1"_s.arg(kExit));
    connect(m_rail, &NavRail::entryClicked, this, &Form_Initial::lbMenu_Click);

    m_header->themeToggle()->setObjectName(u"btnTheme"_s);
    connect(&ThemeEvents(), &ThemeNotifier::schemeChanged, this, &Form_Initial::updateHeader);
    // The header has switched by then.
    connect(m_header->themeToggle(), &QToolButton::clicked, this, [] { RememberScheme(CurrentScheme()); });

    m_ui->noticeIcon->setPixmap(Icon("warning"_L1, "warning"_L1).pixmap(20, 20));
    m_ui->firstUserNotice->hide();
    connect(m_ui->btnFirstUser, &QPushButton::clicked, this, [this] {
        lbMenu_Click(PageFor(PageUse::FirstUser));
        if (m_pageIndex == PageFor(PageUse::FirstUser))
            page()->primaryAction();
    });
    connect(m_ui->btnFirstUserLater, &QPushButton::clicked, this, [this] {
        m_noticeWanted = false;
        showFirstUserNotice();
    });
    addKeys();
    m_headerClock.start();
}

void Form_Initial::buildPages()
{
    const DeskParts parts{m_station, m_com, m_context};
    for (int index = 0; index < kPages; ++index) {
        Page* page = At(PageTable(), index).make(parts);
        m_pages[static_cast<std::size_t>(index)] = page;
        page->setObjectName(u"Frame_Setting_%1"_s.arg(index));
        connect(page, &Page::changesChanged, this, [this, index, page] {
            m_rail->entry(index)->setDirty(page->hasChanges(), GetLangString(Message::kUnsavedChanges));
        });
        connect(page, &Page::workRunning, m_rail, &QWidget::setDisabled);
        connect(page, &Page::subtitleChanged, this, &Form_Initial::updateHeader);
        // A window too small for a page scrolls it.
        auto* room = new QScrollArea;
        room->setFrameShape(QFrame::NoFrame);
        room->setFocusPolicy(Qt::NoFocus);
        room->setWidgetResizable(true);
        room->setWidget(page);
        m_frames->addWidget(room);
    }
}

// Keys of the desk; they act only while no dialog is over it.
void Form_Initial::addKeys()
{
    const auto key = [this](const QKeySequence& keys, auto&& act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    for (int index = 0; index < 10; ++index) {
        const auto digit = static_cast<Qt::Key>(Qt::Key_0 + (index + 1) % 10);
        key(QKeySequence(Qt::CTRL | digit), [this, index] {
            if (m_rail->isEnabled() && m_rail->entry(index)->isVisible())
                lbMenu_Click(index);
        });
    }
    key(Qt::Key_F1, [this] { ShowKeys(this); });
    key(Qt::Key_F5, [this] {
        if (page()->leave())
            page()->reread();
    });
    key(QKeySequence::Find, [this] { FocusFilter(page()); });
}

Page* Form_Initial::page() const
{
    return At(m_pages, m_pageIndex);
}

bool Form_Initial::isShown(int page) const
{
    const auto shown = At(PageTable(), page).face.shown;
    return !shown || shown(m_station.currentRights());
}

void Form_Initial::loadRecordsAndPages()
{
    LoadRecords(m_station);
    m_station.basicDefault.edit = m_station.basicDefault.stored;
    const int first = PageFor(PageUse::First);
    PaintMenu(first);
    At(m_pages, first)->enter();
    LoadFrame(first);
    m_pageIndex = first;
    m_station.families.InitialSetValue();
    ChangeLanguage();
}

void Form_Initial::ChangeLanguage()
{
    Trapped("Form_Initial - ChangeLanguage", [&] {
        ApplyLanguage(this);
        setWindowTitle(GetLangString(320));
        m_rail->setBrand(u"Rigging Desk"_s);
        for (int index = 0; index < kPages; ++index) {
            m_rail->entry(index)->setText(At(PageTable(), index).face.labelText());
            At(m_pages, index)->changeLanguage();
        }
        m_rail->entry(kExit)->setText(ExitFace().labelText());
        updateHeader();
    });
}

void Form_Initial::updateHeader()
{
    if (!m_header)
        return;
    m_header->setTitle(At(PageTable(), m_pageIndex).face.titleText());
    m_header->setSubtitle(page()->subtitle());
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
    m_frames->setCurrentIndex(page);
}

void Form_Initial::openPage(int page)
{
    At(m_pages, page)->enter();
    LoadFrame(page);
    m_pageIndex = page;
    updateHeader();
}

void Form_Initial::openFirstPage()
{
    const GroupPrivilegeRecord rights = m_station.currentRights();
    const int last = RememberedPage();
    const auto allowed = At(PageTable(), last).face.allowed;
    const int first = rights.Setting != 1           ? PageFor(PageUse::WithoutRights)
                      : !allowed || allowed(rights) ? last
                                                    : PageFor(PageUse::First);
    if (first == m_pageIndex)
        return;
    openPage(first);
    PaintMenu(first);
}

void Form_Initial::lbMenu_Click(int index)
{
    Trapped("Form_Initial - lbMenu_Click", [&] {
        page()->pause();
        PaintMenu(index);
        if (!PageLeaveCheck(m_pageIndex, index)) {
            PaintMenu(m_pageIndex);
            return;
        }
        if (index == kExit) {
            askExit();
            return;
        }
        const auto allowed = At(PageTable(), index).face.allowed;
        if (allowed && !allowed(m_station.currentRights())) {
            Tell(Tone::Warning, Message::kUnauthorised);
            return;
        }
        if (m_pageIndex != index)
            openPage(index);
    });
}

bool Form_Initial::PageLeaveCheck(int current, int next)
{
    return current == next || At(m_pages, current)->leave();
}

// A user without the right to change settings sees Startup and Exit, and Tooling with the right to export.
void Form_Initial::Timer_PrivilegeCheck()
{
    Trapped("Form_Initial - Timer_PrivilegeCheck", [&] {
        for (int index = 0; index < kPages; ++index)
            m_rail->entry(index)->setVisible(isShown(index));
    });
}

void Form_Initial::askExit()
{
    if (Ask(kAskExit))
        m_close.start();
    else
        PaintMenu(m_pageIndex);
}

void Form_Initial::closeEvent(QCloseEvent* event)
{
    if (m_unloaded) {
        event->accept();
        return;
    }
    event->ignore();
    page()->stopWork();
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
    m_progress->setWindowTitle(GetLangString(Message::kInformation));
    m_progress->setMaximum(maximum);
    m_progress->setCancelText(GetLangString(Message::kCancel));
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
    RememberPlace(*this);
    RememberPage(m_pageIndex);
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
