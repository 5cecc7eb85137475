#include "HostTest.h"

#include <algorithm>
#include <numeric>

using namespace Console;
using Texts = std::vector<std::wstring>;

namespace
{

class ListTest : public HostTest
{
  protected:
    // The static node without children, so that all rows are the snap-in's own.
    void showRows(int rows, long options = 0)
    {
        settings.children = 0;
        settings.rows = rows;
        settings.viewOptions = options;
        view->selectNode(root());
    }
};

} // namespace

TEST_F(ListTest, columnsKeepTitleAlignmentAndWidth)
{
    showRows(1);
    ASSERT_EQ(view->columns().size(), 3u);
    EXPECT_EQ(view->columns()[0].title, L"Name");
    EXPECT_EQ(view->columns()[0].width, 180);
    EXPECT_EQ(view->columns()[1].format, LVCFMT_RIGHT);
    EXPECT_GT(view->columns()[2].width, 20) << "fits the title";
}

TEST_F(ListTest, textsAreAskedForEachTimeAndCopied)
{
    showRows(2);
    const std::wstring first = view->rowText(0, 0);
    EXPECT_EQ(view->rowText(1, 0), L"Row 1"); // from the same buffer of the snap-in
    EXPECT_EQ(first, L"Row 0");
    EXPECT_EQ(view->rowText(1, 1), L"1");
    EXPECT_EQ(view->rowText(2, 0), L"");
    EXPECT_EQ(view->rowText(0, 77), L"");
    EXPECT_EQ(view->rowText(-1, 0), L"");
}

TEST_F(ListTest, imagesAreTheSnapInsOwnNumbersMapped)
{
    showRows(2);
    const int fixed = view->rowImage(0);
    const int asked = view->rowImage(1);
    EXPECT_EQ(asked, fixed + 1) << "images 1 and 2 of one strip";
    EXPECT_LT(asked, ImageList_GetImageCount(view->smallImages()));
    EXPECT_EQ(ImageList_GetImageCount(view->smallImages()), ImageList_GetImageCount(view->largeImages()));
}

TEST_F(ListTest, imagesAreMadeAnewAtEachSelectionAndDoNotPileUp)
{
    showRows(1);
    const int count = ImageList_GetImageCount(view->smallImages());
    view->selectNode(root());
    view->selectNode(root());
    EXPECT_EQ(ImageList_GetImageCount(view->smallImages()), count);
}

TEST_F(ListTest, sortsByTextsWithoutAComparison)
{
    showRows(12);
    view->clickColumn(0);
    EXPECT_EQ(rowTexts()[1], L"Row 1");
    EXPECT_EQ(rowTexts()[2], L"Row 10") << "as texts";
    view->clickColumn(0);
    EXPECT_EQ(rowTexts()[0], L"Row 9");
    EXPECT_EQ(view->sortColumn(), 0);
    EXPECT_TRUE(view->sortDescending());
    EXPECT_EQ(recorder.sequence().back(), L"view COLUMN_CLICK 0");
}

TEST_F(ListTest, sortsByTheSnapInsComparisonAndKeepsEqualRowsInOrder)
{
    settings.compare = true;
    showRows(12);
    view->clickColumn(1);
    EXPECT_EQ((Texts{rowTexts()[0], rowTexts()[1], rowTexts()[2], rowTexts()[3]}),
              (Texts{L"Row 0", L"Row 10", L"Row 1", L"Row 11"}));
    view->clickColumn(1);
    EXPECT_EQ((Texts{rowTexts()[0], rowTexts()[11]}), (Texts{L"Row 9", L"Row 10"}));
}

TEST_F(ListTest, nodesStayInFrontWhenSorting)
{
    settings.compare = true;
    view->selectNode(root());
    view->clickColumn(0);
    view->clickColumn(0);
    EXPECT_EQ(rowTexts(),
              (Texts{L"Child 0", L"Child 1", L"Child 2", L"Row 4", L"Row 3", L"Row 2", L"Row 1", L"Row 0"}));
}

TEST_F(ListTest, theOrderIsKeptForTheNextTime)
{
    settings.compare = true;
    showRows(3);
    view->setColumnWidth(1, 333);
    view->clickColumn(0);
    view->clickColumn(0);
    view->selectNode(NodeId::none);
    view->selectNode(root());
    EXPECT_EQ(rowTexts(), (Texts{L"Row 2", L"Row 1", L"Row 0"}));
    EXPECT_EQ(view->columns()[1].width, 333);
    EXPECT_TRUE(view->sortDescending());
}

TEST_F(ListTest, aContradictingComparisonDoesNoHarm)
{
    settings.compare = true;
    settings.misdeed = Foreign::Misdeed::contradictingCompare;
    showRows(1000);
    view->clickColumn(0);
    EXPECT_EQ(view->rowCount(), 1000);
    Texts texts = rowTexts();
    std::sort(texts.begin(), texts.end());
    EXPECT_EQ(std::unique(texts.begin(), texts.end()), texts.end());
}

TEST_F(ListTest, virtualListsAreAskedByPlace)
{
    showRows(100000, MMC_VIEW_OPTIONS_OWNERDATALIST);
    EXPECT_EQ(view->rowCount(), 100000);
    EXPECT_EQ(view->rowText(99999, 0), L"Row 99999");
    EXPECT_GT(view->rowImage(5), 1);
    view->clickColumn(0);
    view->clickColumn(0);
    EXPECT_EQ(view->rowText(0, 0), L"Row 99999");
    EXPECT_EQ(view->findRow(L"Row", 17), 17);
    view->selectRows({4});
    EXPECT_EQ(recorder.count(L"IComponent::QueryDataObject"), 1);
}

TEST_F(ListTest, refreshReplacesTheRows)
{
    showRows(3);
    view->selectRows({1});
    settings.rows = 4;
    view->runVerb(MMC_VERB_REFRESH);
    EXPECT_EQ(rowTexts().size(), 4u);
    EXPECT_TRUE(view->selectedRows().empty());
    EXPECT_TRUE(view->verb(MMC_VERB_REFRESH).enabled) << "the node is the target again";
}

TEST_F(ListTest, findsRowsByTheirBeginning)
{
    showRows(30);
    EXPECT_EQ(view->findRow(L"row 2", 0), 2);
    EXPECT_EQ(view->findRow(L"row 2", 3), 20);
    EXPECT_EQ(view->findRow(L"row 1", 25), 1);
    EXPECT_EQ(view->findRow(L"nothing", 0), -1);
}

TEST_F(ListTest, selectingOneThenTwoThenOneRow)
{
    showRows(5, MMC_VIEW_OPTIONS_MULTISELECT);
    recorder.clear();
    view->selectRows({1});
    EXPECT_EQ(recorder.sequence(),
              (Texts{L"view SELECT 1", L"bars SELECT 1", L"view SELECT 0x10000", L"bars SELECT 0x10000"}));
    recorder.clear();
    view->selectRows({1, 3});
    EXPECT_EQ(recorder.sequence(),
              (Texts{L"view SELECT 0", L"bars SELECT 0", L"view SELECT 0x10000", L"bars SELECT 0x10000"}));
    EXPECT_EQ(settings.multiSelected, 2);
    EXPECT_TRUE(view->verb(MMC_VERB_DELETE).enabled);
    EXPECT_FALSE(view->verb(MMC_VERB_RENAME).enabled);
    EXPECT_FALSE(view->verb(MMC_VERB_REFRESH).enabled) << "enabled by the snap-in, but not for several";
    bool typesAsked = false;
    for (const Call& call : recorder.calls)
    {
        typesAsked = typesAsked || call.arguments.find(L"CCF_OBJECT_TYPES_IN_MULTI_SELECT") != std::wstring::npos;
    }
    EXPECT_TRUE(typesAsked);
    view->selectRows({3});
    EXPECT_TRUE(view->verb(MMC_VERB_RENAME).enabled);
    EXPECT_EQ(view->defaultVerb(), MMC_VERB_PROPERTIES);
    EXPECT_EQ(view->selectedRows(), std::vector{3});
}

TEST_F(ListTest, deletingSeveralRowsIsOneNotification)
{
    showRows(6, MMC_VIEW_OPTIONS_MULTISELECT);
    view->selectRows({0, 2, 4});
    recorder.clear();
    view->runVerb(MMC_VERB_DELETE);
    EXPECT_EQ(settings.rowsDeleted, 3);
    EXPECT_EQ(rowTexts(), (Texts{L"Row 1", L"Row 3", L"Row 5"}));
    EXPECT_TRUE(view->selectedRows().empty());
    EXPECT_EQ(recorder.sequence().front(), L"view DELETE 0");
    EXPECT_EQ(recorder.sequence().back(), L"bars SELECT 0x10001") << "the node is selected again";
}

TEST_F(ListTest, severalRowsNeedMultiSelection)
{
    showRows(5);
    view->selectRows({1, 3});
    EXPECT_EQ(view->selectedRows(), std::vector{1});
}

TEST_F(ListTest, theFocusDecidesWhatCommandsActOn)
{
    showRows(3);
    view->selectRows({1});
    EXPECT_EQ(view->defaultVerb(), MMC_VERB_PROPERTIES);
    view->focusTree(true);
    EXPECT_EQ(view->defaultVerb(), MMC_VERB_OPEN);
    EXPECT_EQ(view->selectedRows(), std::vector{1});
    view->focusTree(false);
    EXPECT_EQ(view->defaultVerb(), MMC_VERB_PROPERTIES);
}

// Work that grows with the square would not be done within the time that a whole run has.
TEST_F(ListTest, aHundredThousandRowsAreShownSelectedAndDeletedOneByOne)
{
    constexpr int rows = 100000;
    showRows(rows, MMC_VIEW_OPTIONS_MULTISELECT);
    std::vector<int> all(rows);
    std::iota(all.begin(), all.end(), 0);
    view->selectRows(all);
    view->runVerb(MMC_VERB_DELETE); // finds and deletes each by its id
    EXPECT_EQ(view->rowCount(), 0);
}

TEST_F(ListTest, aHundredThousandChildrenAreShownAndTakenOut)
{
    settings.children = 100000;
    settings.rows = 0;
    view->selectNode(root());
    EXPECT_EQ(view->rowCount(), 100000);
    host->removeSnapIn(*snapIn);
    EXPECT_EQ(view->rowCount(), 0);
}
