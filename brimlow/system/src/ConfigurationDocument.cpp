#include "ConfigurationDocument.h"

#include "XmlReader.h"
#include "XmlText.h"
#include "brimlow/system/Exception.h"

#include <new>
#include <utility>

namespace Core
{

namespace
{

constexpr const char* rootName = "configuration";
constexpr const char* sectionName = "appSettings";
constexpr const char* entryName = "add";
constexpr const char* keyName = "key";
constexpr const char* valueName = "value";

// pugixml reports that it has no memory by null nodes.
template <class Handle>
Handle made(Handle handle)
{
    if (!handle)
    {
        throw std::bad_alloc();
    }
    return handle;
}

void setAttribute(pugi::xml_node element, const char* name, const String& value)
{
    pugi::xml_attribute attribute = element.attribute(name);
    if (!attribute)
    {
        attribute = made(element.append_attribute(name));
    }
    made(attribute.set_value(encodeAttribute(value).c_str()));
}

void setText(pugi::xml_node text, const std::string& value)
{
    made(made(text).set_value(value.c_str()));
}

bool isSpace(const pugi::xml_node& node)
{
    return node.type() == pugi::node_pcdata && isXmlSpace(node.value());
}

// The line end and the blanks that bring an element to its place in its own line; empty when it does not begin a line.
std::string indentationOf(const pugi::xml_node& element)
{
    const pugi::xml_node before = element.previous_sibling();
    const std::string_view space = isSpace(before) ? before.value() : "";
    std::size_t lineEnd = space.rfind('\n');
    if (lineEnd == std::string_view::npos)
    {
        return {};
    }
    if (lineEnd > 0 && space[lineEnd - 1] == '\r')
    {
        --lineEnd;
    }
    return std::string(space.substr(lineEnd));
}

pugi::xml_node lastElement(const pugi::xml_node& parent)
{
    pugi::xml_node node = parent.last_child();
    while (node && node.type() != pugi::node_element)
    {
        node = node.previous_sibling();
    }
    return node;
}

class StringWriter final : public pugi::xml_writer
{
  public:
    void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }

    std::string text;
};

} // namespace

ConfigurationDocument::ConfigurationDocument()
{
    pugi::xml_node declaration = made(m_document.append_child(pugi::node_declaration));
    declaration.set_name("xml");
    setAttribute(declaration, "version", L"1.0");
    setAttribute(declaration, "encoding", L"utf-8");
    setText(m_document.append_child(pugi::node_pcdata), m_lineEnd);
    const pugi::xml_node root = made(m_document.append_child(rootName));
    setText(m_document.append_child(pugi::node_pcdata), m_lineEnd);
    appendElement(root, sectionName);
}

void ConfigurationDocument::read(const String& path, std::string_view content)
{
    m_hasByteOrderMark = hasUtf8ByteOrderMark(content);
    const std::size_t firstLine = content.find('\n');
    if (firstLine != std::string_view::npos)
    {
        m_lineEnd = content.substr(0, firstLine).ends_with('\r') ? "\r\n" : "\n";
    }
    const bool isEmpty = content.empty() || content == "\xEF\xBB\xBF";
    if (isEmpty)
    {
        return;
    }
    readXml(path, content, m_document);
    const pugi::xml_node element = m_document.document_element();
    if (element.name() != std::string_view(rootName))
    {
        throw FormatException(L"\"" + path + L"\" is not a configuration file: its root element is \"" +
                              String::fromUtf8(element.name()) + L"\" instead of \"configuration\".");
    }
}

std::string ConfigurationDocument::write() const
{
    StringWriter writer;
    const unsigned int mark = m_hasByteOrderMark ? pugi::format_write_bom : 0;
    m_document.save(writer, "", pugi::format_raw | pugi::format_no_escapes | pugi::format_no_declaration | mark,
                    pugi::encoding_utf8);
    return std::move(writer.text);
}

// The first entry at or after element, which is in section or is the null behind its last one.
pugi::xml_node ConfigurationDocument::entryFrom(pugi::xml_node element, pugi::xml_node section) const
{
    while (section)
    {
        for (; element; element = element.next_sibling(entryName))
        {
            if (element.attribute(keyName))
            {
                return element;
            }
        }
        section = section.next_sibling(sectionName);
        element = section.child(entryName);
    }
    return {};
}

pugi::xml_node ConfigurationDocument::firstEntry() const
{
    const pugi::xml_node section = m_document.document_element().child(sectionName);
    return entryFrom(section.child(entryName), section);
}

pugi::xml_node ConfigurationDocument::nextEntry(const pugi::xml_node& entry) const
{
    return entryFrom(entry.next_sibling(entryName), entry.parent());
}

String ConfigurationDocument::keyOf(const pugi::xml_node& entry)
{
    return decodeAttribute(entry.attribute(keyName).value());
}

String ConfigurationDocument::valueOf(const pugi::xml_node& entry)
{
    return decodeAttribute(entry.attribute(valueName).value());
}

void ConfigurationDocument::setValue(pugi::xml_node entry, const String& value)
{
    setAttribute(entry, valueName, value);
}

pugi::xml_node ConfigurationDocument::append(const String& key, const String& value)
{
    pugi::xml_node root = m_document.document_element();
    pugi::xml_node section = root.last_child();
    while (section && section.name() != std::string_view(sectionName))
    {
        section = section.previous_sibling();
    }
    if (!section)
    {
        section = appendElement(root, sectionName);
    }
    const pugi::xml_node entry = appendElement(section, entryName);
    setAttribute(entry, keyName, key);
    setAttribute(entry, valueName, value);
    return entry;
}

void ConfigurationDocument::remove(const pugi::xml_node& entry)
{
    pugi::xml_node parent = entry.parent();
    const pugi::xml_node before = entry.previous_sibling();
    if (isSpace(before))
    {
        parent.remove_child(before);
    }
    parent.remove_child(entry);
}

// What goes before a new last child of parent.
std::string ConfigurationDocument::indentationIn(const pugi::xml_node& parent) const
{
    if (const pugi::xml_node sibling = lastElement(parent))
    {
        return indentationOf(sibling);
    }
    if (parent == m_document.document_element())
    {
        return m_lineEnd + "  ";
    }
    const std::string outer = indentationOf(parent);
    return outer.empty() ? "" : outer + (outer.ends_with('\t') ? "\t" : "  ");
}

pugi::xml_node ConfigurationDocument::appendElement(pugi::xml_node parent, const char* name) const
{
    const std::string indentation = indentationIn(parent);
    pugi::xml_node closing = parent.last_child();
    if (!isSpace(closing))
    {
        closing = {};
        if (!indentation.empty())
        {
            const bool isRoot = parent == m_document.document_element();
            closing = parent.append_child(pugi::node_pcdata);
            setText(closing, isRoot ? m_lineEnd : indentationOf(parent));
        }
    }
    const pugi::xml_node element =
        made(closing ? parent.insert_child_before(name, closing) : parent.append_child(name));
    if (!indentation.empty())
    {
        setText(parent.insert_child_before(pugi::node_pcdata, element), indentation);
    }
    return element;
}

} // namespace Core
