#pragma once

#include "app/ui/PageTable.h"
#include "app/ui/PendingPage.h"

// Page 5: servers of mail, upload, alerts and sounds.
class EventServersPage : public PendingPage
{
public:
    explicit EventServersPage(const DeskParts&) {}
};
