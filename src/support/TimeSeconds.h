#pragma once

#include <QDateTime>

// Seconds between "1970/1/1" and a wall-clock time; no zone correction enters. Throws ConversionError from 2038/1/19
// on.
qint32 TimeToSeconds(const QDateTime& time);
QDateTime SecondsToTime(qint32 seconds);

// Seconds by which the present zone is ahead of UTC, daylight time included; east of Greenwich is positive.
qint32 GetZoneOffsetSeconds();

// Seconds since 1970/1/1 of a local time converted to UTC: the stamp of audit rows. From 2038/1/19 on it stays at the
// last second that a stamp can hold: a row with a wrong time says more than a row that is missing.
qint32 TimeToUtcSeconds(const QDateTime& local);
