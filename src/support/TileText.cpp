#include "support/TileText.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

QRectF TileOfText(QStringView text)
{
    std::array<double, 4> numbers{};
    std::size_t count = 0;
    for (const QStringView entry : text.tokenize(u',')) {
        bool ok = false;
        const double number = entry.trimmed().toDouble(&ok);
        if (!ok || !std::isfinite(number) || count == numbers.size())
            return {};
        numbers[count++] = number;
    }
    return count == numbers.size() ? QRectF(numbers[0], numbers[1], numbers[2], numbers[3]) : QRectF();
}

QString TextOfTile(const QRectF& tile)
{
    QStringList numbers;
    for (const double number : {tile.x(), tile.y(), tile.width(), tile.height()})
        numbers << QString::number(number, 'f', 4);
    return numbers.join(u',');
}

bool IsTile(const QRectF& tile)
{
    const auto isShare = [](double number) { return number >= 0 && number <= 1; };
    return tile.width() > 0 && tile.height() > 0 && isShare(tile.x()) && isShare(tile.y()) && isShare(tile.width()) &&
           isShare(tile.height());
}
