#include "users/UserDialogTest.h"

#include "kit/ImportSpy.h"
#include "tmgmt/users/AddUserDlg.h"

namespace
{

using TMgmt::AddUserDlg;

class AddUserDlgTest : public UserDialogTest
{
  protected:
    static constexpr wchar_t taken[] = L"Username already exits.";

    AddUserDlgTest() : UserDialogTest(L"Add User", 234) {}

    void expectRefused(const Use& use, const wchar_t* message)
    {
        AddUserDlg dialog;
        okIsRefused(use, message);
        endAfter(dialog, IDCANCEL);
    }
    void expectNameRefused(const std::wstring& name, const wchar_t* message)
    {
        expectRefused(enter(name, L"secret", L"secret"), message);
    }
    void expectNameTaken(const std::wstring& name)
    {
        AddUserDlg dialog;
        endAfter(dialog, IDOK, enter(name, L"secret", L"secret"));
        EXPECT_EQ(dialog.user.getUsername(), name);
    }
};

TEST_F(AddUserDlgTest, hasTheseControls)
{
    AddUserDlg dialog;
    endAfter(dialog, IDCANCEL,
             [this](ModalWindow& window)
             {
                 EXPECT_EQ(Acceptance::contentsOf(window.handle()),
                           (std::vector<std::wstring>{L"-1 Button User", L"-1 Static Username:", L"232 Edit ",
                                                      L"-1 Static Password:", L"233 Edit ",
                                                      L"-1 Static Confirm  Password:", L"234 Edit ",
                                                      L"277 Button Enable user", L"1 Button OK", L"2 Button Cancel"}));
                 EXPECT_EQ(Acceptance::tabOrderOf(window.handle()),
                           (std::vector<int>{username, password, confirmation, enabled, IDOK, IDCANCEL}));
                 EXPECT_EQ(window.focus(), username);
                 EXPECT_TRUE(window.checked(enabled));
                 EXPECT_FALSE(hidesWhatIsTyped(window, username));
                 EXPECT_TRUE(hidesWhatIsTyped(window, password));
                 EXPECT_TRUE(hidesWhatIsTyped(window, confirmation));
             });
}

TEST_F(AddUserDlgTest, givesTheAccountWithItsPasswordEncoded)
{
    for (const bool on : {true, false})
    {
        AddUserDlg dialog;
        endAfter(dialog, IDOK,
                 [=, this](ModalWindow& window)
                 {
                     enter(L"jean.dupont-2_x", L" p\u00E4ss", L" p\u00E4ss")(window);
                     window.setChecked(enabled, on);
                 });
        EXPECT_EQ(dialog.user.getId(), -1);
        EXPECT_EQ(dialog.user.getUsername(), L"jean.dupont-2_x");
        EXPECT_EQ(dialog.user.isEnabled(), on);
        EXPECT_TRUE(dialog.user.getPassword().startsWith(L"$pbkdf2-sha256$i=600000$"));
    }
    EXPECT_EQ(Tessaro::UserCollection().getCount(), 0) << "it is stored by who asked";
}

TEST_F(AddUserDlgTest, refusesTheNameOfTheGuestInEveryCase)
{
    for (const wchar_t* guest : {L"Guest", L"GUEST", L"guest"})
    {
        expectNameRefused(guest, taken);
    }
}

TEST_F(AddUserDlgTest, refusesTheNameOfAnotherInEveryCase)
{
    addAccount(L"bob1");
    addAccount(L"Alice");
    for (const wchar_t* name : {L"Alice", L"alice", L"ALICE"})
    {
        expectNameRefused(name, taken);
    }
}

// Accounts that others made have names that cannot be entered.
TEST_F(AddUserDlgTest, asksWhetherTheNameIsTakenBeforeAnythingElse)
{
    for (const std::wstring& name :
         {std::wstring(), std::wstring(L"abc"), std::wstring(33, L'x'), std::wstring(L"Jos\u00E9")})
    {
        addAccount(name);
        expectRefused(enter(name), taken);
    }
    expectRefused(enter(L"ABC"), taken);
    expectRefused(enter(L"JOS\u00C9"), taken);
}

TEST_F(AddUserDlgTest, refusesNamesThatAreEmptyTooShortTooLongOrNotPlain)
{
    expectNameRefused(L"", L"Username cannot be empty.");
    expectNameRefused(L"abc", tooShort);
    expectNameRefused(L"\u00E9\u00E9\u00E9", tooShort);
    expectNameRefused(std::wstring(33, L'x'), tooLong);
    expectNameRefused(std::wstring(33, L' '), tooLong);
    expectNameRefused(L"jos\u00E9", badCharacter);
    expectNameRefused(L"two words", badCharacter);
    expectNameRefused(L"who@where", badCharacter);
    expectNameTaken(L"abcd");
    expectNameTaken(std::wstring(32, L'x'));
}

TEST_F(AddUserDlgTest, refusesTheNameBeforeThePassword)
{
    expectRefused(enter(L"", L"", L""), L"Username cannot be empty.");
    expectRefused(enter(L"abc", L"", L""), tooShort);
    expectRefused(enter(L"jos\u00E9", L"one", L"two"), badCharacter);
}

TEST_F(AddUserDlgTest, refusesPasswordsThatAreMissingOrDiffer)
{
    expectRefused(enter(L"alice", L"", L""), L"Password cannot be empty.");
    expectRefused(enter(L"alice", L"", L"secret"), L"Password cannot be empty.");
    expectRefused(enter(L"alice", L"secret", L""), L"Confirm Password can not be empty.");
    expectRefused(enter(L"alice", L"secret", L"Secret"), L"Passwords don't match. ");
}

TEST_F(AddUserDlgTest, staysOpenWithWhatWasEntered)
{
    AddUserDlg dialog;
    okIsRefused(
        [this](ModalWindow& window)
        {
            enter(L"alice", L"secret", L"public")(window);
            window.setChecked(enabled, false);
        },
        L"Passwords don't match. ");
    endAfter(dialog, IDOK,
             [this](ModalWindow& window)
             {
                 EXPECT_EQ(window.text(username), L"alice");
                 EXPECT_EQ(window.text(password), L"secret");
                 EXPECT_EQ(window.text(confirmation), L"public");
                 EXPECT_FALSE(window.checked(enabled));
                 window.type(confirmation, L"secret");
             });
    EXPECT_EQ(dialog.user.getUsername(), L"alice");
}

TEST_F(AddUserDlgTest, takesTheCheckBoxBeforeItRefusesTheRest)
{
    AddUserDlg dialog;
    okIsRefused([](ModalWindow& window) { window.setChecked(enabled, false); }, L"Username cannot be empty.");
    endAfter(dialog, IDCANCEL);
    EXPECT_FALSE(dialog.user.isEnabled());
    EXPECT_EQ(dialog.user.getUsername(), L"");
}

TEST_F(AddUserDlgTest, staysOpenWhenTheAccountsCannotBeRead)
{
    damageDatabase();
    AddUserDlg dialog;
    okFails(enter(L"guest"));
    okFails(enter(L"alice", L"secret", L"secret"));
    endAfter(dialog, IDOK, [](ModalWindow&) { repairDatabase(); });
    EXPECT_EQ(dialog.user.getUsername(), L"alice");
}

TEST_F(AddUserDlgTest, showsTheWaitCursorWhileThePasswordIsEncoded)
{
    std::vector<HCURSOR> waiting;
    Acceptance::ImportSpy<"SetCursor", decltype(SetCursor)> cursor(
        [&](HCURSOR shape)
        {
            if (shape == LoadCursorW(nullptr, IDC_WAIT))
            {
                waiting.push_back(shape);
            }
            return cursor.callThrough(shape);
        },
        nullptr);
    const HCURSOR before = GetCursor();
    AddUserDlg dialog;
    endAfter(dialog, IDOK, enter(L"alice", L"secret", L"secret"));
    EXPECT_EQ(waiting.size(), 1u);
    EXPECT_EQ(GetCursor(), before);
}

} // namespace
