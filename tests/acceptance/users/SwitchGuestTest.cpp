#include "users/UsersTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class SwitchGuest : public UsersTest
{
};

// Proves: GuestPropertyItem on a double-click.
TEST_F(SwitchGuest, storesTheSwitchAndShowsIt)
{
    openNode();
    for (const bool on : {true, false})
    {
        inEditUser(
            [on](ModalWindow& dialog)
            {
                EXPECT_EQ(L"Guest", dialog.text(UserDialog::username));
                EXPECT_EQ(!on, dialog.checked(UserDialog::enabled));
                dialog.setChecked(UserDialog::enabled, on);
                dialog.press(IDOK);
            });
        view().doubleClick(L"Guest");
        EXPECT_EQ(on, guestEnabled());
        EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"Guest", on ? L"Yes" : L"No")));
    }
}

TEST_F(SwitchGuest, opensByItsCommandToo)
{
    openNode();
    switchTo(true, IDOK);
    view().runCommand(L"Guest", edit);
    EXPECT_TRUE(guestEnabled());
}

TEST_F(SwitchGuest, cancelledChangesNothing)
{
    openNode();
    switchTo(true, IDCANCEL);
    view().doubleClick(L"Guest");
    EXPECT_FALSE(guestEnabled());
    EXPECT_THAT(view().row(L"Guest"), ElementsAre(L"Guest", L"No"));
}

// Proves: GuestPropertyItem on a change that another view reports.
TEST_F(SwitchGuest, tellsEveryViewAndGoesToTheNode)
{
    openNode(2);
    recorder.forgetCalls();
    switchTo(true, IDOK);
    view(1).doubleClick(L"Guest");
    EXPECT_EQ(L"Yes", view(0).cell(L"Guest", L"Enabled"));
    EXPECT_EQ(L"Yes", view(1).cell(L"Guest", L"Enabled"));
    EXPECT_EQ(1u, recorder.calls(L"IConsole::SelectScopeItem").size());
    EXPECT_EQ(node, view(1).selected());
}

TEST_F(SwitchGuest, hasNothingToDoWithAUserOfThatName)
{
    addUser(L"Guest", false);
    openNode();
    switchTo(true, IDOK);
    view().view().activateRow(0);
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"Guest", L"Yes"), ElementsAre(L"Guest", L"No")));
    EXPECT_FALSE(storedUser(L"Guest").isEnabled());
}

TEST_F(SwitchGuest, cannotBeDeleted)
{
    setGuest(true);
    openNode();
    view().pressDelete(L"Guest");
    EXPECT_TRUE(guestEnabled());
    EXPECT_THAT(names(), ElementsAre(L"Guest"));
}

} // namespace
} // namespace Acceptance
