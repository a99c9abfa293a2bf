#include "users/ui/Form_AccountEdit.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "app/shell/ui/TellFault.h"
#include "look/widgets/Keys.h"
#include "look/widgets/SecondClick.h"
#include "support/Conversions.h"
#include "users/AccountStore.h"
#include "users/ui/ui_Form_AccountEdit.h"

using namespace Qt::StringLiterals;

Form_AccountEdit::Form_AccountEdit(Databases& databases, std::vector<NVRAccountRecord>& accounts, QWidget* parent)
    : DialogFrame(parent)
    , m_databases(databases)
    , m_accounts(accounts)
    , m_ui(std::make_unique<Ui::Form_AccountEdit>())
    , m_list(new AccountListModel(accounts, this))
{
    setObjectName(u"Form_AccountEdit"_s);
    setWindowTitle(GetLangString(831));
    m_ui->setupUi(content());
    setFooter(m_ui->footer);
    DeskTable* grid = m_ui->Grid_Account;
    grid->setList(m_list);
    grid->whenRemoved([this](int element) { Grid_Account_Click(element); });
    connect(grid, &DeskTable::shownChanged, this,
            [this, grid] { m_ui->stack->setCurrentIndex(grid->shownRows() > 0 ? 0 : 1); });
    PasswordField* password = m_ui->Text_Account_1;
    QCheckBox* mask = m_ui->Chk_PasswordMask;
    connect(mask, &QCheckBox::toggled, password, [password](bool on) { password->setRevealed(!on); });
    connect(password, &PasswordField::revealedChanged, mask, [mask](bool revealed) { mask->setChecked(!revealed); });
    connect(m_ui->lbAccountClose, &QPushButton::clicked, this, &Form_AccountEdit::reject);
    connect(m_ui->lbAccountApply, &QPushButton::clicked, this, &Form_AccountEdit::lbAccountApply_Click);
    OnKey(this, Qt::Key_F5, [this] {
        if (GetMyAccount(m_databases, m_accounts) == 1)
            m_list->refill();
    });
    ApplyLanguage(this);
    m_list->refill();
    resize(520, 480);
    m_ui->Text_Account_0->setFocus();
}

Form_AccountEdit::~Form_AccountEdit() = default;

bool Form_AccountEdit::lbAccountApply_Click()
{
    bool added = false;
    Trapped("Form_AccountEdit - lbAccountApply_Click", [&] {
        for (auto [field, message] :
             {std::pair<QLineEdit*, int>{m_ui->Text_Account_0, 595}, {m_ui->Text_Account_1, 596}}) {
            if (field->text().isEmpty())
                return TellFault(field, message, 965);
        }
        if (HasAccount(m_accounts, m_ui->Text_Account_0->text(), m_ui->Text_Account_1->text()))
            return TellFault(m_ui->Text_Account_0, 620);
        AddAccount(m_accounts, m_ui->Text_Account_0->text(), m_ui->Text_Account_1->text());
        SaveMyAccount(m_databases, m_accounts);
        m_list->refill();
        const QAbstractItemModel* rows = m_ui->Grid_Account->model();
        m_ui->Grid_Account->setCurrentIndex(rows->index(rows->rowCount() - 1, 0));
        m_ui->Text_Account_0->clear();
        m_ui->Text_Account_1->clear();
        m_ui->Text_Account_0->setFocus();
        added = true;
    });
    return added;
}

// Esc, the close button and Close: an account that was typed is not lost silently.
void Form_AccountEdit::reject()
{
    if (!m_ui->Text_Account_0->text().isEmpty() || !m_ui->Text_Account_1->text().isEmpty()) {
        const Leave leave = AskToLeave();
        if (leave == Leave::Stay || (leave == Leave::Save && !lbAccountApply_Click()))
            return;
    }
    DialogFrame::reject();
}

void Form_AccountEdit::Grid_Account_Click(int element)
{
    Trapped("Form_AccountEdit - Grid_Account_Click", [&] {
        if (!AskToDestroy(1084, At(m_accounts, element).sUser))
            return;
        RemoveAccount(m_accounts, element);
        SaveMyAccount(m_databases, m_accounts);
        m_list->refill();
        DropSecondClick(); // the next account has come under the pointer
    });
}

void OpenAccountEdit(Databases& databases, std::vector<NVRAccountRecord>& accounts, QWidget* parent)
{
    Form_AccountEdit(databases, accounts, parent).exec();
}
