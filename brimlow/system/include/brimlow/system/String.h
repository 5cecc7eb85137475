#pragma once

#include <compare>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

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

    String& operator+=(const String& more);
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
