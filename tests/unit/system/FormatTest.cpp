#include "brimlow/system/Format.h"
#include "PrintTo.h"
#include "brimlow/system/StringFormatStream.h"

#include <gtest/gtest.h>

#include <limits>

using Core::String;
using Core::StringFormatStream;

namespace
{

TEST(StringFormatStream, FillsPlaceholdersByNumber)
{
    StringFormatStream date(L"{0} {1}, {2}");
    date << L"June" << 7 << String(L"2010");
    EXPECT_EQ(String(L"June 7, 2010"), date.getString());

    StringFormatStream key(L"MapFont:{0}{1}{2}");
    key << L"ARIAL" << L"" << L"-ITALIC";
    EXPECT_EQ(String(L"MapFont:ARIAL-ITALIC"), key.getString());
}

TEST(StringFormatStream, CoversEveryFormOfPlaceholder)
{
    const struct
    {
        const wchar_t* format;
        const wchar_t* text;
    } cases[] = {
        {L"", L""},
        {L"none", L"none"},
        {L"{1}{0}", L"BA"},
        {L"{0}{0}", L"AA"},
        {L"{2}", L"{2}"},
        {L"{00}", L"A"},
        {L"{}", L"{}"},
        {L"{0", L"{0"},
        {L"{", L"{"},
        {L"0}", L"0}"},
        {L"{{0}}", L"{A}"},
        {L"{x}{ 0}{-1}{0 }", L"{x}{ 0}{-1}{0 }"},
        {L"{99999999999999999999}", L"{99999999999999999999}"},
    };
    for (const auto& [format, text] : cases)
    {
        StringFormatStream stream(format);
        stream << L"A" << L"B";
        EXPECT_EQ(String(text), stream.getString()) << String(format).toUtf8();
    }
}

TEST(StringFormatStream, DoesNotLookForPlaceholdersInArguments)
{
    StringFormatStream stream(L"{0}{1}");
    stream << L"{1}" << L"{0}";
    EXPECT_EQ(String(L"{1}{0}"), stream.getString());
}

TEST(StringFormatStream, WritesIntegersInDecimal)
{
    StringFormatStream stream(L"{0} {1}");
    stream << -12 << std::numeric_limits<int>::max();
    EXPECT_EQ(String(L"-12 2147483647"), stream.getString());
}

TEST(ParseInt, ReadsDecimalIntegers)
{
    const struct
    {
        const wchar_t* text;
        int value;
    } cases[] = {
        {L"0", 0},
        {L"-0", 0},
        {L"7", 7},
        {L"+7", 7},
        {L"007", 7},
        {L"-12", -12},
        {L"2147483647", std::numeric_limits<int>::max()},
        {L"-2147483648", std::numeric_limits<int>::min()},
        {L"0000000000000000000000000000001", 1},
    };
    for (const auto& [text, expected] : cases)
    {
        int value = 99;
        EXPECT_TRUE(Core::Format::parseInt(text, value)) << String(text).toUtf8();
        EXPECT_EQ(expected, value) << String(text).toUtf8();
    }
}

TEST(ParseInt, RefusesEverythingElseAndLeavesTheValue)
{
    const wchar_t* const cases[] = {L"",
                                    L" ",
                                    L"+",
                                    L"-",
                                    L"--1",
                                    L" 1",
                                    L"1 ",
                                    L"1.0",
                                    L"1e3",
                                    L"0x10",
                                    L"abc",
                                    L"1a",
                                    L"2147483648",
                                    L"-2147483649",
                                    L"1,000",
                                    L"\u0661",
                                    L"99999999999999999999999999999999",
                                    L"\uFF11"};
    for (const wchar_t* text : cases)
    {
        int value = 99;
        EXPECT_FALSE(Core::Format::parseInt(text, value)) << String(text).toUtf8();
        EXPECT_EQ(99, value) << String(text).toUtf8();
    }
}

} // namespace
