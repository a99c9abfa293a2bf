#include "look/widgets/StepStrip.h"

#include "look/style/DeskPaint.h"
#include "look/style/Icons.h"

#include <QStyle>

using namespace Qt::StringLiterals;

namespace {
constexpr int kMargin = 20;
constexpr int kDisc = 20;
constexpr int kPad = 6;
constexpr int kLink = 24;
} // namespace

StepStrip::StepStrip(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StepStrip::setSteps(const QStringList& labels)
{
    m_steps = labels;
    describe();
}

void StepStrip::setCurrent(int index)
{
    m_current = index;
    describe();
}

void StepStrip::describe()
{
    setAccessibleName(u"%1/%2 %3"_s.arg(m_current + 1).arg(m_steps.size()).arg(m_steps.value(m_current)));
    updateGeometry();
    update();
}

QSize StepStrip::sizeHint() const
{
    int width = 2 * kMargin;
    for (const QString& label : m_steps)
        width += kDisc + 2 * kPad + 8 + QFontMetrics(DeskFont(1, true)).horizontalAdvance(label) + kLink;
    return {width, std::max(48, fontMetrics().height() + 28)};
}

QSize StepStrip::minimumSizeHint() const
{
    return {sizeHint().width() - kLink, sizeHint().height()};
}

void StepStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(QRect(0, height() - 1, width(), 1), Token("line"_L1));
    const auto place = [this](const QRect& logical) { return QStyle::visualRect(layoutDirection(), rect(), logical); };
    int x = kMargin - kPad;
    const int top = (height() - 1 - kDisc) / 2;
    for (int i = 0; i < m_steps.size(); ++i) {
        const bool done = i < m_current;
        const bool here = i == m_current;
        painter.setFont(DeskFont(1, here));
        const int textWidth = painter.fontMetrics().horizontalAdvance(m_steps[i]);
        const int width = kPad + kDisc + 8 + textWidth + 2 * kPad;
        if (here)
            PaintBox(&painter, QRectF(place(QRect(x, top - 4, width, kDisc + 8))), (kDisc + 8) / 2.0,
                     Token("accentGround"_L1));
        const QRect disc = place(QRect(x + kPad, top, kDisc, kDisc));
        if (here)
            PaintBox(&painter, disc, kDisc / 2.0, Token("primary"_L1));
        else
            PaintBox(&painter, disc, kDisc / 2.0, done ? Token("okGround"_L1) : QColor(),
                     Token(done ? "ok"_L1 : "control"_L1));
        if (done)
            Icon("check"_L1, "ok"_L1).paint(&painter, disc.adjusted(4, 4, -4, -4));
        painter.setPen(Token(here ? "text"_L1 : "muted"_L1));
        painter.drawText(place(QRect(x + kPad + kDisc + 8, 0, textWidth + 2, height() - 1)),
                         Qt::AlignVCenter | Qt::AlignHCenter, m_steps[i]);
        if (!done) {
            painter.setFont(DeskFont(0.85, true));
            painter.setPen(Token(here ? "onFilled"_L1 : "muted"_L1));
            painter.drawText(disc, Qt::AlignCenter, QString::number(i + 1));
        }
        x += width;
        if (i + 1 < m_steps.size())
            painter.fillRect(place(QRect(x + 2, (height() - 1) / 2, kLink - 6, 1)), Token("edge"_L1));
        x += kLink;
    }
}
