#include "platform/Wait.h"

#include "platform/Work.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace {

bool g_closing = false;
int g_depth = 0;

// Swallows user input while a wait is under way. Press, release and keys still reach a widget that asks for them by the
// property kStopsWork; a native window takes them only to hand them on to its widgets.
class InputGate : public QObject
{
public:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
            if (object->isWindowType() || object->property(kStopsWork).toBool())
                return false;
            event->ignore();
            return true;
        case QEvent::MouseButtonDblClick:
        case QEvent::ContextMenu:
        case QEvent::InputMethod:
        case QEvent::Drop:
        case QEvent::Wheel:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::Close: // a window in use is not pulled away from under its handler
            event->ignore();
            return true;
        default:
            return false;
        }
    }
};

// Counts the waits under way, also past an exception of what is waited for.
struct Depth
{
    Depth() { ++g_depth; }
    ~Depth() { --g_depth; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;
};

} // namespace

bool Closing()
{
    return g_closing;
}

void SetClosing(bool closing)
{
    g_closing = closing;
    if (closing)
        StopAllWork();
}

bool Waiting()
{
    return g_depth > 0;
}

WaitResult WaitUntil(const std::function<bool()>& done, double seconds)
{
    if (done())
        return WaitResult::Done;
    if (g_closing)
        return WaitResult::Closing;

    InputGate gate;
    const Depth depth;
    if (g_depth == 1)
        QCoreApplication::instance()->installEventFilter(&gate);
    QTimer tick; // bounds the time between two tests of `done`
    tick.start(100);

    const QDeadlineTimer deadline(static_cast<qint64>(seconds * 1000.0));
    WaitResult result = WaitResult::TimedOut;
    while (!deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (done()) {
            result = WaitResult::Done;
            break;
        }
        if (g_closing) {
            result = WaitResult::Closing;
            break;
        }
    }
    return result;
}
