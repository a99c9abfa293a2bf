#include "app/ui/MsgBoxWindow.h"

#include "app/language/Languages.h"
#include "look/widgets/DeskMessageBox.h"
#include "platform/MsgBox.h"

#include <QApplication>

namespace {

// The window a box belongs to: the dialog on show, else the main window.
QWidget* OwnerWindow()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* active = QApplication::activeWindow())
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && window->objectName() == QLatin1String("Form_Initial"))
            return window;
    }
    return nullptr;
}

MsgResult Show(const QString& text, qint32 style, const QString& title)
{
    const bool question = (style & ~kBoxRightToLeft) == kBoxQuestion;
    DeskMessageBox box(question ? DeskMessageBox::Kind::Question : DeskMessageBox::Kind::Information, text, title,
                       OwnerWindow());
    box.setButtonTexts(GetLangString(755), GetLangString(878), GetLangString(879));
    box.setRightToLeftText((style & kBoxRightToLeft) != 0);
    switch (box.ask()) {
    case DeskMessageBox::Answer::Yes:
        return MsgResult::Yes;
    case DeskMessageBox::Answer::No:
        return MsgResult::No;
    default:
        return MsgResult::Ok;
    }
}

} // namespace

void InstallMsgBoxWindow()
{
    SetMsgBoxHandler(Show);
}
