#include "platform/MsgBox.h"

#include <utility>

namespace {

MsgBoxHandler& Handler()
{
    static MsgBoxHandler handler;
    return handler;
}

bool g_rightToLeft = false;

} // namespace

MsgResult MsgBox(const QString& text, qint32 style, const QString& title)
{
    if (Handler())
        return Handler()(text, style, title);
    return (style & ~kBoxRightToLeft) == kBoxQuestion ? MsgResult::No : MsgResult::Ok;
}

MsgBoxHandler SetMsgBoxHandler(MsgBoxHandler handler)
{
    return std::exchange(Handler(), std::move(handler));
}

qint32 InfoBoxStyle()
{
    return g_rightToLeft ? (kBoxInformation | kBoxRightToLeft) : kBoxInformation;
}

qint32 AskBoxStyle()
{
    return g_rightToLeft ? (kBoxQuestion | kBoxRightToLeft) : kBoxQuestion;
}

void SetBoxStyles(bool rightToLeft)
{
    g_rightToLeft = rightToLeft;
}
