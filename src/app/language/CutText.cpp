#include "app/language/CutText.h"

QString CutText(const QString& text, int available, bool rightToLeft, const std::function<int(const QString&)>& measure)
{
    if (measure(text) <= available)
        return text;
    constexpr int kReserve = 20; // pixels kept for the mark
    qsizetype count = 1;
    while (count <= text.size()) {
        if (measure(rightToLeft ? text.right(count) : text.left(count)) > available - kReserve)
            break;
        ++count;
    }
    return rightToLeft ? QString(u'~' + text.right(count - 1)) : QString(text.left(count - 1) + u'~');
}
