#pragma once

#include "device/ReplyText.h"
#include "support/Conversions.h"

#include <algorithm>
#include <array>
#include <pugixml.hpp>
#include <span>
#include <string_view>

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
    QByteArray m_bytes; // the document points into it
    pugi::xml_document m_document;
    pugi::xml_node m_response;
};

// The text of an element: all character data in it, in document order.
QString NodeText(pugi::xml_node node);
// The same with the second decoding that channel and preset replies carry.
QString DecodedText(pugi::xml_node node);

// Numbers; throw ConversionError for anything that is not one or does not fit.
qint16 Int16Of(std::string_view text);
qint32 Int32Of(std::string_view text);
qint16 Int16Of(pugi::xml_node node);
qint32 Int32Of(pugi::xml_node node);

// Value of the first attribute, whatever its name; throws ConversionError when the element has none.
std::string_view FirstAttribute(pugi::xml_node node);

inline bool IsElement(pugi::xml_node node)
{
    return node.type() == pugi::node_element;
}

inline std::size_t ElementCount(pugi::xml_node parent)
{
    const auto children = parent.children();
    return static_cast<std::size_t>(std::count_if(children.begin(), children.end(), IsElement));
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

// Element names with the reader of each, sorted at compile time; a name that is not listed is skipped.
template <class Target>
struct ElementReader
{
    std::string_view name;
    void (*read)(Target&, pugi::xml_node);
};

template <class Target, std::size_t N>
consteval std::array<ElementReader<Target>, N> ElementTable(const ElementReader<Target> (&readers)[N])
{
    std::array<ElementReader<Target>, N> table = std::to_array(readers);
    std::ranges::sort(table, {}, &ElementReader<Target>::name);
    return table;
}

template <class Target, std::size_t N>
bool ReadElement(const std::array<ElementReader<Target>, N>& table, Target& target, pugi::xml_node element)
{
    const std::string_view name = element.name();
    const auto found = std::ranges::lower_bound(table, name, {}, &ElementReader<Target>::name);
    if (found == table.end() || found->name != name)
        return false;
    found->read(target, element);
    return true;
}

template <class Target, std::size_t N>
void ReadElements(const std::array<ElementReader<Target>, N>& table, Target& target, pugi::xml_node parent)
{
    ForEachElement(parent, [&](pugi::xml_node child) { ReadElement(table, target, child); });
}
