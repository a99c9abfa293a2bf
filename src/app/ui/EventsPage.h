#pragma once

#include "app/ui/PageTable.h"
#include "app/ui/PendingPage.h"

// Page 4: what happens on which event.
class EventsPage : public PendingPage
{
public:
    explicit EventsPage(const DeskParts&) {}
};
