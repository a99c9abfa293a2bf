#pragma once

#include <QWidget>

class ElidedLabel;
class QAbstractButton;
class QHBoxLayout;
class QLabel;
class QPushButton;

// The footer of a page or dialog: a note at the leading edge, buttons at the trailing edge, the primary one last.
class ActionBar : public QWidget
{
    Q_OBJECT
public:
    explicit ActionBar(QWidget* parent = nullptr);

    // "2 changes not applied"; an empty note leaves the place free.
    void setNote(const QString& note);
    QLabel* noteLabel() const;
    // Kind "primary", "danger", "quiet" or empty. The bar owns the button; its object name is the caller's.
    QPushButton* addButton(const QString& text, QLatin1StringView kind = {});
    void addButton(QAbstractButton* button);
    // Buttons that stand by themselves at the leading edge, before the note.
    void addLeading(QWidget* widget);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QHBoxLayout* m_leading;
    ElidedLabel* m_note;
    QHBoxLayout* m_buttons;
};
