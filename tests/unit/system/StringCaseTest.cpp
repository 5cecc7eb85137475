#include "PrintTo.h"
#include "brimlow/system/String.h"

#include <gtest/gtest.h>

using Core::String;

namespace
{

TEST(StringCase, IsMappedInEveryScriptThatHasIt)
{
    const struct
    {
        const char16_t* lower;
        const char16_t* upper;
    } cases[] = {
        {u"", u""},
        {u"frutiger 55-roman_\u00A0", u"FRUTIGER 55-ROMAN_\u00A0"},
        {u"azAZ@[`{", u"AZAZ@[`{"},
        {u"\u00E4\u00F6\u00FC\u00E9\u00FE\u00FF", u"\u00C4\u00D6\u00DC\u00C9\u00DE\u0178"}, // Latin
        {u"\u0105\u010D\u0133\u017E\u01DD\u0259", u"\u0104\u010C\u0132\u017D\u018E\u018F"}, // Latin, extended
        {u"\u1EA1\u1EF9\u2C61\uA723", u"\u1EA0\u1EF8\u2C60\uA722"},                         // Latin, further
        {u"\u03B1\u03C9\u03AC\u1F00", u"\u0391\u03A9\u0386\u1F08"},                         // Greek
        {u"\u0430\u044F\u0451\u045F\u0491", u"\u0410\u042F\u0401\u040F\u0490"},             // Cyrillic
        {u"\u0561\u0586", u"\u0531\u0556"},                                                 // Armenian
        {u"\u10D0\u10FA", u"\u1C90\u1CBA"},                                                 // Georgian
        {u"\u2170\u24D0\uFF41", u"\u2160\u24B6\uFF21"},                                     // numerals, circled, wide
        {u"\U00010428\U0001044F\U000104D8\U0001E922", u"\U00010400\U00010427\U000104B0\U0001E900"},   // pairs of units
        {u"\u4E2D\u6587 \u05E9\u05DC \U0001F600 12,-", u"\u4E2D\u6587 \u05E9\u05DC \U0001F600 12,-"}, // no case
    };
    for (const auto& [lower, upper] : cases)
    {
        EXPECT_EQ(String(upper), String(lower).toUpper());
        EXPECT_EQ(String(upper), String(upper).toUpper());
        EXPECT_EQ(String(String(lower).toLower()), String(upper).toLower());
    }
}

TEST(StringCase, IsLowerWhereItWasUpper)
{
    EXPECT_EQ(String(u"bold \u00E4\u03C9\u044F\U00010428"), String(u"BoLD \u00C4\u03A9\u042F\U00010400").toLower());
}

// One character for one: the length never changes.
TEST(StringCase, LeavesAloneWhatWouldTakeSeveralCharacters)
{
    EXPECT_EQ(String(u"STRA\u00DFE"), String(u"Stra\u00DFe").toUpper());
    EXPECT_EQ(String(u"\uFB01\u0149\u01F0\u1F50"), String(u"\uFB01\u0149\u01F0\u1F50").toUpper());
    EXPECT_EQ(String(u"i"), String(u"\u0130").toLower());
}

TEST(StringCase, KnowsNoLocale)
{
    EXPECT_EQ(String(u"ITALIC"), String(u"italic").toUpper());
    EXPECT_EQ(String(u"italic"), String(u"ITALIC").toLower());
    EXPECT_EQ(String(u"\u03C3\u03C3"), String(u"\u03A3\u03A3").toLower()) << "no final sigma either";
}

TEST(StringCase, TakesEveryCharacterThatSharesAnUpperCaseThere)
{
    EXPECT_EQ(String(u"\u03A3\u03A3"), String(u"\u03C3\u03C2").toUpper());
    EXPECT_EQ(String(u"\u01C4\u01C4"), String(u"\u01C5\u01C6").toUpper());
    EXPECT_EQ(String(u"S\u039C"), String(u"\u017F\u00B5").toUpper());
}

TEST(StringCase, KeepsUnpairedSurrogatesAndZeros)
{
    const char16_t units[] = {u'a', 0xD801, u'b', 0xDC28, 0, u'c'};
    const char16_t upper[] = {u'A', 0xD801, u'B', 0xDC28, 0, u'C'};
    EXPECT_EQ(String(std::u16string_view(upper, 6)), String(std::u16string_view(units, 6)).toUpper());
    EXPECT_EQ(String(std::u16string_view(units, 6)), String(std::u16string_view(upper, 6)).toLower());
}

TEST(StringCase, DoesNotChangeASecondTimeAndKeepsTheLength)
{
    for (char32_t code = 1; code <= 0x1FFFF; ++code)
    {
        const char16_t units[] = {
            static_cast<char16_t>(code < 0x10000 ? code : 0xD800 + ((code - 0x10000) >> 10)),
            static_cast<char16_t>(code < 0x10000 ? 0 : 0xDC00 + (code & 0x3FF)),
        };
        const String text(std::u16string_view(units, code < 0x10000 ? 1 : 2));
        const String upper = text.toUpper();
        const String lower = text.toLower();
        ASSERT_EQ(text.length(), upper.length()) << std::hex << static_cast<std::uint32_t>(code);
        ASSERT_EQ(text.length(), lower.length()) << std::hex << static_cast<std::uint32_t>(code);
        ASSERT_EQ(upper, upper.toUpper()) << std::hex << static_cast<std::uint32_t>(code);
        ASSERT_EQ(lower, lower.toLower()) << std::hex << static_cast<std::uint32_t>(code);
    }
}

} // namespace
