#pragma once

#include "app/ui/PageTable.h"

#include <memory>

class QButtonGroup;
class QTimer;
namespace Ui {
class SystemPage;
}

// Page 0: the facts of the installation, and the system's name, language, snapshots and way of starting.
class SystemPage : public Page
{
    Q_OBJECT

public:
    explicit SystemPage(const DeskParts& parts);
    ~SystemPage() override;

    void enter() override { SystemControl_Frame_Set(); }
    bool hasChanges() const override;
    void apply() override { lbSystemApply_Click(0); }
    void revert() override;
    void pause() override;
    void changeLanguage() override;
    QString subtitle() const override;

    // Shows the edit record, makes Apply and Cancel inactive, starts the clock.
    void SystemControl_Frame_Set();

public slots:
    void lbSystemApply_Click(int index); // 0 Apply, 1 Cancel, 2 Export

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fillLanguages();
    void noteChange();
    void setApplyActive(bool active);
    void applyFields();
    void showTime();

    Station& m_station;
    const PageContext& m_context;
    std::unique_ptr<Ui::SystemPage> m_ui;
    QButtonGroup* m_startUp;
    QTimer* Timer_system;
    bool m_ready = false; // false while a fill routine runs
};
