#pragma once

#include <QByteArray>
#include <QString>

inline constexpr qsizetype kMaxReplySize = 16 * 1024 * 1024; // characters or bytes
inline constexpr qsizetype kMaxReplyMarkup = 400'000;        // "<" and, counted apart, "=" in one reply

// What a device's texts may bring into a record: a name or model, and a list. What is longer is cut.
inline constexpr qsizetype kMaxDeviceText = 255; // characters
inline constexpr qsizetype kMaxDeviceList = 64 * 1024;

// The part of a reply of lines that is read: all of it, or the whole lines within its first 256 Ki characters.
QStringView ReadableLines(const QString& reply);

// The text of a reply as UTF-8. Bytes that are not valid UTF-8 are read as Latin-1; a text over kMaxReplySize is
// taken as the empty one.
class ReplyText
{
public:
    ReplyText(const QString& text); // NOLINT: a reply arrives as either and is read the same
    ReplyText(QByteArray bytes);    // NOLINT
    [[nodiscard]] const QByteArray& utf8() const { return m_utf8; }

private:
    friend class XmlReply;
    QByteArray m_utf8;
};

// Mode 0 decodes &lt; &amp; &quot; in this order over the whole text (so "&amp;lt;" becomes "&lt;"); any other mode
// encodes the three characters. ">" and the apostrophe are never touched.
QString XmlText(qint16 mode, const QString& text);
