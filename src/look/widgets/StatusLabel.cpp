#include "look/widgets/StatusLabel.h"

#include "look/style/DeskPaint.h"
#include "look/tables/StatusDelegate.h"

#include <QStyle>

using namespace Qt::StringLiterals;

namespace {
constexpr int kDot = 9;
constexpr int kGap = 8;
} // namespace

StatusLabel::StatusLabel(QWidget* parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
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

int StatusLabel::heightForWidth(int width) const
{
    const int dot = m_status == Status::None ? 0 : kDot + kGap;
    const QRect room(0, 0, std::max(1, width - dot), 10000);
    return std::max(20, fontMetrics().boundingRect(room, Qt::TextWordWrap, m_words).height());
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
    const auto alignment =
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter));
    const QRect words = fontMetrics().boundingRect(QRect(0, 0, text.width(), 10000), Qt::TextWordWrap, m_words);
    if (words.width() <= text.width() && words.height() <= height())
        painter.drawText(place(text), alignment | Qt::TextWordWrap, m_words);
    else
        painter.drawText(place(text), alignment, fontMetrics().elidedText(m_words, Qt::ElideRight, text.width()));
}
