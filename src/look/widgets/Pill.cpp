#include "look/widgets/Pill.h"

#include "look/style/DeskPaint.h"
#include "look/style/Icons.h"

#include <QStyle>

using namespace Qt::StringLiterals;

namespace {
constexpr int kPadding = 12;
constexpr int kIcon = 15;
} // namespace

Pill::Pill(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

Pill::Pill(QLatin1StringView icon, QWidget* parent)
    : Pill(parent)
{
    setIcon(icon);
}

void Pill::setText(const QString& text)
{
    if (text == m_text)
        return;
    const bool sameLength = text.size() == m_text.size();
    m_text = text;
    setAccessibleName(text);
    if (parentWidget())
        setVisible(!text.isEmpty());
    if (!m_monospace || !sameLength)
        updateGeometry();
    update();
}

void Pill::setIcon(QLatin1StringView icon)
{
    m_icon = QByteArray(icon.data(), icon.size());
    updateGeometry();
    update();
}

void Pill::setMonospace(bool on)
{
    m_monospace = on;
    setFont(on ? MonoFont(0.94) : DeskFont(0.96));
    updateGeometry();
}

QSize Pill::sizeHint() const
{
    if (m_text.isEmpty())
        return {0, 0};
    const int icon = m_icon.isEmpty() ? 0 : kIcon + 6;
    return {fontMetrics().horizontalAdvance(m_text) + icon + 2 * kPadding, std::max(28, fontMetrics().height() + 8)};
}

QSize Pill::minimumSizeHint() const
{
    return sizeHint();
}

void Pill::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PaintBox(&painter, rect(), height() / 2.0, Token("surface"_L1), Token("line"_L1));
    QRect content = rect().adjusted(kPadding, 0, -kPadding, 0);
    if (!m_icon.isEmpty()) {
        const QRect place(content.left() - 1, (height() - kIcon) / 2, kIcon, kIcon);
        painter.drawPixmap(QStyle::visualRect(layoutDirection(), rect(), place),
                           IconPixmap(QLatin1StringView(m_icon), place.size(), Token("muted"_L1), devicePixelRatioF()));
        content.setLeft(content.left() + kIcon + 6);
    }
    painter.setPen(Token("text"_L1));
    if (m_monospace)
        painter.setLayoutDirection(Qt::LeftToRight); // dates and times keep their order

    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), content), Qt::AlignCenter | Qt::TextDontClip,
                     m_text);
}
