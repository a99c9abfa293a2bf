#pragma once

#include <QLineEdit>

class QToolButton;

// A password: masked, with an eye behind it that shows what is typed and nothing else. What the program puts in is a
// stored password: the eye is off for it, and the first key, paste or drop replaces the whole of it, so that no part of
// it is ever on show. The eye is reached by Tab and says what it will do.
class PasswordField : public QLineEdit
{
    Q_OBJECT
public:
    explicit PasswordField(QWidget* parent = nullptr);

    // What the eye says while it would show or hide the password, and why it is off for a stored one.
    void setEyeTexts(const QString& show, const QString& hide, const QString& stored);
    // The text was typed or pasted since the program last put one in. Empty counts as typed.
    bool isTyped() const { return text() == m_typed; }
    // A stored password stays masked.
    void setRevealed(bool revealed);

signals:
    void revealedChanged(bool revealed);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void follow();
    void chooseWhole();
    void showState();
    void placeEye();

    QToolButton* m_eye;
    QString m_show;
    QString m_hide;
    QString m_stored;
    QString m_typed; // the last text that came by hand
    bool m_wasTyped = true;
    bool m_byHand = false; // the change under way
    bool m_choosing = false;
};
