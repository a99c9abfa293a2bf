#pragma once

#include "platform/MsgBox.h"

#include <QList>
#include <QStringList>

// Keeps what the desk's boxes say and answers them from a list; when it is empty with what changes nothing: Cancel
// where the box has one, else No, and Ok where there is nothing to choose.
class BoxAnswers
{
protected:
    BoxAnswers()
    {
        SetMsgBoxHandler([this](const QString& text, qint32 style, const QString& title) {
            boxes << text;
            styles << style;
            titles << title;
            if (!answers.isEmpty())
                return answers.takeFirst();
            const qint32 buttons = style & kButtons;
            return buttons == kYesNo ? MsgResult::No : buttons == 0 ? MsgResult::Ok : MsgResult::Cancel;
        });
    }
    ~BoxAnswers() { SetMsgBoxHandler(nullptr); }

    static constexpr qint32 kButtons = 7; // of a style: 0 Ok, 3 Yes, No and Cancel, 4 Yes and No
    static constexpr qint32 kYesNo = 4;
    QStringList boxes;
    QList<qint32> styles;
    QStringList titles;
    QList<MsgResult> answers;
};
