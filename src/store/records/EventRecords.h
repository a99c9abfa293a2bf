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

    qint32 lLastSend = 0; // seconds since 1970/1/1; not in the table
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

// Detection settings of one recorder slot, per channel. Flags are 16-bit: 0 off, -1 on.
struct IntelligentSettings
{
    IntelligentSettings()
    {
        for (std::size_t channel = 0; channel < kMaxChannel; ++channel)
            reset(channel);
    }
    // The defaults of one channel (index from 0). Its modification flag stays.
    void reset(std::size_t channel)
    {
        for (auto flag : {&IntelligentSettings::bMotionEnable, &IntelligentSettings::bThreatEnable,
                          &IntelligentSettings::bObjectLossEnable, &IntelligentSettings::bTripwireEnable})
            (this->*flag)[channel] = 0;
        iMotionSensitivity[channel] = iThreatSensitivity[channel] = iObjectLossSensitivity[channel] = 50;
        iTripwireSensitivity[channel] = 80;
        bCameraEventEnable[channel] = -1;
    }

    PerChannel<qint16> bMotionEnable;
    PerChannel<qint32> iMotionSensitivity;
    PerChannel<qint16> bThreatEnable;
    PerChannel<qint32> iThreatSensitivity;
    PerChannel<qint16> bObjectLossEnable;
    PerChannel<qint32> iObjectLossSensitivity;
    PerChannel<qint16> bTripwireEnable;
    PerChannel<qint32> iTripwireSensitivity;
    PerChannel<qint16> bCameraEventEnable; // not in the tables
    PerChannel<bool> bChanged{};           // must be saved
};
