#pragma once

#include "platform/MsgBox.h"

#include <QList>
#include <QStringList>

// Keeps what the desk's boxes say and answers them from a list: when it is empty, questions with No and notices with
// Ok.
class BoxAnswers
{
protected:
    BoxAnswers()
    {
        SetMsgBoxHandler([this](const QString& text, qint32 style, const QString& title) {
            boxes << text;
            styles << style;
            titles << title;
            if (answers.isEmpty())
                return (style & kQuestionIcon) != 0 ? MsgResult::No : MsgResult::Ok;
            return answers.takeFirst();
        });
    }
    ~BoxAnswers() { SetMsgBoxHandler(nullptr); }

    static constexpr qint32 kQuestionIcon = 32; // of a style
    QStringList boxes;
    QList<qint32> styles;
    QStringList titles;
    QList<MsgResult> answers;
};
