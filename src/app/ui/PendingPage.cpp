#include "app/ui/PendingPage.h"

#include "app/ui/ui_PendingPage.h"

PendingPage::PendingPage(QWidget* parent)
    : Page(parent)
{
    Ui::PendingPage().setupUi(this);
}
