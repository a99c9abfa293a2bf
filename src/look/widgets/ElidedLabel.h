#pragma once

#include <QLabel>

// One line of plain text that gives way: cut with an ellipsis where the room ends, the whole text in its tool tip.
// `leftToRight`: an address, a time or a path, which keeps its order in a right-to-left desk.
class ElidedLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(bool leftToRight READ isLeftToRight WRITE setLeftToRight)
public:
    explicit ElidedLabel(QWidget* parent = nullptr);
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

    bool isLeftToRight() const { return m_leftToRight; }
    void setLeftToRight(bool on);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool isCut() const;

    bool m_leftToRight = false;
};
