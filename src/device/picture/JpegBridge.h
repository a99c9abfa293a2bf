#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

// JPEG of a frame. quality: 0 to 100. The encoded picture, empty when the frame is.
QByteArray EncodeJpeg(const QImage& frame, int quality = 85);
// The same into a file (a platform path), whole or not at all. False when it cannot be encoded or written.
bool SaveJpeg(const QImage& frame, const QString& path, int quality = 85);

// Picture of JPEG bytes that a device sent; null when they are none, or claim more than 8192 pixels a side. With `room`
// it is made no larger than fits there, in its own shape, which is much quicker than the whole picture. Any thread.
QImage DecodeJpeg(const QByteArray& bytes, const QSize& room = {});
// Size that the bytes claim, empty when they are no JPEG or claim too much.
QSize JpegSize(const QByteArray& bytes);
