// Any lines as what is entered for a user, and as the lists of users that two programs change at once.

#include "PasswordHash.h"
#include "checks.h"
#include "rules.h"
#include "userLists.h"

#include "tmgmt/templates/rules/access.h"
#include "tmgmt/users/rules/UserRules.h"

#include <algorithm>

using Core::String;
using Tessaro::UserList;

namespace
{

bool contains(const UserList& list, const String& name)
{
    return std::find(list.begin(), list.end(), name) != list.end();
}

void checkEntered(const String& username, const String& password, const String& confirmation)
{
    require(!TMgmt::faultOfNewUsername(username) == !TMgmt::faultOfEditedUsername(username),
            "adding and editing let in the same names");
    require(TMgmt::faultOfNewUsername(username) ||
                (username.length() >= 4 && username.length() <= 32 && username.toUtf8().size() == username.length()),
            "a username is short and in ASCII");
    require(TMgmt::faultOfNewPassword(password, confirmation) || (password == confirmation && !password.empty()),
            "a new password is entered twice");
    require(TMgmt::faultOfChangedPassword(password, confirmation) || password == confirmation,
            "a changed password is entered twice");
    const unsigned char salt[16] = {};
    const String hash = Tessaro::PasswordHash(password, salt, 1).text();
    require(hash.startsWith(L"$pbkdf2-sha256$i=1$AAAAAAAAAAAAAAAAAAAAAA$") && hash.length() == 85,
            "a password is stored in its form");
}

void checkLists(const UserList& stored, const UserList& former, const UserList& changed)
{
    const UserList merged = Tessaro::mergedUsers(stored, former, changed);
    require(stored != former || merged == changed, "a change that is alone is stored as it is");
    for (const String& user : merged)
    {
        require(contains(stored, user) || contains(changed, user), "nobody comes from nowhere");
    }
    for (const String& user : changed)
    {
        require(contains(former, user) || contains(merged, user), "who was added is there");
    }
    const std::vector<String> offered = TMgmt::namesToOffer(stored, former);
    require(std::none_of(offered.begin(), offered.end(), [&](const String& name) { return contains(former, name); }),
            "who is listed is not offered");
}

} // namespace

void checkUsers(std::string_view content)
{
    const std::vector<String> lines = linesOf(content, 6);
    checkEntered(lines[0], lines[1], lines[2]);
    checkLists(lines[3].split(L","), lines[4].split(L","), lines[5].split(L","));
}
