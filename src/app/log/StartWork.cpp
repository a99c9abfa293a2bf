#include "app/log/StartWork.h"

QCoro::Task<bool> TrappedTask(QLatin1String source, QCoro::Task<> task)
{
    QString fault;
    try {
        co_await task;
        co_return true;
    } catch (const std::exception& error) {
        fault = QString::fromUtf8(error.what());
    } catch (...) {
        fault = QStringLiteral("Unknown error");
    }
    LogTrap(source, fault);
    co_return false;
}

bool StartWork(Work& work, QLatin1String source, Work::Body body, std::function<void()> after)
{
    const auto trapped = [source, body = std::move(body)]() -> QCoro::Task<> {
        QCoro::Task<> task = body();
        co_await TrappedTask(source, std::move(task));
    };
    const auto afterwards = [source, after = std::move(after)] {
        if (after)
            Trapped(source, after);
    };
    return work.start(trapped, afterwards);
}
