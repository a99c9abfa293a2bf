#pragma once

#include "platform/Work.h"

#include <QString>

// First IPv4 address of a host name as dotted text, or "" when it does not resolve. Awaits the resolver, at most 10
// seconds, on behalf of `work`, whose stop gives "" at once; an address resolves to itself, a small number ("8080", a
// port in the wrong place) to nothing.
QCoro::Task<QString> GetIpByName(QString host, Work& work);
