#pragma once

#include "app/shell/ui/Page.h"

class EmptyState;

// Stands where a page is not part of this version, and says so.
class PendingPage : public Page
{
    Q_OBJECT

public:
    explicit PendingPage(QWidget* parent = nullptr);
    void enter() override {}
    void changeLanguage() override;

private:
    EmptyState* m_empty;
};
