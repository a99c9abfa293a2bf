#include "device/protocol/RelativeFormat.h"

#include <QList>

using namespace Qt::StringLiterals;

bool HasRelativeFormat(const QString& rule)
{
    return !rule.isEmpty() && rule != "{}{}{}"_L1 && rule.size() <= kMaxRelativeFormat;
}

bool MarksUnusableCamera(const QString& rule)
{
    return rule == ";;"_L1 || rule == "0,0,0;0,0,0;0,0,0"_L1;
}

std::optional<QStringList> RelativeFormatValues(const QString& rule, int format, const QString& resolution,
                                                RelativeList list)
{
    if (!HasRelativeFormat(rule) || resolution.isEmpty() || format < 0)
        return std::nullopt;
    const QList<QStringView> blocks = QStringView(rule).split(u'}');
    if (format >= blocks.size())
        return std::nullopt;
    for (const QStringView entry : blocks[format].split(u',')) {
        if (!entry.contains(resolution))
            continue;
        const QList<QStringView> pieces = entry.split(u'<');
        const qsizetype piece = list == RelativeList::FrameRate ? 1 : 2;
        if (piece >= pieces.size())
            return std::nullopt;
        QStringList values = pieces[piece].toString().remove(u'>').split(u'|', Qt::SkipEmptyParts);
        if (values.size() > kMaxListEntries)
            values.resize(kMaxListEntries);
        return values;
    }
    return std::nullopt;
}
