#include "users/ui/Form_AccountEdit.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "app/shell/ui/TellFault.h"
#include "look/style/Icons.h"
#include "look/tables/Tables.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/EmptyState.h"
#include "look/widgets/Keys.h"
#include "look/widgets/PasswordField.h"
#include "look/widgets/SecondClick.h"
#include "support/Conversions.h"
#include "users/AccountStore.h"
#include "users/ui/FieldCaption.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {
constexpr int kRemove = 1;      // column
constexpr int kIconColumn = 56; // px
} // namespace

Form_AccountEdit::Form_AccountEdit(Databases& databases, std::vector<NVRAccountRecord>& accounts, QWidget* parent)
    : DialogFrame(parent)
    , m_databases(databases)
    , m_accounts(accounts)
    , m_model(new QStandardItemModel(this))
    , Grid_Account(new QTableView)
    , m_stack(new QStackedWidget)
    , m_user(new QLineEdit)
    , m_password(new PasswordField)
{
    setObjectName(u"Form_AccountEdit"_s);
    setWindowTitle(GetLangString(831));
    setCloseText(GetLangString(881));
    Grid_Account->setObjectName(u"Grid_Account"_s);
    Grid_Account->setAccessibleName(GetLangString(831));
    Grid_Account->setModel(m_model);
    StyleTable(Grid_Account);
    Grid_Account->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_user->setObjectName(u"Text_Account_0"_s);
    m_password->setObjectName(u"Text_Account_1"_s);
    auto* mask = new QCheckBox;
    mask->setObjectName(u"Chk_PasswordMask"_s);
    mask->setProperty("tag", u"Caption:830"_s);
    mask->setChecked(true);
    connect(mask, &QCheckBox::toggled, m_password, [this](bool on) { m_password->setRevealed(!on); });
    connect(m_password, &PasswordField::revealedChanged, mask, [mask](bool revealed) { mask->setChecked(!revealed); });

    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    auto* empty = new EmptyState;
    empty->setHeadline(GetLangString(1082));
    empty->setHint(GetLangString(1083));
    m_stack->addWidget(Grid_Account);
    m_stack->addWidget(empty);
    column->addWidget(m_stack, 1);
    auto* form = new QFormLayout;
    form->addRow(FieldCaption(465, m_user), m_user);
    form->addRow(FieldCaption(466, m_password), m_password);
    form->addRow(QString(), mask);
    column->addLayout(form);

    QPushButton* close = footer()->addButton(GetLangString(881));
    close->setObjectName(u"lbAccountClose"_s);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &Form_AccountEdit::reject);
    QPushButton* apply = footer()->addButton(GetLangString(591), "primary"_L1);
    apply->setObjectName(u"lbAccountApply"_s);
    apply->setDefault(true);
    connect(apply, &QPushButton::clicked, this, [this] { lbAccountApply_Click(); });
    ActOnRows(Grid_Account, {.remove = kRemove}, [this](const QModelIndex& cell) {
        if (cell.column() == kRemove)
            Grid_Account_Click(cell.row());
    });
    OnKey(this, Qt::Key_F5, [this] {
        if (GetMyAccount(m_databases, m_accounts) == 1)
            refill();
    });
    ApplyLanguage(this);
    refill();
    resize(520, 480);
    m_user->setFocus();
}

void Form_AccountEdit::refill()
{
    const int row = qMax(0, Grid_Account->currentIndex().row());
    m_model->clear();
    m_model->setHorizontalHeaderLabels({GetLangString(465), QString()});
    for (const NVRAccountRecord& account : m_accounts) {
        if (account.sUser.isEmpty())
            continue;
        auto* remove = new QStandardItem(Icon("delete"_L1), QString());
        remove->setToolTip(GetLangString(877));
        remove->setData(GetLangString(877), Qt::AccessibleTextRole);
        m_model->appendRow({new QStandardItem(account.sUser), remove});
    }
    QHeaderView* head = Grid_Account->horizontalHeader();
    head->setStretchLastSection(false);
    head->setSectionResizeMode(0, QHeaderView::Stretch);
    Grid_Account->setColumnWidth(kRemove, kIconColumn);
    Grid_Account->setCurrentIndex(m_model->index(qMin(row, m_model->rowCount() - 1), 0));
    m_stack->setCurrentIndex(m_model->rowCount() > 0 ? 0 : 1);
}

bool Form_AccountEdit::lbAccountApply_Click()
{
    bool added = false;
    Trapped("Form_AccountEdit - lbAccountApply_Click", [&] {
        for (auto [field, message] : {std::pair<QLineEdit*, int>{m_user, 595}, {m_password, 596}}) {
            if (field->text().isEmpty())
                return TellFault(field, message, 965);
        }
        if (HasAccount(m_accounts, m_user->text(), m_password->text()))
            return TellFault(m_user, 620);
        AddAccount(m_accounts, m_user->text(), m_password->text());
        SaveMyAccount(m_databases, m_accounts);
        refill();
        Grid_Account->setCurrentIndex(m_model->index(m_model->rowCount() - 1, 0));
        m_user->clear();
        m_password->clear();
        m_user->setFocus();
        added = true;
    });
    return added;
}

// Esc, the close button and Close: an account that was typed is not lost silently.
void Form_AccountEdit::reject()
{
    if (!m_user->text().isEmpty() || !m_password->text().isEmpty()) {
        const Leave leave = AskToLeave();
        if (leave == Leave::Stay || (leave == Leave::Save && !lbAccountApply_Click()))
            return;
    }
    DialogFrame::reject();
}

void Form_AccountEdit::Grid_Account_Click(int row)
{
    Trapped("Form_AccountEdit - Grid_Account_Click", [&] {
        // Rows stand for the elements that have a user.
        int element = -1;
        for (int left = row; left >= 0; --left) {
            do
                ++element;
            while (At(m_accounts, element).sUser.isEmpty());
        }
        if (!AskToDestroy(1084, At(m_accounts, element).sUser))
            return;
        RemoveAccount(m_accounts, element);
        SaveMyAccount(m_databases, m_accounts);
        refill();
        DropSecondClick(); // the next account has come under the pointer
    });
}

void OpenAccountEdit(Databases& databases, std::vector<NVRAccountRecord>& accounts, QWidget* parent)
{
    Form_AccountEdit(databases, accounts, parent).exec();
}
