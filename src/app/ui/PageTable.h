#pragma once

#include "app/Station.h"
#include "app/shell/ui/Page.h"
#include "device/bridge/Form_COM.h"

#include <array>

inline constexpr int kPages = 12;       // 0 to 11 stand in Frame_Setting
inline constexpr int kMenuEntries = 13; // the pages and Exit
inline constexpr int kExit = 12;

// What the factories of pages take what they need from. All of it lives longer than the pages.
struct DeskParts
{
    Station& station;
    Form_COM& com;
    const PageContext& context;
};

struct PageRow
{
    PageFace face;
    Page* (*make)(const DeskParts& parts); // the caller owns the page
};

// The pages in the order of the navigation. A new page is a new row here.
const std::array<PageRow, kPages>& PageTable();
// Exit stands below the pages.
const PageFace& ExitFace();

// The page where a station starts, the one that a user without the right to change settings is left with, and the one
// where the first user is made.
inline constexpr int kFirstPage = 0;
inline constexpr int kStartupPage = 8;
inline constexpr int kUsersPage = 3;
