#pragma once

#include "app/log/Module_Log.h"
#include "platform/Work.h"

#include <memory>

// Awaits `task` like Trapped: an exception becomes one log line under `source`. Result: whether it went through.
QCoro::Task<bool> TrappedTask(QLatin1String source, QCoro::Task<> task);

// Starts a work whose exceptions end in the log under `source` ("Object - Procedure"). Result as Work::start.
bool StartWork(Work& work, QLatin1String source, Work::Body body, std::function<void()> after = {});

// The same for a task with a result: `after` is given it, unless the task has thrown.
template <class Body, class After>
requires(!std::is_void_v<typename std::invoke_result_t<Body>::value_type>) bool StartWork(Work& work,
                                                                                          QLatin1String source,
                                                                                          Body body, After after)
{
    using Result = typename std::invoke_result_t<Body>::value_type;
    const auto result = std::make_shared<std::optional<Result>>();
    const auto keep = [body, result]() -> QCoro::Task<> {
        QCoro::Task<Result> task = body();
        *result = co_await task;
    };
    return StartWork(work, source, Work::Body(keep), [after, result] {
        if (*result)
            after(std::move(**result));
    });
}
