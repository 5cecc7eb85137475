#include "tmgmt/hotfolders/rules/OutputFormats.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{

using namespace TMgmt;
using Tessaro::OutputFormat;

struct Entry
{
    int index;
    const wchar_t* name;
    int format;
};

constexpr Entry entries[] = {
    {0, L"PDF", 1},   {1, L"Postscript", 3}, {2, L"AFP", 2},   {3, L"WordML", 4},  {4, L"Silverlight", 5},
    {5, L"XPS", 6},   {6, L"TIFF", 7},       {7, L"HTML", 9},  {8, L"XSL-FO", 10}, {9, L"JPEG", 11},
    {10, L"GIF", 12}, {11, L"PNG", 13},      {12, L"SVG", 14},
};

TEST(OutputFormats, areThirteenInThisOrder)
{
    ASSERT_EQ(outputFormats.size(), 13U);
    for (const Entry& entry : entries)
    {
        EXPECT_EQ(outputFormats[static_cast<std::size_t>(entry.index)].name, std::wstring(entry.name));
    }
}

TEST(OutputFormats, areStoredAsTheirNumbersAndFoundAgain)
{
    for (const Entry& entry : entries)
    {
        EXPECT_EQ(formatAt(entry.index), OutputFormat{entry.format}) << entry.index;
        EXPECT_EQ(indexOfFormat(OutputFormat{entry.format}), entry.index) << entry.format;
    }
}

TEST(OutputFormats, showWhatIsNotListedAsPdf)
{
    for (const int format : {0, 8, 15, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    {
        EXPECT_EQ(indexOfFormat(OutputFormat{format}), 0) << format;
    }
}

TEST(OutputFormats, haveNoneOutsideTheList)
{
    for (const int index : {-1, 13, 14, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    {
        EXPECT_EQ(formatAt(index), std::nullopt) << index;
    }
}

TEST(PageIndex, isOfferedForTheStoredPictureFormats)
{
    for (int format = -1; format <= 16; ++format)
    {
        EXPECT_EQ(storedFormatHasPageIndex(OutputFormat{format}),
                  format == 11 || format == 12 || format == 13 || format == 14)
            << format;
    }
}

// JPEG and GIF, the entries 9 and 10, have one when they are opened and none when they are chosen.
// Proves: of the entries of the list only PNG and SVG have a page index.
TEST(PageIndex, isOfferedForTheChosenEntriesPngAndSvgOnly)
{
    for (int index = -1; index <= 16; ++index)
    {
        EXPECT_EQ(listIndexHasPageIndex(index), index == 11 || index == 12 || index == 13 || index == 14) << index;
    }
}

TEST(PageIndex, isStoredForPngAndSvgAndZeroForAllOthers)
{
    for (int index = 0; index <= 12; ++index)
    {
        EXPECT_EQ(pageIndexToStore(index, L"3"), index >= 11 ? 3 : 0) << index;
    }
}

TEST(PageIndex, isZeroForWhatIsNoNumber)
{
    for (const wchar_t* text : {L"", L"abc", L"3a", L" 3", L"1.5", L"99999999999"})
    {
        EXPECT_EQ(pageIndexToStore(11, text), 0) << testing::PrintToString(std::wstring(text));
    }
}

TEST(PageIndex, isStoredAsTypedEvenWhereTheServerWouldRefuseIt)
{
    EXPECT_EQ(pageIndexToStore(12, L"-1"), -1);
    EXPECT_EQ(pageIndexToStore(12, L"2147483647"), 2147483647);
}

} // namespace
