#pragma once

#include "store/records/SVRRecord.h"

#include <QString>
#include <array>

struct ListenServerRec
{
    qint16 aID = 0; // 1 to 3
    QString sMailFrom;
    QString sMailServer;
    qint32 lMailPort = 0;
    QString sMailUser;
    QString sMailPassword;
    QString sMailName;
    QString sMailReceipt;
    QString sFTPserverIP;
    qint32 iFTPPort = 0;
    QString sFTPUser;
    QString sFTPPassword;
    QString sFTPPath;
    QString sAlertIP;
    qint32 iAlertPort = 0;
    QString sAlertUser;
    QString sAlertPassword;
    QString sAlertText;
    QString sWaringName;
    QString sWarningPath;

    qint32 lLastSend = 0; // last mail that failed, seconds since 1970/1/1, 0 for none; not in the table
    bool bChanged = false;
};

struct EventHandlingRecord
{
    bool bSystemStartup = false;
    bool bConfigModify = false;
    bool bSoftTrigger = false;
    bool bNVRTrigger = false;
    bool bTriActMail = false;
    bool bTriActFTP = false;
    bool bTriActSound = false;
    bool bTriActHttpMsg = false;
    QString strMailAddress;
    QString strFTPUploadPath;
    QString strHttpMsgContent;
    QString strContentMsg;
    bool bAttachSnapshot = false;
    bool bChanged = false;
};

// A row of the four tables of analysis settings. Channel is the channel's analysis id.
struct ChannelSettingRow
{
    qint32 Channel = 0;
    qint16 Enable = 0;
    qint32 Sensitivity = 50;
};

// Rows of the three region tables. Channel is the channel's analysis id.
struct MotionROIRow
{
    qint32 Channel = 0;
    qint32 Height = 0; // pixels of the picture the region was drawn on
    qint32 Width = 0;
    std::array<QString, 24> sROI; // 32 characters "0" or "1" each
};

struct RegionRow
{
    qint32 Channel = 0;
    qint16 ID = 0;
    qint32 Height = 0;
    qint32 Width = 0;
    qint32 LeftTopX = 0;
    qint32 LeftTopY = 0;
    qint32 RightBottomX = 0;
    qint32 RightBottomY = 0;
    qint16 Direction = 0; // lines only
};

// What a channel's events do; held in memory for the pages of a run, in no table.
struct ChannelEventRecord
{
    QString sName; // of the camera
    qint16 iAction = 4;
    qint16 iDefault = -1; // -1: the defaults hold
};

// Detection settings of a channel. Flags are 16-bit: 0 off, -1 on.
struct IntelligentChannel
{
    qint16 bMotionEnable = 0;
    qint32 iMotionSensitivity = 50;
    qint16 bThreatEnable = 0;
    qint32 iThreatSensitivity = 50;
    qint16 bObjectLossEnable = 0;
    qint32 iObjectLossSensitivity = 50;
    qint16 bTripwireEnable = 0;
    qint32 iTripwireSensitivity = 80;
    qint16 bCameraEventEnable = -1; // not in the tables
    bool bChanged = false;          // must be saved
};

// Those of one recorder slot.
struct IntelligentSettings
{
    PerChannel<IntelligentChannel> channels;
};
