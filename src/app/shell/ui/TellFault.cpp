#include "app/shell/ui/TellFault.h"

#include "look/widgets/Fields.h"

void TellFault(QWidget* field, int message, int title)
{
    Tell(Tone::Warning, message, title);
    PointAtFault(field);
}
