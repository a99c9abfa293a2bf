#pragma once

#include "app/ui/PageTable.h"
#include "platform/Work.h"

class NVRPage;
struct DetectContext;

// Page 1: hosts the recorders' list, and opens the windows that add and change recorders.
class RecordersPage : public Page
{
    Q_OBJECT

public:
    explicit RecordersPage(const DeskParts& parts);

    void enter() override;
    void changeLanguage() override;
    QString subtitle() const override;
    void primaryAction() override;
    void stopWork() override { m_work.stop(); }

private:
    DetectContext detectContext();
    void showWizard();
    // Opens a stored recorder (slot from 0), modally; to rename it with the focus in its name.
    void showRecorder(int slot, bool rename);
    void save();

    Station& m_station;
    Form_COM& m_com;
    const PageContext& m_context;
    NVRPage* m_list;
    Work m_work; // a removal
};
