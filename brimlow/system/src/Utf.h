#pragma once

#include "brimlow/system/String.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Core
{

constexpr char32_t replacementCharacter = 0xFFFD;

// One character read from a text, and how many units it takes there. An invalid one is one unit long.
struct DecodedCharacter
{
    char32_t character;
    std::size_t length;
    bool valid;
};

// at is below the text's length. Refuses overlong forms, surrogates and values above U+10FFFF, as UTF-8 demands.
DecodedCharacter decodeUtf8(std::string_view text, std::size_t at) noexcept;

constexpr bool isHighSurrogate(char32_t unit) noexcept
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool isLowSurrogate(char32_t unit) noexcept
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// at is below the text's length. An unpaired surrogate is given as it is, marked invalid.
template <class View>
DecodedCharacter decodeUtf16(View text, std::size_t at) noexcept
{
    const char32_t first = text[at];
    if (isHighSurrogate(first) && at + 1 < text.size() && isLowSurrogate(text[at + 1]))
    {
        const char32_t second = text[at + 1];
        return {0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00), 2, true};
    }
    return {first, 1, !isHighSurrogate(first) && !isLowSurrogate(first)};
}

void appendUtf8(std::string& text, char32_t character);
void appendUtf16(std::basic_string<Char>& text, char32_t character);

} // namespace Core
