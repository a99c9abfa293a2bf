#pragma once

#include "app/language/Languages.h"
#include "app/ui/SettingsPage.h"
#include "recorders/ui/NVRPage.h"

#include <QVBoxLayout>

// Page 1 of the main window: hosts the recorders' list.
class RecordersPage : public SettingsPage
{
    Q_OBJECT

public:
    RecordersPage(const RecorderSet& recorders, HttpClient& http, QWidget* parent = nullptr)
        : SettingsPage(parent)
        , m_list(new NVRPage(recorders, http))
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(m_list);
    }
    NVRPage* list() const { return m_list; }

    void open() override { m_list->Grid_SVR_Set_withDB(); }
    void changeLanguage() override { m_list->changeLanguage(); }
    QString subtitle() const override { return GetLangString(864); }

private:
    NVRPage* m_list;
};
