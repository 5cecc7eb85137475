#include "users/UsersTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class EditUser : public UsersTest
{
  protected:
    void SetUp() override
    {
        UsersTest::SetUp();
        addUsers({L"alice", L"bob1"});
    }
};

// Proves: UserPropertyItem on a double-click.
TEST_F(EditUser, storesWhatWasEnteredAndShowsIt)
{
    const Tessaro::User before = storedUser(L"alice");
    openNode();
    inEditUser(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(L"alice", dialog.text(UserDialog::username));
            EXPECT_TRUE(dialog.checked(UserDialog::enabled));
            dialog.type(UserDialog::username, L"zoe.z");
            dialog.type(UserDialog::password, L"secret");
            dialog.type(UserDialog::editedConfirmation, L"secret");
            dialog.setChecked(UserDialog::enabled, false);
            dialog.press(IDOK);
        });
    view().doubleClick(L"alice");
    EXPECT_THAT(view().rows(),
                ElementsAre(ElementsAre(L"Guest", L"No"), ElementsAre(L"zoe.z", L"No"), ElementsAre(L"bob1", L"Yes")));
    const Tessaro::User edited = storedUser(L"zoe.z");
    EXPECT_EQ(before.getId(), edited.getId());
    EXPECT_FALSE(edited.isEnabled());
    EXPECT_TRUE(edited.getPassword().startsWith(L"$pbkdf2-sha256$"));
}

TEST_F(EditUser, opensByItsCommandToo)
{
    openNode();
    rename(L"zoe.z");
    view().runCommand(L"alice", edit);
    EXPECT_THAT(storedNames(), ElementsAre(L"zoe.z", L"bob1"));
}

TEST_F(EditUser, keepsThePasswordWhereNoneIsEntered)
{
    Tessaro::User alice = storedUser(L"alice");
    alice.setPasswordEncoded(L"former");
    Tessaro::UserCollection().updateUser(alice);
    openNode();
    rename(L"zoe.z");
    view().doubleClick(L"alice");
    EXPECT_EQ(alice.getPassword().str(), storedUser(L"zoe.z").getPassword().str());
}

TEST_F(EditUser, cancelledChangesNothing)
{
    setAccess(L"Invoices", {L"alice"});
    openNode();
    inEditUser(
        [](ModalWindow& dialog)
        {
            dialog.type(UserDialog::username, L"zoe.z");
            dialog.setChecked(UserDialog::enabled, false);
            dialog.press(IDCANCEL);
        });
    view().doubleClick(L"alice");
    EXPECT_THAT(storedNames(), ElementsAre(L"alice", L"bob1"));
    EXPECT_TRUE(storedUser(L"alice").isEnabled());
    EXPECT_THAT(storedUsers(L"Invoices"), ElementsAre(L"alice"));
    EXPECT_THAT(view().row(L"alice"), ElementsAre(L"alice", L"Yes"));
}

TEST_F(EditUser, putsTheNewNameIntoTheAccessListsOfAllApplications)
{
    addUsers({L"Alice"});
    setAccess(L"Invoices", {L"Guest", L"alice", L"bob1"});
    setAccess(L"Letters", {L"bob1"});
    setAccess(L"Orders", {L"alice", L"Alice"});
    openNode();
    rename(L"zoe.z");
    view().doubleClick(L"alice");
    EXPECT_THAT(storedUsers(L"Invoices"), ElementsAre(L"Guest", L"zoe.z", L"bob1"));
    EXPECT_THAT(storedUsers(L"Letters"), ElementsAre(L"bob1"));
    EXPECT_THAT(storedUsers(L"Orders"), ElementsAre(L"zoe.z", L"Alice"));
}

// Proves: in a list that has the old name twice only the first is replaced, and a list is written back even when both
// names are the same.
TEST_F(EditUser, putsTheNewNameInThePlaceOfTheFirstEntryOnly)
{
    setAccess(L"Invoices", {L"alice", L"bob1", L"alice"});
    openNode();
    rename(L"zoe.z");
    view().doubleClick(L"alice");
    EXPECT_THAT(storedUsers(L"Invoices"), ElementsAre(L"zoe.z", L"bob1", L"alice"));
}

TEST_F(EditUser, leavesTheAccessListsAsTheyAreWhereTheNameStays)
{
    setAccess(L"Invoices", {L"bob1", L"alice", L"alice"});
    openNode();
    switchTo(false, IDOK);
    view().doubleClick(L"alice");
    EXPECT_FALSE(storedUser(L"alice").isEnabled());
    EXPECT_THAT(storedUsers(L"Invoices"), ElementsAre(L"bob1", L"alice", L"alice"));
}

// Proves: another case of a name, and "guest", may be chosen for an account that is there.
TEST_F(EditUser, acceptsTheNameOfTheGuestAndAnothersInOtherCase)
{
    openNode();
    rename(L"guest");
    view().doubleClick(L"alice");
    rename(L"GUEST");
    view().doubleClick(L"bob1");
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"guest", L"GUEST"));
}

// Proves: UserPropertyItem on a change that another view reports.
TEST_F(EditUser, tellsEveryViewAndGoesToTheNode)
{
    openNode(2);
    recorder.forgetCalls();
    rename(L"zoe.z");
    view(0).doubleClick(L"alice");
    EXPECT_THAT(names(0), ElementsAre(L"Guest", L"zoe.z", L"bob1"));
    EXPECT_THAT(names(1), ElementsAre(L"Guest", L"zoe.z", L"bob1"));
    EXPECT_EQ(1u, recorder.calls(L"IConsole::SelectScopeItem").size());
    EXPECT_EQ(node, view(0).selected());
}

TEST_F(EditUser, keepsTheAccountThatAnotherConsoleHasChangedButForWhatWasEntered)
{
    openNode();
    Tessaro::User changed = storedUser(L"alice");
    changed.setUsername(L"carol");
    Tessaro::UserCollection().updateUser(changed);
    rename(L"zoe.z");
    view().doubleClick(L"alice");
    EXPECT_THAT(storedNames(), ElementsAre(L"zoe.z", L"bob1")) << "the last one counts";
}

TEST_F(EditUser, ofOneThatAnotherConsoleHasRemovedSaysSo)
{
    openNode();
    Tessaro::UserCollection().deleteUser(storedUser(L"alice"));
    rename(L"zoe.z");
    error(L"The user \"zoe.z\" has been removed by another program. Please refresh the list.");
    view().doubleClick(L"alice");
    EXPECT_THAT(storedNames(), ElementsAre(L"bob1"));
}

} // namespace
} // namespace Acceptance
