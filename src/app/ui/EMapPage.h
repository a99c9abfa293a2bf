#pragma once

#include "app/ui/PageTable.h"
#include "app/ui/PendingPage.h"

// Page 6: the electronic maps.
class EMapPage : public PendingPage
{
public:
    explicit EMapPage(const DeskParts&) {}
};
