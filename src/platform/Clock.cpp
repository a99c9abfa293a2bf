#include "platform/Clock.h"

namespace {
QDateTime& Pinned()
{
    static QDateTime time;
    return time;
}
} // namespace

QDateTime Now()
{
    return Pinned().isValid() ? Pinned() : QDateTime::currentDateTime();
}

void PinClock(const QDateTime& time)
{
    Pinned() = time;
}
