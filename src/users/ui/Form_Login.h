#pragma once

#include "look/widgets/DialogFrame.h"
#include "users/UserStore.h"

#include <memory>

namespace Ui {
class Form_Login;
}

// The gate at the end of start-up: accepted when name and password match a user.
class Form_Login : public DialogFrame
{
    Q_OBJECT
public:
    explicit Form_Login(const std::vector<UserRecord>& users, QWidget* parent = nullptr);
    ~Form_Login() override;

    void ChangeLanguage();
    // True when what is typed matches a user; else one box, and the field in question is emptied and focused.
    bool bIsUser();
    quint32 CurrentUserIndex() const { return m_index; }
    QString userName() const;
    // Lets nobody in from now on; `reason` is what each attempt is told.
    void refuse(const QString& reason);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override; // the window is moved by any free spot

private:
    void imgBtn_OK_Click();
    void UpdatingLogo();

    const std::vector<UserRecord>& m_users;
    std::unique_ptr<Ui::Form_Login> m_ui;
    quint32 m_index = 65535;
    QString m_refusal;
};
