#pragma once

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Messages.h"
#include "app/ui/PageTable.h"
#include "tooling/ui/Form_Tooling.h"

#include <QVBoxLayout>

inline constexpr int kSystemLogExportAction = 12;

// Page 11: hosts the viewers and exports.
class ToolingPage : public Page
{
    Q_OBJECT

public:
    explicit ToolingPage(const DeskParts& parts)
        : m_form(new Form_Tooling(parts.station.databases, [&station = parts.station] {
            RunEventAction(station, kSystemLogExportAction, -1, {}, CurrentUser());
        }))
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(m_form);
    }

    void enter() override { m_form->open(); }
    void changeLanguage() override { m_form->changeLanguage(); }
    QString subtitle() const override { return GetLangString(Message::kSystemLog); }

private:
    Form_Tooling* m_form;
};
