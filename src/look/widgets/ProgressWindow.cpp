#include "look/widgets/ProgressWindow.h"

#include "look/widgets/ActionBar.h"

#include <QCloseEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ProgressWindow::ProgressWindow(const QString& text, QWidget* parent)
    : DialogFrame(parent)
    , m_text(new QLabel)
    , m_bar(new QProgressBar)
{
    setObjectName(u"formProgressBar"_s);
    setModal(false);
    setClosable(false);
    setSizeGripEnabled(false);
    content()->setMinimumWidth(360);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_bar->setRange(0, 0);
    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(m_text);
    column->addWidget(m_bar);
    setText(text);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void ProgressWindow::setText(const QString& text)
{
    m_text->setText(text);
    m_bar->setAccessibleName(text);
}

void ProgressWindow::setMaximum(int maximum)
{
    m_bar->setRange(0, maximum);
}

void ProgressWindow::setValue(int value)
{
    m_bar->setValue(value);
}

void ProgressWindow::setCancelText(const QString& text)
{
    if (!m_cancel) {
        if (text.isEmpty())
            return;
        m_cancel = footer()->addButton(text);
        connect(m_cancel, &QPushButton::clicked, this, &ProgressWindow::cancelled);
    }
    m_cancel->setText(text);
    footer()->setVisible(!text.isEmpty());
}

void ProgressWindow::reject()
{
    if (m_cancel && m_cancel->isVisible())
        m_cancel->click();
}

void ProgressWindow::closeEvent(QCloseEvent* event)
{
    // A user's wish to close is the wish to stop; the program's own close() goes through.
    if (event->spontaneous()) {
        event->ignore();
        reject();
        return;
    }
    QWidget::closeEvent(event);
}
