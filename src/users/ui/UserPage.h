#pragma once

#include "users/UserModels.h"

#include <QWidget>
#include <functional>
#include <memory>

namespace Ui {
class UserPage;
}

// What the page works on. `save` writes everything that is marked.
struct UserPageContext
{
    Databases& databases;
    UserSet& users;
    GroupSet& groups;
    const RecorderSet& recorders;
    std::vector<NVRAccountRecord>& accounts;
    std::function<void()> save;
};

// Page 3: the lists of users and groups.
class UserPage : public QWidget
{
    Q_OBJECT
public:
    explicit UserPage(UserPageContext context, QWidget* parent = nullptr);
    ~UserPage() override;

    void User_Table_Set();
    void Group_Table_Set();
    void changeLanguage();

public slots:
    void lbUserAdd_Click();

signals:
    void usersChanged();

private:
    void editUser(int slot);
    void deleteUser(int slot);
    void editGroup(int group);
    void showReach(int slot);

    UserPageContext m_context;
    std::unique_ptr<Ui::UserPage> m_ui;
    UserListModel* m_users;
    GroupListModel* m_groups;
};
