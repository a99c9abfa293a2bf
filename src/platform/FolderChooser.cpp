#include "platform/FolderChooser.h"

#include <utility>

namespace {

FolderHandler& Handler()
{
    static FolderHandler handler;
    return handler;
}

} // namespace

QString OpenDirectoryTV(const QString& title)
{
    return Handler() ? Handler()(title) : QString();
}

FolderHandler SetFolderHandler(FolderHandler handler)
{
    return std::exchange(Handler(), std::move(handler));
}
