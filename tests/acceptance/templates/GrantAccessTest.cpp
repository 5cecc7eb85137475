#include "frame/BareSnapIn.h"
#include "kit/DatabaseLock.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// Granting access to the templates of an application, and withdrawing it.
class Access : public TemplatesTest
{
  protected:
    static constexpr wchar_t grantAccess[] = L"&Grant Access To...";
    static constexpr wchar_t caption[] = L"Grant Access To";
    static constexpr int usernames = 210;

    // The accounts adam and zoe, who is disabled; the guest may use the application.
    void SetUp() override
    {
        TemplatesTest::SetUp();
        addUser(L"adam");
        addUser(L"zoe", false);
        addApplication(L"Invoices");
    }

    static std::wstring users() { return nodeOf(L"Invoices\\Users"); }
    static Texts stored() { return storedUsers(L"Invoices"); }

    // The robot's next step: chooses the entry at that position and presses OK.
    void choose(int index)
    {
        robot.dialog(caption,
                     [index](ModalWindow& dialog)
                     {
                         dialog.choose(usernames, index);
                         dialog.press(IDOK);
                     });
    }
};

using GrantAccess = Access;
using WithdrawAccess = Access;

TEST_F(GrantAccess, storesTheUserAndShowsHim)
{
    openAt(users());
    choose(0);
    view().runNodeCommand(users(), grantAccess);
    EXPECT_THAT(stored(), ElementsAre(L"Guest", L"adam"));
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"adam"));
}

TEST_F(GrantAccess, isPossibleForADisabledAccount)
{
    openAt(users());
    choose(1);
    view().runNodeCommand(users(), grantAccess);
    EXPECT_THAT(stored(), ElementsAre(L"Guest", L"zoe"));
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"zoe"));
}

// Proves: an account whose name differs from a listed one in case only is offered.
TEST_F(GrantAccess, isPossibleForANameThatDiffersFromAListedOneInCaseOnly)
{
    addUser(L"Adam");
    grant(L"Invoices", L"adam");
    openAt(users());
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     dialog.choose(usernames, 1);
                     EXPECT_EQ(L"Adam", dialog.text(usernames));
                     dialog.press(IDOK);
                 });
    view().runNodeCommand(users(), grantAccess);
    EXPECT_THAT(stored(), ElementsAre(L"Guest", L"adam", L"Adam"));
}

TEST_F(GrantAccess, isPossibleForTheGuestAgain)
{
    openAt(users());
    view().pressDelete(L"Guest");
    EXPECT_THAT(stored(), IsEmpty());
    choose(0);
    view().runNodeCommand(users(), grantAccess);
    EXPECT_THAT(stored(), ElementsAre(L"Guest"));
}

TEST_F(GrantAccess, hasNobodyLeftOnceEverybodyHasIt)
{
    grant(L"Invoices", L"adam");
    grant(L"Invoices", L"zoe");
    openAt(users());
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     EXPECT_EQ(L"", dialog.text(usernames));
                     dialog.press(IDOK);
                 });
    robot.message({.text = L"Username can not be empty.",
                   .caption = L"Validation Error",
                   .icon = MB_ICONERROR,
                   .owner = Owner::dialog});
    cancel(caption);
    view().runNodeCommand(users(), grantAccess);
    EXPECT_THAT(stored(), ElementsAre(L"Guest", L"adam", L"zoe"));
}

TEST_F(GrantAccess, cancelledStoresNothing)
{
    openAt(users());
    cancel(caption);
    view().runNodeCommand(users(), grantAccess);
    EXPECT_THAT(stored(), ElementsAre(L"Guest"));
}

TEST_F(GrantAccess, keepsWhatAnotherProgramGrantedMeanwhile)
{
    openAt(users());
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     grant(L"Invoices", L"zoe");
                     dialog.choose(usernames, 0);
                     dialog.press(IDOK);
                 });
    view().runNodeCommand(users(), grantAccess);
    EXPECT_THAT(stored(), testing::UnorderedElementsAre(L"Guest", L"adam", L"zoe"));
    EXPECT_THAT(names(), testing::UnorderedElementsAre(L"Guest", L"adam", L"zoe"));
}

TEST_F(GrantAccess, isSeenInEveryView)
{
    openAt(users(), 2);
    choose(0);
    view(1).runNodeCommand(users(), grantAccess);
    EXPECT_THAT(names(0), ElementsAre(L"Guest", L"adam"));
    EXPECT_THAT(names(1), ElementsAre(L"Guest", L"adam"));
}

TEST_F(GrantAccess, isRefusedByTheLibraryWhenTheApplicationWasRemovedElsewhere)
{
    openAt(users());
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     removeApplication(L"Invoices");
                     dialog.press(IDOK);
                 });
    error(L"The application \"Invoices\" has been removed by another program. Please refresh the list.");
    view().runNodeCommand(users(), grantAccess);
    EXPECT_THAT(names(), ElementsAre(L"Guest"));
}

TEST_F(GrantAccess, thatWasRefusedIsNotMadeUpForByTheNextOne)
{
    openAt(users());
    {
        std::optional<DatabaseLock> lock;
        robot.dialog(caption,
                     [&](ModalWindow& dialog)
                     {
                         lock.emplace(database());
                         dialog.choose(usernames, 0);
                         dialog.press(IDOK);
                     });
        error(databaseInUse());
        view().runNodeCommand(users(), grantAccess);
    }
    EXPECT_THAT(stored(), ElementsAre(L"Guest"));
    EXPECT_THAT(names(), ElementsAre(L"Guest"));
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     dialog.choose(usernames, 1);
                     EXPECT_EQ(L"zoe", dialog.text(usernames)) << "adam is still offered";
                     dialog.press(IDOK);
                 });
    view().runNodeCommand(users(), grantAccess);
    EXPECT_THAT(stored(), ElementsAre(L"Guest", L"zoe"));
}

TEST_F(GrantAccess, isRefusedWhereTheAccountsCannotBeRead)
{
    openAt(users());
    const std::string before = ServerFiles::read(database());
    ServerFiles::write(database(), std::string(4096, 'x'));
    error(L"The database \"" + database().wstring() +
          L"\" is damaged (file is not a database). Please restore it from a backup.");
    view().runNodeCommand(users(), grantAccess);
    ServerFiles::write(database(), before);
    EXPECT_THAT(stored(), ElementsAre(L"Guest"));
}

// Proves: TemplateUserItem on Delete.
TEST_F(WithdrawAccess, asksNothingAndListsTheRest)
{
    grant(L"Invoices", L"adam");
    grant(L"Invoices", L"zoe");
    openAt(users());
    ASSERT_TRUE(view().canDelete(L"adam"));
    view().pressDelete(L"adam");
    EXPECT_THAT(stored(), ElementsAre(L"Guest", L"zoe"));
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"zoe"));
    EXPECT_EQ(users(), view().selected());
    EXPECT_EQ(2, Tessaro::UserCollection().getCount()) << "the account itself stays";
}

// Not every console shows a node anew that is selected already.
TEST_F(WithdrawAccess, listsTheRestTellsTheOtherViewsAndSelectsTheNode)
{
    grant(L"Invoices", L"adam");
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(users());
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    const auto guest = bare->object(bare->console.results.rows.at(0).lParam);
    bare->console.updates.clear();
    EXPECT_EQ(S_OK, bare->component->Notify(guest.Get(), MMCN_DELETE, 0, 0));
    ASSERT_EQ(1u, bare->console.results.rows.size());
    EXPECT_EQ(L"adam", bare->cell(bare->console.results.rows.front().lParam, 0));
    EXPECT_EQ(1u, bare->console.updates.size());
    EXPECT_THAT(bare->console.selections, ElementsAre(node.ID));
}

TEST_F(WithdrawAccess, leavesTheGuestAccountItselfAlone)
{
    for (const bool enabled : {true, false})
    {
        Tessaro::UserCollection().setGuestEnabled(enabled);
        openAt(users());
        view().pressDelete(L"Guest");
        EXPECT_THAT(stored(), IsEmpty());
        EXPECT_EQ(enabled, Tessaro::UserCollection().isGuestEnabled());
        grant(L"Invoices", L"Guest");
        close();
    }
}

TEST_F(WithdrawAccess, takesOneAfterTheOther)
{
    grant(L"Invoices", L"adam");
    grant(L"Invoices", L"zoe");
    openAt(users());
    for (const wchar_t* const name : {L"adam", L"Guest", L"zoe"})
    {
        view().pressDelete(name);
    }
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(WithdrawAccess, keepsWhatAnotherProgramGrantedMeanwhile)
{
    openAt(users());
    grant(L"Invoices", L"adam");
    view().pressDelete(L"Guest");
    EXPECT_THAT(stored(), ElementsAre(L"adam"));
    EXPECT_THAT(names(), ElementsAre(L"adam"));
}

TEST_F(WithdrawAccess, isSeenInEveryView)
{
    grant(L"Invoices", L"adam");
    openAt(users(), 2);
    view(1).pressDelete(L"Guest");
    EXPECT_THAT(names(0), ElementsAre(L"adam"));
    EXPECT_THAT(names(1), ElementsAre(L"adam"));
}

TEST_F(WithdrawAccess, isRefusedByTheLibraryWhileTheDatabaseIsInUse)
{
    openAt(users());
    {
        const DatabaseLock lock(database());
        error(databaseInUse());
        view().pressDelete(L"Guest");
    }
    EXPECT_THAT(stored(), ElementsAre(L"Guest"));
    EXPECT_THAT(names(), ElementsAre(L"Guest"));
}

TEST_F(WithdrawAccess, isRefusedByTheLibraryWhenTheApplicationWasRemovedElsewhere)
{
    openAt(users());
    removeApplication(L"Invoices");
    error(L"The application \"Invoices\" has been removed by another program. Please refresh the list.");
    view().pressDelete(L"Guest");
    EXPECT_THAT(names(), ElementsAre(L"Guest"));
}

} // namespace
} // namespace Acceptance
