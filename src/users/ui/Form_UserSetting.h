#pragma once

#include "look/widgets/DialogFrame.h"
#include "users/UserStore.h"

#include <array>
#include <functional>
#include <memory>

class QLineEdit;
namespace Ui {
class Form_UserSetting;
}

// Edits the user in UserSet::EditUserIndex, or makes a new one.
class Form_UserSetting : public DialogFrame
{
    Q_OBJECT
public:
    // `save` writes everything that is marked. `groupFixed`: the last administrator keeps the group.
    Form_UserSetting(UserSet& users, const QStringList& groups, bool groupFixed, std::function<void()> save,
                     QWidget* parent);
    ~Form_UserSetting() override;

    void PSWD_Clear();
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum TextField
    {
        Name,
        Password,
        Company,
        Telephone,
        Mail1,
        Mail2,
        Mobile,
        PasswordAgain,
        FieldCount
    };
    void Form_Activate(bool groupFixed);
    void lbUserApply_Click();
    void lbUserCheck_Click();
    void Image1_DblClick();
    void showPhoto();
    void allowApply();
    QStringList state() const; // of all that can be changed
    // One log line, a box, and the focus back to the field.
    void refuse(const QString& logText, int message, QWidget* field);

    UserSet& m_users;
    std::function<void()> m_save;
    std::unique_ptr<Ui::Form_UserSetting> m_ui;
    std::array<QLineEdit*, FieldCount> txtUser;
    QStringList m_before;
};
