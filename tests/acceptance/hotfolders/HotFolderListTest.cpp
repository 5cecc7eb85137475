#include "frame/BareSnapIn.h"
#include "frame/menus.h"
#include "hotfolders/HotFoldersTest.h"
#include "kit/ImportSpy.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class HotFolderList : public HotFoldersTest
{
};

TEST_F(HotFolderList, hasFourColumns)
{
    openNode();
    using Column = ConsoleView::Column;
    EXPECT_THAT(view().columns(), ElementsAre(Column{L"Folder Name", 175}, Column{L"Full Path", 275},
                                              Column{L"Pattern", 60}, Column{L"Enabled", 60}));
    const auto inserted = recorder.calls(L"IHeaderCtrl::InsertColumn");
    ASSERT_EQ(4u, inserted.size());
    for (int position = 0; position < 4; ++position)
    {
        EXPECT_NE(std::wstring::npos, inserted[static_cast<std::size_t>(position)].call.arguments.find(
                                          L"nCol=" + std::to_wstring(position)));
    }
}

TEST_F(HotFolderList, isEmptyWhereNothingIsStored)
{
    openNode();
    EXPECT_TRUE(view().rows().empty());
    EXPECT_FALSE(std::filesystem::exists(database())) << "looking makes no database";
}

TEST_F(HotFolderList, showsNamePathPatternAndWhetherItIsMonitored)
{
    HotFolders::HotFolder invoices = hotFolder(L"Invoices");
    invoices.setFileMatchPattern(L"*.xml");
    store(invoices);
    HotFolders::HotFolder letters = hotFolder(L"Letters");
    letters.setEnableMonitoring(false);
    store(letters);
    openNode();
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"Invoices", folder(L"Invoices"), L"*.xml", L"Yes"),
                                           ElementsAre(L"Letters", folder(L"Letters"), L"*.*", L"No")));
}

TEST_F(HotFolderList, showsNamesInAnyScript)
{
    const std::wstring name = L"Счета 請求書 فواتير \U0001F4C4";
    storeAll({name});
    openNode();
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(name, folder(name), L"*.*", L"Yes")));
}

TEST_F(HotFolderList, doesNotSortAndLetsSeveralBeSelected)
{
    openNode();
    const auto styles = recorder.calls(L"IResultData::ModifyViewStyle");
    ASSERT_EQ(1u, styles.size());
    EXPECT_EQ(L"add=4, remove=1", styles.front().call.arguments) << "MMC_NOSORTHEADER and MMC_SINGLESEL";
    EXPECT_FALSE(view().view().sortable());
    EXPECT_TRUE(view().view().multiSelect());
}

TEST_F(HotFolderList, offersToAddOne)
{
    openNode();
    EXPECT_THAT(view().nodeMenu(node), testing::Contains(add));
    EXPECT_THAT(menuOfNode(node), ElementsAre(topItem(add, 1022)));
}

TEST_F(HotFolderList, offersTheProperties)
{
    storeAll({L"Invoices"});
    openNode();
    EXPECT_THAT(view().menu(L"Invoices"), testing::Contains(properties));
    EXPECT_THAT(menuOfRow(node, 0), ElementsAre(topItem(properties, 1048)));
}

// Proves: HotFoldersCollectionItem on the console's refresh.
TEST_F(HotFolderList, isReadAnewByTheConsolesRefresh)
{
    openNode();
    storeAll({L"Invoices"});
    EXPECT_TRUE(names().empty());
    ASSERT_TRUE(view().view().verb(MMC_VERB_REFRESH).enabled);
    view().view().runVerb(MMC_VERB_REFRESH);
    EXPECT_THAT(names(), ElementsAre(L"Invoices"));
}

TEST_F(HotFolderList, isReadAnewWheneverItIsShown)
{
    openNode();
    storeAll({L"Invoices"});
    view().select(L"Users");
    view().select(node);
    EXPECT_THAT(names(), ElementsAre(L"Invoices"));
}

TEST_F(HotFolderList, keepsItsRowsUntilSomethingChanges)
{
    storeAll({L"Invoices"});
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM parent = snapIn.node(node);
    const auto object = snapIn.object(parent.lParam);
    const auto row = [&](MMC_NOTIFY_TYPE event)
    {
        EXPECT_EQ(S_OK, bare->component->Notify(object.Get(), event, TRUE, parent.ID));
        return bare->console.results.rows.at(0).lParam;
    };
    const MMC_COOKIE first = row(MMCN_SHOW);
    EXPECT_EQ(first, row(MMCN_REFRESH));
    storeAll({L"Letters"});
    const MMC_COOKIE changed = row(MMCN_REFRESH);
    EXPECT_NE(first, changed);
    EXPECT_EQ(changed, row(MMCN_REFRESH));
}

TEST_F(HotFolderList, showsTheSameInEveryViewAfterARefreshInOne)
{
    openNode(2);
    storeAll({L"Invoices"});
    view(1).view().runVerb(MMC_VERB_REFRESH);
    EXPECT_THAT(names(0), ElementsAre(L"Invoices"));
    EXPECT_THAT(names(1), ElementsAre(L"Invoices"));
}

// No console asks a row for it.
// Proves: a hot folder has a view of its own, which no console asks a row for.
TEST_F(HotFolderList, hasAViewForEachHotFolderAndNothingInFurtherColumns)
{
    storeAll({L"Invoices"});
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM parent = snapIn.node(node);
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(parent.lParam).Get(), MMCN_SHOW, TRUE, parent.ID));
    ASSERT_EQ(1u, bare->console.results.inserted.size());
    const MMC_COOKIE row = bare->console.results.inserted.front().lParam;
    EXPECT_EQ(L"", bare->cell(row, 4));
    const auto object = bare->object(row);
    bare->console.header.columns.clear();
    EXPECT_EQ(S_OK, bare->component->Notify(object.Get(), MMCN_SHOW, TRUE, 0));
    EXPECT_THAT(bare->console.header.columns, ElementsAre(HeaderDouble::Column{0, L"File Name", LVCFMT_LEFT, 275}));
}

TEST_F(HotFolderList, showsTheWaitCursorWhileItIsRead)
{
    open();
    std::vector<HCURSOR> cursors;
    ImportSpy<"SetCursor", decltype(SetCursor)> cursor(
        [&](HCURSOR shape)
        {
            cursors.push_back(shape);
            return cursor.callThrough(shape);
        });
    const HCURSOR before = GetCursor();
    view().select(node);
    EXPECT_THAT(cursors, ElementsAre(LoadCursorW(nullptr, IDC_WAIT), before));
}

} // namespace
} // namespace Acceptance
