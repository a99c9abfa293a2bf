#pragma once

#include "look/widgets/DialogFrame.h"
#include "store/Databases.h"
#include "store/records/UserRecords.h"

#include <vector>

class PasswordField;
class QLineEdit;
class QStackedWidget;
class QStandardItemModel;
class QTableView;

// The logins that are tried on devices. Every change is written at once.
class Form_AccountEdit : public DialogFrame
{
    Q_OBJECT
public:
    Form_AccountEdit(Databases& databases, std::vector<NVRAccountRecord>& accounts, QWidget* parent);

    void reject() override;

private:
    bool lbAccountApply_Click(); // whether the account was added
    void Grid_Account_Click(int row);
    void refill();

    Databases& m_databases;
    std::vector<NVRAccountRecord>& m_accounts;
    QStandardItemModel* m_model;
    QTableView* Grid_Account;
    QStackedWidget* m_stack;
    QLineEdit* m_user;
    PasswordField* m_password;
};

// Opens the dialog; whoever has a button for it calls this.
void OpenAccountEdit(Databases& databases, std::vector<NVRAccountRecord>& accounts, QWidget* parent);
