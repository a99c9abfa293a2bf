#pragma once

#include <QString>
#include <functional>

// Style numbers of a box: what the two settings below hold. 64: information icon and one button; 36: question, Yes and
// No; with 0x80000 the text is right-aligned and read from the right.
inline constexpr qint32 kBoxInformation = 64;
inline constexpr qint32 kBoxQuestion = 36;
inline constexpr qint32 kBoxRightToLeft = 0x80000;

enum class MsgResult
{
    Ok = 1,
    Yes = 6,
    No = 7
};

using MsgBoxHandler = std::function<MsgResult(const QString& text, qint32 style, const QString& title)>;

// Shows a modal box and returns the button. Without a handler (no window system) it answers Ok or No.
MsgResult MsgBox(const QString& text, qint32 style, const QString& title);
// The windows install the real one; tests install a queue of answers. Returns the handler that was there before.
MsgBoxHandler SetMsgBoxHandler(MsgBoxHandler handler);

// The styles that boxes of the live language use: 64 or 0x80040, 36 or 0x80024.
qint32 InfoBoxStyle();
qint32 AskBoxStyle();
void SetBoxStyles(bool rightToLeft);
