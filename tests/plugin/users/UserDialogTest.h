#pragma once

#include "ServerDialogTest.h"

#include "brimlow/tessaro/UserCollection.h"

// A test of a dialog of a user account. The server has no accounts at first.
class UserDialogTest : public ServerDialogTest
{
  protected:
    static constexpr int username = 232;
    static constexpr int password = 233;
    static constexpr int enabled = 277;

    static constexpr wchar_t tooShort[] = L"Username is too short (4 characters min).";
    static constexpr wchar_t tooLong[] = L"Username is too long (32 characters max).";
    static constexpr wchar_t badCharacter[] =
        L"Username can contain only letters, numbers, periods (.), hyphens (-), and underscores (_).\n"
        L"Special characters or accented letters are not allowed.";

    UserDialogTest(const wchar_t* caption, int confirmationControl)
        : ServerDialogTest(caption), confirmation(confirmationControl)
    {
    }

    // An enabled account without a password, as it is stored now.
    static Tessaro::User addAccount(const std::wstring& name)
    {
        Tessaro::User account;
        account.setUsername(name);
        account.setEnable(true);
        Tessaro::UserCollection accounts;
        accounts.addNewUser(account);
        return accounts.getUserByName(name);
    }

    static void damageDatabase() { Acceptance::ServerFiles::write(database(), std::string(4096, 'x')); }
    static void repairDatabase() { std::filesystem::remove(database()); }

    Use enter(const std::wstring& name, const std::wstring& newPassword = {},
              const std::wstring& newConfirmation = {}) const
    {
        return [=, this](ModalWindow& window)
        {
            window.type(username, name);
            window.type(password, newPassword);
            window.type(confirmation, newConfirmation);
        };
    }

    // The next steps: uses the dialog, presses OK, and is told that the database is damaged.
    void okFails(const Use& use)
    {
        inDialog(
            [use](ModalWindow& window)
            {
                use(window);
                window.press(IDOK);
            });
        robot().message({.text = L"The database \"" + database().wstring() +
                                 L"\" is damaged (file is not a database). Please restore it from a backup.",
                         .caption = L"Error Occured",
                         .icon = MB_ICONERROR});
    }

    static bool hidesWhatIsTyped(const ModalWindow& window, int control)
    {
        return (GetWindowLongW(window.control(control), GWL_STYLE) & ES_PASSWORD) != 0;
    }

    const int confirmation;

  private:
    static std::filesystem::path database() { return Acceptance::ServerFiles::folder() / L"Data" / L"Tessaro.db"; }
};
