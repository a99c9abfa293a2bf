#pragma once

#include "app/CloseSequence.h"
#include "app/Station.h"
#include "device/bridge/Form_COM.h"
#include "platform/SingleInstance.h"

#include <QTimer>
#include <QWidget>
#include <array>

class NavEntry;
class QFrame;
class NavRail;
class NVRPage;
class PageHeader;
class ProgressWindow;
class QStackedWidget;
class SettingsPage;
class SystemPage;
class UsersPage;
struct DetectContext;

inline constexpr int kPages = 12;       // 0 to 11 stand in Frame_Setting
inline constexpr int kMenuEntries = 13; // the pages and Exit

// The main window: navigation, the stack of pages, start-up and the close sequence.
class Form_Initial : public QWidget, private CloseHost
{
    Q_OBJECT

public:
    explicit Form_Initial(Station& station, QWidget* parent = nullptr);
    ~Form_Initial() override;

    // The whole start-up in its order. False: another instance runs or the login was given up, and the process ends.
    bool Form_Load();

    void PaintMenu(int index);
    void LoadFrame(int page);
    int m_PageIndex() const { return m_pageIndex; }
    void ChangeLanguage();
    // Stops when the close sequence has unloaded the window; for callers without an event loop of their own.
    bool unloaded() const { return m_unloaded; }

public slots:
    void lbMenu_Click(int index);

signals:
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildWindow();
    void buildPages();
    void loadRecordsAndPages();
    void openPage(int page);
    // False when the user stays.
    bool PageLeaveCheck(int current, int next);
    void Timer_PrivilegeCheck();
    void askExit();
    DetectContext detectContext();
    void showWizard();
    void showRecorder(int slot, bool rename); // opens a stored recorder (slot from 0), modally
    void finishNewRecorders();
    bool login();
    void showFirstUserNotice();
    void updateHeader();
    void Form_QueryUnload();
    void Form_Unload();

    // CloseHost
    void disableWindows() override;
    void closeCalledOff() override { PaintMenu(m_pageIndex); }
    void showProgress(int maximum, const QString& count) override;
    void updateProgress(int done, const QString& count) override;
    bool progressCancelled() const override { return m_progressCancelled; }
    void closeProgressAndHide() override;
    void unloadAll() override;

    Station& m_station;
    Form_COM m_com;
    SingleInstance m_instance;
    CloseSequence m_close;
    QTimer TimerCloseSystem;
    QTimer m_headerClock;

    NavRail* m_rail = nullptr;
    PageHeader* m_header = nullptr;
    QStackedWidget* m_frames = nullptr;
    std::array<SettingsPage*, kPages> m_pages{};
    SystemPage* m_systemPage = nullptr;
    NVRPage* m_nvrPage = nullptr;
    UsersPage* m_usersPage = nullptr;
    QFrame* m_firstUser = nullptr; // offers to make the first administrator
    ProgressWindow* m_progress = nullptr;
    bool m_progressCancelled = false;
    int m_pageIndex = 0;
    bool m_unloaded = false;
    Work m_work;
};
