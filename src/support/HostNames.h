#pragma once

#include "platform/Work.h"

#include <QString>

// First IPv4 address of a host name as dotted text, or "" when it does not resolve. Waits for the resolver (at most 10
// seconds) while the windows stay painted; an address resolves to itself.
QString GetIpByName(const QString& host);
// The same for a coroutine, awaited on behalf of `work`; its stop gives "" at once.
QCoro::Task<QString> GetIpByName(QString host, Work& work);
