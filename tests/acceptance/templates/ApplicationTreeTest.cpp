#include "frame/BareSnapIn.h"
#include "kit/DatabaseLock.h"
#include "kit/ImportSpy.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// The nodes of the branch and how they come into the tree.
class ApplicationTree : public TemplatesTest
{
  protected:
    static Texts childrenIn(const BareSnapIn& snapIn, HSCOPEITEM parent)
    {
        Texts names;
        for (const SCOPEDATAITEM& child : snapIn.console.nameSpace.children)
        {
            if (child.relativeID == parent)
            {
                names.push_back(snapIn.displayName(child.lParam));
            }
        }
        return names;
    }
};

TEST_F(ApplicationTree, hasNoApplicationsWithoutADatabase)
{
    openAt(branch);
    EXPECT_THAT(view().children(branch), IsEmpty());
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(database())) << "looking makes no database";
}

TEST_F(ApplicationTree, hasOneNodeForEachApplicationInTheirOrder)
{
    addApplications({L"Letters", L"Bills", L"Счета 請求書 فواتير"});
    openAt(branch);
    EXPECT_THAT(view().children(branch), ElementsAre(L"Letters", L"Bills", L"Счета 請求書 فواتير"));
    EXPECT_THAT(names(), ElementsAre(L"Letters", L"Bills", L"Счета 請求書 فواتير"));
}

TEST_F(ApplicationTree, doesNotSortTheApplications)
{
    openAt(branch);
    EXPECT_FALSE(view().view().sortable());
    EXPECT_EQ(1u, recorder.calls(L"IResultData::ModifyViewStyle").size());
}

TEST_F(ApplicationTree, declaresAsManyChildrenAsThereAreApplications)
{
    addApplications({L"Letters", L"Bills"});
    BareSnapIn snapIn;
    EXPECT_EQ(2, snapIn.node(branch).cChildren);
}

TEST_F(ApplicationTree, showsTheWaitCursorWhileItIsRead)
{
    openAt(branch);
    std::vector<HCURSOR> cursors;
    ImportSpy<"SetCursor", decltype(SetCursor)> cursor(
        [&](HCURSOR shape)
        {
            cursors.push_back(shape);
            return cursor.callThrough(shape);
        });
    const HCURSOR before = GetCursor();
    enter(L"Edit Application", 233, L"Letters");
    view().runNodeCommand(branch, L"&Add Application...");
    EXPECT_THAT(cursors, ElementsAre(LoadCursorW(nullptr, IDC_WAIT), before));
}

TEST_F(ApplicationTree, hasUsersAndThenTheFoldersBelowAnApplication)
{
    addApplications({L"Letters", L"Bills"});
    addFolder(L"Letters", L"Zeichen");
    addFolder(L"Letters", L"Images");
    openAt(branch);
    EXPECT_THAT(view().children(nodeOf(L"Letters")), ElementsAre(L"Users", L"Zeichen", L"Images"));
    EXPECT_THAT(view().children(nodeOf(L"Bills")), ElementsAre(L"Users"));
}

TEST_F(ApplicationTree, readsTheFoldersWhenAnApplicationIsExpanded)
{
    addApplications({L"Letters"});
    openAt(branch);
    addFolder(L"Letters", L"Images");
    EXPECT_THAT(view().children(nodeOf(L"Letters")), ElementsAre(L"Users", L"Images"));
}

TEST_F(ApplicationTree, expandedTwiceShowsTheChildrenOnceAndCollapsedNone)
{
    addApplications({L"Letters"});
    addFolder(L"Letters", L"Images");
    BareSnapIn snapIn;
    const SCOPEDATAITEM templates = snapIn.node(branch);
    const SCOPEDATAITEM letters = snapIn.node(nodeOf(L"Letters"));
    for (int time = 0; time < 2; ++time)
    {
        EXPECT_EQ(S_OK, snapIn.expand(letters.lParam, letters.ID));
        EXPECT_THAT(childrenIn(snapIn, letters.ID), ElementsAre(L"Users", L"Images"));
    }
    EXPECT_EQ(S_OK, snapIn.expand(letters.lParam, letters.ID, false));
    EXPECT_THAT(childrenIn(snapIn, letters.ID), IsEmpty());

    EXPECT_EQ(S_OK, snapIn.expand(templates.lParam, templates.ID));
    EXPECT_THAT(childrenIn(snapIn, templates.ID), ElementsAre(L"Letters"));
    EXPECT_EQ(S_OK, snapIn.expand(templates.lParam, templates.ID, false));
    EXPECT_THAT(childrenIn(snapIn, templates.ID), IsEmpty());
}

// A console may ask about a node until it has let go of it.
// Proves: TemplatesCollection on the console's refresh.
TEST_F(ApplicationTree, keepsItsNodesAsLongAsTheConsoleHasThem)
{
    addApplications({L"Letters"});
    addFolder(L"Letters", L"Images");
    BareSnapIn snapIn;
    int asked = 0;
    snapIn.console.nameSpace.onDelete = [&]
    {
        for (const SCOPEDATAITEM& child : snapIn.console.nameSpace.children)
        {
            SCOPEDATAITEM item{};
            item.mask = SDI_STR;
            item.lParam = child.lParam;
            EXPECT_EQ(S_OK, snapIn.data->GetDisplayInfo(&item));
            ++asked;
        }
    };
    const SCOPEDATAITEM templates = snapIn.node(branch);
    EXPECT_EQ(S_OK, snapIn.expand(templates.lParam, templates.ID));
    EXPECT_EQ(S_OK, snapIn.data->Notify(snapIn.object(templates.lParam).Get(), MMCN_REFRESH, 0, 0));
    EXPECT_LT(0, std::exchange(asked, 0));

    const SCOPEDATAITEM letters = snapIn.node(nodeOf(L"Letters"));
    EXPECT_EQ(S_OK, snapIn.expand(letters.lParam, letters.ID));
    EXPECT_EQ(S_OK, snapIn.data->Notify(snapIn.object(letters.lParam).Get(), MMCN_REFRESH, 0, 0));
    EXPECT_LT(0, std::exchange(asked, 0));
    EXPECT_EQ(S_OK, snapIn.expand(letters.lParam, letters.ID));
    EXPECT_LT(0, asked);
}

TEST_F(ApplicationTree, hasUsersEvenWhereTheFoldersCannotBeRead)
{
    addApplications({L"Letters"});
    addFolder(L"Letters", L"Images");
    open();
    view().children(branch);
    const DatabaseLock lock(database());
    error(databaseInUse());
    EXPECT_THAT(view().children(nodeOf(L"Letters")), ElementsAre(L"Users"));
}

TEST_F(ApplicationTree, isEmptyWhereTheApplicationsCannotBeRead)
{
    addApplications({L"Letters"});
    {
        const DatabaseLock lock(database());
        error(databaseInUse());
        open();
        view().children(L"");
    }
    EXPECT_THAT(view().children(branch), IsEmpty());
}

} // namespace
} // namespace Acceptance
