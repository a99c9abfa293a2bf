#pragma once

#include <QString>
#include <functional>

// Facts of the computer.
class clsOSInfo
{
public:
    QString OSName() const;
    QString ComputerName() const;
    qint64 DiskSizeGB() const; // whole gigabytes (2^30 bytes) of the volume the station lies on
    qint16 GetScreenCount() const;

    // The window system's count of monitors; without one there is a single monitor.
    static void setScreenCounter(std::function<int()> counter);
};

// The first IPv4 address of this computer that is not a loopback one; "127.0.0.1" without a network.
QString LocalIPAddress();

// The system locale as a Windows locale id (MS-LCID) for the languages the desk speaks; 0 for any other.
int SystemDefaultLCID();
