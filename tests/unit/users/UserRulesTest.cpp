#include "tmgmt/users/rules/UserRules.h"
#include "CommonAppData.h"
#include "PrintTo.h"
#include "brimlow/tessaro/UserCollection.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using namespace TMgmt;

constexpr wchar_t tooShort[] = L"Username is too short (4 characters min).";
constexpr wchar_t tooLong[] = L"Username is too long (32 characters max).";
constexpr wchar_t badCharacter[] =
    L"Username can contain only letters, numbers, periods (.), hyphens (-), and underscores (_).\n"
    L"Special characters or accented letters are not allowed.";

Core::String text(const wchar_t* fault)
{
    return fault ? fault : L"nothing";
}

Tessaro::User user(const wchar_t* name)
{
    Tessaro::User user;
    user.setUsername(name);
    return user;
}

struct NameCase
{
    Core::String username;
    const wchar_t* fault;
};

const NameCase names[] = {
    {L"a", tooShort},
    {L"abc", tooShort},
    {L"\u00E9\u00E9\u00E9", tooShort},
    {L" ", tooShort},
    // Two characters, four units.
    {L"\U0001F600\U0001F600", badCharacter},
    {L"abcd", nullptr},
    {std::wstring(32, L'x'), nullptr},
    {std::wstring(33, L'x'), tooLong},
    {std::wstring(33, L'\u00E9'), tooLong},
    {std::wstring(1000, L' '), tooLong},
    {L"jean.dupont-2_x", nullptr},
    {L"0123456789", nullptr},
    {L"ABCDEFGHIJKLMNOPQRSTUVWXYZ", nullptr},
    {L"abcdefghijklmnopqrstuvwxyz", nullptr},
    {L"....", nullptr},
    {L"----", nullptr},
    {L"____", nullptr},
    {L"jos\u00E9", badCharacter},
    {L"jose\u0301", badCharacter},
    {L"jean dupont", badCharacter},
    {L"jean@dupont", badCharacter},
    // The neighbours of what is allowed.
    {L"abc,", badCharacter},
    {L"abc/", badCharacter},
    {L"abc:", badCharacter},
    {L"abc[", badCharacter},
    {L"abc^", badCharacter},
    {L"abc`", badCharacter},
    {L"abc{", badCharacter},
    {L"abc\t", badCharacter},
    {Core::String(std::wstring(L"abc\0d", 5)), badCharacter},
    // Digits and letters of other scripts, and what only looks like one.
    {L"abc\u0661", badCharacter},
    {L"abc\uFF11", badCharacter},
    {L"\u0430bcd", badCharacter},
    {Core::String(u"abc\xD800"), badCharacter},
};

TEST(UsernameRule, AsksForFourToThirtyTwoPlainCharactersInThisOrder)
{
    for (const auto& [username, fault] : names)
    {
        EXPECT_EQ(text(fault), text(faultOfNewUsername(username))) << username.toUtf8();
        EXPECT_EQ(text(fault), text(faultOfEditedUsername(username))) << username.toUtf8();
    }
}

// Proves: adding and editing say the same in different words ("exits", "cannot" and "can not", a blank at the end).
TEST(UsernameRule, SaysInTwoWaysThatTheNameIsEmpty)
{
    EXPECT_EQ(L"Username cannot be empty.", text(faultOfNewUsername(L"")));
    EXPECT_EQ(L"Username can not be empty.", text(faultOfEditedUsername(L"")));
}

// Proves: adding and editing say the same in different words ("exits", "cannot" and "can not", a blank at the end).
TEST(UsernameRule, SaysInTwoWaysThatTheNameIsTaken)
{
    EXPECT_EQ(L"Username already exits.", text(newUsernameTaken));
    EXPECT_EQ(L"Username already exists.", text(editedUsernameTaken));
}

TEST(UsernameRule, KnowsTheGuestInEveryCase)
{
    for (const wchar_t* guest : {L"guest", L"Guest", L"GUEST", L"gUeSt"})
    {
        EXPECT_TRUE(isGuestName(guest));
    }
    for (const wchar_t* other : {L"", L"guest ", L" guest", L"guests", L"gues", L"gu\u00E9st"})
    {
        EXPECT_FALSE(isGuestName(other));
    }
}

// With a stored account for each, since only those have ids of their own.
// Proves: another case of a name, and "guest", may be chosen for an account that is there.
TEST(UsernameRule, ComparesAddedNamesWithoutCaseAndEditedOnesToTheLetter)
{
    const CommonAppData data;
    Tessaro::UserCollection users;
    for (const wchar_t* name : {L"Alice", L"bob", L"Jos\u00E9"})
    {
        users.addNewUser(user(name));
    }
    const Tessaro::User& alice = users.getAt(0);
    const Tessaro::User& bob = users.getAt(1);
    const Tessaro::User& jose = users.getAt(2);
    const Tessaro::User added;

    for (const wchar_t* same : {L"Alice", L"alice", L"ALICE"})
    {
        EXPECT_TRUE(isNewUsernameTaken(same, added, alice));
        EXPECT_FALSE(isNewUsernameTaken(same, alice, alice));
        EXPECT_FALSE(isEditedUsernameTaken(same, alice, alice));
    }
    EXPECT_TRUE(isNewUsernameTaken(L"JOS\u00C9", added, jose));
    EXPECT_FALSE(isNewUsernameTaken(L"Alice ", added, alice));
    EXPECT_FALSE(isNewUsernameTaken(L"", added, alice));

    EXPECT_TRUE(isEditedUsernameTaken(L"Alice", bob, alice));
    EXPECT_FALSE(isEditedUsernameTaken(L"alice", bob, alice));
    EXPECT_FALSE(isEditedUsernameTaken(L"ALICE", bob, alice));
}

struct PasswordCase
{
    const wchar_t* password;
    const wchar_t* confirmation;
    const wchar_t* newFault;
    const wchar_t* changedFault;
};

const PasswordCase passwords[] = {
    {L"", L"", L"Password cannot be empty.", nullptr},
    {L"", L"secret", L"Password cannot be empty.", L"Change Password can't be empty."},
    {L"secret", L"", L"Confirm Password can not be empty.", L"Confirm Password can't be empty."},
    {L"secret", L"Secret", L"Passwords don't match. ", L"Passwords don't match."},
    {L"secret", L"secret ", L"Passwords don't match. ", L"Passwords don't match."},
    {L"secret", L"secret", nullptr, nullptr},
    {L" ", L" ", nullptr, nullptr},
    {L"p\u00E4ss \U0001F600", L"p\u00E4ss \U0001F600", nullptr, nullptr},
};

// Proves: adding and editing say the same in different words ("exits", "cannot" and "can not", a blank at the end).
TEST(PasswordRule, AsksForBothAndTheSame)
{
    for (const auto& [password, confirmation, newFault, changedFault] : passwords)
    {
        EXPECT_EQ(text(newFault), text(faultOfNewPassword(password, confirmation)));
        EXPECT_EQ(text(changedFault), text(faultOfChangedPassword(password, confirmation)));
    }
}

} // namespace
