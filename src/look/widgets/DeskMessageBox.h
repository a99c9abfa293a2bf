#pragma once

#include "look/widgets/DialogFrame.h"

#include <array>

class QLabel;
class QPushButton;

// The desk's modal box: icon, text (selectable), and Ok, or Yes and No, or Yes, No and Cancel. Return presses the
// button that has the focus, first the default one: Ok or Yes, and No where the question destroys something. Esc and
// the close button give the answer that changes nothing: Ok, No, or Cancel where there is one.
class DeskMessageBox : public DialogFrame
{
    Q_OBJECT
public:
    enum class Kind
    {
        Information, // this and the next three have one button
        Success,
        Warning,
        Error,
        Question,       // Yes and No
        QuestionOrStay, // Yes, No and Cancel
        Offer,          // a success with Yes and No; No is the default
        Destroy         // Yes and No; No is the default, Yes looks dangerous
    };
    enum class Answer
    {
        Ok,
        Yes,
        No,
        Cancel
    };

    DeskMessageBox(Kind kind, const QString& text, const QString& title, QWidget* parent = nullptr);

    // Labels of the buttons in the live language; an empty one keeps the English word. The buttons are named
    // btnOk, btnYes, btnNo and btnCancel.
    void setButtonTexts(const QString& ok, const QString& yes, const QString& no, const QString& cancel = {});
    void setDefaultAnswer(Answer answer);
    // Aligns the text at the right and reads it from the right, whatever the desk's own direction.
    void setRightToLeftText(bool on);

    // Shows the box and waits for the answer.
    Answer ask();
    // The answer given; before one is, what Esc would answer.
    Answer answer() const { return m_answer; }

    void reject() override;

private:
    void addAnswer(Answer answer, const QString& text, const QString& name, QLatin1StringView kind);
    QPushButton* button(Answer answer) const { return m_buttons[static_cast<std::size_t>(answer)]; }

    QLabel* m_text;
    std::array<QPushButton*, 4> m_buttons{}; // by answer
    Answer m_escape;
    Answer m_answer;
};
