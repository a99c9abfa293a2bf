#include "app/shell/ui/Page.h"

#include "app/language/Languages.h"
#include "app/shell/Boxes.h"

QString PageFace::labelText() const
{
    return label != 0 ? GetLangString(label).trimmed() : QString(fixed);
}

QString PageFace::titleText() const
{
    return GetLangString(title).trimmed();
}

bool Page::leave()
{
    if (!hasChanges())
        return true;
    switch (AskToLeave()) {
    case Leave::Stay:
        return false;
    case Leave::Save:
        apply();
        return !hasChanges();
    case Leave::Discard:
        revert();
        break;
    }
    return true;
}
