#pragma once

#include "look/widgets/DialogFrame.h"
#include "users/UserModels.h"

#include <memory>

namespace Ui {
class Form_AccountEdit;
}

// The logins that are tried on devices. Every change is written at once.
class Form_AccountEdit : public DialogFrame
{
    Q_OBJECT
public:
    Form_AccountEdit(Databases& databases, std::vector<NVRAccountRecord>& accounts, QWidget* parent);
    ~Form_AccountEdit() override;

    void reject() override;

private:
    bool lbAccountApply_Click(); // whether the account was added
    void Grid_Account_Click(int element);

    Databases& m_databases;
    std::vector<NVRAccountRecord>& m_accounts;
    std::unique_ptr<Ui::Form_AccountEdit> m_ui;
    AccountListModel* m_list;
};

// Opens the dialog; whoever has a button for it calls this.
void OpenAccountEdit(Databases& databases, std::vector<NVRAccountRecord>& accounts, QWidget* parent);
