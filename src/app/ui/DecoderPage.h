#pragma once

#include "app/ui/PageTable.h"
#include "app/ui/PendingPage.h"

// Page 10: the decoder.
class DecoderPage : public PendingPage
{
public:
    explicit DecoderPage(const DeskParts&) {}
};
