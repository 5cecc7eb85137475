#include "XmlText.h"

#include "Utf.h"

#include <optional>
#include <utility>

namespace Core
{

namespace
{

struct Reference
{
    char32_t character;
    std::size_t length; // from "&" to ";"
};

constexpr std::pair<std::string_view, char32_t> namedReferences[] = {
    {"&lt;", U'<'}, {"&gt;", U'>'}, {"&amp;", U'&'}, {"&quot;", U'"'}, {"&apos;", U'\''}};

std::optional<Reference> readNumber(std::string_view raw, std::size_t digitsAt, char32_t base) noexcept
{
    char32_t number = 0;
    for (std::size_t at = digitsAt; at < raw.size(); ++at)
    {
        const char unit = raw[at];
        if (unit == ';' && at > digitsAt && isXmlCharacter(number))
        {
            return Reference{number, at + 1};
        }
        const bool isDigit = unit >= '0' && unit <= '9';
        const bool isLetter = (unit >= 'a' && unit <= 'f') || (unit >= 'A' && unit <= 'F');
        if (!isDigit && !(isLetter && base == 16))
        {
            break;
        }
        number = number * base + static_cast<char32_t>(isDigit ? unit - '0' : (unit | 0x20) - 'a' + 10);
        if (number > 0x10FFFF)
        {
            break;
        }
    }
    return std::nullopt;
}

// Reads the reference that raw begins with.
std::optional<Reference> readReference(std::string_view raw) noexcept
{
    if (raw.starts_with("&#x"))
    {
        return readNumber(raw, 3, 16);
    }
    if (raw.starts_with("&#"))
    {
        return readNumber(raw, 2, 10);
    }
    for (const auto& [text, character] : namedReferences)
    {
        if (raw.starts_with(text))
        {
            return Reference{character, text.size()};
        }
    }
    return std::nullopt;
}

} // namespace

bool isXmlSpace(std::string_view text) noexcept
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::size_t findBadReference(std::string_view raw) noexcept
{
    for (std::size_t at = raw.find('&'); at != std::string_view::npos; at = raw.find('&', at + 1))
    {
        if (!readReference(raw.substr(at)))
        {
            return at;
        }
    }
    return std::string_view::npos;
}

String decodeAttribute(std::string_view raw)
{
    std::string value;
    value.reserve(raw.size());
    for (std::size_t at = 0; at < raw.size();)
    {
        const char unit = raw[at];
        if (unit == '&')
        {
            if (const auto reference = readReference(raw.substr(at)))
            {
                appendUtf8(value, reference->character);
                at += reference->length;
                continue;
            }
        }
        const bool isSpace = unit == '\t' || unit == '\n' || unit == '\r';
        value += isSpace ? ' ' : unit;
        at += raw.substr(at).starts_with("\r\n") ? 2 : 1;
    }
    return String::fromUtf8(value);
}

std::string encodeAttribute(const String& value)
{
    std::string raw;
    for (const char unit : value.toUtf8())
    {
        switch (unit)
        {
        case '<':
            raw += "&lt;";
            break;
        case '>':
            raw += "&gt;";
            break;
        case '&':
            raw += "&amp;";
            break;
        case '"':
            raw += "&quot;";
            break;
        case '\t':
            raw += "&#9;";
            break;
        case '\n':
            raw += "&#10;";
            break;
        case '\r':
            raw += "&#13;";
            break;
        default:
            raw += unit;
        }
    }
    return raw;
}

} // namespace Core
