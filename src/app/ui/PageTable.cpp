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

PageRow Row(const char* icon, int label, int title, bool (*shown)(const GroupPrivilegeRecord&),
            Page* (*make)(const DeskParts&))
{
    return {{QLatin1String(icon), label, title, {}, shown}, make};
}

} // namespace

const std::array<PageRow, kPages>& PageTable()
{
    static const std::array<PageRow, kPages> table = [] {
        std::array rows{
            Row("system", 850, 330, MaySet, Make<SystemPage>),
            Row("nvr", 0, 748, MaySet, Make<RecordersPage>),
            Row("intelligent", 851, 69, MaySet, Make<IntelligentPage>),
            Row("users", 852, 852, MaySet, Make<UsersPage>),
            Row("event", 853, 853, MaySet, Make<EventsPage>),
            Row("server", 854, 312, MaySet, Make<EventServersPage>),
            Row("emap", 855, 310, MaySet, Make<EMapPage>),
            Row("screens", 856, 311, MaySet, Make<ScreensPage>),
            Row("startup", 857, 39, nullptr, Make<StartupPage>),
            Row("videowall", 752, 36, MaySet, Make<WallsPage>),
            Row("svd", 0, 797, MaySet, Make<DecoderPage>),
            Row("tooling", 858, 858, MaySetOrExport, Make<ToolingPage>),
        };
        rows[1].face.fixed = QLatin1String("NVR");
        rows[10].face.fixed = QLatin1String("SVD");
        rows[10].face.allowed = MayUseDecoders;
        return rows;
    }();
    return table;
}

const PageFace& ExitFace()
{
    static const PageFace face{QLatin1String("exit"), 51, 51};
    return face;
}
