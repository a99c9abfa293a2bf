#include "look/widgets/ProgressWindow.h"

#include "look/widgets/ActionBar.h"
#include "look/widgets/ui_ProgressWindow.h"

#include <QCloseEvent>
#include <QPushButton>

using namespace Qt::StringLiterals;

ProgressWindow::ProgressWindow(const QString& text, QWidget* parent)
    : DialogFrame(parent)
    , m_ui(std::make_unique<Ui::ProgressWindow>())
{
    setObjectName(u"formProgressBar"_s);
    setModal(false);
    setClosable(false);
    setSizeGripEnabled(false);
    m_ui->setupUi(content());
    setText(text);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

ProgressWindow::~ProgressWindow() = default;

void ProgressWindow::setText(const QString& text)
{
    m_ui->lbProgress->setText(text);
    m_ui->bar->setAccessibleName(text);
}

QProgressBar* ProgressWindow::bar() const
{
    return m_ui->bar;
}

void ProgressWindow::setMaximum(int maximum)
{
    m_ui->bar->setRange(0, maximum);
}

void ProgressWindow::setValue(int value)
{
    m_ui->bar->setValue(value);
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
