#include "users/ui/Form_Reach.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "look/widgets/DialogFrame.h"
#include "users/UserModels.h"
#include "users/ui/ui_Form_Reach.h"

using namespace Qt::StringLiterals;

void Form_Reach(const UserRecord& user, const GroupSet& groups, const RecorderSet& recorders, QWidget* parent)
{
    ReachModel model(user, groups, recorders);
    DialogFrame dialog(parent);
    dialog.setObjectName(u"Form_Reach"_s);
    dialog.setWindowTitle(GetLangString(904));
    dialog.setSubtitle(user.sUser);
    Ui::Form_Reach ui;
    ui.setupUi(dialog.content());
    dialog.setFooter(ui.footer);
    ui.Grid_Reach->setList(&model);
    ui.stack->setCurrentIndex(model.rowCount() > 0 ? 0 : 1);
    QObject::connect(ui.btnClose, &QPushButton::clicked, &dialog, &QDialog::accept);
    ApplyLanguage(&dialog);
    dialog.resize(860, 480);
    dialog.exec();
}
