#pragma once

#include <QElapsedTimer>
#include <QTimer>

// Measures for how long the event loop does not come round.
class LoopWatch : public QObject
{
public:
    LoopWatch()
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { m_longest = std::max(m_longest, m_since.restart()); });
        m_since.start();
        m_all.start();
        m_timer.start(0);
    }
    // Milliseconds, the present stretch included.
    qint64 longest() const { return std::max(m_longest, m_since.elapsed()); }
    qint64 whole() const { return m_all.elapsed(); }

private:
    QTimer m_timer;
    QElapsedTimer m_since;
    QElapsedTimer m_all;
    qint64 m_longest = 0;
};
