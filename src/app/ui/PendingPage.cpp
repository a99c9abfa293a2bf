#include "app/ui/PendingPage.h"

#include "app/language/Languages.h"
#include "look/widgets/EmptyState.h"

#include <QVBoxLayout>

PendingPage::PendingPage(QWidget* parent)
    : Page(parent)
    , m_empty(new EmptyState(QLatin1String("empty-page")))
{
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_empty);
}

void PendingPage::changeLanguage()
{
    m_empty->setHeadline(GetLangString(859));
    m_empty->setHint(GetLangString(860));
}
