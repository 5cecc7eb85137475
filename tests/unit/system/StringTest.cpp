#include "brimlow/system/String.h"
#include "PrintTo.h"

#include <gtest/gtest.h>

#include <unordered_set>

using Core::String;

namespace
{

TEST(String, LengthCountsUtf16Units)
{
    EXPECT_EQ(0u, String().length());
    EXPECT_EQ(3u, String(L"abc").length());
    EXPECT_EQ(2u, String(L"\U0001F600").length());
    EXPECT_EQ(2u, String(u"\U0001F600").length());
}

TEST(String, NullPointerIsTheEmptyText)
{
    const wchar_t* wide = nullptr;
    const char16_t* units = nullptr;
    EXPECT_TRUE(String(wide).empty());
    EXPECT_TRUE(String(units).empty());
}

TEST(String, AllSourcesGiveTheSameText)
{
    const String expected = L"Gr\u00FC\u00DFe \U0001F600";
    EXPECT_EQ(expected, String(u"Gr\u00FC\u00DFe \U0001F600"));
    EXPECT_EQ(expected, String(std::wstring(L"Gr\u00FC\u00DFe \U0001F600")));
    EXPECT_EQ(expected, String(std::u16string(u"Gr\u00FC\u00DFe \U0001F600")));
    EXPECT_EQ(expected, String::fromUtf8("Gr\xC3\xBC\xC3\x9F"
                                         "e \xF0\x9F\x98\x80"));
}

TEST(String, GoesToWideAndBack)
{
    EXPECT_EQ(std::wstring(L"a\u20AC\U0001F600"), String(L"a\u20AC\U0001F600").str());
}

TEST(String, GoesToUtf8)
{
    EXPECT_EQ("a\xC2\x80\xE2\x82\xAC\xF0\x9F\x98\x80", String(u"a\u0080\u20AC\U0001F600").toUtf8());
}

TEST(String, UnpairedSurrogatesStayInTheText)
{
    const char16_t units[] = {u'a', 0xD83D, u'b', 0xDE00, 0};
    const String text = units;
    ASSERT_EQ(4u, text.length());
    EXPECT_EQ(0xD83D, text[1]);
    EXPECT_EQ(text, String(text.str()));
}

TEST(String, Utf8HasReplacementCharactersForUnpairedSurrogates)
{
    const char16_t units[] = {u'a', 0xD83D, u'b', 0xDE00, 0};
    EXPECT_EQ("a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD",
              String(units).toUtf8());
}

TEST(String, InvalidUtf8IsReadAsReplacementCharacters)
{
    const struct
    {
        std::string_view bytes;
        const char16_t* text;
    } cases[] = {
        {"\x80", u"\uFFFD"},                               // continuation without a start
        {"a\xC3", u"a\uFFFD"},                             // cut off
        {"\xC0\xAF", u"\uFFFD\uFFFD"},                     // overlong
        {"\xE0\x80\x80", u"\uFFFD\uFFFD\uFFFD"},           // overlong
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},           // surrogate
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // above U+10FFFF
        {"\xFF"
         "b",
         u"\uFFFD"
         u"b"},
    };
    for (const auto& [bytes, text] : cases)
    {
        EXPECT_EQ(String(text), String::fromUtf8(bytes)) << testing::PrintToString(bytes);
    }
}

TEST(String, ComparesUnitByUnit)
{
    EXPECT_TRUE(String(L"a") == L"a");
    EXPECT_FALSE(String(L"a") == L"A");
    EXPECT_TRUE(String(L"Z") < String(L"a"));
    EXPECT_TRUE(String(L"a") < String(L"ab"));
    EXPECT_TRUE(String(L"z") < String(L"\u00E4"));
    EXPECT_EQ(std::strong_ordering::equal, String(L"x") <=> String(L"x"));
}

TEST(String, Appends)
{
    String text = L"a";
    text += L"b";
    text += String();
    EXPECT_EQ(String(L"abc"), text + L"c");
    EXPECT_EQ(String(L"ab"), text);
    EXPECT_EQ(&text, &text.append(L"\\"));
    EXPECT_EQ(String(L"ab\\"), text);
}

TEST(String, KeepsZeros)
{
    const String text(std::wstring_view(L"a\0b", 3));
    EXPECT_EQ(3u, text.length());
    EXPECT_EQ(std::string("a\0b", 3), text.toUtf8());
}

TEST(String, EqualTextsHashAlike)
{
    std::unordered_set<String> texts{L"a", L"b", L"a"};
    EXPECT_EQ(2u, texts.size());
    EXPECT_TRUE(texts.contains(L"b"));
}

} // namespace
