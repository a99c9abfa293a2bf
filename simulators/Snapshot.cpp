#include "simulators/Snapshot.h"

#include <QBuffer>
#include <QDateTime>
#include <QImage>
#include <QPainter>

#include <array>

namespace simulators {

namespace {

constexpr int kWidth = 352;
constexpr int kHeight = 240;

// Digits of 3 x 5 cells, a row an octal digit: text drawing would need fonts, and with them a display.
constexpr std::array<int, 10> kDigits{075557, 026227, 071747, 071717, 055711, 074717, 074757, 071111, 075757, 075717};

void drawNumber(QPainter& painter, int number, int left, int top, int cell)
{
    for (const char digit : QByteArray::number(number)) {
        const int bits = kDigits.at(static_cast<size_t>(digit - '0'));
        for (int row = 0; row < 5; ++row)
            for (int column = 0; column < 3; ++column)
                if (bits >> ((4 - row) * 3 + 2 - column) & 1)
                    painter.fillRect(left + column * cell, top + row * cell, cell, cell, Qt::white);
        left += 4 * cell;
    }
}

} // namespace

QByteArray snapshotJpeg(int channel, int pan)
{
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, kHeight * 0.6);
    sky.setColorAt(0, QColor::fromHsv((200 + channel * 7) % 360, 90, 150));
    sky.setColorAt(1, QColor::fromHsv((200 + channel * 7) % 360, 40, 220));
    painter.fillRect(image.rect(), sky);
    painter.fillRect(0, kHeight * 6 / 10, kWidth, kHeight, QColor(86, 90, 84));
    for (int i = 0; i < 7; ++i) {
        const int height = 40 + (channel * 31 + i * 47) % 70;
        const int left = (i * 61 - pan * 4 + channel * 13) % (kWidth + 60) - 30;
        painter.fillRect(left, kHeight * 6 / 10 - height, 46, height,
                         QColor::fromHsv((i * 40 + channel * 17) % 360, 50, 110));
        for (int y = kHeight * 6 / 10 - height + 8; y < kHeight * 6 / 10 - 12; y += 16)
            for (int x = left + 6; x < left + 40; x += 13)
                painter.fillRect(x, y, 7, 9, QColor(235, 220, 150));
    }
    const int car = static_cast<int>(QDateTime::currentMSecsSinceEpoch() / 40 % (kWidth + 80)) - 60;
    painter.fillRect(car, 178, 56, 16, QColor(160, 40, 38));
    painter.fillRect(car + 12, 168, 30, 12, QColor(160, 40, 38));
    painter.fillRect(0, 0, 24 + 24 * static_cast<int>(QByteArray::number(channel).size()), 38, QColor(0, 0, 0, 120));
    drawNumber(painter, channel, 12, 6, 5);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 80);
    return bytes;
}

} // namespace simulators
