#pragma once

#include "app/Station.h"
#include "app/ui/SettingsPage.h"

#include <memory>

class QButtonGroup;
class QTimer;
namespace Ui {
class SystemPage;
}

// Page 0: the facts of the installation, and the system's name, language, snapshots and way of starting.
class SystemPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit SystemPage(Station& station, QWidget* parent = nullptr);
    ~SystemPage() override;

    void open() override { SystemControl_Frame_Set(); }
    bool hasChanges() const override;
    void applyAtLeave() override { lbSystemApply_Click(0); }
    void changeLanguage() override;
    QString subtitle() const override;

    // Shows the edit record, makes Apply and Cancel inactive, starts the clock.
    void SystemControl_Frame_Set();
    void stopClock();

public slots:
    void lbSystemApply_Click(int index); // 0 Apply, 1 Cancel, 2 Export

signals:
    void languageChanged(); // Apply has set another live language

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fillLanguages();
    void noteChange();
    void setApplyActive(bool active);
    void apply();
    void showTime();

    Station& m_station;
    std::unique_ptr<Ui::SystemPage> m_ui;
    QButtonGroup* m_startUp;
    QTimer* Timer_system;
    bool m_ready = false; // false while a fill routine runs
};
