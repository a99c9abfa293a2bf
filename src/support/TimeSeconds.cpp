#include "support/TimeSeconds.h"

#include "platform/Clock.h"
#include "support/Conversions.h"

#include <QTimeZone>
#include <algorithm>
#include <limits>

namespace {

qint32 Fit(qint64 seconds)
{
    if (seconds < std::numeric_limits<qint32>::min() || seconds > std::numeric_limits<qint32>::max())
        throw ConversionError(QStringLiteral("Overflow: %1").arg(seconds));
    return static_cast<qint32>(seconds);
}

} // namespace

qint32 TimeToSeconds(const QDateTime& time)
{
    return Fit(QDateTime(time.date(), time.time(), Qt::UTC).toSecsSinceEpoch());
}

QDateTime SecondsToTime(qint32 seconds)
{
    const QDateTime wall = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    return QDateTime(wall.date(), wall.time(), Qt::LocalTime);
}

qint32 GetZoneOffsetSeconds()
{
    return Now().offsetFromUtc();
}

qint32 TimeToUtcSeconds(const QDateTime& local)
{
    return static_cast<qint32>(std::clamp<qint64>(local.toSecsSinceEpoch(), std::numeric_limits<qint32>::min(),
                                                  std::numeric_limits<qint32>::max()));
}
