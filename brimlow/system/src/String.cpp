#include "brimlow/system/String.h"

#include "CaseMapping.h"
#include "Utf.h"

namespace Core
{

namespace
{

template <class View>
std::basic_string<Char> toUnits(View text)
{
    if constexpr (sizeof(typename View::value_type) == sizeof(Char))
    {
        return {text.begin(), text.end()};
    }
    else
    {
        std::basic_string<Char> units;
        units.reserve(text.size());
        for (const auto character : text)
        {
            const auto code = static_cast<char32_t>(character);
            appendUtf16(units, code <= 0x10FFFF ? code : replacementCharacter);
        }
        return units;
    }
}

std::basic_string<Char> mapped(String::View text, char32_t (*map)(char32_t) noexcept)
{
    std::basic_string<Char> units;
    units.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
    {
        const DecodedCharacter next = decodeUtf16(text, at);
        appendUtf16(units, map(next.character));
        at += next.length;
    }
    return units;
}

} // namespace

String::String(const wchar_t* text) : String(text ? std::wstring_view(text) : std::wstring_view()) {}

String::String(const std::wstring& text) : String(std::wstring_view(text)) {}

String::String(std::wstring_view text) : m_text(toUnits(text)) {}

String::String(const char16_t* text) : String(text ? std::u16string_view(text) : std::u16string_view()) {}

String::String(const std::u16string& text) : String(std::u16string_view(text)) {}

String::String(std::u16string_view text) : m_text(toUnits(text)) {}

String String::fromUtf8(std::string_view text)
{
    String result;
    result.m_text.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
    {
        const DecodedCharacter next = decodeUtf8(text, at);
        appendUtf16(result.m_text, next.character);
        at += next.length;
    }
    return result;
}

std::string String::toUtf8() const
{
    std::string result;
    result.reserve(m_text.size());
    for (std::size_t at = 0; at < m_text.size();)
    {
        const DecodedCharacter next = decodeUtf16(view(), at);
        appendUtf8(result, next.valid ? next.character : replacementCharacter);
        at += next.length;
    }
    return result;
}

std::wstring String::str() const
{
    std::wstring result;
    result.reserve(m_text.size());
    for (std::size_t at = 0; at < m_text.size();)
    {
        if constexpr (sizeof(wchar_t) == sizeof(Char))
        {
            result += static_cast<wchar_t>(m_text[at++]);
        }
        else
        {
            const DecodedCharacter next = decodeUtf16(view(), at);
            result += static_cast<wchar_t>(next.character);
            at += next.length;
        }
    }
    return result;
}

String String::toUpper() const
{
    return String(View(mapped(view(), upperCase)));
}

String String::toLower() const
{
    return String(View(mapped(view(), lowerCase)));
}

String String::replaceAll(const String& text, const String& replacement) const
{
    if (text.empty())
    {
        return *this;
    }
    String result;
    std::size_t begin = 0;
    for (std::size_t at = find(text); at != npos; at = find(text, begin))
    {
        result.m_text.append(m_text, begin, at - begin).append(replacement.m_text);
        begin = at + text.length();
    }
    result.m_text.append(m_text, begin);
    return result;
}

std::vector<String> String::split(const String& separator) const
{
    std::vector<String> pieces;
    if (empty())
    {
        return pieces;
    }
    std::size_t begin = 0;
    if (!separator.empty())
    {
        for (std::size_t at = find(separator); at != npos; at = find(separator, begin))
        {
            pieces.emplace_back(view().substr(begin, at - begin));
            begin = at + separator.length();
        }
    }
    pieces.emplace_back(view().substr(begin));
    return pieces;
}

String& String::append(const String& more)
{
    m_text += more.m_text;
    return *this;
}

} // namespace Core
