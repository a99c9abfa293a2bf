#pragma once

#include <QDateTime>

// The present local time; tests may pin it.
QDateTime Now();
// An invalid date-time gives the clock back to the system.
void PinClock(const QDateTime& time);
