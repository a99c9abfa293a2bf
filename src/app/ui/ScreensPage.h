#pragma once

#include "app/ui/PageTable.h"
#include "app/ui/PendingPage.h"

// Page 7: which program stands on which screen.
class ScreensPage : public PendingPage
{
public:
    explicit ScreensPage(const DeskParts&) {}
};
