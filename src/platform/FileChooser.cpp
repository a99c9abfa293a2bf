#include "platform/FileChooser.h"

#include <utility>

namespace {
FileChooserHandler& Handler()
{
    static FileChooserHandler handler;
    return handler;
}
} // namespace

QString Form_OpenFile(const FileQuestion& question)
{
    return Handler() ? Handler()(question) : QString();
}

FileChooserHandler SetFileChooserHandler(FileChooserHandler handler)
{
    return std::exchange(Handler(), std::move(handler));
}
