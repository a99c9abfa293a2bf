#include "users/ui/Form_Reach.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "look/tables/Tables.h"
#include "look/widgets/DialogFrame.h"
#include "support/Conversions.h"
#include "users/ui/ui_Form_Reach.h"

#include <QHeaderView>
#include <QStandardItemModel>

using namespace Qt::StringLiterals;

void Form_Reach(const UserRecord& user, const GroupSet& groups, const RecorderSet& recorders, QWidget* parent)
{
    DialogFrame dialog(parent);
    dialog.setObjectName(u"Form_Reach"_s);
    dialog.setWindowTitle(GetLangString(904));
    dialog.setSubtitle(user.sUser);
    Ui::Form_Reach ui;
    ui.setupUi(dialog.content());
    dialog.setFooter(ui.footer);
    QStandardItemModel model;
    model.setHorizontalHeaderLabels({u"NVR"_s, GetLangString(366), GetLangString(367), GetLangString(784)});
    for (const ReachedCamera& camera : CamerasOf(groups, user.iGroup, recorders.SVRWorkList)) {
        const SVRRecord& recorder = At(recorders.SVRWorkList, camera.slot);
        QStringList rights;
        static constexpr std::array names{908, 431, 430, 150};
        for (std::size_t i = 0; i < names.size(); ++i) {
            if ((camera.mask & kRightBits[i]) != 0)
                rights << GetLangString(names[i]);
        }
        QList<QStandardItem*> row;
        for (const QString& text : {QString(QString::number(camera.slot + 1) + u" · "_s + recorder.sSVR_Name),
                                    QString::number(camera.channel + 1),
                                    At(recorder.channels, camera.channel).sSub_CH_Name, rights.join(u", "_s)})
            row << new QStandardItem(text);
        model.appendRow(row);
    }
    ui.Grid_Reach->setModel(&model);
    StyleTable(ui.Grid_Reach);
    SetColumnWidths(ui.Grid_Reach, std::array{190, 80, 180});
    ui.stack->setCurrentIndex(model.rowCount() > 0 ? 0 : 1);
    QObject::connect(ui.btnClose, &QPushButton::clicked, &dialog, &QDialog::accept);
    ApplyLanguage(&dialog);
    dialog.resize(860, 480);
    dialog.exec();
}
