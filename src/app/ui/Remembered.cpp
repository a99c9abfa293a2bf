#include "app/ui/Remembered.h"

#include "app/ui/PageTable.h"
#include "platform/UserSettings.h"

#include <QScreen>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {
const QString kColours = u"colours"_s;
const QString kWindow = u"window"_s;
const QString kPage = u"page"_s;
const QString kDark = u"dark"_s;
const QString kLight = u"light"_s;
} // namespace

Scheme RememberedScheme()
{
    const QString colours = UserSetting(kColours).toString();
    if (qEnvironmentVariableIsSet("RIGGING_DESK_THEME") || (colours != kDark && colours != kLight))
        return InitialScheme();
    return colours == kDark ? Scheme::Dark : Scheme::Light;
}

void RememberScheme(Scheme scheme)
{
    SetUserSetting(kColours, scheme == Scheme::Dark ? kDark : kLight);
}

void PlaceWindow(QWidget& window)
{
    if (!window.restoreGeometry(UserSetting(kWindow).toByteArray()))
        window.resize(window.screen()->availableSize().boundedTo(QSize(1280, 800)));
}

void RememberPlace(const QWidget& window)
{
    SetUserSetting(kWindow, window.saveGeometry());
}

int RememberedPage()
{
    const int page = UserSetting(kPage).toInt();
    return page >= 0 && page < kPages ? page : PageFor(PageUse::First);
}

void RememberPage(int page)
{
    SetUserSetting(kPage, page);
}
