#pragma once

#include <QString>

// Where a device is and how to log in.
struct DeviceAddress
{
    QString address; // IPv4 address or host name
    qint32 port = 80;
    QString user; // empty: no login is sent
    QString password;
    friend bool operator==(const DeviceAddress&, const DeviceAddress&) = default;
};
