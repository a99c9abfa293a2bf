#pragma once

#include "store/records/SVRRecord.h"

#include <QString>

// Positions are fractions of the picture, 0 to 1, four decimals.
struct EMapGroupRow
{
    qint16 iMap_Type = 0; // 0 root, 1 group, 2 recorder's map, 3 sub-map
    qint16 iMap_ID = 0;   // of a recorder's map: slot + 1
    QString sName;
    QString sParent; // empty or "MainMap": directly under the root
    double dMapX = 0;
    double dMapY = 0;
    double dSMapX = 0;
    double dSMapY = 0;
    double dInfoX = 0;
    double dInfoY = 0;
    qint16 iInfo_Position = 0;
    QString sMap_Path;
    bool bChanged = false;
    friend bool operator==(const EMapGroupRow&, const EMapGroupRow&) = default;
};

// Where a camera is on the maps.
struct EMapIcon
{
    QString sParent; // name of the map that shows the camera, empty: on none
    double dMapX = 0;
    double dMapY = 0;
    double dInfoX = 0;
    double dInfoY = 0;
    qint16 iInfo_Position = 0;
    friend bool operator==(const EMapIcon&, const EMapIcon&) = default;
};

// A row of the table: a camera and where it is.
struct EMapIconRow : EMapIcon
{
    qint16 iSVR = 0;     // from 1
    qint16 iChannel = 0; // from 1
};

// The cameras of one recorder slot on the maps.
struct EMapIconRecord
{
    PerChannel<EMapIcon> channels;
    bool bChanged = false; // the table must be saved; not in the table
};

// One record a recorder slot.
using EMapIconTable = std::array<EMapIconRecord, kMaxSVR>;
