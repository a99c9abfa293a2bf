#include "users/ui/UserPage.h"

#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "look/widgets/Fields.h"
#include "look/widgets/Keys.h"
#include "look/widgets/SecondClick.h"
#include "support/Conversions.h"
#include "users/ui/Form_AccountEdit.h"
#include "users/ui/Form_GroupPrivilege.h"
#include "users/ui/Form_Reach.h"
#include "users/ui/Form_UserSetting.h"
#include "users/ui/ui_UserPage.h"

using namespace Qt::StringLiterals;

UserPage::UserPage(UserPageContext context, QWidget* parent)
    : QWidget(parent)
    , m_context(std::move(context))
    , m_ui(std::make_unique<Ui::UserPage>())
    , m_users(new UserListModel(m_context.users, m_context.groups, this))
    , m_groups(new GroupListModel(m_context.groups, this))
{
    m_ui->setupUi(this);
    ListPane* pane = m_ui->users;
    DeskTable* users = pane->table();
    DeskTable* groups = m_ui->Grid_GroupList;
    pane->setList(m_users, {.table = "Grid_UsersList"_L1,
                            .button = "lbUserAdd"_L1,
                            .name = 786,
                            .filterText = 1088,
                            .buttonText = 442,
                            .none = 903,
                            .noneHint = 900,
                            .noMatch = 1089});
    pane->addTool(m_ui->btnReach);
    m_ui->userToolRow->addWidget(pane->toolRow());
    m_ui->userCard->setTitleControl(m_ui->userTools);
    setTabOrder(m_ui->btnAccounts, pane->filter());
    setTabOrder(users, groups);
    groups->setList(m_groups);

    users->whenOpened([this](int slot) { editUser(slot); });
    users->whenRemoved([this](int slot) { deleteUser(slot); });
    groups->whenOpened([this](int group) { editGroup(group); });
    connect(users, &DeskTable::shownChanged, this,
            [this, users] { m_ui->btnReach->setEnabled(users->shownRows() > 0); });
    connect(pane, &ListPane::buttonClicked, this, &UserPage::lbUserAdd_Click);
    connect(m_ui->btnReach, &QPushButton::clicked, this, [this, users] { showReach(users->currentRecord()); });
    connect(m_ui->btnAccounts, &QPushButton::clicked, this,
            [this] { OpenAccountEdit(m_context.databases, m_context.accounts, window()); });
    OnKey(users, Qt::Key_F2, [this, users] { editUser(users->currentRecord()); });
    OnKey(groups, Qt::Key_F2, [this, groups] { editGroup(groups->currentRecord()); });
    OnKey(this, Qt::Key_F5, [this] {
        User_Table_Set();
        Group_Table_Set();
    });
}

UserPage::~UserPage() = default;

void UserPage::User_Table_Set()
{
    m_users->User_Table_Set();
    emit usersChanged();
}

void UserPage::Group_Table_Set()
{
    m_groups->Group_Table_Set();
}

void UserPage::changeLanguage()
{
    User_Table_Set();
    m_ui->users->changeLanguage();
    m_groups->retranslate();
}

void UserPage::lbUserAdd_Click()
{
    Trapped("Form_Initial - lbUserAdd_Click", [&] {
        m_context.users.EditUserIndex = kNewUser;
        Form_UserSetting(m_context.users, MyGroup_GetList(m_context.groups), false, m_context.save, window()).exec();
        User_Table_Set();
    });
}

void UserPage::editUser(int slot)
{
    if (slot < 0)
        return;
    Trapped("Form_Initial - Grid_UsersList_Click", [&] {
        m_context.users.EditUserIndex = static_cast<quint16>(slot);
        Form_UserSetting(m_context.users, MyGroup_GetList(m_context.groups), IsLastAdmin(m_context.users, slot),
                         m_context.save, window())
            .exec();
        User_Table_Set();
    });
}

void UserPage::deleteUser(int slot)
{
    Trapped("Form_Initial - Grid_UsersList_Click", [&] {
        if (IsLastAdmin(m_context.users, slot) && SetUser_TotalNum(m_context.users) > 1)
            return Tell(Tone::Warning, 502);
        if (AskToDestroy(501, At(m_context.users.edit, slot).sUser)) {
            SetUser_Delete(m_context.users, slot);
            DropSecondClick(); // the next user comes under the pointer
        }
        m_context.save();
        User_Table_Set();
    });
}

void UserPage::editGroup(int group)
{
    if (group < 0)
        return;
    Trapped("Form_Initial - Grid_GroupList_Click", [&] {
        Form_GroupPrivilege dialog(m_context.groups, m_context.users, m_context.recorders, m_context.save, window());
        dialog.SetGroupPrivilege(group);
        dialog.LoadFrame(0);
        dialog.exec();
        Group_Table_Set();
    });
}

void UserPage::showReach(int slot)
{
    Trapped("Form_Initial - btnReach_Click",
            [&] { Form_Reach(At(m_context.users.edit, slot), m_context.groups, m_context.recorders, window()); });
}
