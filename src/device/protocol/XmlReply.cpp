#include "device/protocol/XmlReply.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Character data that begins an element becomes the element's own value: nearly every element of a reply is such a
// one, and the document needs half the nodes.
constexpr unsigned kLoading = pugi::parse_default | pugi::parse_embed_pcdata;

bool WithinMarkupLimit(const QByteArray& bytes)
{
    return bytes.size() <= kMaxReplyMarkup || (std::count(bytes.cbegin(), bytes.cend(), '<') <= kMaxReplyMarkup &&
                                               std::count(bytes.cbegin(), bytes.cend(), '=') <= kMaxReplyMarkup);
}

// The node after `node` in document order within `top`, without recursion; null at the end.
pugi::xml_node NextInDocument(pugi::xml_node node, pugi::xml_node top)
{
    if (const pugi::xml_node child = node.first_child())
        return child;
    while (node != top) {
        if (const pugi::xml_node sibling = node.next_sibling())
            return sibling;
        node = node.parent();
    }
    return {};
}

// Whether `text` is nothing but a whole number of at most nine digits.
bool PlainNumber(const char* text, qint32& value)
{
    const bool negative = *text == '-';
    const char* const digits = text + (negative ? 1 : 0);
    const char* at = digits;
    qint32 number = 0;
    for (; *at >= '0' && *at <= '9' && at - digits < 9; ++at)
        number = number * 10 + (*at - '0');
    value = negative ? -number : number;
    return *at == '\0' && at != digits;
}

// The three replacements one after the other, in one pass: "&quot;" is the only thing that an earlier one can make for
// a later one, from "&amp;quot;".
void DecodeReferences(QString& text)
{
    const qsizetype first = text.indexOf(u'&');
    if (first < 0)
        return;
    constexpr std::pair<QStringView, QChar> references[] = {
        {u"&lt;", u'<'}, {u"&amp;quot;", u'"'}, {u"&amp;", u'&'}, {u"&quot;", u'"'}};
    QChar* const begin = text.data();
    const QChar* const end = begin + text.size();
    QChar* to = begin + first;
    for (const QChar* from = to; from != end;) {
        const QStringView rest(from, end);
        const auto found =
            *from != u'&' ? std::end(references) : std::ranges::find_if(references, [&](const auto& reference) {
                return rest.startsWith(reference.first);
            });
        *to++ = found == std::end(references) ? *from : found->second;
        from += found == std::end(references) ? 1 : found->first.size();
    }
    text.truncate(to - begin);
}

} // namespace

QStringView ReadableLines(const QString& reply)
{
    constexpr qsizetype limit = 256 * 1024;
    const QStringView text(reply);
    return text.size() <= limit ? text : text.first(text.first(limit).lastIndexOf(u'\n') + 1);
}

ReplyText::ReplyText(const QString& text)
    : m_utf8(text.size() <= kMaxReplySize ? text.toUtf8() : QByteArray())
{
}

ReplyText::ReplyText(QByteArray bytes)
{
    if (bytes.size() > kMaxReplySize)
        return;
    m_utf8 = bytes.isValidUtf8() ? std::move(bytes) : QString::fromLatin1(bytes).toUtf8();
}

XmlReply::XmlReply(ReplyText text)
    : m_bytes(std::move(text.m_utf8))
{
    if (m_bytes.isEmpty() || !WithinMarkupLimit(m_bytes))
        return;
    const auto size = static_cast<std::size_t>(m_bytes.size());
    m_bytes.append(KnownName::kHead, '\0');
    if (!m_document.load_buffer_inplace(m_bytes.data(), size, kLoading, pugi::encoding_utf8))
        return;
    for (pugi::xml_node at = m_document.first_child(); at; at = NextInDocument(at, m_document)) {
        if (SameName(at.name(), "RESPONSE")) {
            if (at.first_attribute())
                m_response = at;
            return;
        }
    }
}

QString XmlText(qint16 mode, const QString& text)
{
    if (mode == 0) {
        QString decoded = text;
        DecodeReferences(decoded);
        return decoded;
    }
    QString encoded;
    encoded.reserve(text.size());
    for (const QChar character : text) {
        if (character == u'<')
            encoded += "&lt;"_L1;
        else if (character == u'&')
            encoded += "&amp;"_L1;
        else if (character == u'"')
            encoded += "&quot;"_L1;
        else
            encoded += character;
    }
    return encoded;
}

const char* RawText(pugi::xml_node node, std::string& scratch)
{
    const char* const value = node.value();
    if (!node.first_child())
        return value;
    scratch.clear();
    for (pugi::xml_node at = node; at; at = NextInDocument(at, node))
        scratch += at.value();
    return scratch.c_str();
}

void Decode(const char* raw, QString& text)
{
    unsigned char bits = 0;
    bool reference = false;
    const char* end = raw;
    for (; *end != '\0'; ++end) {
        bits |= static_cast<unsigned char>(*end);
        reference |= *end == '&';
    }
    if (bits < 0x80)
        text = QLatin1StringView(raw, end - raw);
    else
        text = QString::fromUtf8(raw, end - raw);
    if (reference)
        DecodeReferences(text);
}

QString NodeText(pugi::xml_node node)
{
    std::string scratch;
    return QString::fromUtf8(RawText(node, scratch));
}

QString DecodedText(pugi::xml_node node)
{
    std::string scratch;
    QString text;
    Decode(RawText(node, scratch), text);
    return text;
}

qint16 Int16Of(const char* text)
{
    qint32 value = 0;
    if (PlainNumber(text, value) && value == static_cast<qint16>(value))
        return static_cast<qint16>(value);
    return ToInt16(QString::fromUtf8(text));
}

qint32 Int32Of(const char* text)
{
    qint32 value = 0;
    return PlainNumber(text, value) ? value : ToInt32(QString::fromUtf8(text));
}

qint16 Int16Of(pugi::xml_node node)
{
    std::string scratch;
    return Int16Of(RawText(node, scratch));
}

qint32 Int32Of(pugi::xml_node node)
{
    std::string scratch;
    return Int32Of(RawText(node, scratch));
}

const char* FirstAttribute(pugi::xml_node node)
{
    const pugi::xml_attribute first = node.first_attribute();
    if (!first)
        throw ConversionError(u"Element '%1' has no attribute"_s.arg(QString::fromUtf8(node.name()).left(64)));
    return first.value();
}
