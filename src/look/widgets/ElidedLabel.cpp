#include "look/widgets/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent)
    : ElidedLabel(parent)
{
    setText(text);
}

void ElidedLabel::setLeftToRight(bool on)
{
    m_leftToRight = on;
    update();
}

QSize ElidedLabel::minimumSizeHint() const
{
    const int width = std::min(sizeHint().width(), fontMetrics().averageCharWidth() * 4);
    return {width, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::isCut() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isCut()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect rect = contentsRect();
    QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, rect.width());
    if (m_leftToRight && layoutDirection() == Qt::RightToLeft)
        shown = QString(QChar(0x202a) + shown + QChar(0x202c));
    style()->drawItemText(&painter, rect, static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())),
                          palette(), isEnabled(), shown, foregroundRole());
}
