#include "look/widgets/Card.h"

#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QVBoxLayout>

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
    const QSize size = m_titleControl->sizeHint();
    const QRect logical(width() - 12 - size.width(), title.center().y() - size.height() / 2, size.width(),
                        size.height());
    m_titleControl->setGeometry(QStyle::visualRect(layoutDirection(), rect(), logical));
}
