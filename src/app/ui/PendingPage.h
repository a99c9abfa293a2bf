#pragma once

#include "app/shell/ui/Page.h"

// Stands where a page is not part of this version, and says so.
class PendingPage : public Page
{
    Q_OBJECT

public:
    explicit PendingPage(QWidget* parent = nullptr);
    void enter() override {}
};
