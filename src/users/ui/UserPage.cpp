#include "users/ui/UserPage.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "look/style/Icons.h"
#include "look/tables/Tables.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/Card.h"
#include "look/widgets/EmptyState.h"
#include "look/widgets/Fields.h"
#include "look/widgets/Keys.h"
#include "look/widgets/SecondClick.h"
#include "support/Conversions.h"
#include "users/ui/Form_AccountEdit.h"
#include "users/ui/Form_GroupPrivilege.h"
#include "users/ui/Form_UserSetting.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>

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

QSortFilterProxyModel* MakeProxy(QAbstractItemModel* model, QObject* parent)
{
    auto* proxy = new QSortFilterProxyModel(parent);
    proxy->setSourceModel(model);
    proxy->setFilterKeyColumn(-1);
    proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    return proxy;
}

// `wide` takes the room that the others leave.
QTableView* MakeGrid(const QString& name, QAbstractItemModel* model, const QList<int>& widths, int wide)
{
    auto* grid = new QTableView;
    grid->setObjectName(name);
    grid->setModel(model);
    StyleTable(grid);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    SetColumnWidths(grid, widths);
    grid->horizontalHeader()->setStretchLastSection(false);
    grid->horizontalHeader()->setSectionResizeMode(wide, QHeaderView::Stretch);
    return grid;
}

} // namespace

UserPage::UserPage(UserPageContext context, QWidget* parent)
    : QWidget(parent)
    , m_context(std::move(context))
    , m_users(new UserListModel(m_context.users, m_context.groups, this))
    , m_groups(new GroupListModel(m_context.groups, this))
    , m_proxy(MakeProxy(m_users, this))
    , m_userCard(new Card)
    , m_groupCard(new Card)
    , m_stack(new QStackedWidget)
    , m_empty(new EmptyState)
    , m_filter(new SearchField)
    , Grid_UsersList(MakeGrid(u"Grid_UsersList"_s, m_proxy, {340, 300, 56, 56}, UserListModel::Name))
    , Grid_GroupList(MakeGrid(u"Grid_GroupList"_s, m_groups, {280, 150, 130, 130, 100, 56}, GroupListModel::Group))
    , lbUserAdd(new QPushButton)
    , m_reach(new QPushButton)
    , m_accountsButton(new QPushButton)
{
    m_filter->setObjectName(u"txtFilter"_s);
    m_filter->setMaximumWidth(240);
    Grid_UsersList->setItemDelegateForColumn(UserListModel::Edit, new IconColumn("edit"_L1, this));
    Grid_UsersList->setItemDelegateForColumn(UserListModel::Delete, new IconColumn("delete"_L1, this));
    Grid_GroupList->setItemDelegateForColumn(GroupListModel::Edit, new IconColumn("edit"_L1, this));
    lbUserAdd->setObjectName(u"lbUserAdd"_s);
    lbUserAdd->setProperty("kind", u"primary"_s);
    lbUserAdd->setIcon(Icon("add"_L1));
    m_reach->setObjectName(u"btnReach"_s);
    m_accountsButton->setObjectName(u"btnAccounts"_s);

    auto* toolRow = new QWidget;
    auto* tools = new QHBoxLayout(toolRow);
    tools->setContentsMargins(0, 0, 0, 0);
    tools->setSpacing(10);
    tools->addWidget(m_filter);
    tools->addWidget(m_accountsButton);
    tools->addWidget(m_reach);
    tools->addWidget(lbUserAdd);
    m_stack->addWidget(Grid_UsersList);
    m_stack->addWidget(m_empty);
    m_userCard->content()->addWidget(m_stack, 1);
    m_userCard->setTitleControl(toolRow);
    // The groups are always seven: their card shows them all and leaves the rest to the users.
    Grid_GroupList->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_groupCard->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    m_groupCard->content()->addWidget(Grid_GroupList, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 16, 24, 16);
    column->setSpacing(16);
    column->addWidget(m_userCard, 1);
    column->addWidget(m_groupCard);
    setTabOrder(m_filter, m_accountsButton);
    setTabOrder(m_accountsButton, m_reach);
    setTabOrder(m_reach, lbUserAdd);
    setTabOrder(lbUserAdd, Grid_UsersList);
    setTabOrder(Grid_UsersList, Grid_GroupList);

    connect(lbUserAdd, &QPushButton::clicked, this, &UserPage::lbUserAdd_Click);
    connect(m_empty, &EmptyState::clicked, this, &UserPage::lbUserAdd_Click);
    connect(m_reach, &QPushButton::clicked, this, &UserPage::showReach);
    connect(m_accountsButton, &QPushButton::clicked, this,
            [this] { OpenAccountEdit(m_context.databases, m_context.accounts, window()); });
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_proxy->setFilterFixedString(text);
        showList();
    });
    connect(m_filter, &QLineEdit::returnPressed, Grid_UsersList, qOverload<>(&QWidget::setFocus));
    ActOnRows(Grid_UsersList, {UserListModel::Edit, UserListModel::Delete}, [this](const QModelIndex& cell) {
        const int slot = cell.data(UserListModel::kSlotRole).toInt();
        if (cell.column() == UserListModel::Delete)
            deleteUser(slot);
        else
            editUser(slot);
    });
    ActOnRows(Grid_GroupList, {.open = GroupListModel::Edit},
              [this](const QModelIndex& cell) { editGroup(cell.row()); });
    OnKey(Grid_UsersList, Qt::Key_F2, [this] { editUser(currentSlot()); });
    OnKey(Grid_GroupList, Qt::Key_F2, [this] { editGroup(Grid_GroupList->currentIndex().row()); });
    OnKey(this, QKeySequence::Find, [this] { m_filter->setFocus(); });
    OnKey(this, Qt::Key_F5, [this] {
        User_Table_Set();
        Group_Table_Set();
    });
}

int UserPage::currentSlot() const
{
    const QModelIndex current = Grid_UsersList->currentIndex();
    return current.isValid() ? current.data(UserListModel::kSlotRole).toInt() : -1;
}

void UserPage::User_Table_Set()
{
    // The same user stays current, or the one that has come to the place.
    const int row = qMax(0, Grid_UsersList->currentIndex().row());
    const QVariant slot = Grid_UsersList->currentIndex().data(UserListModel::kSlotRole);
    m_users->User_Table_Set();
    showList();
    const QModelIndexList same =
        m_proxy->match(m_proxy->index(0, 0), UserListModel::kSlotRole, slot, 1, Qt::MatchExactly);
    Grid_UsersList->setCurrentIndex(same.isEmpty() ? m_proxy->index(qMin(row, m_proxy->rowCount() - 1), 0)
                                                   : same.front());
    emit usersChanged();
}

// The list, or what stands in its place while there is nobody to show.
void UserPage::showList()
{
    const bool none = m_users->rowCount() == 0;
    m_empty->setHeadline(GetLangString(none ? 903 : 1089));
    m_empty->setHint(none ? GetLangString(900) : QString());
    m_empty->setButton(none ? GetLangString(901) : QString());
    m_stack->setCurrentWidget(m_proxy->rowCount() == 0 ? static_cast<QWidget*>(m_empty) : Grid_UsersList);
    for (QWidget* tool :
         {static_cast<QWidget*>(m_filter), static_cast<QWidget*>(lbUserAdd), static_cast<QWidget*>(m_reach)})
        tool->setVisible(!none);
    m_reach->setEnabled(m_proxy->rowCount() > 0);
}

void UserPage::Group_Table_Set()
{
    const int row = qMax(0, Grid_GroupList->currentIndex().row());
    m_groups->Group_Table_Set();
    Grid_GroupList->setCurrentIndex(m_groups->index(row, 0));
}

void UserPage::changeLanguage()
{
    m_userCard->setTitle(GetLangString(786));
    m_groupCard->setTitle(GetLangString(785));
    Grid_UsersList->setAccessibleName(GetLangString(786));
    Grid_GroupList->setAccessibleName(GetLangString(785));
    lbUserAdd->setText(GetLangString(442));
    m_reach->setText(GetLangString(904));
    m_accountsButton->setText(GetLangString(831));
    m_filter->setPlaceholderText(GetLangString(1088));
    m_filter->setAccessibleName(GetLangString(1088));
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
        const UserRecord& user = At(m_context.users.edit, currentSlot());
        DialogFrame dialog(window());
        dialog.setObjectName(u"Form_Reach"_s);
        dialog.setWindowTitle(GetLangString(904));
        dialog.setSubtitle(user.sUser);
        dialog.setCloseText(GetLangString(881));
        QStandardItemModel model;
        model.setHorizontalHeaderLabels({u"NVR"_s, GetLangString(366), GetLangString(367), GetLangString(784)});
        for (const ReachedCamera& camera : CamerasOf(m_context.groups, user.iGroup, m_context.recorders.SVRWorkList)) {
            const SVRRecord& recorder = At(m_context.recorders.SVRWorkList, camera.slot);
            QStringList rights;
            static constexpr std::array names{908, 431, 430, 150};
            for (std::size_t i = 0; i < names.size(); ++i) {
                if ((camera.mask & kRightBits[i]) != 0)
                    rights << GetLangString(names[i]);
            }
            QList<QStandardItem*> row;
            for (const QString& text : {QString(QString::number(camera.slot + 1) + u" · "_s + recorder.sSVR_Name),
                                        QString::number(camera.channel + 1),
                                        At(recorder.channels, camera.channel).sSub_CH_Name, rights.join(u", "_s)})
                row << new QStandardItem(text);
            model.appendRow(row);
        }
        auto* column = new QVBoxLayout(dialog.content());
        column->setContentsMargins(0, 0, 0, 0);
        QTableView* grid = MakeGrid(u"Grid_Reach"_s, &model, {190, 80, 180}, 3);
        grid->setAccessibleName(GetLangString(904));
        grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
        auto* empty = new EmptyState;
        empty->setHeadline(GetLangString(1085));
        empty->setHint(GetLangString(1086));
        grid->setVisible(model.rowCount() > 0);
        empty->setVisible(model.rowCount() == 0);
        column->addWidget(grid);
        column->addWidget(empty);
        QPushButton* close = dialog.footer()->addButton(GetLangString(881), "primary"_L1);
        close->setObjectName(u"btnClose"_s);
        connect(close, &QPushButton::clicked, &dialog, &QDialog::accept);
        dialog.resize(860, 480);
        dialog.exec();
    });
}
