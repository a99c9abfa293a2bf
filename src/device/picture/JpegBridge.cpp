#include "device/picture/JpegBridge.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>

namespace {

constexpr int kMaxSide = 8192;

bool Write(QIODevice& to, const QImage& frame, int quality)
{
    QImageWriter writer(&to, QByteArrayLiteral("jpeg"));
    writer.setQuality(quality);
    return writer.write(frame);
}

} // namespace

QByteArray EncodeJpeg(const QImage& frame, int quality)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return !frame.isNull() && Write(buffer, frame, quality) ? buffer.data() : QByteArray();
}

bool SaveJpeg(const QImage& frame, const QString& path, int quality)
{
    QSaveFile file(path);
    return !frame.isNull() && file.open(QIODevice::WriteOnly) && Write(file, frame, quality) && file.commit();
}

QImage DecodeJpeg(const QByteArray& bytes)
{
    if (!bytes.startsWith("\xff\xd8"))
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, QByteArrayLiteral("jpeg"));
    const QSize size = reader.size(); // from the header alone
    if (size.isEmpty() || size.width() > kMaxSide || size.height() > kMaxSide)
        return {};
    return reader.read();
}
