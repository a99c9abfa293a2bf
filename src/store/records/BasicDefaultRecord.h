#pragma once

#include <QString>

// The single row of system-wide values, and the run-time facts kept beside it.
struct BasicDefaultRecord
{
    QString sBrand; // key of the row
    qint16 iLangCount = 0;
    qint16 iLanguage = 0; // 1 to 14; 0 and 99: take the language of the operating system
    QString sDBVer;
    qint16 iDBCount = 0;
    QString sSystemIP;
    QString sSystemName;
    qint32 iHttpPort = 0;
    qint32 iRTSPPort = 0;
    qint32 iAlertPort = 0;
    qint16 iPollingTime = 0;
    bool bRecycle = false;
    qint32 lReserveSpace = 0;
    bool bStartup = false;       // start with the system
    bool bStartupToHide = false; // start hidden
    qint16 iPreAlarmTime = 0;
    qint16 iPostAlarmTime = 0;
    QString sCpu;
    qint16 iSyncTime = 0;
    qint16 iSnapCount = 0; // 1 to 3
    qint16 iVideoWallStyle = 0;
    qint16 iResolutionSum = 0; // read, never written

    qint16 iMonitorCount = 0; // not in the table
    bool bChanged = false;    // not in the table
};
