#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <exception>
#include <optional>
#include <qcorotask.h>

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
