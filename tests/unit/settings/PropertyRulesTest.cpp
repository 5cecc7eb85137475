#include "tmgmt/settings/rules/PropertyRules.h"

#include <gtest/gtest.h>

namespace
{

using TMgmt::checkProperty;
using TMgmt::PropertyKind;
using TMgmt::PropertyRefusal;

std::wstring accepted(PropertyKind kind, const wchar_t* text)
{
    const auto checked = checkProperty(kind, text);
    const auto* const value = std::get_if<std::wstring>(&checked);
    return value ? *value : L"<refused>";
}

std::wstring refused(PropertyKind kind, const wchar_t* text, PropertyRefusal::Style style)
{
    const auto checked = checkProperty(kind, text);
    const auto* const refusal = std::get_if<PropertyRefusal>(&checked);
    if (!refusal)
    {
        return L"<accepted>";
    }
    EXPECT_EQ(refusal->style, style) << testing::PrintToString(std::wstring(text));
    return refusal->message;
}

// Proves: only the beginning of a number has to be one, and the text is stored as typed.
TEST(CheckProperty, keepsARealNumberAsTyped)
{
    for (const PropertyKind kind : {PropertyKind::points, PropertyKind::percentage})
    {
        for (const wchar_t* text : {L"0", L"1000", L"1000.0", L"12pt", L"5e2", L" 7.250", L"-0", L"1e-400", L"00012"})
        {
            EXPECT_EQ(accepted(kind, text), text);
        }
    }
}

// Proves: a number or boolean that is refused is an error and the field gets its former text back, a port is a
// warning and the typed text stays.
TEST(CheckProperty, refusesWhatBeginsWithNoNumberAndRestoresTheField)
{
    for (const PropertyKind kind : {PropertyKind::points, PropertyKind::percentage})
    {
        for (const wchar_t* text : {L"", L"abc", L"pt12", L"-", L"nan", L"inf"})
        {
            EXPECT_EQ(refused(kind, text, PropertyRefusal::Style::restore),
                      L"Please enter a valid floating point number.");
        }
    }
}

TEST(CheckProperty, refusesARealNumberBelow0OrAbove1000AndRestoresTheField)
{
    for (const PropertyKind kind : {PropertyKind::points, PropertyKind::percentage})
    {
        for (const wchar_t* text : {L"1000.5", L"-0.1", L"1e400", L"-1e400", L"1000.0001", L"5e3"})
        {
            EXPECT_EQ(refused(kind, text, PropertyRefusal::Style::restore),
                      L"Please enter a floating point number between 0 and 1000.");
        }
    }
}

TEST(CheckProperty, storesTrueAndFalseInLowerCase)
{
    EXPECT_EQ(accepted(PropertyKind::boolean, L"TRUE"), L"true");
    EXPECT_EQ(accepted(PropertyKind::boolean, L"False"), L"false");
    EXPECT_EQ(accepted(PropertyKind::boolean, L"true"), L"true");
}

TEST(CheckProperty, refusesEverythingElseThanTrueAndFalseAndRestoresTheField)
{
    for (const wchar_t* text : {L"", L"yes", L"true ", L" true", L"1", L"truefalse"})
    {
        EXPECT_EQ(refused(PropertyKind::boolean, text, PropertyRefusal::Style::restore),
                  L"Please enter either true or false.");
    }
}

TEST(CheckProperty, turnsAnythingIntoAnInteger)
{
    EXPECT_EQ(accepted(PropertyKind::integer, L"abc"), L"0");
    EXPECT_EQ(accepted(PropertyKind::integer, L"0050"), L"50");
    EXPECT_EQ(accepted(PropertyKind::integer, L""), L"0");
    EXPECT_EQ(accepted(PropertyKind::integer, L" -12x"), L"-12");
    EXPECT_EQ(accepted(PropertyKind::integer, L"99999999999"), L"2147483647");
}

TEST(CheckProperty, takesPortsFrom1000To65535)
{
    EXPECT_EQ(accepted(PropertyKind::tcpPort, L"1000"), L"1000");
    EXPECT_EQ(accepted(PropertyKind::tcpPort, L"65535"), L"65535");
    EXPECT_EQ(accepted(PropertyKind::tcpPort, L"01099"), L"1099");
    EXPECT_EQ(accepted(PropertyKind::tcpPort, L"0000000000000001099"), L"1099");
}

TEST(CheckProperty, refusesOtherPortsAndKeepsTheTypedText)
{
    for (const wchar_t* text : {L"999", L"65536", L"80", L"", L"0", L"99999999999999999999"})
    {
        EXPECT_EQ(refused(PropertyKind::tcpPort, text, PropertyRefusal::Style::keep),
                  L"Please enter a port number between 1000 and 65535.");
    }
}

TEST(CheckProperty, refusesAPortWithAnythingButDigitsAndKeepsTheTypedText)
{
    for (const wchar_t* text :
         {L"10 99", L"-1099", L"+1099", L" 1099", L"1099 ", L"abc", L"1099.0", L"\uFF11\uFF10\uFF19\uFF19"})
    {
        EXPECT_EQ(refused(PropertyKind::tcpPort, text, PropertyRefusal::Style::keep),
                  L"Please enter a valid port number.");
    }
}

TEST(CheckProperty, storesEveryOtherKindAsTyped)
{
    for (const PropertyKind kind : {PropertyKind::text, PropertyKind::enumeration, PropertyKind{0}, PropertyKind{5}})
    {
        for (const wchar_t* text : {L"", L" any text ", L"%APP_DATA%\\x", L"300.1.2.3"})
        {
            EXPECT_EQ(accepted(kind, text), text);
        }
    }
}

} // namespace
