#include "tmgmt/settings/rules/PropertyFormat.h"

#include <gtest/gtest.h>

namespace
{

using TMgmt::PropertyKind;
using TMgmt::PropertyOptions;
using TMgmt::showProperty;
using TMgmt::unitLabel;

const PropertyOptions fontMethods{{L"TTF_EMBEDDED", L"Embedded TTF"}, {L"TTF", L"TTF"}};

TEST(ShowProperty, putsPtBehindPoints)
{
    const auto shown = showProperty(PropertyKind::points, L"12", L"10.50", {});
    EXPECT_EQ(shown.value, L"12 Pt");
    EXPECT_EQ(shown.defaultValue, L"10.50 Pt");
}

TEST(ShowProperty, showsAPercentageAsTheShortestFormOfItsNumber)
{
    struct
    {
        const wchar_t* stored;
        const wchar_t* shown;
    } const cases[] = {
        {L"12.50", L"12.5 %"}, {L"7.250", L"7.25 %"}, {L"100", L"100 %"}, {L"abc", L"0 %"},
        {L"", L"0 %"},         {L"5e2", L"500 %"},    {L"50%", L"50 %"},  {L"-3", L"-3 %"},
    };
    for (const auto& c : cases)
    {
        EXPECT_EQ(showProperty(PropertyKind::percentage, c.stored, L"80.0", {}).value, c.shown);
    }
    EXPECT_EQ(showProperty(PropertyKind::percentage, L"1", L"80.0", {}).defaultValue, L"80 %");
}

// Proves: the value of an enumeration is shown by the label of its option, its default as it is stored.
TEST(ShowProperty, showsAnEnumerationsValueByItsLabelButItsDefaultAsStored)
{
    const auto shown = showProperty(PropertyKind::enumeration, L"TTF_EMBEDDED", L"TTF_EMBEDDED", fontMethods);
    EXPECT_EQ(shown.value, L"Embedded TTF");
    EXPECT_EQ(shown.defaultValue, L"TTF_EMBEDDED");
}

TEST(ShowProperty, showsAnEnumerationsValueAsStoredWhenNoOptionHasItExactly)
{
    for (const wchar_t* stored : {L"ttf_embedded", L"TTF_EMBEDDED ", L"Embedded TTF", L"", L"TTF_EMB"})
    {
        EXPECT_EQ(showProperty(PropertyKind::enumeration, stored, L"TTF", fontMethods).value, stored);
    }
}

TEST(ShowProperty, takesTheFirstOfTwoOptionsWithTheSameValue)
{
    const PropertyOptions twice{{L"A", L"first"}, {L"A", L"second"}};
    EXPECT_EQ(showProperty(PropertyKind::enumeration, L"A", L"A", twice).value, L"first");
}

TEST(ShowProperty, showsEveryOtherKindAsItIs)
{
    for (const PropertyKind kind : {PropertyKind::boolean, PropertyKind::integer, PropertyKind::text,
                                    PropertyKind::tcpPort, PropertyKind{0}, PropertyKind{5}})
    {
        const auto shown = showProperty(kind, L"007.250", L"Default", fontMethods);
        EXPECT_EQ(shown.value, L"007.250");
        EXPECT_EQ(shown.defaultValue, L"Default");
    }
}

TEST(UnitLabel, isThatOfTheKind)
{
    EXPECT_EQ(unitLabel(PropertyKind::points), L"Pt");
    EXPECT_EQ(unitLabel(PropertyKind::percentage), L"%");
    for (const PropertyKind kind : {PropertyKind::boolean, PropertyKind::enumeration, PropertyKind::integer,
                                    PropertyKind::text, PropertyKind::tcpPort, PropertyKind{0}, PropertyKind{5}})
    {
        EXPECT_EQ(unitLabel(kind), L"");
    }
}

TEST(PropertyKind, hasTheNumbersThatPropertiesAndEditorsExchange)
{
    EXPECT_EQ(static_cast<int>(PropertyKind::points), 1);
    EXPECT_EQ(static_cast<int>(PropertyKind::percentage), 2);
    EXPECT_EQ(static_cast<int>(PropertyKind::boolean), 3);
    EXPECT_EQ(static_cast<int>(PropertyKind::enumeration), 4);
    EXPECT_EQ(static_cast<int>(PropertyKind::integer), 6);
    EXPECT_EQ(static_cast<int>(PropertyKind::text), 7);
    EXPECT_EQ(static_cast<int>(PropertyKind::tcpPort), 8);
}

} // namespace
