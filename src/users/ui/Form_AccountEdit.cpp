#include "users/ui/Form_AccountEdit.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "look/style/Icons.h"
#include "look/tables/Tables.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/PasswordField.h"
#include "platform/MsgBox.h"
#include "users/AccountStore.h"
#include "users/ui/FieldCaption.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStandardItemModel>
#include <QTableView>

using namespace Qt::StringLiterals;

Form_AccountEdit::Form_AccountEdit(Databases& databases, std::vector<NVRAccountRecord>& accounts, QWidget* parent)
    : DialogFrame(parent)
    , m_databases(databases)
    , m_accounts(accounts)
    , m_model(new QStandardItemModel(this))
    , Grid_Account(new QTableView)
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
    column->addWidget(Grid_Account, 1);
    auto* form = new QFormLayout;
    form->addRow(FieldCaption(465, m_user), m_user);
    form->addRow(FieldCaption(466, m_password), m_password);
    form->addRow(QString(), mask);
    column->addLayout(form);

    QPushButton* close = footer()->addButton(GetLangString(881));
    close->setObjectName(u"lbAccountClose"_s);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    QPushButton* apply = footer()->addButton(GetLangString(591), "primary"_L1);
    apply->setObjectName(u"lbAccountApply"_s);
    apply->setDefault(true);
    connect(apply, &QPushButton::clicked, this, &Form_AccountEdit::lbAccountApply_Click);
    connect(Grid_Account, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == 1)
            Grid_Account_Click(index.row());
    });
    auto* remove = new QShortcut(Qt::Key_Delete, Grid_Account, nullptr, nullptr, Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, this, [this] {
        if (Grid_Account->currentIndex().isValid())
            Grid_Account_Click(Grid_Account->currentIndex().row());
    });
    ApplyLanguage(this);
    refill();
    resize(520, 480);
    m_user->setFocus();
}

void Form_AccountEdit::refill()
{
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
    Grid_Account->setColumnWidth(0, 360);
}

void Form_AccountEdit::lbAccountApply_Click()
{
    Trapped("Form_AccountEdit - lbAccountApply_Click", [&] {
        for (auto [field, message] : {std::pair<QLineEdit*, int>{m_user, 595}, {m_password, 596}}) {
            if (!field->text().isEmpty())
                continue;
            MsgBox(GetLangString(message), InfoBoxStyle(), GetLangString(965));
            field->setFocus();
            return;
        }
        if (HasAccount(m_accounts, m_user->text(), m_password->text())) {
            MsgBox(GetLangString(620), InfoBoxStyle(), GetLangString(570));
            return;
        }
        AddAccount(m_accounts, m_user->text(), m_password->text());
        SaveMyAccount(m_databases, m_accounts);
        refill();
        m_user->clear();
        m_password->clear();
        m_user->setFocus();
    });
}

void Form_AccountEdit::Grid_Account_Click(int row)
{
    Trapped("Form_AccountEdit - Grid_Account_Click", [&] {
        // Rows stand for the elements that have a user.
        for (std::size_t i = 0; i < m_accounts.size(); ++i) {
            if (m_accounts[i].sUser.isEmpty() || row-- > 0)
                continue;
            RemoveAccount(m_accounts, static_cast<int>(i));
            break;
        }
        SaveMyAccount(m_databases, m_accounts);
        refill();
    });
}

void OpenAccountEdit(Databases& databases, std::vector<NVRAccountRecord>& accounts, QWidget* parent)
{
    Form_AccountEdit(databases, accounts, parent).exec();
}
