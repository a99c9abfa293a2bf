#include "users/ui/Form_UserPass.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "look/widgets/DialogFrame.h"
#include "look/widgets/Fields.h"
#include "users/ui/ui_Form_UserPass.h"

using namespace Qt::StringLiterals;

DeviceAccount Form_UserPass(QWidget* parent)
{
    DialogFrame dialog(parent);
    dialog.setObjectName(u"Form_UserPass"_s);
    dialog.setWindowTitle(GetLangString(660));
    Ui::Form_UserPass ui;
    ui.setupUi(dialog.content());
    dialog.setFooter(ui.footer);
    SelectOnFocus(ui.Text1);
    SelectOnFocus(ui.Text2);
    QObject::connect(ui.lbOK, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(ui.Text2, &QLineEdit::returnPressed, &dialog, &QDialog::accept);
    ApplyLanguage(&dialog);
    dialog.resize(420, 0);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return {ui.Text1->text(), ui.Text2->text(), true};
}
