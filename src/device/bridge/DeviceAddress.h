#pragma once

#include <QString>

struct HttpRequest;
struct SVRRecord;

// Where a device is and how to log in.
struct DeviceAddress
{
    QString address; // IPv4 address or host name
    qint32 port = 80;
    QString user; // empty: no login is sent
    QString password;
    friend bool operator==(const DeviceAddress&, const DeviceAddress&) = default;
};

DeviceAddress AddressOf(const SVRRecord& svr);
// A request to the device, without target and body.
HttpRequest RequestTo(const DeviceAddress& device);
