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
    switch (style & 0xf) { // the buttons
    case kBoxQuestion & 0xf:
        return MsgResult::No;
    case kBoxQuestionOrStay & 0xf:
        return MsgResult::Cancel;
    default:
        return MsgResult::Ok;
    }
}

MsgBoxHandler SetMsgBoxHandler(MsgBoxHandler handler)
{
    return std::exchange(Handler(), std::move(handler));
}

qint32 BoxStyle(qint32 style)
{
    return g_rightToLeft ? (style | kBoxRightToLeft) : style;
}

qint32 InfoBoxStyle()
{
    return BoxStyle(kBoxInformation);
}

qint32 AskBoxStyle()
{
    return BoxStyle(kBoxQuestion);
}

void SetBoxStyles(bool rightToLeft)
{
    g_rightToLeft = rightToLeft;
}
