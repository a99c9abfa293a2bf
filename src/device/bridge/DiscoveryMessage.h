#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QString>
#include <vector>

// Messages of WS-Discovery (April 2005 version, as ONVIF uses it). Pure functions.

// A device that answered.
struct FoundDevice
{
    QString Name;
    QString Address; // host of its service address
    qint32 Port = 80;
    QString Brand;
    QString Model;
    bool IsSvd = false; // a decoder
};

inline constexpr qsizetype kMaxProbeMatches = 32; // devices taken from one datagram

// Probe envelope for every type of device. messageId: a UUID without braces.
QByteArray BuildProbe(const QString& messageId);

// The devices of a ProbeMatches envelope that carry an ONVIF scope (onvif://www.onvif.org/…) and an http address. Of
// several addresses of a device the one of `sender` is taken, else the first IPv4 address, else the first. Name, model
// and brand come from the scopes name/, hardware/ and manufacturer/, without control characters and at most 128
// characters long; a device without a name has its model's. Anything else gives no device.
std::vector<FoundDevice> ParseProbeMatches(const QByteArray& datagram, const QHostAddress& sender);
