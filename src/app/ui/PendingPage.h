#pragma once

#include "app/ui/SettingsPage.h"

class EmptyState;

// Stands where a page is not part of this version, and says so.
class PendingPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit PendingPage(QWidget* parent = nullptr);
    void changeLanguage() override;

private:
    EmptyState* m_empty;
};
