#pragma once

#include "app/ui/PageTable.h"
#include "users/ui/UserPage.h"

#include <QVBoxLayout>

// Page 3: hosts the lists of users and groups.
class UsersPage : public Page
{
    Q_OBJECT

public:
    explicit UsersPage(const DeskParts& parts)
        : m_lists(new UserPage({parts.station.databases, parts.station.users, parts.station.groups,
                                parts.station.recorders, parts.station.accounts, parts.context.save}))
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(m_lists);
        connect(m_lists, &UserPage::usersChanged, this, parts.context.usersChanged);
    }

    void enter() override
    {
        m_lists->Group_Table_Set();
        m_lists->User_Table_Set();
    }
    void changeLanguage() override { m_lists->changeLanguage(); }
    void primaryAction() override { m_lists->lbUserAdd_Click(); }

private:
    UserPage* m_lists;
};
