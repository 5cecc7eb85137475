#include "Utf.h"

namespace Core
{

DecodedCharacter decodeUtf8(std::string_view text, std::size_t at) noexcept
{
    const auto byte = [&](std::size_t index) -> char32_t
    { return at + index < text.size() ? static_cast<unsigned char>(text[at + index]) : 0; };
    const char32_t first = byte(0);
    if (first < 0x80)
    {
        return {first, 1, true};
    }
    constexpr DecodedCharacter invalid{replacementCharacter, 1, false};
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4)
    {
        return invalid;
    }
    // What remains of the first byte is 5, 4 or 3 bits.
    char32_t character = first & (0x7Fu >> length);
    for (std::size_t index = 1; index < length; ++index)
    {
        if ((byte(index) & 0xC0) != 0x80)
        {
            return invalid;
        }
        character = (character << 6) | (byte(index) & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = isHighSurrogate(character) || isLowSurrogate(character);
    if (character < smallest[length] || character > 0x10FFFF || surrogate)
    {
        return invalid;
    }
    return {character, length, true};
}

void appendUtf8(std::string& text, char32_t character)
{
    const auto put = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (character < 0x80)
    {
        put(character);
    }
    else if (character < 0x800)
    {
        put(0xC0 | (character >> 6));
        put(0x80 | (character & 0x3F));
    }
    else if (character < 0x10000)
    {
        put(0xE0 | (character >> 12));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    }
    else
    {
        put(0xF0 | (character >> 18));
        put(0x80 | ((character >> 12) & 0x3F));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

void appendUtf16(std::basic_string<Char>& text, char32_t character)
{
    if (character < 0x10000)
    {
        text += static_cast<Char>(character);
        return;
    }
    text += static_cast<Char>(0xD800 + ((character - 0x10000) >> 10));
    text += static_cast<Char>(0xDC00 + ((character - 0x10000) & 0x3FF));
}

} // namespace Core
