#include "look/widgets/SecondClick.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QStyleHints>

namespace {

class ClickWatch : public QObject
{
public:
    using QObject::QObject;
    void drop() { m_armed = true; }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return press(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
            return m_dropping;
        default:
            return false;
        }
    }

private:
    // One press passes here several times: for the window, the widget, and those that it is handed on to.
    bool press(const QMouseEvent& event)
    {
        if (m_since.isValid() && event.timestamp() == m_stamp)
            return m_dropping;
        m_stamp = event.timestamp();
        const QPointF place = event.globalPosition();
        const QStyleHints* hints = QGuiApplication::styleHints();
        m_dropping = m_armed && m_since.isValid() && m_since.elapsed() < hints->mouseDoubleClickInterval() &&
                     (place - m_place).manhattanLength() <= hints->mouseDoubleClickDistance();
        if (m_dropping)
            return true;
        m_armed = false;
        m_place = place;
        m_since.start();
        return false;
    }

    bool m_armed = false;
    bool m_dropping = false; // the press under way
    quint64 m_stamp = 0;
    QPointF m_place; // of the last press that was let through
    QElapsedTimer m_since;
};

ClickWatch* TheWatch()
{
    static QPointer<ClickWatch> watch;
    if (!watch && qApp) {
        watch = new ClickWatch(qApp);
        qApp->installEventFilter(watch);
    }
    return watch;
}

} // namespace

void WatchClicks()
{
    TheWatch();
}

void DropSecondClick()
{
    if (ClickWatch* watch = TheWatch())
        watch->drop();
}
