#pragma once

#include <compare>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Core
{

// One UTF-16 code unit. On Windows that is the system's own wide character, so c_str() goes to the API as it is.
#ifdef _WIN32
using Char = wchar_t;
#else
using Char = char16_t;
#endif

// A text in UTF-16, held by value. Any sequence of units is allowed, unpaired surrogates and zeros included.
// Comparison is ordinal: unit by unit, no locale, case counts.
class String
{
  public:
    using View = std::basic_string_view<Char>;

    String() noexcept = default;
    // A null pointer gives the empty text.
    String(const wchar_t* text);
    String(const std::wstring& text);
    String(std::wstring_view text);
    String(const char16_t* text);
    String(const std::u16string& text);
    String(std::u16string_view text);

    // What is not valid UTF-8 is read as U+FFFD, one for each byte that cannot be used.
    static String fromUtf8(std::string_view text);
    // Unpaired surrogates, which UTF-8 has no form for, are written as U+FFFD.
    std::string toUtf8() const;
    // The text as the compiler's wide string: the same units on Windows, UTF-32 elsewhere.
    std::wstring str() const;

    const Char* c_str() const noexcept { return m_text.c_str(); }
    View view() const noexcept { return m_text; }
    // In UTF-16 units.
    std::size_t length() const noexcept { return m_text.size(); }
    bool empty() const noexcept { return m_text.empty(); }
    Char operator[](std::size_t index) const noexcept { return m_text[index]; }

    // The same text in upper or lower case, by the simple mappings of Unicode: every character has one counterpart or
    // stays as it is ("\u00DF" does), so the length does not change. No locale takes part, and the result is the same
    // on every system.
    String toUpper() const;
    String toLower() const;

    // Searches compare as == does. An empty text is found everywhere.
    bool startsWith(const String& beginning) const noexcept { return view().starts_with(beginning.view()); }
    // Where text occurs for the first time at or after the unit number from; npos when it does not.
    std::size_t find(const String& text, std::size_t from = 0) const noexcept { return view().find(text.view(), from); }
    // Where the first unit is that is one of these; npos when there is none.
    std::size_t findOneOf(const String& units) const noexcept { return view().find_first_of(units.view()); }
    static constexpr std::size_t npos = View::npos;
    // The text with every occurrence replaced, from left to right; what was put in is not searched again. Replacing the
    // empty text changes nothing.
    String replaceAll(const String& text, const String& replacement) const;
    // The pieces between the separators, empty ones too: "-a--b" at "-" gives "", "a", "", "b". An empty text has no
    // pieces; one without the separator, or with an empty one, is a single piece.
    std::vector<String> split(const String& separator) const;

    String& append(const String& more);
    String& operator+=(const String& more) { return append(more); }
    friend String operator+(String left, const String& right) { return std::move(left += right); }
    friend bool operator==(const String& left, const String& right) noexcept { return left.m_text == right.m_text; }
    friend std::strong_ordering operator<=>(const String& left, const String& right) noexcept
    {
        return left.m_text.compare(right.m_text) <=> 0;
    }

  private:
    std::basic_string<Char> m_text;
};

} // namespace Core

template <>
struct std::hash<Core::String>
{
    std::size_t operator()(const Core::String& text) const noexcept
    {
        return std::hash<Core::String::View>{}(text.view());
    }
};
