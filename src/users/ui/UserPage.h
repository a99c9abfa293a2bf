#pragma once

#include "users/UserModels.h"

#include <QWidget>
#include <functional>

class Card;
class EmptyState;
class QPushButton;
class QStackedWidget;
class QSortFilterProxyModel;
class QTableView;
class SearchField;

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
    void showReach();
    void showList();
    int currentSlot() const;

    UserPageContext m_context;
    UserListModel* m_users;
    GroupListModel* m_groups;
    QSortFilterProxyModel* m_proxy;
    Card* m_userCard;
    Card* m_groupCard;
    QStackedWidget* m_stack;
    EmptyState* m_empty;
    SearchField* m_filter;
    QTableView* Grid_UsersList;
    QTableView* Grid_GroupList;
    QPushButton* lbUserAdd;
    QPushButton* m_reach;
    QPushButton* m_accountsButton;
};
