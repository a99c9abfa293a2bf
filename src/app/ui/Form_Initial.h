#pragma once

#include "app/CloseSequence.h"
#include "app/Station.h"
#include "app/ui/PageTable.h"
#include "device/bridge/Form_COM.h"
#include "platform/SingleInstance.h"

#include <QTimer>
#include <QWidget>
#include <array>
#include <memory>

class NavEntry;
class NavRail;
class Page;
class PageHeader;
class ProgressWindow;
class QStackedWidget;
namespace Ui {
class Form_Initial;
}

// The main window: navigation, the stack of pages, start-up and the close sequence. The pages are those of PageTable().
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

private:
    void buildWindow();
    void buildPages();
    void addKeys();
    void loadRecordsAndPages();
    void openPage(int page);
    // With the rights of the user who has logged in: the page to begin with.
    void openFirstPage();
    // False when the user stays.
    bool PageLeaveCheck(int current, int next);
    void Timer_PrivilegeCheck();
    void askExit();
    bool login();
    void usersChanged();
    void showFirstUserNotice();
    Page* page() const;
    bool isShown(int page) const; // by the rights of the user's group
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
    Form_COM& m_com;
    SingleInstance m_instance;
    CloseSequence m_close;
    QTimer TimerCloseSystem;
    QTimer m_headerClock;

    PageContext m_context;
    std::unique_ptr<Ui::Form_Initial> m_ui;
    NavRail* m_rail = nullptr;
    PageHeader* m_header = nullptr;
    QStackedWidget* m_frames = nullptr;
    std::array<Page*, kPages> m_pages{};
    bool m_noticeWanted = true; // not put off by the user
    bool m_loginWanted = false; // the first user was made
    ProgressWindow* m_progress = nullptr;
    bool m_progressCancelled = false;
    int m_pageIndex = 0;
    bool m_unloaded = false;
};
