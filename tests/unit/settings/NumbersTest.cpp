#include "tmgmt/settings/rules/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

using TMgmt::leadingInteger;
using TMgmt::leadingReal;

struct RealCase
{
    const wchar_t* text;
    double number;
};

TEST(LeadingReal, readsTheNumberThatTheTextBeginsWith)
{
    const RealCase cases[] = {
        {L"0", 0},       {L"12", 12},        {L"12.50", 12.5}, {L".5", 0.5},    {L"5.", 5},      {L"-0.1", -0.1},
        {L"+7", 7},      {L"5e2", 500},      {L"5E-1", 0.5},   {L"12pt", 12},   {L"  3", 3},     {L"\t\n3", 3},
        {L"3 4", 3},     {L"1,5", 1},        {L"12e", 12},     {L"12e+", 12},   {L"1.2.3", 1.2}, {L"0x10", 0},
        {L"1000", 1000}, {L"007.250", 7.25}, {L"1e-400", 0},   {L"4\u00BD", 4},
    };
    for (const RealCase& c : cases)
    {
        const auto number = leadingReal(c.text);
        ASSERT_TRUE(number.has_value()) << testing::PrintToString(std::wstring(c.text));
        EXPECT_DOUBLE_EQ(*number, c.number) << testing::PrintToString(std::wstring(c.text));
    }
}

TEST(LeadingReal, isInfiniteBeyondTheRangeOfDouble)
{
    EXPECT_EQ(leadingReal(L"1e400"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(leadingReal(L"-1e400"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(leadingReal(std::wstring(400, L'9')), std::numeric_limits<double>::infinity());
    EXPECT_EQ(leadingReal(L"1e+99999999999999999999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(leadingReal(L"0.001e400"), std::numeric_limits<double>::infinity());
}

TEST(LeadingReal, isZeroBelowTheRangeOfDouble)
{
    EXPECT_EQ(leadingReal(L"1e-400"), 0);
    EXPECT_EQ(leadingReal(L"1e-99999999999999999999"), 0);
    EXPECT_EQ(leadingReal(L"0." + std::wstring(400, L'0') + L"1"), 0);
    EXPECT_EQ(leadingReal(L"1000e-400"), 0);
}

TEST(LeadingReal, isAbsentWhereTheTextBeginsWithNone)
{
    for (const wchar_t* text : {L"", L" ", L"abc", L"pt12", L"-", L"+", L"+-1", L"-+1", L".", L"e5", L",5", L"nan",
                                L"inf", L"infinity", L"\u0661", L"\uFF11"})
    {
        EXPECT_FALSE(leadingReal(text).has_value()) << testing::PrintToString(std::wstring(text));
    }
}

struct IntegerCase
{
    const wchar_t* text;
    int number;
};

TEST(LeadingInteger, readsTheNumberThatTheTextBeginsWithAndElseGivesZero)
{
    const IntegerCase cases[] = {
        {L"", 0},    {L"abc", 0}, {L"50", 50},   {L"0050", 50},  {L"  42", 42}, {L"-7", -7},    {L"+7", 7},
        {L"+-7", 0}, {L"- 7", 0}, {L"12.9", 12}, {L"12abc", 12}, {L"1e3", 1},   {L"\u0661", 0}, {L"0x1F", 0},
    };
    for (const IntegerCase& c : cases)
    {
        EXPECT_EQ(leadingInteger(c.text), c.number) << testing::PrintToString(std::wstring(c.text));
    }
}

TEST(LeadingInteger, staysWithinTheRangeOfInt)
{
    EXPECT_EQ(leadingInteger(L"2147483647"), std::numeric_limits<int>::max());
    EXPECT_EQ(leadingInteger(L"2147483648"), std::numeric_limits<int>::max());
    EXPECT_EQ(leadingInteger(L"99999999999999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(leadingInteger(L"-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(leadingInteger(L"-99999999999"), std::numeric_limits<int>::min());
}

} // namespace
