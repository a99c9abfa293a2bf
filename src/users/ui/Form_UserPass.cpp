#include "users/ui/Form_UserPass.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/DialogFrame.h"
#include "look/widgets/Fields.h"
#include "look/widgets/PasswordField.h"
#include "users/ui/FieldCaption.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

DeviceAccount Form_UserPass(QWidget* parent)
{
    DialogFrame dialog(parent);
    dialog.setObjectName(u"Form_UserPass"_s);
    dialog.setWindowTitle(GetLangString(660));
    dialog.setCloseText(GetLangString(881));
    auto* user = new QLineEdit;
    user->setObjectName(u"Text1"_s);
    auto* password = new PasswordField;
    password->setObjectName(u"Text2"_s);
    SelectOnFocus(user);
    SelectOnFocus(password);
    auto* form = new QFormLayout(dialog.content());
    form->setVerticalSpacing(10);
    form->addRow(FieldCaption(465, user, u"lbUser"_s), user);
    form->addRow(FieldCaption(466, password, u"lbPassword"_s), password);
    QPushButton* ok = dialog.footer()->addButton(GetLangString(755), "primary"_L1);
    ok->setObjectName(u"lbOK"_s);
    ok->setAutoDefault(false);
    QObject::connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(password, &QLineEdit::returnPressed, &dialog, &QDialog::accept);
    ApplyLanguage(&dialog);
    dialog.resize(420, 0);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return {user->text(), password->text(), true};
}
