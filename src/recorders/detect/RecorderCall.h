#pragma once

#include "device/bridge/DeviceAddress.h"

#include <QString>

// How a call to a recorder ended, and the box that the operator is to see.
struct RecorderOutcome
{
    bool ok = false;
    int message = 0; // number in the catalogue; 0: no box
    QString suffix;  // stands behind the message's text
    QString title;   // of the box, in the live language
    int field = -1;  // index of the input field to go to, -1 for none

    // The whole text of the box; empty without a message.
    QString text() const;

    // With the title "Notice", and with the one of message 570.
    static RecorderOutcome Failed(int message, const QString& suffix = {}, int field = -1);
    static RecorderOutcome FailedPlain(int message, const QString& suffix = {});
    static RecorderOutcome Done(int message = 0);
};

// Shows the box of an outcome, if it has one: what went wrong, what the operator can put right, or that it is done.
void TellOutcome(const RecorderOutcome& outcome);
