#include "users/UserDialogTest.h"

#include "brimlow/tessaro/ServerTemplates.h"
#include "tmgmt/users/EditUserDlg.h"

namespace
{

using TMgmt::EditUserDlg;

class EditUserDlgTest : public UserDialogTest
{
  protected:
    using Names = std::vector<Core::String>;

    static constexpr wchar_t taken[] = L"Username already exists.";

    EditUserDlgTest() : UserDialogTest(L"Edit User", 235) {}

    // An account that is stored, and has a password.
    static Tessaro::User accountWithPassword(const std::wstring& name)
    {
        Tessaro::User account = addAccount(name);
        account.setPasswordEncoded(L"former");
        Tessaro::UserCollection().updateUser(account);
        return account;
    }

    static void addApplication(const std::wstring& name, const Names& users)
    {
        Tessaro::ServerApplication application;
        application.setApplicationPath(name);
        application.setUsers(users);
        Tessaro::ServerTemplates().addNewApplication(application);
    }

    static Names usersOf(int application)
    {
        Tessaro::ServerTemplates templates;
        return templates.getAt(application).getUsers();
    }

    void expectRefused(const Tessaro::User& user, const Use& use, const wchar_t* message)
    {
        EditUserDlg dialog(user);
        okIsRefused(use, message);
        endAfter(dialog, IDCANCEL);
    }
    void expectAccepted(const Tessaro::User& user, const std::wstring& name)
    {
        EditUserDlg dialog(user);
        endAfter(dialog, IDOK, enter(name));
        EXPECT_EQ(dialog.user.getUsername(), name);
    }
};

TEST_F(EditUserDlgTest, hasTheseControlsAndShowsTheAccountWithoutItsPassword)
{
    for (const bool on : {true, false})
    {
        Tessaro::User user = addAccount(on ? L"alice" : L"carol");
        user.setEnable(on);
        EditUserDlg dialog(user);
        endAfter(dialog, IDCANCEL,
                 [&](ModalWindow& window)
                 {
                     EXPECT_EQ(Acceptance::contentsOf(window.handle()),
                               (std::vector<std::wstring>{
                                   L"-1 Button User", L"-1 Static Username:", L"232 Edit " + user.getUsername().str(),
                                   L"-1 Static Change Password:", L"233 Edit ", L"-1 Static Confirm Password:",
                                   L"235 Edit ", L"277 Button Enable user", L"1 Button OK", L"2 Button Cancel"}));
                     EXPECT_EQ(Acceptance::tabOrderOf(window.handle()),
                               (std::vector<int>{username, password, confirmation, enabled, IDOK, IDCANCEL}));
                     EXPECT_EQ(window.focus(), username);
                     EXPECT_EQ(window.checked(enabled), on);
                     EXPECT_FALSE(window.readOnly(username));
                     EXPECT_FALSE(hidesWhatIsTyped(window, username));
                     EXPECT_TRUE(hidesWhatIsTyped(window, password));
                     EXPECT_TRUE(hidesWhatIsTyped(window, confirmation));
                 });
    }
}

TEST_F(EditUserDlgTest, givesTheAccountAsItWasEntered)
{
    const Tessaro::User before = accountWithPassword(L"alice");
    EditUserDlg dialog(before);
    endAfter(dialog, IDOK,
             [this](ModalWindow& window)
             {
                 enter(L"jean.dupont-2_x", L"newer", L"newer")(window);
                 window.setChecked(enabled, false);
             });
    EXPECT_EQ(dialog.user.getId(), before.getId());
    EXPECT_EQ(dialog.user.getUsername(), L"jean.dupont-2_x");
    EXPECT_FALSE(dialog.user.isEnabled());
    EXPECT_NE(dialog.user.getPassword(), before.getPassword());
    EXPECT_TRUE(dialog.user.getPassword().startsWith(L"$pbkdf2-sha256$i=600000$"));
    EXPECT_EQ(Tessaro::UserCollection().getAt(0).getUsername(), L"alice") << "it is stored by who asked";
}

TEST_F(EditUserDlgTest, keepsThePasswordWhereNoneIsEntered)
{
    const Tessaro::User before = accountWithPassword(L"alice");
    EditUserDlg dialog(before);
    endAfter(dialog, IDOK);
    EXPECT_EQ(dialog.user.getUsername(), L"alice");
    EXPECT_EQ(dialog.user.getPassword(), before.getPassword());
    EXPECT_TRUE(dialog.user.isEnabled());
}

TEST_F(EditUserDlgTest, refusesTheVeryNameOfAnotherAndNoneBut)
{
    addAccount(L"Alice");
    const Tessaro::User bob = addAccount(L"bob1");
    expectRefused(bob, enter(L"Alice"), taken);
    expectAccepted(bob, L"alice");
    expectAccepted(bob, L"ALICE");
    expectAccepted(bob, L"bob1");
}

// Kept as is, though the name cannot be added.
TEST_F(EditUserDlgTest, acceptsTheNameOfTheGuest)
{
    const Tessaro::User bob = addAccount(L"bob1");
    expectAccepted(bob, L"guest");
    expectAccepted(bob, L"Guest");
}

// Accounts that others made have names that cannot be entered.
TEST_F(EditUserDlgTest, asksWhetherTheNameIsTakenBeforeAnythingElse)
{
    const Tessaro::User bob = addAccount(L"bob1");
    for (const std::wstring& name :
         {std::wstring(), std::wstring(L"abc"), std::wstring(33, L'x'), std::wstring(L"jos\u00E9")})
    {
        addAccount(name);
        expectRefused(bob, enter(name, L"one", L"two"), taken);
    }
}

TEST_F(EditUserDlgTest, refusesNamesThatAreEmptyTooShortTooLongOrNotPlain)
{
    const Tessaro::User bob = addAccount(L"bob1");
    expectRefused(bob, enter(L""), L"Username can not be empty.");
    expectRefused(bob, enter(L"abc"), tooShort);
    expectRefused(bob, enter(L"\u00E9\u00E9\u00E9"), tooShort);
    expectRefused(bob, enter(std::wstring(33, L'x')), tooLong);
    expectRefused(bob, enter(std::wstring(33, L' ')), tooLong);
    expectRefused(bob, enter(L"jos\u00E9"), badCharacter);
    expectRefused(bob, enter(L"two words"), badCharacter);
    expectRefused(bob, enter(L"who@where"), badCharacter);
    expectAccepted(bob, L"abcd");
    expectAccepted(bob, std::wstring(32, L'x'));
}

TEST_F(EditUserDlgTest, refusesTheNameBeforeThePassword)
{
    const Tessaro::User bob = addAccount(L"bob1");
    expectRefused(bob, enter(L"", L"one", L"two"), L"Username can not be empty.");
    expectRefused(bob, enter(L"abc", L"one", L""), tooShort);
    expectRefused(bob, enter(L"jos\u00E9", L"", L"two"), badCharacter);
}

TEST_F(EditUserDlgTest, refusesPasswordsOfWhichOneIsMissingOrThatDiffer)
{
    const Tessaro::User bob = addAccount(L"bob1");
    expectRefused(bob, enter(L"bob1", L"secret", L""), L"Confirm Password can't be empty.");
    expectRefused(bob, enter(L"bob1", L"", L"secret"), L"Change Password can't be empty.");
    expectRefused(bob, enter(L"bob1", L"secret", L"Secret"), L"Passwords don't match.");
}

TEST_F(EditUserDlgTest, staysOpenWithWhatWasEntered)
{
    const Tessaro::User before = accountWithPassword(L"alice");
    EditUserDlg dialog(before);
    okIsRefused(
        [this](ModalWindow& window)
        {
            enter(L"bob1", L"secret", L"public")(window);
            window.setChecked(enabled, false);
        },
        L"Passwords don't match.");
    endAfter(dialog, IDCANCEL,
             [this](ModalWindow& window)
             {
                 EXPECT_EQ(window.text(username), L"bob1");
                 EXPECT_EQ(window.text(password), L"secret");
                 EXPECT_EQ(window.text(confirmation), L"public");
                 EXPECT_FALSE(window.checked(enabled));
             });
    EXPECT_FALSE(dialog.user.isEnabled()) << "the check box is taken before the rest is refused";
    EXPECT_EQ(dialog.user.getUsername(), L"alice");
    EXPECT_EQ(dialog.user.getPassword(), before.getPassword());
}

TEST_F(EditUserDlgTest, putsTheNewNameIntoEveryAccessListThatHasTheOldOne)
{
    addApplication(L"Bills", {L"Guest", L"alice", L"bob1"});
    addApplication(L"Letters", {L"bob1"});
    addApplication(L"Orders", {L"Alice", L"alice"});
    EditUserDlg dialog(addAccount(L"alice"));
    endAfter(dialog, IDOK, enter(L"zoe.z"));
    EXPECT_EQ(usersOf(0), (Names{L"Guest", L"zoe.z", L"bob1"}));
    EXPECT_EQ(usersOf(1), (Names{L"bob1"}));
    EXPECT_EQ(usersOf(2), (Names{L"Alice", L"zoe.z"}));
}

// Proves: in a list that has the old name twice only the first is replaced, and a list is written back even when both
// names are the same.
TEST_F(EditUserDlgTest, putsTheNewNameInThePlaceOfTheFirstEntryOnly)
{
    addApplication(L"Bills", {L"bob1", L"alice", L"Guest", L"alice"});
    EditUserDlg dialog(addAccount(L"alice"));
    endAfter(dialog, IDOK, enter(L"zoe.z"));
    EXPECT_EQ(usersOf(0), (Names{L"bob1", L"zoe.z", L"Guest", L"alice"}));
}

TEST_F(EditUserDlgTest, leavesAccessListsAsTheyAreWhereTheNameStays)
{
    addApplication(L"Bills", {L"bob1", L"alice", L"alice"});
    EditUserDlg dialog(addAccount(L"alice"));
    endAfter(dialog, IDOK);
    EXPECT_EQ(usersOf(0), (Names{L"bob1", L"alice", L"alice"}));
}

TEST_F(EditUserDlgTest, leavesAccessListsAloneWhenItIsRefusedOrCancelled)
{
    addApplication(L"Bills", {L"alice"});
    const Tessaro::User alice = addAccount(L"alice");
    expectRefused(alice, enter(L"zoe.z", L"one", L"two"), L"Passwords don't match.");
    EXPECT_EQ(usersOf(0), (Names{L"alice"}));
}

TEST_F(EditUserDlgTest, staysOpenWhenTheAccountsCannotBeRead)
{
    const Tessaro::User alice = accountWithPassword(L"alice");
    damageDatabase();
    EditUserDlg dialog(alice);
    okFails(enter(L"zoe.z", L"secret", L"secret"));
    endAfter(dialog, IDCANCEL);
    EXPECT_EQ(dialog.user.getUsername(), L"alice");
    EXPECT_EQ(dialog.user.getPassword(), alice.getPassword());
}

TEST_F(EditUserDlgTest, showsTheGuestAndLetsNothingButTheSwitchBeUsed)
{
    for (const bool on : {true, false})
    {
        EditUserDlg dialog(on);
        endAfter(dialog, IDCANCEL,
                 [&](ModalWindow& window)
                 {
                     EXPECT_EQ(window.text(username), L"Guest");
                     EXPECT_TRUE(window.readOnly(username));
                     EXPECT_FALSE(window.enabled(password));
                     EXPECT_FALSE(window.enabled(confirmation));
                     EXPECT_TRUE(window.enabled(enabled));
                     EXPECT_EQ(window.checked(enabled), on);
                     EXPECT_EQ(window.focus(), username);
                 });
        EXPECT_EQ(dialog.guestEnabled, on);
    }
}

TEST_F(EditUserDlgTest, switchesTheGuest)
{
    for (const bool on : {true, false})
    {
        EditUserDlg dialog(!on);
        endAfter(dialog, IDOK, [on](ModalWindow& window) { window.setChecked(enabled, on); });
        EXPECT_EQ(dialog.guestEnabled, on);
    }
}

TEST_F(EditUserDlgTest, asksNothingAboutTheGuestsName)
{
    addAccount(L"Guest");
    damageDatabase();
    EditUserDlg dialog(false);
    endAfter(dialog, IDOK);
    EXPECT_FALSE(dialog.guestEnabled);
}

} // namespace
