#include "app/log/StartWork.h"

QCoro::Task<bool> TrappedTask(QString source, QCoro::Task<> task)
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

bool StartWork(Work& work, const QString& source, Work::Body body)
{
    return work.start([source, body = std::move(body)]() -> QCoro::Task<> {
        QCoro::Task<> task = body();
        co_await TrappedTask(source, std::move(task));
    });
}
