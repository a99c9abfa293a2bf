#pragma once

#include "app/language/Languages.h"
#include "app/ui/SettingsPage.h"
#include "users/ui/UserPage.h"

#include <QVBoxLayout>

// Page 3 of the main window: hosts the lists of users and groups.
class UsersPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit UsersPage(UserPageContext context, QWidget* parent = nullptr)
        : SettingsPage(parent)
        , m_lists(new UserPage(std::move(context)))
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(m_lists);
    }
    UserPage* lists() const { return m_lists; }

    void open() override
    {
        m_lists->Group_Table_Set();
        m_lists->User_Table_Set();
    }
    void changeLanguage() override { m_lists->changeLanguage(); }

private:
    UserPage* m_lists;
};
