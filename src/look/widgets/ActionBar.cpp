#include "look/widgets/ActionBar.h"

#include "look/style/Theme.h"
#include "look/widgets/ElidedLabel.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

using namespace Qt::StringLiterals;

ActionBar::ActionBar(QWidget* parent)
    : QWidget(parent)
    , m_leading(new QHBoxLayout)
    , m_note(new ElidedLabel)
    , m_buttons(new QHBoxLayout)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    SetRole(m_note, "muted"_L1);
    m_leading->setSpacing(8);
    m_buttons->setSpacing(8);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(24, 13, 24, 12);
    layout->setSpacing(16);
    layout->addLayout(m_leading);
    layout->addWidget(m_note, 1);
    layout->addLayout(m_buttons);
}

void ActionBar::setNote(const QString& note)
{
    m_note->setText(note);
}

QLabel* ActionBar::noteLabel() const
{
    return m_note;
}

QPushButton* ActionBar::addButton(const QString& text, QLatin1StringView kind)
{
    auto* button = new QPushButton(text);
    if (!kind.isEmpty())
        SetKind(button, kind);
    m_buttons->addWidget(button);
    return button;
}

void ActionBar::addButton(QAbstractButton* button)
{
    m_buttons->addWidget(button);
}

void ActionBar::addLeading(QWidget* widget)
{
    m_leading->addWidget(widget);
}

void ActionBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(QRect(0, 0, width(), 1), Token("line"_L1));
}
