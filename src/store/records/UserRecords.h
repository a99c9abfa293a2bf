#pragma once

#include "store/records/SVRRecord.h"

#include <QString>
#include <array>

inline constexpr int kGroups = 7; // user groups; group index 0 is the administrators'

struct UserRecord
{
    QString sUser; // empty: a deleted slot
    QString sPSWD;
    bool bEnable = false;
    QString sCorp;
    QString sPhone;
    QString sMainEmail;
    QString sSubEmail;
    QString sMobile;
    QString sPhoto;
    qint16 iGroup = 0; // 0 to 6
    bool bChanged = false;
};

// A login that is tried on devices.
struct NVRAccountRecord
{
    qint16 iIndex = 0;
    QString sUser;
    QString sPass;
};

struct GroupPrivilegeRecord
{
    qint16 GroupID = 0; // group index + 1
    QString Name;
    qint16 Setting = 0;    // 1: may use the setting pages
    qint16 Export = 0;     // 1: may use Tooling
    qint16 SVDControl = 0; // 1: may use the SVD page
    qint16 Live = 0;
    qint16 Live_all = 0;
    std::array<QString, kMaxSVR> CHPrivilege; // per recorder slot: "all:mask,mask,…"
    bool bChanged = false;
};

// One row of the table that holds the texts above.
struct NVRPrivilegeRow
{
    qint32 GroupID = 0; // 1 to 7
    qint32 NVRID = 0;   // 1 to 16
    QString CHPrivilege;
};
