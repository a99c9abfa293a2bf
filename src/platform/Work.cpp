#include "platform/Work.h"

#include "platform/Closing.h"

#include <QTimer>
#include <algorithm>

namespace {

std::vector<Work*>& AllWork()
{
    static std::vector<Work*> all;
    return all;
}

} // namespace

Work::Work(QObject* parent, AtClose atClose)
    : QObject(parent)
    , m_atClose(atClose)
{
    AllWork().push_back(this);
}

Work::~Work()
{
    m_leaving = true;
    blockSignals(true);
    stop();
    std::erase(AllWork(), this);
}

bool Work::start(Body body, std::function<void()> after)
{
    if (m_running || (endsAtClose() && Closing()))
        return false;
    m_running = true;
    m_stopped = false;
    m_step.clear();
    m_percent = -1;
    emit runningChanged(true);
    drive(this, std::move(body), std::move(after));
    return true;
}

QCoro::Task<> Work::drive(QPointer<Work> work, Body body, std::function<void()> after)
{
    try {
        QCoro::Task<> task = body();
        co_await task;
    } catch (...) { // NOLINT: the end must come; whoever starts a work traps
    }
    if (!work)
        co_return;
    work->m_running = false;
    emit work->runningChanged(false);
    if (work && !work->m_leaving && after)
        after();
}

void Work::stop()
{
    m_stopped = true;
    const QPointer<Work> alive(this);
    while (alive && !m_waiting.empty()) {
        WorkAwaitable* const waiting = m_waiting.front();
        waiting->abandon();
        waiting->finish();
    }
}

bool Work::stopped() const
{
    return m_stopped || (endsAtClose() && Closing());
}

void Work::say(const QString& step, int percent)
{
    if (step == m_step && percent == m_percent)
        return;
    m_step = step;
    m_percent = percent;
    emit stepChanged();
}

void StopAllWork()
{
    const std::vector<Work*> all = AllWork();
    for (Work* work : all) {
        // The end of one may be the end of another.
        if (std::find(AllWork().begin(), AllWork().end(), work) != AllWork().end() && work->endsAtClose())
            work->stop();
    }
}

bool AnyWorkRunning()
{
    return std::any_of(AllWork().begin(), AllWork().end(),
                       [](const Work* work) { return work->running() && work->endsAtClose() && !work->isQuiet(); });
}

WorkAwaitable::~WorkAwaitable()
{
    leave();
}

void WorkAwaitable::suspend(std::coroutine_handle<> waiting)
{
    m_waiting = waiting;
    m_work.m_waiting.push_back(this);
    begin();
}

void WorkAwaitable::leave()
{
    if (m_waiting)
        std::erase(m_work.m_waiting, this);
}

void WorkAwaitable::finish()
{
    leave();
    std::exchange(m_waiting, nullptr).resume();
}

Pause::Pause(Work& work, int milliseconds)
    : WorkAwaitable(work)
    , m_milliseconds(milliseconds)
{
}

Pause::~Pause() = default;

void Pause::begin()
{
    auto timer = std::make_unique<QTimer>();
    timer->setSingleShot(true);
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [this] {
        m_passed = true;
        m_timer.release()->deleteLater(); // it is the caller
        finish();
    });
    timer->start(m_milliseconds);
    m_timer = std::move(timer);
}

void Pause::abandon()
{
    m_timer.reset();
}
