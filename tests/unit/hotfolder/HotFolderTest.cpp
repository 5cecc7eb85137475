#include "brimlow/hotfolder/HotFolder.h"
#include "PrintTo.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{

using namespace HotFolders;

void expectDefaults(const HotFolder& folder)
{
    EXPECT_EQ(L"", folder.getFolder());
    EXPECT_EQ(L"*.*", folder.getFileMatchPattern());
    EXPECT_TRUE(folder.isMonitoringEnabled());
    EXPECT_EQ(L"", folder.getOutputFolder());
    EXPECT_EQ(Tessaro::OutputFormat::Pdf, folder.getOutputFormat());
    EXPECT_EQ(0, folder.getPageIndex());
    EXPECT_FALSE(folder.applyFolderXslTemplate());
    EXPECT_EQ(L"", folder.getFolderXslTemplate());
    EXPECT_EQ(L"", folder.getBaseUrl());
    EXPECT_TRUE(folder.getOnSuccessActionList().empty());
    EXPECT_TRUE(folder.getOnFailureActionList().empty());
}

HotFolder other()
{
    HotFolder folder;
    folder.setFolder(L"C:\\In");
    folder.setFileMatchPattern(L"*.xml");
    folder.setEnableMonitoring(false);
    folder.setOutputFolder(L"C:\\Out");
    folder.setOutputFormat(Tessaro::OutputFormat::Svg);
    folder.setPageIndex(7);
    folder.setApplyFolderXslTemplate(true);
    folder.setFolderXslTemplate(L"C:\\style.xsl");
    folder.setBaseUrl(L"http://base/");
    folder.setOnSuccessActionList(ActionList(1));
    folder.setOnFailureActionList(ActionList(2));
    return folder;
}

void expectOther(const HotFolder& folder)
{
    EXPECT_EQ(L"C:\\In", folder.getFolder());
    EXPECT_EQ(L"*.xml", folder.getFileMatchPattern());
    EXPECT_FALSE(folder.isMonitoringEnabled());
    EXPECT_EQ(L"C:\\Out", folder.getOutputFolder());
    EXPECT_EQ(Tessaro::OutputFormat::Svg, folder.getOutputFormat());
    EXPECT_EQ(7, folder.getPageIndex());
    EXPECT_TRUE(folder.applyFolderXslTemplate());
    EXPECT_EQ(L"C:\\style.xsl", folder.getFolderXslTemplate());
    EXPECT_EQ(L"http://base/", folder.getBaseUrl());
    EXPECT_EQ(1u, folder.getOnSuccessActionList().size());
    EXPECT_EQ(2u, folder.getOnFailureActionList().size());
}

TEST(HotFolder, HasDefaults)
{
    expectDefaults(HotFolder());
}

TEST(HotFolder, HoldsWhatIsSet)
{
    expectOther(other());
}

TEST(HotFolder, CopiesDoNotSeeEachOthersChanges)
{
    const HotFolder original = other();
    HotFolder copy = original;
    copy.setFolder(L"D:\\");
    copy.setOnSuccessActionList({});
    expectOther(original);
    EXPECT_EQ(L"D:\\", copy.getFolder());
    EXPECT_EQ(L"*.xml", copy.getFileMatchPattern());
    EXPECT_TRUE(copy.getOnSuccessActionList().empty());
}

TEST(HotFolder, ThatWasMovedAwayIsADefaultOne)
{
    HotFolder source = other();
    const HotFolder target = std::move(source);
    expectOther(target);
    EXPECT_EQ(L"*.*", source.getFileMatchPattern()); // NOLINT: what is left behind is the point
    source.setPageIndex(1);
    EXPECT_EQ(1, source.getPageIndex());
    source.setPageIndex(0);
    expectDefaults(source);
}

TEST(HotFolder, KeepsFormatsThatItDoesNotKnow)
{
    HotFolder folder;
    folder.setOutputFormat(static_cast<Tessaro::OutputFormat>(8));
    EXPECT_EQ(8, static_cast<int>(folder.getOutputFormat()));
}

TEST(HotFolder, IsNamedAfterTheLastComponentOfItsPath)
{
    const struct
    {
        const wchar_t* path;
        const wchar_t* name;
    } cases[] = {
        {L"C:\\Data\\Invoices", L"Invoices"},
        {L"C:\\Data\\Invoices\\", L"Invoices"},
        {L"C:\\Data\\Invoices\\\\", L"Invoices"},
        {L"C:/Data/Invoices", L"Invoices"},
        {L"C:/Data\\Invoices/", L"Invoices"},
        {L"\\\\server\\share", L"share"},
        {L"C:\\", L"C:\\"},
        {L"C:", L"C:"},
        {L"\\", L"\\"},
        {L"Invoices", L"Invoices"},
        {L"C:\\\u65E5\u672C \U0001F600", L"\u65E5\u672C \U0001F600"},
        {L"", L""},
    };
    for (const auto& [path, name] : cases)
    {
        HotFolder folder;
        folder.setFolder(path);
        EXPECT_EQ(name, folder.getDisplayName()) << Core::String(path).toUtf8();
    }
}

TEST(OutputFormat, HasTheNumbersThatAreStored)
{
    using Tessaro::OutputFormat;
    const std::pair<OutputFormat, int> cases[] = {
        {OutputFormat::Pdf, 1},    {OutputFormat::Afp, 2},         {OutputFormat::Postscript, 3},
        {OutputFormat::WordMl, 4}, {OutputFormat::Silverlight, 5}, {OutputFormat::Xps, 6},
        {OutputFormat::Tiff, 7},   {OutputFormat::Html, 9},        {OutputFormat::XslFo, 10},
        {OutputFormat::Jpeg, 11},  {OutputFormat::Gif, 12},        {OutputFormat::Png, 13},
        {OutputFormat::Svg, 14},
    };
    for (const auto& [format, number] : cases)
    {
        EXPECT_EQ(number, static_cast<int>(format));
    }
}

} // namespace
