#include "tests/walkthrough/Driver.h"

#include "platform/Work.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

Driver::Driver()
{
    QApplication::setDoubleClickInterval(0);
}

void Driver::add(const QString& name, std::function<bool()> ready, std::function<void()> act)
{
    m_steps.push_back({name, std::move(ready), std::move(act)});
}

void Driver::run(int millisecondsAStep)
{
    m_limit = millisecondsAStep;
    m_next = 0;
    m_done = false;
    m_failure.clear();
    m_waiting.start();
    QTimer::singleShot(0, this, &Driver::poll);
    while (!m_done)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    m_steps.clear();
    if (!m_failure.isEmpty())
        throw std::runtime_error(m_failure.toStdString());
}

void Driver::poll()
{
    if (m_done)
        return;
    if (m_next == m_steps.size()) {
        m_done = true;
        return;
    }
    const Step step = m_steps[m_next];
    if (!step.ready()) {
        if (m_waiting.elapsed() > m_limit) {
            fail(u"Step '%1' never got ready; box on show: '%2'"_s.arg(step.name, boxText()));
            return;
        }
        QTimer::singleShot(15, this, &Driver::poll);
        return;
    }
    ++m_next;
    m_waiting.restart();
    // The action may open a modal window: the next step is under way before it.
    QTimer::singleShot(15, this, &Driver::poll);
    try {
        step.act();
    } catch (const std::exception& error) {
        fail(u"Step '%1': %2"_s.arg(step.name, QString::fromUtf8(error.what())));
    }
}

void Driver::fail(const QString& what)
{
    m_failure = what;
    m_done = true;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isModal() && window->isVisible())
            window->hide(); // lets its loop end
    }
}

QWidget* Driver::find(const QString& name)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (!window->isVisible())
            continue;
        if (window->objectName() == name)
            return window;
        const QList<QWidget*> widgets = window->findChildren<QWidget*>(name);
        for (QWidget* widget : widgets) {
            if (widget->isVisible())
                return widget;
        }
    }
    return nullptr;
}

bool Driver::usable(const QString& name)
{
    QWidget* widget = find(name);
    if (!widget || !widget->isEnabled())
        return false;
    QWidget* modal = QApplication::activeModalWidget();
    return !modal || modal == widget->window();
}

void Driver::click(const QString& name)
{
    QWidget* widget = find(name);
    if (!widget)
        throw std::runtime_error("no widget " + name.toStdString());
    QTest::mouseClick(widget, Qt::LeftButton);
    settle();
}

void Driver::press(const QString& name, Qt::Key key)
{
    QTest::keyClick(find(name), key);
    settle();
}

void Driver::settle()
{
    const QDeadlineTimer deadline(30'000);
    while (AnyWorkRunning() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

void Driver::type(const QString& name, const QString& text)
{
    QWidget* widget = find(name);
    if (!widget)
        throw std::runtime_error("no widget " + name.toStdString());
    QTest::mouseClick(widget, Qt::LeftButton);
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(widget, Qt::Key_Delete);
    QTest::keyClicks(widget, text);
}

void Driver::clickCell(const QString& table, int row, int column)
{
    auto* view = find<QTableView>(table);
    if (!view)
        throw std::runtime_error("no table " + table.toStdString());
    const QModelIndex cell = view->model()->index(row, column);
    view->scrollTo(cell);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
    settle();
}

void Driver::picture(const QString& name)
{
    const QString folder = qEnvironmentVariable("DESK_SCREENSHOTS");
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* window = modal ? modal : find(u"Form_Initial"_s);
    if (!folder.isEmpty() && window)
        window->grab().save(folder + u'/' + name + u".png"_s);
}

QString Driver::boxText()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || !modal->inherits("DeskMessageBox"))
        return {};
    QString longest;
    const QList<QLabel*> labels = modal->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse))
            longest = label->text();
    }
    return longest;
}

void Driver::answerBox(const QString& button)
{
    QWidget* modal = QApplication::activeModalWidget();
    auto* answer = modal ? modal->findChild<QAbstractButton*>(button) : nullptr;
    if (!answer)
        throw std::runtime_error("no box with button " + button.toStdString());
    QTest::mouseClick(answer, Qt::LeftButton);
}
