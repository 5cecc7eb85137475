#include "frame/BareSnapIn.h"
#include "frame/ModuleResource.h"
#include "frame/menus.h"
#include "users/UsersTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class UserMenus : public UsersTest
{
  protected:
    void SetUp() override
    {
        UsersTest::SetUp();
        addUsers({L"alice"});
    }
};

TEST_F(UserMenus, ofTheNodeAddsAUser)
{
    EXPECT_THAT(menuOfNode(node), ElementsAre(topItem(add, 1054)));
}

TEST_F(UserMenus, ofTheGuestAndOfAUserEdit)
{
    EXPECT_THAT(menuOfRow(node, 0), ElementsAre(topItem(edit, 1055)));
    EXPECT_THAT(menuOfRow(node, 1), ElementsAre(topItem(edit, 1055)));
}

// Proves: no node has the menu of the guest, and no node carries out its command.
TEST_F(UserMenus, doNotCarryOutTheCommandThatNoMenuOfThemHas)
{
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM parent = snapIn.node(node);
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(parent.lParam).Get(), MMCN_SHOW, TRUE, parent.ID));
    for (const RESULTDATAITEM& row : bare->console.results.inserted)
    {
        EXPECT_EQ(S_OK, bare->menus()->Command(1056, bare->object(row.lParam).Get()));
    }
    EXPECT_FALSE(guestEnabled());
    EXPECT_TRUE(storedUser(L"alice").isEnabled());
}

// Proves: no node has the menu of the guest, and no node carries out its command.
TEST_F(UserMenus, haveTheMenuThatNobodyShows)
{
    EXPECT_EQ((std::pair<std::wstring, std::wstring>(L"Guest POPUP MENU", L"Enable/Disable")),
              ModuleResource().menuTexts(266, 1056));
}

} // namespace
} // namespace Acceptance
