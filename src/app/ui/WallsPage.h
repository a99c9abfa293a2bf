#pragma once

#include "app/ui/PageTable.h"
#include "app/ui/PendingPage.h"

// Page 9: video walls.
class WallsPage : public PendingPage
{
public:
    explicit WallsPage(const DeskParts&) {}
};
