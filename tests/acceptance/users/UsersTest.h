#pragma once

#include "templates/TemplatesTest.h"

namespace Acceptance
{

// Controls of the dialogs of a user.
namespace UserDialog
{
inline constexpr int username = 232;
inline constexpr int password = 233;
inline constexpr int newConfirmation = 234;
inline constexpr int editedConfirmation = 235;
inline constexpr int enabled = 277;
} // namespace UserDialog

// The branch "Users", with applications that name users beside it.
class UsersTest : public TemplatesTest
{
  protected:
    static constexpr wchar_t node[] = L"Users";
    static constexpr wchar_t add[] = L"&Add User...";
    static constexpr wchar_t edit[] = L"&Edit User...";

    // --- what the other program does and finds

    static void addUsers(const Texts& names);
    static void setGuest(bool enabled) { Tessaro::UserCollection().setGuestEnabled(enabled); }
    static void setAccess(const std::wstring& application, const Texts& users);
    static bool guestEnabled() { return Tessaro::UserCollection().isGuestEnabled(); }
    static Texts storedNames();
    static Tessaro::User storedUser(const std::wstring& name) { return Tessaro::UserCollection().getUserByName(name); }

    // --- the console

    // Opens the console and shows the node.
    void openNode(int views = 1) { openAt(node, views); }

    // The robot's next step: the dialog that adds (edits) a user is in front, and the action uses it.
    void inAddUser(Robot::Action action, std::source_location where = std::source_location::current());
    void inEditUser(Robot::Action action, std::source_location where = std::source_location::current());
    // The robot's next step: a new user is entered, and OK pressed.
    void enterNew(const std::wstring& name, std::source_location where = std::source_location::current());
    // The robot's next step: another name is entered for a user, and OK pressed.
    void rename(const std::wstring& name, std::source_location where = std::source_location::current());
    // The robot's next step: the check box "Enable user" is set, and a button pressed.
    void switchTo(bool enabled, int button, std::source_location where = std::source_location::current());
};

} // namespace Acceptance
