#include "XmlReader.h"

#include "Utf.h"
#include "XmlText.h"
#include "brimlow/system/Exception.h"

#include <algorithm>
#include <new>
#include <optional>
#include <vector>

namespace Core
{

namespace
{

constexpr std::string_view utf8ByteOrderMark = "\xEF\xBB\xBF";

// Deeper files are not settings but attempts to exhaust somebody's stack.
constexpr int maxDepth = 200;

class XmlReader
{
  public:
    XmlReader(const String& path, std::string_view content, pugi::xml_document& document)
        : m_path(path), m_text(toUtf8(content)), m_document(document)
    {
    }

    void read()
    {
        checkCharacters();
        parse();
        checkNodes();
        checkTopLevel();
    }

  private:
    [[noreturn]] void fail(std::size_t offset, const String& reason) const
    {
        const std::string_view before = std::string_view(m_text).substr(0, offset);
        const auto line = std::count(before.begin(), before.end(), '\n') + 1;
        const std::string_view inLine = before.substr(before.rfind('\n') + 1);
        const auto column =
            std::count_if(inLine.begin(), inLine.end(), [](char unit) { return (unit & 0xC0) != 0x80; });
        throw FileFormatException(m_path, static_cast<std::size_t>(line), static_cast<std::size_t>(column) + 1, reason);
    }

    std::string toUtf8(std::string_view content) const
    {
        const auto begins = [&](std::string_view start) { return content.starts_with(start); };
        using namespace std::string_view_literals;
        if (begins(utf8ByteOrderMark))
        {
            return std::string(content.substr(utf8ByteOrderMark.size()));
        }
        if (begins("\xFF\xFE"sv))
        {
            return fromUtf16(content.substr(2), 1);
        }
        if (begins("\xFE\xFF"sv))
        {
            return fromUtf16(content.substr(2), 0);
        }
        // Without a mark, but the file begins with "<" in two bytes.
        if (begins("<\0"sv))
        {
            return fromUtf16(content, 1);
        }
        if (begins("\0<"sv))
        {
            return fromUtf16(content, 0);
        }
        return std::string(content);
    }

    // highByte: which byte of a pair is the more significant one.
    std::string fromUtf16(std::string_view content, std::size_t highByte) const
    {
        if (content.size() % 2 != 0)
        {
            throw FileFormatException(m_path, 1, 1, L"the file is UTF-16 but ends in the middle of a character.");
        }
        std::u16string units;
        units.reserve(content.size() / 2);
        for (std::size_t at = 0; at < content.size(); at += 2)
        {
            const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(content[at + index]); };
            units += static_cast<char16_t>(byte(highByte) << 8 | byte(1 - highByte));
        }
        std::string text;
        text.reserve(units.size());
        for (std::size_t at = 0; at < units.size();)
        {
            const DecodedCharacter next = decodeUtf16(std::u16string_view(units), at);
            // What is invalid becomes a byte that UTF-8 never has, for checkCharacters to find in its place.
            next.valid ? appendUtf8(text, next.character) : text.push_back('\xFF');
            at += next.length;
        }
        return text;
    }

    void checkCharacters() const
    {
        for (std::size_t at = 0; at < m_text.size();)
        {
            const DecodedCharacter next = decodeUtf8(m_text, at);
            if (!next.valid)
            {
                fail(at, L"the file is neither UTF-8 nor UTF-16 here.");
            }
            if (!isXmlCharacter(next.character))
            {
                fail(at, L"there is a character here that XML does not allow.");
            }
            at += next.length;
        }
    }

    void parse()
    {
        // parse_fragment keeps text outside the root element, so that it can be refused instead of being lost.
        constexpr unsigned int keepAll = pugi::parse_comments | pugi::parse_pi | pugi::parse_declaration |
                                         pugi::parse_doctype | pugi::parse_cdata | pugi::parse_ws_pcdata |
                                         pugi::parse_fragment;
        const pugi::xml_parse_result result =
            m_document.load_buffer(m_text.data(), m_text.size(), keepAll, pugi::encoding_utf8);
        const auto offset = static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0));
        if (result.status == pugi::status_bad_doctype)
        {
            refuseDocumentType(offset);
        }
        if (result.status == pugi::status_out_of_memory)
        {
            throw std::bad_alloc();
        }
        if (!result)
        {
            fail(offset, describe(result.status));
        }
    }

    static String describe(pugi::xml_parse_status status)
    {
        switch (status)
        {
        case pugi::status_bad_pi:
            return L"the processing instruction or declaration is malformed.";
        case pugi::status_bad_comment:
            return L"the comment is not closed.";
        case pugi::status_bad_cdata:
            return L"the CDATA section is not closed.";
        case pugi::status_bad_start_element:
            return L"the start tag is malformed.";
        case pugi::status_bad_attribute:
            return L"the attribute is malformed.";
        case pugi::status_bad_end_element:
            return L"the end tag is malformed.";
        case pugi::status_end_element_mismatch:
            return L"the end tag does not match the start tag, or is missing.";
        default:
            return L"this is not XML.";
        }
    }

    // offset is somewhere in the declaration.
    [[noreturn]] void refuseDocumentType(std::size_t offset) const
    {
        fail(m_text.rfind("<!DOCTYPE", offset),
             L"a document type declaration (DOCTYPE) is not allowed in a configuration file. Remove it.");
    }

    void checkNodes()
    {
        int depth = 0;
        for (pugi::xml_node node = m_document.first_child(); node;)
        {
            checkNode(node);
            if (node.first_child())
            {
                node = node.first_child();
                if (++depth > maxDepth)
                {
                    fail(offsetOf(node), L"the elements are nested too deeply.");
                }
                continue;
            }
            while (node && !node.next_sibling())
            {
                node = node.parent();
                --depth;
            }
            node = node.next_sibling();
        }
    }

    void checkNode(const pugi::xml_node& node)
    {
        switch (node.type())
        {
        case pugi::node_doctype:
            refuseDocumentType(offsetOf(node));
        case pugi::node_element:
        case pugi::node_declaration:
            checkAttributes(node);
            break;
        case pugi::node_pcdata:
            checkReferences(node.value(), offsetOf(node));
            break;
        case pugi::node_comment:
            checkComment(node);
            break;
        default:
            break;
        }
    }

    void checkComment(const pugi::xml_node& node) const
    {
        const std::string_view text = node.value();
        const std::size_t hyphens = text.find("--");
        if (hyphens != std::string_view::npos)
        {
            fail(offsetOf(node) + hyphens, L"a comment must not contain \"--\".");
        }
        if (text.ends_with('-'))
        {
            fail(offsetOf(node) + text.size(), L"a comment must not end with \"--->\".");
        }
    }

    void checkAttributes(const pugi::xml_node& node)
    {
        std::vector<std::string_view> names;
        for (pugi::xml_attribute attribute : node.attributes())
        {
            const std::string_view value = attribute.value();
            const std::size_t offset = offsetOf(node, attribute);
            if (value.find('<') != std::string_view::npos)
            {
                fail(offset + value.find('<'), L"the character \"<\" must be written as \"&lt;\" in an attribute.");
            }
            checkReferences(value, offset);
            names.push_back(attribute.name());
            if (value.find('"') != std::string_view::npos)
            {
                fitForDoubleQuotes(attribute);
            }
        }
        std::sort(names.begin(), names.end());
        const auto twice = std::adjacent_find(names.begin(), names.end());
        if (twice != names.end())
        {
            fail(offsetOf(node), L"the attribute \"" + String::fromUtf8(*twice) + L"\" occurs twice in one tag.");
        }
    }

    // A value that stood in single quotes.
    static void fitForDoubleQuotes(pugi::xml_attribute& attribute)
    {
        std::string quoted;
        for (const char unit : std::string_view(attribute.value()))
        {
            unit == '"' ? quoted.append("&quot;") : quoted.append(1, unit);
        }
        setValue(attribute, quoted);
    }

    static void setValue(pugi::xml_attribute& attribute, const std::string& value)
    {
        if (!attribute.set_value(value.c_str()))
        {
            throw std::bad_alloc();
        }
    }

    void checkReferences(std::string_view raw, std::size_t offset) const
    {
        const std::size_t bad = findBadReference(raw);
        if (bad != std::string_view::npos)
        {
            fail(offset + bad, L"\"&\" must begin one of the references of XML, or be written as \"&amp;\".");
        }
    }

    void checkTopLevel()
    {
        std::optional<std::size_t> root;
        for (pugi::xml_node node : m_document.children())
        {
            const pugi::xml_node_type type = node.type();
            if (type == pugi::node_declaration)
            {
                if (node != m_document.first_child())
                {
                    fail(offsetOf(node), L"the XML declaration must stand at the very beginning.");
                }
                checkEncoding(node);
            }
            else if (type == pugi::node_element)
            {
                if (root)
                {
                    fail(offsetOf(node), L"there is a second root element.");
                }
                root = offsetOf(node);
            }
            else if (type == pugi::node_cdata || (type == pugi::node_pcdata && !isXmlSpace(node.value())))
            {
                fail(offsetOf(node), L"there is text outside the root element.");
            }
        }
        if (!root)
        {
            fail(m_text.size(), L"there is no root element.");
        }
    }

    // Makes the declaration true for the file as it will be written.
    void checkEncoding(const pugi::xml_node& declaration)
    {
        pugi::xml_attribute attribute = declaration.attribute("encoding");
        std::string name = attribute.value();
        std::transform(name.begin(), name.end(), name.begin(),
                       [](char unit) { return unit >= 'A' && unit <= 'Z' ? static_cast<char>(unit | 0x20) : unit; });
        if (!attribute || name == "utf-8")
        {
            return;
        }
        for (const char* readable : {"utf-16", "utf-16le", "utf-16be", "us-ascii"})
        {
            if (name == readable)
            {
                setValue(attribute, "utf-8");
                return;
            }
        }
        fail(offsetOf(declaration, attribute), L"the encoding \"" + String::fromUtf8(attribute.value()) +
                                                   L"\" is not supported. Save the file as UTF-8.");
    }

    // Offsets of nodes as the reader finds them: of their name or, for those without one, of their text.
    static std::size_t offsetOf(const pugi::xml_node& node)
    {
        return static_cast<std::size_t>(std::max<std::ptrdiff_t>(node.offset_debug(), 0));
    }

    // Name and values of one tag lie in one buffer.
    static std::size_t offsetOf(const pugi::xml_node& node, const pugi::xml_attribute& attribute)
    {
        return offsetOf(node) + static_cast<std::size_t>(attribute.value() - node.name());
    }

    const String& m_path;
    const std::string m_text;
    pugi::xml_document& m_document;
};

} // namespace

void readXml(const String& path, std::string_view content, pugi::xml_document& document)
{
    XmlReader(path, content, document).read();
}

bool hasUtf8ByteOrderMark(std::string_view content) noexcept
{
    return content.starts_with(utf8ByteOrderMark);
}

} // namespace Core
