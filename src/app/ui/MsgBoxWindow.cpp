#include "app/ui/MsgBoxWindow.h"

#include "app/language/Languages.h"
#include "app/shell/Messages.h"
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

DeskMessageBox::Kind KindOf(qint32 style)
{
    using Kind = DeskMessageBox::Kind;
    if ((style & kBoxNoIsDefault) != 0)
        return Kind::Destroy;
    if ((style & kBoxSuccess) != 0)
        return (style & kBoxQuestion) == kBoxQuestion ? Kind::Offer : Kind::Success;
    switch (style & ~kBoxRightToLeft) {
    case kBoxQuestion:
        return Kind::Question;
    case kBoxQuestionOrStay:
        return Kind::QuestionOrStay;
    case kBoxWarning:
        return Kind::Warning;
    case kBoxError:
        return Kind::Error;
    default:
        return Kind::Information;
    }
}

MsgResult Show(const QString& text, qint32 style, const QString& title)
{
    DeskMessageBox box(KindOf(style), text, title, OwnerWindow());
    box.setButtonTexts(GetLangString(Message::kOk), GetLangString(Message::kYes), GetLangString(Message::kNo),
                       GetLangString(Message::kCancel));
    box.setCloseText(GetLangString(Message::kClose));
    box.setRightToLeftText((style & kBoxRightToLeft) != 0);
    switch (box.ask()) {
    case DeskMessageBox::Answer::Yes:
        return MsgResult::Yes;
    case DeskMessageBox::Answer::No:
        return MsgResult::No;
    case DeskMessageBox::Answer::Cancel:
        return MsgResult::Cancel;
    default:
        return MsgResult::Ok;
    }
}

} // namespace

void InstallMsgBoxWindow()
{
    SetMsgBoxHandler(Show);
}
