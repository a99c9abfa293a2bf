#pragma once

#include "device/bridge/DeviceBridge.h"
#include "device/bridge/FinderBridge.h"
#include "device/bridge/WebBridge.h"
#include "platform/HttpClient.h"
#include "store/records/SVRRecord.h"

#include <QObject>
#include <QString>
#include <span>
#include <vector>

// Slot of a request that the event layer sent.
struct EventRequest
{
    qint32 RequestID = -1; // the bridge's request number; -1: free
    qint32 Kind = -1;      // -1: free
    qint16 Busy = 0;       // -1 while a send is under way
    QString Result;
};

// A device service and the recorder it belongs to; the row is the service number.
struct ServiceSlot
{
    qint16 SvrIndex = -1; // recorder slot, 0 to 15; -1: a number that is not ours
    qint16 Status = 0;    // last status reported; above 0: connected
    DeviceAddress device = {};
};

inline constexpr qint16 kMailSlot = 0;
inline constexpr qint16 kAlertSlot = 1;

// The hidden host of the bridges, one for the whole run. Everything happens on the thread of its event loop, also while
// a request is waited for.
class Form_COM : public QObject
{
    Q_OBJECT

public:
    explicit Form_COM(QObject* parent = nullptr);
    ~Form_COM() override;

    HttpClient http;
    WebBridge web;
    DevicePoller poller;
    DeviceBridge device;
    FinderBridge finder;

    // One row each, free, from the beginning; they only grow.
    std::vector<EventRequest> MailRequests;
    std::vector<EventRequest> AlertRequests;

    // First free row of the kind, reset and marked (a mail row busy, an alert row not), or a new busy row at the end.
    // A kind other than the two gives 0; a table at the end of the 16-bit range throws.
    qint16 GetFreeSlot(qint16 kind);
    // Row index as above, -1 when no row is free.
    qint16 FindFreeMailSlot();
    qint16 FindFreeAlertSlot();

    std::vector<ServiceSlot> Services;

    // First row of the recorder slot (0 to 15), or -1.
    qint16 FindServiceSlot(qint16 svrIndex) const;
    // Run when the recorder list has changed: every occupied slot of family "TXR632" (index 0 to 15) whose service is
    // missing, down or at another address or login is registered anew. The services of other slots are removed.
    void SetProToDeviceBridge(std::span<const SVRRecord> list);

    // End of the run: stops the search and tells the owners of the other bridges.
    void Unload();

signals:
    void Unloading();

private:
    void notifyServiceStatus(qint16 service, qint32 status);
};
