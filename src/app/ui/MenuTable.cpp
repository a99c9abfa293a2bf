#include "app/ui/MenuTable.h"

#include "app/language/Languages.h"
#include "support/Conversions.h"

QString MenuText(int index)
{
    const int label = At(kMenuTable, index).label;
    if (label != 0)
        return GetLangString(label).trimmed();
    return index == 1 ? QStringLiteral("NVR") : QStringLiteral("SVD");
}

QString PageTitle(int index)
{
    return GetLangString(At(kMenuTable, index).title).trimmed();
}
