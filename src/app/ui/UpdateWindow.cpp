#include "app/ui/UpdateWindow.h"

#include "app/language/Languages.h"
#include "app/shell/Messages.h"
#include "look/widgets/ProgressWindow.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kPaintEvery = 40; // milliseconds

void Paint()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
}

} // namespace

UpdateWindow::UpdateWindow() = default;

UpdateWindow::~UpdateWindow() = default;

void UpdateWindow::begin()
{
    m_text = GetLangString(16);
    m_window = std::make_unique<ProgressWindow>(m_text);
    m_window->setWindowTitle(GetLangString(Message::kInformation));
    m_window->show();
    Paint();
    m_painted.start();
}

void UpdateWindow::row(const QString& table, qint64 row, qint64 rows)
{
    if (!m_window || (row > 1 && m_painted.elapsed() < kPaintEvery))
        return;
    m_window->setText(m_text + u'\n' + table + u"(%1/%2)"_s.arg(row).arg(rows));
    m_window->setMaximum(static_cast<int>(rows));
    m_window->setValue(static_cast<int>(row));
    Paint();
    m_painted.start();
}

void UpdateWindow::waiting()
{
    Paint();
}

void UpdateWindow::end()
{
    m_window.reset();
}
