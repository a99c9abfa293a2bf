#pragma once

#include <QGroupBox>

class QVBoxLayout;

// A titled surface for one subject. It is a group box (the title is its accessible name; a .ui file may use a plain
// QGroupBox and get the same face); this class adds a content column and controls beside the title.
class Card : public QGroupBox
{
    Q_OBJECT
public:
    explicit Card(QWidget* parent = nullptr)
        : Card(QString(), parent)
    {
    }
    explicit Card(const QString& title, QWidget* parent = nullptr);

    // The content, top to bottom. Made on first use: a card may be given another layout instead.
    QVBoxLayout* content();
    // Places a control at the trailing end of the title row, or below the title where that is too narrow. The card owns
    // it. Call it once the card has its layout.
    void setTitleControl(QWidget* control);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void placeTitleControl();

    QVBoxLayout* m_content = nullptr;
    QWidget* m_titleControl = nullptr;
    int m_taken = 0; // px of the layout's upper margin that the control below the title needs
};
