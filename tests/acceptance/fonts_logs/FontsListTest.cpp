#include "fonts_logs/FontsTest.h"
#include "frame/BareSnapIn.h"
#include "frame/menus.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

// What the node lists of the entries in the file.
class FontsList : public FontsTest
{
};

TEST_F(FontsList, isEmptyWithoutAFile)
{
    openNode();
    EXPECT_TRUE(view().rows().empty());
    EXPECT_FALSE(fileExists()) << "reading makes no file";
}

TEST_F(FontsList, isEmptyForAnEmptyFile)
{
    ServerFiles::write(file(), "");
    openNode();
    EXPECT_TRUE(view().rows().empty());
}

TEST_F(FontsList, isEmptyForAFileWithoutEntries)
{
    store({});
    openNode();
    EXPECT_TRUE(view().rows().empty());
}

TEST_F(FontsList, hasItsColumnsAndDoesNotSort)
{
    openNode();
    const std::vector<ConsoleView::Column> columns{
        {L"Font Family Name", 150}, {L"Font File Path", 350}, {L"Is Bold", 100}, {L"Is Italic", 100}};
    EXPECT_EQ(columns, view().columns());
    EXPECT_FALSE(view().view().sortable());
}

// Proves: both of the first two columns are asked for at 1.
TEST_F(FontsList, asksForItsColumnsAtOneOneTwoAndThree)
{
    store({{L"MapFont:ARIAL", L"a.ttf"}});
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM fonts = snapIn.node(node);
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(fonts.lParam).Get(), MMCN_SHOW, TRUE, fonts.ID));
    const std::vector<HeaderDouble::Column> columns{{1, L"Font Family Name", LVCFMT_LEFT, 150},
                                                    {1, L"Font File Path", LVCFMT_LEFT, 350},
                                                    {2, L"Is Bold", LVCFMT_LEFT, 100},
                                                    {3, L"Is Italic", LVCFMT_LEFT, 100}};
    EXPECT_EQ(columns, view->console.header.columns);
    const std::pair<MMC_RESULT_VIEW_STYLE, MMC_RESULT_VIEW_STYLE> unsorted{MMC_NOSORTHEADER,
                                                                           static_cast<MMC_RESULT_VIEW_STYLE>(0)};
    EXPECT_EQ(std::vector{unsorted}, view->console.results.styles);
    const ResultDataDouble::State first{0, 0, LVIS_FOCUSED | LVIS_SELECTED, 0};
    EXPECT_EQ(std::vector{first}, view->console.results.states);
}

TEST_F(FontsList, showsEachEntryInTheOrderOfTheFile)
{
    store({{L"MapFont:ZAPF-ITALIC", L"C:\\Fonts\\z.ttf"},
           {L"MapFont:FRUTIGER", L"C:\\Fonts\\f.afm"},
           {L"MapFont:ARIAL-BOLD-ITALIC", L"\\\\server\\share\\a.otf"},
           {L"MapFont:ARIAL-BOLD", L"relative.pfm"}});
    openNode();
    const std::vector<Cells> rows{{L"ZAPF", L"C:\\Fonts\\z.ttf", L"No", L"Yes"},
                                  {L"FRUTIGER", L"C:\\Fonts\\f.afm", L"No", L"No"},
                                  {L"ARIAL", L"\\\\server\\share\\a.otf", L"Yes", L"Yes"},
                                  {L"ARIAL", L"relative.pfm", L"Yes", L"No"}};
    EXPECT_EQ(rows, view().rows());
}

TEST_F(FontsList, leavesAliasesOutAndShowsEveryOtherKeyOfOthers)
{
    store({{L"MapAlias:HELV", L"ARIAL"},
           {L"DefaultFont", L"x"},
           {L"MapAlias:ARIAL-BOLD", L"C:\\Fonts\\a.ttf"},
           {L"mapalias:HELV", L"y"}});
    openNode();
    const std::vector<Cells> rows{{L"DefaultFont", L"x", L"No", L"No"}, {L"mapalias:HELV", L"y", L"No", L"No"}};
    EXPECT_EQ(rows, view().rows());
}

// Proves: a piece that says both, as "BOLDITALIC", counts as bold only.
TEST_F(FontsList, takesBolditalicInOneWordForBoldOnly)
{
    store({{L"MapFont:ARIAL-BOLDITALIC", L"a.ttf"}});
    openNode();
    EXPECT_EQ((std::vector<Cells>{{L"ARIAL", L"a.ttf", L"Yes", L"No"}}), view().rows());
}

// Proves: a family with a "-" comes out cut there and what follows counts for its style only, and any other key is
// shown like a mapping.
TEST_F(FontsList, cutsAFamilyAtItsFirstDash)
{
    store({{L"MapFont:MY-FONT", L"a.ttf"}, {L"MapFont:SEMI-BOLDFACE-ITALIC", L"b.ttf"}});
    openNode();
    const std::vector<Cells> rows{{L"MY", L"a.ttf", L"No", L"No"}, {L"SEMI", L"b.ttf", L"Yes", L"Yes"}};
    EXPECT_EQ(rows, view().rows());
}

TEST_F(FontsList, skipsAKeyOfThePrefixOnlyAndShowsDashesWithoutAFamily)
{
    store({{L"MapFont:", L"a.ttf"}, {L"MapFont:--", L"b.ttf"}, {L"-", L"c.ttf"}, {L"MapFont:-BOLD", L"d.ttf"}});
    openNode();
    const std::vector<Cells> rows{
        {L"", L"b.ttf", L"No", L"No"}, {L"", L"c.ttf", L"No", L"No"}, {L"", L"d.ttf", L"Yes", L"No"}};
    EXPECT_EQ(rows, view().rows());
}

TEST_F(FontsList, showsAnEmptyFilePath)
{
    store({{L"MapFont:ARIAL", L""}});
    openNode();
    EXPECT_EQ((std::vector<Cells>{{L"ARIAL", L"", L"No", L"No"}}), view().rows());
}

TEST_F(FontsList, showsNamesInAnyScript)
{
    store({{L"MapFont:\u03A9\u042F\u4E2D\u05D0-ITALIC", L"C:\\\u00FC\U0001F600.ttf"}});
    openNode();
    const std::vector<Cells> rows{{L"\u03A9\u042F\u4E2D\u05D0", L"C:\\\u00FC\U0001F600.ttf", L"No", L"Yes"}};
    EXPECT_EQ(rows, view().rows());
}

TEST_F(FontsList, showsADoubledKeyOnceWithItsLastValue)
{
    store({{L"MapFont:A", L"1"}, {L"MapFont:B", L"2"}, {L"MapFont:A", L"3"}});
    openNode();
    const std::vector<Cells> rows{{L"B", L"2", L"No", L"No"}, {L"A", L"3", L"No", L"No"}};
    EXPECT_EQ(rows, view().rows());
}

TEST_F(FontsList, hasNothingInFurtherColumns)
{
    store({{L"MapFont:ARIAL", L"a.ttf"}});
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM fonts = snapIn.node(node);
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(fonts.lParam).Get(), MMCN_SHOW, TRUE, fonts.ID));
    ASSERT_EQ(1u, view->console.results.rows.size());
    const MMC_COOKIE row = view->console.results.rows.front().lParam;
    EXPECT_EQ(L"ARIAL", view->cell(row, 0));
    for (const int column : {4, 5, 100, -1})
    {
        EXPECT_EQ(L"", view->cell(row, column)) << column;
    }
}

TEST_F(FontsList, givesItsFirstRowTheFocusAndSelectsIt)
{
    store({{L"MapFont:A", L"1"}, {L"MapFont:B", L"2"}});
    openNode();
    EXPECT_EQ(0, view().view().focusedRow());
    EXPECT_EQ(std::vector<int>{0}, view().view().selectedRows());
}

TEST_F(FontsList, selectsNothingWhereItIsEmpty)
{
    openNode();
    EXPECT_TRUE(view().view().selectedRows().empty());
    EXPECT_TRUE(recorder.calls(L"IResultData::ModifyItemState").empty());
}

TEST_F(FontsList, offersOneCommandOnTheNodeAndOneOnARow)
{
    store({{L"MapFont:A", L"1"}});
    openNode();
    EXPECT_EQ(Cells{addCommand}, view().nodeMenu(node));
    EXPECT_EQ((Cells{editCommand, L"-", L"&Delete"}), view().menu(L"A"));
    EXPECT_EQ(std::vector{topItem(addCommand, 1042)}, menuOfNode(node));
    EXPECT_EQ(std::vector{topItem(editCommand, 1044)}, menuOfRow(node, 0));
}

TEST_F(FontsList, readsTheFileWheneverItIsShown)
{
    store({{L"MapFont:A", L"1"}});
    openNode();
    store({{L"MapFont:B", L"2"}});
    EXPECT_EQ(L"1", view().cell(L"A", L"Font File Path")) << "not behind the user's back";
    view().select(L"Log");
    view().select(node);
    EXPECT_EQ((std::vector<Cells>{{L"B", L"2", L"No", L"No"}}), view().rows());
}

// Proves: PrivateFontsCollectionItem on the console's refresh.
TEST_F(FontsList, readsTheFileWhenItIsRefreshed)
{
    store({{L"MapFont:A", L"1"}});
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM fonts = snapIn.node(node);
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(fonts.lParam).Get(), MMCN_SHOW, TRUE, fonts.ID));
    store({{L"MapFont:B", L"2"}, {L"MapFont:C", L"3"}});
    const int clears = view->console.results.clears;
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(fonts.lParam).Get(), MMCN_REFRESH, 0, 0));
    EXPECT_EQ(clears + 1, view->console.results.clears);
    ASSERT_EQ(2u, view->console.results.rows.size());
    EXPECT_EQ(L"B", view->cell(view->console.results.rows[0].lParam, 0));
    EXPECT_EQ(L"C", view->cell(view->console.results.rows[1].lParam, 0));
}

TEST_F(FontsList, shows10000Entries)
{
    Entries entries;
    for (int number = 0; number < 10000; ++number)
    {
        entries.emplace_back(L"MapFont:FAMILY" + std::to_wstring(number) + (number % 2 ? L"-BOLD" : L""),
                             L"C:\\Fonts\\" + std::to_wstring(number) + L".ttf");
    }
    store(entries);
    openNode();
    ASSERT_EQ(10000, view().view().rowCount());
    EXPECT_EQ(L"FAMILY9999", view().view().rowText(9999, 0));
    EXPECT_EQ(L"C:\\Fonts\\9999.ttf", view().view().rowText(9999, 1));
    EXPECT_EQ(L"Yes", view().view().rowText(9999, 2));
    EXPECT_EQ(L"No", view().view().rowText(9998, 2));
    add({.family = L"New", .file = L"new.ttf"});
    EXPECT_EQ(10001, view().view().rowCount());
    EXPECT_EQ(L"NEW", view().view().rowText(10000, 0));
}

} // namespace
} // namespace Acceptance
