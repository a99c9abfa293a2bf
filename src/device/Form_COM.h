#pragma once

#include "device/WebBridge.h"
#include "platform/HttpClient.h"

#include <QObject>
#include <QString>
#include <vector>

// Slot of a request that the event layer sent.
struct EventRequest
{
    qint32 RequestID = -1; // the bridge's request number; -1: free
    qint32 Kind = -1;      // -1: free
    qint16 Busy = 0;       // -1 while a send is under way
    QString Result;
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

    // One row each, free, from the beginning; they only grow.
    std::vector<EventRequest> MailRequests;
    std::vector<EventRequest> AlertRequests;

    // First free row of the kind, reset and marked (a mail row busy, an alert row not), or a new busy row at the end.
    // A kind other than the two gives 0; a table at the end of the 16-bit range throws.
    qint16 GetFreeSlot(qint16 kind);
    // Row index as above, -1 when no row is free.
    qint16 FindFreeMailSlot();
    qint16 FindFreeAlertSlot();
};
