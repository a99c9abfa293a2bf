#include "app/ui/PageTable.h"

#include "app/ui/DecoderPage.h"
#include "app/ui/EMapPage.h"
#include "app/ui/EventServersPage.h"
#include "app/ui/EventsPage.h"
#include "app/ui/IntelligentPage.h"
#include "app/ui/RecordersPage.h"
#include "app/ui/ScreensPage.h"
#include "app/ui/StartupPage.h"
#include "app/ui/SystemPage.h"
#include "app/ui/ToolingPage.h"
#include "app/ui/UsersPage.h"
#include "app/ui/WallsPage.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool MaySet(const GroupPrivilegeRecord& rights)
{
    return rights.Setting == 1;
}

bool MaySetOrExport(const GroupPrivilegeRecord& rights)
{
    return rights.Setting == 1 || rights.Export == 1;
}

bool MayUseDecoders(const GroupPrivilegeRecord& rights)
{
    return rights.SVDControl == 1;
}

template <class P>
Page* Make(const DeskParts& parts)
{
    return new P(parts);
}

} // namespace

const std::array<PageRow, kPages>& PageTable()
{
    static const std::array<PageRow, kPages> table{{
        {.face = {.icon = "system"_L1, .label = 850, .title = 330, .shown = MaySet},
         .make = Make<SystemPage>,
         .use = PageUse::First},
        {.face = {.icon = "nvr"_L1, .title = 748, .fixed = "NVR"_L1, .shown = MaySet}, .make = Make<RecordersPage>},
        {.face = {.icon = "intelligent"_L1, .label = 851, .title = 69, .shown = MaySet}, .make = Make<IntelligentPage>},
        {.face = {.icon = "users"_L1, .label = 852, .title = 852, .shown = MaySet},
         .make = Make<UsersPage>,
         .use = PageUse::FirstUser},
        {.face = {.icon = "event"_L1, .label = 853, .title = 853, .shown = MaySet}, .make = Make<EventsPage>},
        {.face = {.icon = "server"_L1, .label = 854, .title = 312, .shown = MaySet}, .make = Make<EventServersPage>},
        {.face = {.icon = "emap"_L1, .label = 855, .title = 310, .shown = MaySet}, .make = Make<EMapPage>},
        {.face = {.icon = "screens"_L1, .label = 856, .title = 311, .shown = MaySet}, .make = Make<ScreensPage>},
        {.face = {.icon = "startup"_L1, .label = 857, .title = 39},
         .make = Make<StartupPage>,
         .use = PageUse::WithoutRights},
        {.face = {.icon = "videowall"_L1, .label = 752, .title = 36, .shown = MaySet}, .make = Make<WallsPage>},
        {.face = {.icon = "svd"_L1, .title = 797, .fixed = "SVD"_L1, .shown = MaySet, .allowed = MayUseDecoders},
         .make = Make<DecoderPage>},
        {.face = {.icon = "tooling"_L1, .label = 858, .title = 858, .shown = MaySetOrExport},
         .make = Make<ToolingPage>},
    }};
    return table;
}

int PageFor(PageUse use)
{
    const auto found = std::ranges::find(PageTable(), use, &PageRow::use);
    return static_cast<int>(found - PageTable().begin());
}

const PageFace& ExitFace()
{
    static const PageFace face{QLatin1String("exit"), 51, 51};
    return face;
}
