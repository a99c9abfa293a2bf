#include "platform/Closing.h"

#include "platform/Work.h"

namespace {

bool g_closing = false;

} // namespace

bool Closing()
{
    return g_closing;
}

void SetClosing(bool closing)
{
    g_closing = closing;
    if (closing)
        StopAllWork();
}
