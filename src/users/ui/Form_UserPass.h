#pragma once

#include <QString>

class QWidget;

// What Form_UserPass hands back.
struct DeviceAccount
{
    QString DeviceUser;
    QString DevicePassword;
    bool DeviceAccountGiven = false; // OK was pressed
};
// Asks for the account of a device; compares nothing.
DeviceAccount Form_UserPass(QWidget* parent);
