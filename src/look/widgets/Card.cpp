#include "look/widgets/Card.h"

#include "look/style/Theme.h"

#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace {
constexpr int kBeside = 12; // px beside the control
constexpr int kBelow = 8;   // px between the title and a control below it
} // namespace

Card::Card(const QString& title, QWidget* parent)
    : QGroupBox(title, parent)
{
}

QVBoxLayout* Card::content()
{
    if (!m_content) {
        m_content = new QVBoxLayout(this);
        m_content->setSpacing(12);
    }
    return m_content;
}

void Card::setTitleControl(QWidget* control)
{
    delete m_titleControl;
    m_titleControl = control;
    control->setParent(this);
    control->installEventFilter(this);
    control->show();
    placeTitleControl();
}

void Card::resizeEvent(QResizeEvent* event)
{
    QGroupBox::resizeEvent(event);
    placeTitleControl();
}

void Card::changeEvent(QEvent* event)
{
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::FontChange)
        placeTitleControl();
}

bool Card::eventFilter(QObject* watched, QEvent* event)
{
    // What stands in the control has grown or shrunk.
    if (watched == m_titleControl && event->type() == QEvent::LayoutRequest)
        placeTitleControl();
    return QGroupBox::eventFilter(watched, event);
}

void Card::placeTitleControl()
{
    if (!m_titleControl)
        return;
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const QRect title = style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
    const QSize wanted = m_titleControl->sizeHint();
    const int room = width() - 2 * kBeside;
    const int left = std::max(room - wanted.width(), 0) + kBeside;
    const int words = QFontMetrics(DeskFont(1.06, true)).horizontalAdvance(option.text);
    const bool fits = title.left() + words + kBeside <= left;
    // Below the title where there is no room beside it.
    const int top = fits ? title.center().y() - wanted.height() / 2 : title.bottom() + kBelow;
    if (QLayout* content = layout()) {
        const int taken = fits ? 0 : wanted.height() + kBelow;
        QMargins margins = content->contentsMargins();
        margins.setTop(margins.top() + taken - std::exchange(m_taken, taken));
        content->setContentsMargins(margins);
    }
    const QRect logical(left, top, std::min(wanted.width(), room), wanted.height());
    m_titleControl->setGeometry(QStyle::visualRect(layoutDirection(), rect(), logical));
}
