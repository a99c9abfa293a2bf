#pragma once

#include "look/widgets/DialogFrame.h"

class QLabel;
class QPushButton;

// The desk's modal box: icon, text (selectable), and Ok, or Yes and No. Return presses the default button (Ok or Yes
// unless told otherwise); Esc and the close button answer Ok or No.
class DeskMessageBox : public DialogFrame
{
    Q_OBJECT
public:
    enum class Kind
    {
        Information,
        Question,
        Warning // one button, like Information
    };
    enum class Answer
    {
        Ok,
        Yes,
        No
    };

    DeskMessageBox(Kind kind, const QString& text, const QString& title, QWidget* parent = nullptr);

    // Labels of the buttons in the live language; an empty one keeps the English word. The buttons are named
    // btnOk, btnYes and btnNo.
    void setButtonTexts(const QString& ok, const QString& yes, const QString& no);
    void setDefaultAnswer(Answer answer);
    // Aligns the text at the right and reads it from the right, whatever the desk's own direction.
    void setRightToLeftText(bool on);

    // Shows the box and waits for the answer.
    Answer ask();
    // The answer given; before one is, what Esc would answer.
    Answer answer() const { return m_answer; }

    void reject() override;

private:
    QPushButton* addAnswer(Answer answer, const QString& text, const QString& name, QLatin1StringView kind);

    QLabel* m_text;
    QPushButton* m_ok = nullptr;
    QPushButton* m_yes = nullptr;
    QPushButton* m_no = nullptr;
    Answer m_answer;
};
