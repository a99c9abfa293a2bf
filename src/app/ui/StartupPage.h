#pragma once

#include "app/ui/PageTable.h"
#include "app/ui/PendingPage.h"

// Page 8: what the user's monitors show at start.
class StartupPage : public PendingPage
{
public:
    explicit StartupPage(const DeskParts&) {}
};
