#pragma once

#include "platform/Work.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <exception>
#include <optional>

// Runs the event loop until the task has ended. Gives its result, or throws what it threw.
template <class T>
T Await(QCoro::Task<T> task)
{
    struct Nothing
    {
    };
    std::optional<std::conditional_t<std::is_void_v<T>, Nothing, T>> result;
    std::exception_ptr fault;
    const auto keep = [&]() -> QCoro::Task<> {
        try {
            if constexpr (std::is_void_v<T>) {
                co_await task;
                result.emplace();
            } else {
                result = co_await task;
            }
        } catch (...) {
            fault = std::current_exception();
        }
    };
    const QCoro::Task<> keeping = keep();
    while (!result && !fault)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (fault)
        std::rethrow_exception(fault);
    if constexpr (!std::is_void_v<T>)
        return std::move(*result);
}

// Runs the event loop until the condition holds; false when it did not within the seconds.
template <class Condition>
bool WaitUntil(Condition&& holds, double seconds)
{
    const QDeadlineTimer deadline(static_cast<qint64>(seconds * 1000));
    while (!holds() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
    return holds();
}

// Stops a work; false when it, or what it waits for, takes longer than an operator would notice.
inline bool StopsAtOnce(Work& work)
{
    QElapsedTimer time;
    time.start();
    work.stop();
    return time.elapsed() < 200 && !work.running();
}
