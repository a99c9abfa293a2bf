#pragma once

#include "app/ui/PageTable.h"
#include "app/ui/PendingPage.h"

// Page 2: channels that take part in analysis.
class IntelligentPage : public PendingPage
{
public:
    explicit IntelligentPage(const DeskParts&) {}
};
