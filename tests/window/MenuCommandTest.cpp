#include "MenuCommand.h"

#include <gtest/gtest.h>

using namespace Console;

namespace
{

MenuItem command(unsigned number, const wchar_t* text, long snapInCommand = 0, bool enabled = true)
{
    MenuItem item;
    item.command = number;
    item.text = text;
    item.snapInCommand = snapInCommand;
    item.enabled = enabled;
    return item;
}

std::vector<MenuItem> menu()
{
    MenuItem separator;
    separator.kind = MenuItem::Kind::separator;
    MenuItem submenu;
    submenu.kind = MenuItem::Kind::submenu;
    submenu.text = L"All Tas&ks";
    submenu.children = {command(2, L"&Export ...", 1017)};
    return {command(1, L"&Edit Property", 1000),
            separator,
            submenu,
            command(3, L"Cut && Paste\tCtrl+X", 1),
            command(4, L"Disabled", 1001, false),
            command(5, L"&Delete")};
}

} // namespace

TEST(MenuCommand, IsFoundByTheSnapInsNumber)
{
    EXPECT_EQ(findMenuCommand(menu(), L"1000"), 1U);
    EXPECT_EQ(findMenuCommand(menu(), L"1017"), 2U);
}

TEST(MenuCommand, IsFoundByItsText)
{
    EXPECT_EQ(findMenuCommand(menu(), L"Edit Property"), 1U);
    EXPECT_EQ(findMenuCommand(menu(), L"edit property..."), 1U);
    EXPECT_EQ(findMenuCommand(menu(), L"Export"), 2U);
    EXPECT_EQ(findMenuCommand(menu(), L"Delete"), 5U);
    EXPECT_EQ(findMenuCommand(menu(), L"Cut & Paste"), 3U);
}

TEST(MenuCommand, IsNotFoundWhenDisabledOrMissing)
{
    EXPECT_EQ(findMenuCommand(menu(), L"1001"), 0U);
    EXPECT_EQ(findMenuCommand(menu(), L"Disabled"), 0U);
    EXPECT_EQ(findMenuCommand(menu(), L"All Tasks"), 0U);
    EXPECT_EQ(findMenuCommand(menu(), L""), 0U);
    // Standard commands have no number of a snap-in's.
    EXPECT_EQ(findMenuCommand(menu(), L"0"), 0U);
}
