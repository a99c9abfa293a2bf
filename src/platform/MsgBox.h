#pragma once

#include <QString>
#include <functional>

// Style numbers of a box. Its icon and buttons: 64 information, 48 warning and 16 error have one button; 36 asks with
// Yes and No, 35 with Yes, No and Cancel. Added to them: 0x100 makes No the default, for a question that destroys
// something; 0x80000 aligns the text at the right and reads it from the right; 0x1000000 tells a success (with 64).
inline constexpr qint32 kBoxInformation = 64;
inline constexpr qint32 kBoxWarning = 48;
inline constexpr qint32 kBoxError = 16;
inline constexpr qint32 kBoxQuestion = 36;
inline constexpr qint32 kBoxQuestionOrStay = 35;
inline constexpr qint32 kBoxNoIsDefault = 0x100;
inline constexpr qint32 kBoxRightToLeft = 0x80000;
inline constexpr qint32 kBoxSuccess = 0x1000000;

enum class MsgResult
{
    Ok = 1,
    Cancel = 2,
    Yes = 6,
    No = 7
};

using MsgBoxHandler = std::function<MsgResult(const QString& text, qint32 style, const QString& title)>;

// Shows a modal box and returns the button. Without a handler (no window system) it answers Ok, No or Cancel, whichever
// changes nothing.
MsgResult MsgBox(const QString& text, qint32 style, const QString& title);
// The windows install the real one; tests install a queue of answers. Returns the handler that was there before.
MsgBoxHandler SetMsgBoxHandler(MsgBoxHandler handler);

// The styles that boxes of the live language use: 64 or 0x80040, 36 or 0x80024.
qint32 InfoBoxStyle();
qint32 AskBoxStyle();
void SetBoxStyles(bool rightToLeft);
// Any other style with the live language's direction.
qint32 BoxStyle(qint32 style);
