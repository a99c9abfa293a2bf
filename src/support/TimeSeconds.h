#pragma once

#include <QDateTime>

// Seconds between "1970/1/1" and a wall-clock time; no zone correction enters.
qint32 TimeToSeconds(const QDateTime& time);
QDateTime SecondsToTime(qint32 seconds);

// Seconds by which the present zone is ahead of UTC, daylight time included; east of Greenwich is positive.
qint32 GetZoneOffsetSeconds();

// Seconds since 1970/1/1 of a local time converted to UTC: the stamp of audit rows.
qint32 TimeToUtcSeconds(const QDateTime& local);
