#pragma once

#include "platform/Work.h"

#include <QString>

// First IPv4 address of a host name as dotted text, or "" when it does not resolve. Awaits the resolver, at most 10
// seconds, on behalf of `work`, whose stop gives "" at once; an address resolves to itself.
QCoro::Task<QString> GetIpByName(QString host, Work& work);
