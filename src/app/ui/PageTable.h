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

// What the desk needs one of its pages for.
enum class PageUse
{
    None,
    First,         // a station starts there
    WithoutRights, // a user without the right to change settings is left with it
    FirstUser      // its primary action makes a user
};

struct PageRow
{
    PageFace face{};
    Page* (*make)(const DeskParts& parts) = nullptr; // the caller owns the page
    PageUse use = PageUse::None;
};

// The pages in the order of the navigation. A new page is a new row here.
const std::array<PageRow, kPages>& PageTable();
int PageFor(PageUse use); // its index; every use but None has one page
// Exit stands below the pages.
const PageFace& ExitFace();
