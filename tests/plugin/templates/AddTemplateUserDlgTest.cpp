#include "templates/TemplateDialogTest.h"

#include "brimlow/system/Exception.h"
#include "brimlow/tessaro/UserCollection.h"
#include "tmgmt/templates/AddTemplateUserDlg.h"

namespace
{

namespace ServerFiles = Acceptance::ServerFiles;
using TMgmt::AddTemplateUserDlg;

using Names = std::vector<std::wstring>;

class AddTemplateUserDlgTest : public TemplateDialogTest
{
  protected:
    static constexpr int usernames = 210;

    AddTemplateUserDlgTest() : TemplateDialogTest(L"Grant Access To") {}

    static void addAccounts(const Names& names, bool enabled = true)
    {
        Tessaro::UserCollection accounts;
        for (const auto& name : names)
        {
            Tessaro::User account;
            account.setUsername(name);
            account.setEnable(enabled);
            accounts.addNewUser(account);
        }
    }

    static Tessaro::ServerApplication applicationWith(const Names& users)
    {
        Tessaro::ServerApplication application;
        for (const auto& name : users)
        {
            application.addUser(name);
        }
        return application;
    }

    static Names usersOf(const Tessaro::ServerApplication& application)
    {
        Names names;
        for (const Core::String& name : application.getUsers())
        {
            names.push_back(name.str());
        }
        return names;
    }

    static Names offered(const ModalWindow& window)
    {
        const HWND list = window.control(usernames);
        Names names;
        for (LRESULT i = 0; i < SendMessageW(list, CB_GETCOUNT, 0, 0); ++i)
        {
            const auto index = static_cast<WPARAM>(i);
            std::wstring name(static_cast<std::size_t>(SendMessageW(list, CB_GETLBTEXTLEN, index, 0)), L'\0');
            SendMessageW(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(name.data()));
            names.push_back(std::move(name));
        }
        return names;
    }

    void expectOffered(const Names& listed, const Names& names)
    {
        AddTemplateUserDlg dialog(applicationWith(listed));
        endAfter(dialog, IDCANCEL,
                 [=](ModalWindow& window)
                 {
                     EXPECT_EQ(offered(window), names);
                     EXPECT_EQ(window.text(usernames), names.empty() ? L"" : names.front());
                 });
        EXPECT_EQ(usersOf(dialog.application), listed);
    }
};

TEST_F(AddTemplateUserDlgTest, hasTheseControls)
{
    AddTemplateUserDlg dialog({});
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 EXPECT_EQ(Acceptance::contentsOf(window.handle()), (Names{
                                                                        L"-1 Button User",
                                                                        L"-1 Static Username:",
                                                                        L"210 ComboBox Guest",
                                                                        L"1 Button OK",
                                                                        L"2 Button Cancel",
                                                                    }));
                 EXPECT_EQ(Acceptance::tabOrderOf(window.handle()), (std::vector<int>{usernames, IDOK, IDCANCEL}));
                 const auto style = GetWindowLongW(window.control(usernames), GWL_STYLE);
                 EXPECT_EQ(style & 3, CBS_DROPDOWNLIST);
                 EXPECT_FALSE(style & CBS_SORT);
             });
}

TEST_F(AddTemplateUserDlgTest, offersTheGuestFirstAndThenTheAccountsInTheirOrder)
{
    addAccounts({L"zoe", L"adam", L"\u00C9mile"});
    expectOffered({}, {L"Guest", L"zoe", L"adam", L"\u00C9mile"});
}

TEST_F(AddTemplateUserDlgTest, leavesOutWhoIsListed)
{
    addAccounts({L"zoe", L"adam", L"max"});
    expectOffered({L"Guest"}, {L"zoe", L"adam", L"max"});
    expectOffered({L"adam"}, {L"Guest", L"zoe", L"max"});
    expectOffered({L"max", L"Guest", L"zoe"}, {L"adam"});
    expectOffered({L"adam", L"max", L"Guest", L"zoe"}, {});
}

// Proves: an account whose name differs from a listed one in case only is offered.
TEST_F(AddTemplateUserDlgTest, offersANameThatDiffersInCaseOnly)
{
    addAccounts({L"Adam", L"adam"});
    expectOffered({L"guest", L"adam"}, {L"Guest", L"Adam"});
}

TEST_F(AddTemplateUserDlgTest, offersDisabledAccountsToo)
{
    addAccounts({L"adam"}, false);
    expectOffered({L"Guest"}, {L"adam"});
}

TEST_F(AddTemplateUserDlgTest, opensItsListFiveTimesAsTallAsItIsClosed)
{
    addAccounts({L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h", L"i", L"j", L"k"});
    AddTemplateUserDlg dialog({});
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 const HWND list = window.control(usernames);
                 RECT closed{};
                 GetWindowRect(list, &closed);
                 EXPECT_NEAR(Acceptance::openSizeOf(list).cy, 5 * (closed.bottom - closed.top), 1);
             });
}

TEST_F(AddTemplateUserDlgTest, addsTheChosenUserBehindTheOthers)
{
    addAccounts({L"zoe", L"adam"});
    AddTemplateUserDlg dialog(applicationWith({L"Guest"}));
    endAfter(dialog, IDOK, [](ModalWindow& window) { window.choose(usernames, 1); });
    EXPECT_EQ(usersOf(dialog.application), (Names{L"Guest", L"adam"}));
}

TEST_F(AddTemplateUserDlgTest, addsTheFirstWhereNothingIsChosen)
{
    AddTemplateUserDlg dialog({});
    endAfter(dialog, IDOK);
    EXPECT_EQ(usersOf(dialog.application), Names{L"Guest"});
}

TEST_F(AddTemplateUserDlgTest, hasNobodyToAddWhereEverybodyIsListed)
{
    addAccounts({L"adam"});
    AddTemplateUserDlg dialog(applicationWith({L"Guest", L"adam"}));
    okIsRefused([](ModalWindow&) {}, L"Username can not be empty.");
    endAfter(dialog, IDCANCEL);
    EXPECT_EQ(usersOf(dialog.application), (Names{L"Guest", L"adam"}));
}

TEST_F(AddTemplateUserDlgTest, handsOnThatTheAccountsCannotBeRead)
{
    Acceptance::ServerFiles::write(Acceptance::ServerFiles::folder() / L"Data" / L"Tessaro.db", std::string(4096, 'x'));
    AddTemplateUserDlg dialog({});
    EXPECT_THROW(dialog.show(frame()), Core::Exception);
}

} // namespace
