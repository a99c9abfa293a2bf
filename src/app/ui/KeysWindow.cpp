#include "app/ui/KeysWindow.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/ui/ui_KeysWindow.h"
#include "look/widgets/DialogFrame.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTitle = 1000;

QString KeyText(const QKeySequence& keys)
{
    return keys.toString(QKeySequence::NativeText);
}

} // namespace

void ShowKeys(QWidget* parent)
{
    DialogFrame dialog(parent);
    dialog.setObjectName(u"Form_Keys"_s);
    dialog.setWindowTitle(GetLangString(kTitle));
    Ui::KeysWindow ui;
    ui.setupUi(dialog.content());
    dialog.setFooter(ui.footer);
    ui.lbKey_0->setText(KeyText(Qt::Key_F1));
    ui.lbKey_1->setText(KeyText(Qt::Key_F2));
    ui.lbKey_2->setText(KeyText(Qt::Key_F5));
    ui.lbKey_3->setText(KeyText(Qt::CTRL | Qt::Key_F));
    ui.lbKey_4->setText(KeyText(Qt::CTRL | Qt::Key_1) + u" … "_s + KeyText(Qt::CTRL | Qt::Key_0));
    ui.lbKey_5->setText(KeyText(Qt::Key_Enter));
    ui.lbKey_6->setText(KeyText(Qt::Key_Delete));
    ui.lbKey_7->setText(KeyText(Qt::Key_Escape));
    QObject::connect(ui.btnClose, &QPushButton::clicked, &dialog, &QDialog::accept);
    ApplyLanguage(&dialog);
    dialog.exec();
}
