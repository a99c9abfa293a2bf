#pragma once

#include <QByteArray>
#include <QWidget>

class QLabel;
class QPushButton;

// What a page or table shows while it has nothing: illustration, headline, hint and, where there is something to do
// about it, one button.
class EmptyState : public QWidget
{
    Q_OBJECT
public:
    // `illustration` as in Illustration() of Icons.h.
    explicit EmptyState(QWidget* parent = nullptr)
        : EmptyState(QLatin1StringView("empty-page"), parent)
    {
    }
    explicit EmptyState(QLatin1StringView illustration, QWidget* parent = nullptr);

    void setIllustration(QLatin1StringView illustration);
    void setHeadline(const QString& text);
    void setHint(const QString& text);
    // Shows the button with this text, or hides it for an empty one.
    void setButton(const QString& text);

    QLabel* headlineLabel() const { return m_headline; }
    QLabel* hintLabel() const { return m_hint; }
    QPushButton* button() const { return m_button; }

signals:
    void clicked();

private:
    void showPicture();

    QByteArray m_illustration;
    QLabel* m_picture;
    QLabel* m_headline;
    QLabel* m_hint;
    QPushButton* m_button;
};
