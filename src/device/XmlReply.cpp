#include "device/XmlReply.h"

#include <charconv>
#include <string>

using namespace Qt::StringLiterals;

namespace {

bool WithinMarkupLimit(const QByteArray& bytes)
{
    return std::count(bytes.cbegin(), bytes.cend(), '<') <= kMaxReplyMarkup &&
           std::count(bytes.cbegin(), bytes.cend(), '=') <= kMaxReplyMarkup;
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

bool IsCharacterData(pugi::xml_node node)
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

// Nearly every element holds one run of text: that is handed out as it lies in the document. `scratch` takes the rest.
std::string_view RawText(pugi::xml_node node, std::string& scratch)
{
    const pugi::xml_node first = node.first_child();
    if (!first)
        return {};
    if (IsCharacterData(first) && !first.next_sibling())
        return first.value();
    for (pugi::xml_node at = first; at; at = NextInDocument(at, node)) {
        if (IsCharacterData(at))
            scratch += at.value();
    }
    return scratch;
}

QString FromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

template <class Int>
bool WholeNumber(std::string_view text, Int& value)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

} // namespace

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
    if (!m_document.load_buffer_inplace(m_bytes.data(), static_cast<std::size_t>(m_bytes.size()), pugi::parse_default,
                                        pugi::encoding_utf8))
        return;
    for (pugi::xml_node at = m_document.first_child(); at; at = NextInDocument(at, m_document)) {
        if (std::string_view(at.name()) == "RESPONSE") {
            if (at.first_attribute())
                m_response = at;
            return;
        }
    }
}

QString XmlText(qint16 mode, const QString& text)
{
    if (mode == 0) {
        if (!text.contains(u'&'))
            return text;
        QString decoded = text;
        return decoded.replace("&lt;"_L1, "<"_L1).replace("&amp;"_L1, "&"_L1).replace("&quot;"_L1, "\""_L1);
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

QString NodeText(pugi::xml_node node)
{
    std::string scratch;
    return FromUtf8(RawText(node, scratch));
}

QString DecodedText(pugi::xml_node node)
{
    return XmlText(0, NodeText(node));
}

qint16 Int16Of(std::string_view text)
{
    qint16 value = 0;
    return WholeNumber(text, value) ? value : ToInt16(FromUtf8(text));
}

qint32 Int32Of(std::string_view text)
{
    qint32 value = 0;
    return WholeNumber(text, value) ? value : ToInt32(FromUtf8(text));
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

std::string_view FirstAttribute(pugi::xml_node node)
{
    const pugi::xml_attribute first = node.first_attribute();
    if (!first)
        throw ConversionError(u"Element '%1' has no attribute"_s.arg(QString::fromUtf8(node.name()).left(64)));
    return first.value();
}
