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

// From the header alone; empty for what is no JPEG or claims more than is taken.
QSize UsableSize(const QByteArray& bytes, const QImageReader& reader)
{
    const QSize size = bytes.startsWith("\xff\xd8") ? reader.size() : QSize();
    return size.isEmpty() || size.width() > kMaxSide || size.height() > kMaxSide ? QSize() : size;
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

QImage DecodeJpeg(const QByteArray& bytes, const QSize& room)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, QByteArrayLiteral("jpeg"));
    const QSize size = UsableSize(bytes, reader);
    if (size.isEmpty())
        return {};
    if (!room.isEmpty() && (size.width() > room.width() || size.height() > room.height()))
        reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}

QSize JpegSize(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    const QImageReader reader(&buffer, QByteArrayLiteral("jpeg"));
    return UsableSize(bytes, reader);
}
