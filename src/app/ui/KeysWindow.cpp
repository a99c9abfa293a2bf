#include "app/ui/KeysWindow.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/shell/Messages.h"
#include "look/style/Theme.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/DialogFrame.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

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
    const std::pair<QString, int> rows[] = {
        {KeyText(Qt::Key_F1), 1001},
        {KeyText(Qt::Key_F2), 1002},
        {KeyText(Qt::Key_F5), 1003},
        {KeyText(Qt::CTRL | Qt::Key_F), 1004},
        {KeyText(Qt::CTRL | Qt::Key_1) + u" … "_s + KeyText(Qt::CTRL | Qt::Key_0), 1005},
        {KeyText(Qt::Key_Enter), 1006},
        {KeyText(Qt::Key_Delete), 1007},
        {KeyText(Qt::Key_Escape), 1008},
    };
    auto* grid = new QGridLayout(dialog.content());
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(10);
    int line = 0;
    for (const auto& [keys, message] : rows) {
        auto* key = new QLabel(keys);
        SetRole(key, "mono"_L1);
        grid->addWidget(key, line, 0);
        grid->addWidget(new QLabel(GetLangString(message)), line++, 1);
    }
    QPushButton* close = dialog.footer()->addButton(GetLangString(Message::kClose), "primary"_L1);
    close->setObjectName(u"btnClose"_s);
    close->setDefault(true);
    QObject::connect(close, &QPushButton::clicked, &dialog, &QDialog::accept);
    ApplyLanguage(&dialog);
    dialog.exec();
}
