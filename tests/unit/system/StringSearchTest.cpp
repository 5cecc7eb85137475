#include "PrintTo.h"
#include "brimlow/system/String.h"

#include <gtest/gtest.h>

#include <vector>

using Core::String;

namespace
{

TEST(StringSearch, KnowsHowATextStarts)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* beginning;
        bool starts;
    } cases[] = {
        {L"MapAlias:Arial", L"MapAlias:", true},
        {L"MapAlias:", L"MapAlias:", true},
        {L"MapAlias", L"MapAlias:", false},
        {L"mapAlias:Arial", L"MapAlias:", false},
        {L" MapAlias:", L"MapAlias:", false},
        {L"abc", L"", true},
        {L"", L"", true},
        {L"", L"a", false},
    };
    for (const auto& [text, beginning, starts] : cases)
    {
        EXPECT_EQ(starts, String(text).startsWith(beginning)) << String(text).toUtf8();
    }
}

TEST(StringSearch, FindsTheFirstOccurrenceFromAPlaceOn)
{
    const String text = L"bold-BOLD-bold";
    EXPECT_EQ(0u, text.find(L"bold"));
    EXPECT_EQ(10u, text.find(L"bold", 1));
    EXPECT_EQ(10u, text.find(L"bold", 10));
    EXPECT_EQ(String::npos, text.find(L"bold", 11));
    EXPECT_EQ(String::npos, text.find(L"bold", 100));
    EXPECT_EQ(String::npos, text.find(L"Bold"));
    EXPECT_EQ(0u, text.find(L""));
    EXPECT_EQ(14u, text.find(L"", 14));
    EXPECT_EQ(String::npos, String().find(L"a"));
}

TEST(StringSearch, FindsTheFirstUnitThatIsOneOfSeveral)
{
    EXPECT_EQ(2u, String(L"ab:c/d").findOneOf(L"\\/:"));
    EXPECT_EQ(0u, String(L"/").findOneOf(L"\\/:"));
    EXPECT_EQ(String::npos, String(L"abc").findOneOf(L"\\/:"));
    EXPECT_EQ(String::npos, String(L"abc").findOneOf(L""));
    EXPECT_EQ(String::npos, String().findOneOf(L"abc"));
}

TEST(StringSearch, ReplacesEveryOccurrence)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* searched;
        const wchar_t* replacement;
        const wchar_t* result;
    } cases[] = {
        {L"MapFont:ARIAL", L"MapFont:", L"", L"ARIAL"},
        {L"MapFont:MapFont:A MapFont:", L"MapFont:", L"", L"A "},
        {L"ARIAL", L"MapFont:", L"", L"ARIAL"},
        {L"aaaa", L"aa", L"b", L"bb"},
        {L"aaa", L"aa", L"b", L"ba"},
        {L"MapMapFont:Font:X", L"MapFont:", L"", L"MapFont:X"}, // what comes together is not searched
        {L"aba", L"a", L"aa", L"aabaa"},
        {L"abc", L"", L"x", L"abc"},
        {L"", L"a", L"x", L""},
        {L"abc", L"A", L"x", L"abc"},
    };
    for (const auto& [text, searched, replacement, result] : cases)
    {
        EXPECT_EQ(String(result), String(text).replaceAll(searched, replacement)) << String(text).toUtf8();
    }
}

TEST(StringSearch, SplitsIntoAllPieces)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* separator;
        std::vector<String> pieces;
    } cases[] = {
        {L"ARIAL-BOLD-ITALIC", L"-", {L"ARIAL", L"BOLD", L"ITALIC"}},
        {L"ARIAL", L"-", {L"ARIAL"}},
        {L"", L"-", {}},
        {L"-", L"-", {L"", L""}},
        {L"---", L"-", {L"", L"", L"", L""}},
        {L"-a--b-", L"-", {L"", L"a", L"", L"b", L""}},
        {L"a::b:c", L"::", {L"a", L"b:c"}},
        {L"a-b", L"", {L"a-b"}},
        {L"", L"", {}},
    };
    for (const auto& [text, separator, pieces] : cases)
    {
        EXPECT_EQ(pieces, String(text).split(separator)) << String(text).toUtf8();
    }
}

} // namespace
