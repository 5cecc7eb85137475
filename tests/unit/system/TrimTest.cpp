#include "brimlow/system/trim.h"
#include "PrintTo.h"

#include <gtest/gtest.h>

#include <algorithm>

using Core::String;

namespace
{

TEST(Trim, TakesTheBlanksAtBothEnds)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* trimmed;
    } cases[] = {
        {L"", L""},
        {L" ", L""},
        {L" \t\r\n\v\f ", L""},
        {L"text", L"text"},
        {L" text", L"text"},
        {L"text ", L"text"},
        {L"\r\n two words\t", L"two words"},
        {L"a", L"a"},
        {L" a ", L"a"},
        // No blanks: the zero-width ones, and what only looks like one.
        {L"\u200B", L"\u200B"},
        {L"\uFEFFa", L"\uFEFFa"},
        {L"\u2800", L"\u2800"},
    };
    for (const auto& [text, trimmed] : cases)
    {
        EXPECT_EQ(String(trimmed), Core::trim(text)) << String(text).toUtf8();
    }
}

// The characters with the property White_Space, as the Unicode Character Database has them in PropList.txt.
TEST(Trim, KnowsTheBlanksOfEveryWidth)
{
    const char16_t ranges[][2] = {{0x9, 0xD},       {0x20, 0x20},     {0x85, 0x85},     {0xA0, 0xA0},
                                  {0x1680, 0x1680}, {0x2000, 0x200A}, {0x2028, 0x2029}, {0x202F, 0x202F},
                                  {0x205F, 0x205F}, {0x3000, 0x3000}};
    for (unsigned unit = 1; unit < 0x10000; ++unit)
    {
        const bool isBlank =
            std::ranges::any_of(ranges, [=](const auto& range) { return unit >= range[0] && unit <= range[1]; });
        const String character(std::u16string(1, static_cast<char16_t>(unit)));
        EXPECT_EQ(isBlank ? String(L"a") : character + (L"a" + character), Core::trim(character + (L"a" + character)))
            << std::hex << unit;
    }
}

} // namespace
