#include "look/StatusLabel.h"

#include "look/DeskPaint.h"
#include "look/StatusDelegate.h"

#include <QStyle>

using namespace Qt::StringLiterals;

namespace {
constexpr int kDot = 9;
constexpr int kGap = 8;
} // namespace

StatusLabel::StatusLabel(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void StatusLabel::setStatus(Status status, const QString& words)
{
    m_status = status;
    m_words = words;
    setAccessibleName(words);
    setToolTip(words);
    updateGeometry();
    update();
}

QSize StatusLabel::sizeHint() const
{
    const int dot = m_status == Status::None ? 0 : kDot + kGap;
    return {fontMetrics().horizontalAdvance(m_words) + dot, std::max(20, fontMetrics().height())};
}

QSize StatusLabel::minimumSizeHint() const
{
    return {std::min(sizeHint().width(), 80), sizeHint().height()};
}

void StatusLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto place = [this](const QRect& logical) { return QStyle::visualRect(layoutDirection(), rect(), logical); };
    QRect text = rect();
    if (m_status != Status::None) {
        PaintBox(&painter, QRectF(place(QRect(0, (height() - kDot) / 2, kDot, kDot))), kDot / 2.0,
                 isEnabled() ? StatusColour(m_status) : Token("disabled"_L1));
        text.setLeft(kDot + kGap);
    }
    painter.setPen(Token(!isEnabled() ? "disabled"_L1 : m_status == Status::None ? "muted"_L1 : "text"_L1));
    painter.drawText(place(text),
                     static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)),
                     fontMetrics().elidedText(m_words, Qt::ElideRight, text.width()));
}
