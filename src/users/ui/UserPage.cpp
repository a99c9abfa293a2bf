#include "users/ui/UserPage.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "look/style/Icons.h"
#include "look/tables/Tables.h"
#include "look/widgets/Keys.h"
#include "look/widgets/SecondClick.h"
#include "support/Conversions.h"
#include "users/ui/Form_AccountEdit.h"
#include "users/ui/Form_GroupPrivilege.h"
#include "users/ui/Form_Reach.h"
#include "users/ui/Form_UserSetting.h"
#include "users/ui/ui_UserPage.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace {

// The pictures of the edit and delete columns; the model holds their words.
class IconColumn : public QStyledItemDelegate
{
public:
    IconColumn(QLatin1StringView name, QObject* parent)
        : QStyledItemDelegate(parent)
        , m_name(name)
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->icon = Icon(m_name);
        option->decorationSize = QSize(kIconSize, kIconSize);
    }

private:
    QLatin1StringView m_name;
};

// `wide` takes the room that the others leave.
void SetUpGrid(QTableView* grid, QAbstractItemModel* model, std::span<const int> widths, int wide)
{
    grid->setModel(model);
    StyleTable(grid);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    SetColumnWidths(grid, widths);
    grid->horizontalHeader()->setStretchLastSection(false);
    grid->horizontalHeader()->setSectionResizeMode(wide, QHeaderView::Stretch);
}

} // namespace

UserPage::UserPage(UserPageContext context, QWidget* parent)
    : QWidget(parent)
    , m_context(std::move(context))
    , m_ui(std::make_unique<Ui::UserPage>())
    , m_users(new UserListModel(m_context.users, m_context.groups, this))
    , m_groups(new GroupListModel(m_context.groups, this))
    , m_proxy(new QSortFilterProxyModel(this))
{
    m_ui->setupUi(this);
    m_ui->userCard->setTitleControl(m_ui->userTools);
    m_ui->lbUserAdd->setIcon(Icon("add"_L1));
    m_proxy->setSourceModel(m_users);
    m_proxy->setFilterKeyColumn(-1);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    QTableView* users = m_ui->Grid_UsersList;
    QTableView* groups = m_ui->Grid_GroupList;
    SetUpGrid(users, m_proxy, std::array{340, 300, 56, 56}, UserListModel::Name);
    SetUpGrid(groups, m_groups, std::array{280, 150, 130, 130, 100, 56}, GroupListModel::Group);
    users->setItemDelegateForColumn(UserListModel::Edit, new IconColumn("edit"_L1, this));
    users->setItemDelegateForColumn(UserListModel::Delete, new IconColumn("delete"_L1, this));
    groups->setItemDelegateForColumn(GroupListModel::Edit, new IconColumn("edit"_L1, this));

    connect(m_ui->lbUserAdd, &QPushButton::clicked, this, &UserPage::lbUserAdd_Click);
    connect(m_ui->empty, &EmptyState::clicked, this, &UserPage::lbUserAdd_Click);
    connect(m_ui->btnReach, &QPushButton::clicked, this, &UserPage::showReach);
    connect(m_ui->btnAccounts, &QPushButton::clicked, this,
            [this] { OpenAccountEdit(m_context.databases, m_context.accounts, window()); });
    connect(m_ui->txtFilter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_proxy->setFilterFixedString(text);
        showList();
    });
    connect(m_ui->txtFilter, &QLineEdit::returnPressed, users, qOverload<>(&QWidget::setFocus));
    ActOnRows(users, {UserListModel::Edit, UserListModel::Delete}, [this](const QModelIndex& cell) {
        const int slot = cell.data(UserListModel::kSlotRole).toInt();
        if (cell.column() == UserListModel::Delete)
            deleteUser(slot);
        else
            editUser(slot);
    });
    ActOnRows(groups, {.open = GroupListModel::Edit}, [this](const QModelIndex& cell) { editGroup(cell.row()); });
    OnKey(users, Qt::Key_F2, [this] { editUser(currentSlot()); });
    OnKey(groups, Qt::Key_F2, [this, groups] { editGroup(groups->currentIndex().row()); });
    OnKey(this, QKeySequence::Find, [this] { m_ui->txtFilter->setFocus(); });
    OnKey(this, Qt::Key_F5, [this] {
        User_Table_Set();
        Group_Table_Set();
    });
}

UserPage::~UserPage() = default;

int UserPage::currentSlot() const
{
    const QModelIndex current = m_ui->Grid_UsersList->currentIndex();
    return current.isValid() ? current.data(UserListModel::kSlotRole).toInt() : -1;
}

void UserPage::User_Table_Set()
{
    // The same user stays current, or the one that has come to the place.
    const int row = qMax(0, m_ui->Grid_UsersList->currentIndex().row());
    const QVariant slot = m_ui->Grid_UsersList->currentIndex().data(UserListModel::kSlotRole);
    m_users->User_Table_Set();
    showList();
    const QModelIndexList same =
        m_proxy->match(m_proxy->index(0, 0), UserListModel::kSlotRole, slot, 1, Qt::MatchExactly);
    m_ui->Grid_UsersList->setCurrentIndex(same.isEmpty() ? m_proxy->index(qMin(row, m_proxy->rowCount() - 1), 0)
                                                         : same.front());
    emit usersChanged();
}

// The list, or what stands in its place while there is nobody to show.
void UserPage::showList()
{
    const bool none = m_users->rowCount() == 0;
    m_ui->empty->setHeadline(GetLangString(none ? 903 : 1089));
    m_ui->empty->setHint(none ? GetLangString(900) : QString());
    m_ui->empty->setButton(none ? GetLangString(901) : QString());
    m_ui->stack->setCurrentIndex(m_proxy->rowCount() == 0 ? 1 : 0);
    for (QWidget* tool : std::initializer_list<QWidget*>{m_ui->txtFilter, m_ui->lbUserAdd, m_ui->btnReach})
        tool->setVisible(!none);
    m_ui->btnReach->setEnabled(m_proxy->rowCount() > 0);
}

void UserPage::Group_Table_Set()
{
    const int row = qMax(0, m_ui->Grid_GroupList->currentIndex().row());
    m_groups->Group_Table_Set();
    m_ui->Grid_GroupList->setCurrentIndex(m_groups->index(row, 0));
}

void UserPage::changeLanguage()
{
    User_Table_Set();
    Group_Table_Set();
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
    if (slot < 0)
        return;
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

void UserPage::showReach()
{
    Trapped("Form_Initial - btnReach_Click", [&] {
        Form_Reach(At(m_context.users.edit, currentSlot()), m_context.groups, m_context.recorders, window());
    });
}
