#include "frame/BareSnapIn.h"
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

// Kept as is.
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

TEST_F(UserMenus, haveTheMenuThatNobodyShows)
{
    const HMODULE module =
        LoadLibraryExW((ServerFiles::programFolder() / L"TMgmt.dll").c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const HMENU menu = LoadMenuW(module, MAKEINTRESOURCEW(266));
    wchar_t text[64] = L"";
    EXPECT_NE(0, GetMenuStringW(menu, 0, text, 64, MF_BYPOSITION));
    EXPECT_STREQ(L"Guest POPUP MENU", text);
    EXPECT_NE(0, GetMenuStringW(menu, 1056, text, 64, MF_BYCOMMAND));
    EXPECT_STREQ(L"Enable/Disable", text);
    DestroyMenu(menu);
    FreeLibrary(module);
}

} // namespace
} // namespace Acceptance
