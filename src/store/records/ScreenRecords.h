#pragma once

#include <QString>

// Rows as their tables hold them; screens count from 1, lists are comma-separated.
struct ScreenLayoutTableRow
{
    qint16 Form_MainViewer = 1;
    qint16 Form_EventMonitor = 1;
    qint16 Form_EMapView = 1;
    qint16 Form_PlayBack = 1;
    qint16 Form_Console = 1;
    qint16 Form_SVDConsole = 1;
    QString Form_FullScreen; // one screen a surface
    QString Form_VideoWall;  // one screen a surface, -1: not assigned
};

struct PatternTableRow
{
    qint16 iID = 0;
    QString sOwner;
    qint16 iSplit = 0;
    QString sCHSequence; // svr * 64 + channel, both from 0; -1: empty pane
    QString sName;
};

struct DefaultStartTableRow
{
    QString sOwner;
    bool bFixStart = true;
    bool bSEQStart = false;
    bool bEventNotify = true;
    bool bSearchNotify = true;
    qint16 iStartSplit = 16;
    qint16 iLastSplit = 16;
    QString MVChannel;
    QString sStartPatternName;
    qint16 iSEQMode = 0;
    qint16 iSEQTime = 5;
    QString sSEQSVRList;
    QString sSEQPatternList;
    qint16 iForm_MainViewer = 1;
    qint16 iForm_EventMonitor = 0;
    qint16 iForm_EMapView = 0;
    qint16 iForm_PlayBack = 0;
    qint16 iForm_Console = 0;
    qint16 iForm_SVDConsole = 0;
    qint16 iFixDisplayMode = 0;
    QString sForm_FullScreen; // "mark:mode" a monitor
};

// The three tables of full-screen sequences share this form; each has one of the lists.
struct FullscreenSEQRow
{
    qint16 ID = 1;
    QString UserName;
    qint16 FullscreenID = 0;
    qint16 DurationTime = 15; // seconds
    qint16 DisplayMode = 16;  // by channel only
    QString ChannelList;      // "svr\channel", both from 1
    QString NVRList;
    QString PatternList;
    bool DisplayAll = false;
};

struct VideoWallTableRow
{
    QString sLoginUser;
    qint16 VideoWallIndex = 0; // from 1
    qint16 iSplit = 0;
    qint16 iLastSplit = 0;
    qint16 iVideoWallPosition = 0;
    QString sSEQPatternList;
    qint16 iDS_DisplayMode = 0;
    qint16 iDS_FixDisplayMode = 0;
    QString sDS_Pattern;
    QString sScreenPosition; // left, top, width, height
    QString Channel;
};

struct SVDPatternTableRow
{
    QString sOwner;
    qint16 iSVDIndex = 0;
    qint16 iScreenIndex = 0;
    qint16 iID = 0;
    qint16 iSplit = 0;
    QString sCHSequence;
    QString sName;
};
