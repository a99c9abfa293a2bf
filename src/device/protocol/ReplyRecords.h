#pragma once

#include "store/records/SVRRecord.h"

#include <QString>
#include <array>

// One row of a device's event-action list. Numbers are the device's own; CH counts from 1.
struct ActionRecord
{
    qint16 CH = 0;
    qint32 Event = 0; // 2001: camera motion
    qint16 ActionGroup = 0;
    qint16 TriggerID = 0;
    qint16 DigitalOut = 0;
    qint16 Preset = 0;
    qint16 DigitalOutID = 0;
    qint16 DigitalOutState = 0;
    qint16 DODuration = 0;
    qint16 PresetDest = 0;
    qint16 Enable = 0;
};

// A preset as the device keeps it. Positions are texts in the device's own units.
struct PresetEntry
{
    qint16 ID = 0; // from 1
    QString Name;
    QString Pan;
    QString Tilt;
    QString Zoom;
    QString Focus;
    qint16 CH = 0; // owning channel, from 1; 0 when the slot is free
    bool PTZABS = false;
    bool Deleted = false;
};

// Up to eight presets of one channel, in the order of the device's reply.
struct PresetRecord
{
    std::array<PresetEntry, kMaxPreset> Presets;
};

struct PositionRecord
{
    qint16 CH = 0; // from 1
    QString Pan;
    QString Tilt;
    QString Zoom;
    QString Focus;
};

struct DeviceInfo
{
    QString Brand;
    QString Model;
    QString URL;
    QString CMDVersion; // "1.4", "2.0", …
    QString InternalModel;
    QString InternalVersion;
    QString DeviceType;
    qint16 MaxChSupport = 0;
    qint32 InputPort = 0;
    qint32 OutputPort = 0;
};

// A camera that a recorder sees on its own network.
struct FoundCamera
{
    QString IP;
    QString NetMask;
    QString Manufacturer;
    QString Model;
    QString DeviceName;
    QString MACAddress;
    qint32 HTTPPort = 0;
    qint16 DeviceType = 0;
};
