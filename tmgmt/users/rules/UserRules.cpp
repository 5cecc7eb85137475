#include "tmgmt/users/rules/UserRules.h"

#include <algorithm>

namespace TMgmt
{
namespace
{

// In UTF-16 units.
constexpr std::size_t shortestUsername = 4;
constexpr std::size_t longestUsername = 32;

// One unit at a time, so that letters beyond ASCII are refused in whatever form they are written.
constexpr bool isAllowed(Core::Char unit) noexcept
{
    return (unit >= L'0' && unit <= L'9') || (unit >= L'A' && unit <= L'Z') || (unit >= L'a' && unit <= L'z') ||
           unit == L'-' || unit == L'_' || unit == L'.';
}

// What both dialogs say alike, of a name that is not empty.
const wchar_t* faultOfUsername(const Core::String& username) noexcept
{
    if (username.length() < shortestUsername)
    {
        return L"Username is too short (4 characters min).";
    }
    if (username.length() > longestUsername)
    {
        return L"Username is too long (32 characters max).";
    }
    if (!std::ranges::all_of(username.view(), isAllowed))
    {
        return L"Username can contain only letters, numbers, periods (.), hyphens (-), and underscores (_).\n"
               L"Special characters or accented letters are not allowed.";
    }
    return nullptr;
}

} // namespace

bool isGuestName(const Core::String& username)
{
    return username.toLower() == L"guest";
}

bool isNewUsernameTaken(const Core::String& username, const Tessaro::User& added, const Tessaro::User& existing)
{
    return existing.getUsername().toLower() == username.toLower() && existing.getId() != added.getId();
}

const wchar_t* faultOfNewUsername(const Core::String& username) noexcept
{
    return username.empty() ? L"Username cannot be empty." : faultOfUsername(username);
}

const wchar_t* faultOfNewPassword(const Core::String& password, const Core::String& confirmation) noexcept
{
    if (password.empty())
    {
        return L"Password cannot be empty.";
    }
    if (confirmation.empty())
    {
        return L"Confirm Password can not be empty.";
    }
    return password == confirmation ? nullptr : L"Passwords don't match. ";
}

bool isEditedUsernameTaken(const Core::String& username, const Tessaro::User& edited, const Tessaro::User& existing)
{
    return existing.getUsername() == username && existing.getId() != edited.getId();
}

const wchar_t* faultOfEditedUsername(const Core::String& username) noexcept
{
    return username.empty() ? L"Username can not be empty." : faultOfUsername(username);
}

const wchar_t* faultOfChangedPassword(const Core::String& password, const Core::String& confirmation) noexcept
{
    if (!password.empty() && confirmation.empty())
    {
        return L"Confirm Password can't be empty.";
    }
    if (password.empty() && !confirmation.empty())
    {
        return L"Change Password can't be empty.";
    }
    return password == confirmation ? nullptr : L"Passwords don't match.";
}

} // namespace TMgmt
