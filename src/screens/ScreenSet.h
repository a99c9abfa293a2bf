#pragma once

#include "store/records/ScreenRecords.h"

#include <array>
#include <bitset>
#include <vector>

// Panes that a display can be split into.
inline constexpr std::array<qint16, 9> kSplits{1, 4, 6, 9, 13, 16, 25, 36, 64};
inline constexpr int kMostPanes = 64;
inline constexpr qint16 kUsualSplit = 16;
inline constexpr qint16 kFirstScreen = 1;
inline constexpr qint16 kNoScreen = -1; // a video wall that is off
inline constexpr qint16 kEmptyPane = -1;
inline constexpr qint16 kNoPattern = -1;     // iID of the one element of an empty list
inline constexpr std::size_t kWallLimit = 4; // video walls of a station

// Which program stands on which screen: the row with its two lists as numbers. Its texts of lists are those last read.
struct ScreenLayoutRow : ScreenLayoutTableRow
{
    std::vector<qint16> aFullScreen{kFirstScreen}; // screen of each full-screen surface
    std::vector<qint16> aVideoWall{kNoScreen};     // screen of each video wall
    bool bChanged = false;
};

struct PatternRow : PatternTableRow
{
    bool bChanged = false;
};

// How the station starts for a user: the row with its list as numbers.
struct DefaultStartRow : DefaultStartTableRow
{
    std::vector<qint16> aFullScreen{0};     // start mark of each full-screen surface, above 0: it starts
    std::vector<qint16> aFullScreenMode{0}; // see FullScreenMode
    bool bChanged = false;
};

// What a full-screen surface shows. The three sequences have a table each.
enum FullScreenMode : qint16
{
    KeepExitLayout = 0,
    SequenceByChannel = 1,
    SequenceByNVR = 2,
    SequenceByPattern = 3
};

struct VideoWallRow : VideoWallTableRow
{
    std::vector<qint16> aChannel; // of each pane
    bool bChanged = false;
};

// A channel as patterns name it: slot and channel from 0.
inline constexpr int kChannelsOfStation = 16 * 64;

// What the screens of the station hold: one layout, and of the user who is logged in the patterns, the start and the
// walls. Pages change the edit copies.
struct ScreenSet
{
    ScreenSet() { patternsStored.front().iID = patternsEdit.front().iID = kNoPattern; }

    qint16 iMonitorCount = 1; // counted once, at start

    ScreenLayoutRow layoutStored;
    ScreenLayoutRow layoutEdit;
    bool layoutRepaired = false; // the row that was read named screens that are not there

    std::vector<PatternRow> patternsStored{1}; // in the order of iID; one element with kNoPattern when there is none
    std::vector<PatternRow> patternsEdit{1};
    DefaultStartRow startStored;
    DefaultStartRow startEdit;
    std::vector<VideoWallRow> wallsStored; // one for each of aVideoWall with two monitors and more, else none
    std::vector<VideoWallRow> wallsEdit;

    std::bitset<kChannelsOfStation> repairedFor; // channels that were there at the last repair
};
