#pragma once

#include "device/protocol/ReplyText.h"
#include "support/Conversions.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <pugixml.hpp>
#include <string>

// What the readers of a device's XML replies stand on: the loaded document and the value readers. A reply is hostile
// input: it is loaded only within the limits of ReplyText.h, nothing here recurses (neither does the loading or the
// release of the document), and no entities but character references and the five of XML 1.0 are expanded.

class XmlReply
{
public:
    explicit XmlReply(ReplyText text);
    XmlReply(const XmlReply&) = delete;
    XmlReply& operator=(const XmlReply&) = delete;

    // The first element RESPONSE in document order; null when the text is not XML, is over the limits, or has no such
    // element with an attribute: the reply cannot be read then.
    [[nodiscard]] pugi::xml_node response() const { return m_response; }

private:
    QByteArray m_bytes; // the document points into it; ends in room for KnownName
    pugi::xml_document m_document;
    pugi::xml_node m_response;
};

// The text of an element: all character data in it, in document order. `scratch` takes it where it does not lie in one
// piece in the document.
const char* RawText(pugi::xml_node node, std::string& scratch);
QString NodeText(pugi::xml_node node);
// The same with the second decoding that channel and preset replies carry.
QString DecodedText(pugi::xml_node node);
// Decodes UTF-8 and then, as DecodedText, the three references left in it; reuses the memory of `text`.
void Decode(const char* raw, QString& text);

// Numbers; throw ConversionError for anything that is not one or does not fit.
qint16 Int16Of(const char* text);
qint32 Int32Of(const char* text);
qint16 Int16Of(pugi::xml_node node);
qint32 Int32Of(pugi::xml_node node);

// Value of the first attribute, whatever its name; throws ConversionError when the element has none.
const char* FirstAttribute(pugi::xml_node node);

// A name that is looked for. A reply holds thousands of them: the first sixteen bytes are compared at once.
class KnownName
{
public:
    constexpr KnownName(const char* text)
        : m_text(text)
    {
        std::array<unsigned char, kHead> head = {};
        std::array<unsigned char, kHead> mask = {};
        for (std::size_t at = 0; at < kHead && !m_whole; ++at) {
            mask[at] = 0xff;
            head[at] = static_cast<unsigned char>(text[at]);
            m_whole = text[at] == '\0';
        }
        m_head = std::bit_cast<Words>(head);
        m_mask = std::bit_cast<Words>(mask);
    }
    // `name` is empty or stands in the bytes of an XmlReply: kHead of them can be read wherever one begins.
    [[nodiscard]] bool is(const char* name) const
    {
        if (*name == '\0')
            return *m_text == '\0';
        Words words;
        std::memcpy(&words, name, kHead);
        return (((words[0] ^ m_head[0]) & m_mask[0]) | ((words[1] ^ m_head[1]) & m_mask[1])) == 0 &&
               (m_whole || std::strcmp(name + kHead, m_text + kHead) == 0);
    }

    using Words = std::array<std::uint64_t, 2>;
    static constexpr std::size_t kHead = sizeof(Words);

private:
    const char* m_text;
    Words m_head = {};    // the first bytes of the name, its end included where they reach it
    Words m_mask = {};    // ones where m_head holds something
    bool m_whole = false; // m_head holds the end
};
inline bool SameName(const char* name, const KnownName& known)
{
    return known.is(name);
}

// Comments, instructions and declarations are not loaded, and character data has no name.
inline bool IsElement(pugi::xml_node node)
{
    return *node.name() != '\0';
}

template <class Visit>
void ForEachElement(pugi::xml_node parent, Visit&& visit)
{
    for (pugi::xml_node child = parent.first_child(); child; child = child.next_sibling()) {
        if (IsElement(child))
            visit(child);
    }
}

template <class Visit>
void ForEachElement(pugi::xml_node parent, const char* name, Visit&& visit)
{
    for (pugi::xml_node child = parent.child(name); child; child = child.next_sibling(name))
        visit(child);
}

inline std::size_t ElementCount(pugi::xml_node parent)
{
    std::size_t count = 0;
    ForEachElement(parent, [&](pugi::xml_node) { ++count; });
    return count;
}

// An element's name with its reader. A table of them is best kept in the order in which devices send the elements.
template <class Target>
struct ElementReader
{
    KnownName name;
    void (*read)(Target&, pugi::xml_node);
};

template <class Target, std::size_t N>
using ElementTable = std::array<ElementReader<Target>, N>;

template <class Target, std::size_t N>
constexpr ElementTable<Target, N> Elements(const ElementReader<Target> (&readers)[N])
{
    return std::to_array(readers);
}

// Index of `name` in a table, N when it is not there. The search begins at `expected`.
template <class Target, std::size_t N>
std::size_t IndexOf(const ElementTable<Target, N>& table, const char* name, std::size_t expected = 0)
{
    for (std::size_t at = expected; at < N; ++at) {
        if (SameName(name, table[at].name))
            return at;
    }
    for (std::size_t at = 0; at < expected; ++at) {
        if (SameName(name, table[at].name))
            return at;
    }
    return N;
}

// Reads the children of `parent` that the table names; others are skipped.
template <class Target, std::size_t N>
void ReadElements(const ElementTable<Target, N>& table, Target& target, pugi::xml_node parent)
{
    std::size_t expected = 0;
    for (pugi::xml_node child = parent.first_child(); child; child = child.next_sibling()) {
        const std::size_t index = IndexOf(table, child.name(), expected);
        if (index == N)
            continue;
        table[index].read(target, child);
        expected = index + 1;
    }
}
