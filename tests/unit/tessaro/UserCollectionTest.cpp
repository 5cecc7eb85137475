#include "brimlow/tessaro/UserCollection.h"
#include "CommonAppData.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "TessaroStore.h"
#include "brimlow/system/Exception.h"
#include "refusal.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace
{

using namespace Tessaro;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

User user(const Core::String& name)
{
    User user;
    user.setUsername(name);
    return user;
}

// The names, in the order of the collection.
std::vector<std::string> names(const UserCollection& users)
{
    std::vector<std::string> names;
    for (int index = 0; index < users.getCount(); ++index)
    {
        names.push_back(users.getAt(index).getUsername().toUtf8());
    }
    return names;
}

using Names = std::vector<std::string>;

class UserCollectionTest : public testing::Test
{
  protected:
    CommonAppData m_data;
};

TEST(UserTest, IsNobodyAtFirst)
{
    const User user;
    EXPECT_EQ(-1, user.getId());
    EXPECT_EQ(L"", user.getUsername());
    EXPECT_EQ(L"", user.getPassword());
    EXPECT_FALSE(user.isEnabled());
}

TEST_F(UserCollectionTest, IsEmptyAndTheGuestOffWithoutADatabase)
{
    const UserCollection users;
    EXPECT_EQ(0, users.getCount());
    EXPECT_FALSE(users.isGuestEnabled());
    EXPECT_THROW(users.getAt(0), Core::Exception);
    EXPECT_THROW(users.getAt(-1), Core::Exception);
    EXPECT_FALSE(std::filesystem::exists(toPath(TessaroStore::machinePlace().database.path)));
}

TEST_F(UserCollectionTest, KeepsEveryField)
{
    User alice = user(L"alice");
    alice.setPasswordEncoded(L"secret");
    alice.setEnable(true);
    UserCollection().addNewUser(alice);
    UserCollection().addNewUser(user(L"bob"));

    const UserCollection users;
    ASSERT_EQ(2, users.getCount());
    EXPECT_EQ(L"alice", users.getAt(0).getUsername());
    EXPECT_EQ(alice.getPassword(), users.getAt(0).getPassword());
    EXPECT_TRUE(users.getAt(0).isEnabled());
    EXPECT_EQ(L"", users.getAt(1).getPassword());
    EXPECT_FALSE(users.getAt(1).isEnabled());
    EXPECT_FALSE(users.isGuestEnabled());
}

TEST_F(UserCollectionTest, HasNoPasswordInItsFile)
{
    User alice = user(L"alice");
    alice.setPasswordEncoded(L"Tr0ub4dor&3");
    UserCollection().addNewUser(alice);

    std::ifstream file(toPath(TessaroStore::machinePlace().database.path), std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    const auto inUtf16 = [](std::string_view text)
    {
        std::string units;
        for (const char character : text)
        {
            units += {character, '\0'};
        }
        return units;
    };
    // How a text would be found, were it there.
    EXPECT_THAT(content, AnyOf(HasSubstr("alice"), HasSubstr(inUtf16("alice"))));
    EXPECT_THAT(content, Not(AnyOf(HasSubstr("Tr0ub4dor"), HasSubstr(inUtf16("Tr0ub4dor")))));
}

TEST_F(UserCollectionTest, IsInTheOrderOfAddingWhateverIsChanged)
{
    UserCollection users;
    for (const wchar_t* name : {L"bob", L"carol", L"alice"})
    {
        users.addNewUser(user(name));
    }
    User middle = users.getAt(1);
    middle.setUsername(L"zoe");
    users.updateUser(middle);
    EXPECT_EQ((Names{"bob", "zoe", "alice"}), names(users));
    users.deleteUser(users.getAt(2));
    users.addNewUser(user(L"dave"));
    EXPECT_EQ((Names{"bob", "zoe", "dave"}), names(users));
    EXPECT_EQ((Names{"bob", "zoe", "dave"}), names(UserCollection()));
}

TEST_F(UserCollectionTest, StaysAsItWasConstructedWhenAnotherChanges)
{
    UserCollection().addNewUser(user(L"alice"));
    const UserCollection before;
    UserCollection().addNewUser(user(L"bob"));
    UserCollection().deleteUser(before.getAt(0));
    UserCollection().setGuestEnabled(true);
    EXPECT_EQ((Names{"alice"}), names(before));
    EXPECT_FALSE(before.isGuestEnabled());
    EXPECT_EQ((Names{"bob"}), names(UserCollection()));
}

TEST_F(UserCollectionTest, NeverGivesAnIdToAnother)
{
    UserCollection users;
    users.addNewUser(user(L"alice"));
    const User alice = users.getAt(0);
    EXPECT_LT(0, alice.getId());
    users.deleteUser(alice);
    users.addNewUser(user(L"bob"));
    EXPECT_NE(alice.getId(), users.getAt(0).getId());
    users.deleteUser(alice);
    EXPECT_EQ((Names{"bob"}), names(UserCollection()));
}

TEST_F(UserCollectionTest, KeepsTheIdOfARenamedUser)
{
    UserCollection users;
    users.addNewUser(user(L"alice"));
    User alice = users.getAt(0);
    alice.setUsername(L"bob");
    users.updateUser(alice);
    EXPECT_EQ(alice.getId(), UserCollection().getAt(0).getId());
}

TEST_F(UserCollectionTest, AddsACopyAsAnother)
{
    UserCollection users;
    users.addNewUser(user(L"alice"));
    User copy = users.getAt(0);
    copy.setUsername(L"bob");
    users.addNewUser(copy);
    EXPECT_EQ((Names{"alice", "bob"}), names(UserCollection()));
    EXPECT_NE(users.getAt(0).getId(), users.getAt(1).getId());
}

TEST_F(UserCollectionTest, RefusesASecondUserOfThatVeryName)
{
    UserCollection users;
    users.addNewUser(user(L"alice"));
    const Core::String taken = L"There is already a user \"alice\". Please choose another name.";
    EXPECT_EQ(taken, refusal([&] { users.addNewUser(user(L"alice")); }));
    EXPECT_EQ(taken, refusal([&] { users.addNewUser(users.getAt(0)); }));
    EXPECT_EQ(L"accepted", refusal([&] { users.addNewUser(user(L"Alice")); }));

    User second = users.getAt(1);
    second.setUsername(L"alice");
    EXPECT_EQ(taken, refusal([&] { users.updateUser(second); }));
    EXPECT_EQ((Names{"alice", "Alice"}), names(users));
    EXPECT_EQ((Names{"alice", "Alice"}), names(UserCollection()));
}

TEST_F(UserCollectionTest, RefusesToUpdateWhatHasBeenRemoved)
{
    UserCollection().addNewUser(user(L"alice"));
    const User removed = UserCollection().getAt(0);
    UserCollection().deleteUser(removed);
    const Core::String gone = L"The user \"alice\" has been removed by another program. Please refresh the list.";
    EXPECT_EQ(gone, refusal([&] { UserCollection().updateUser(removed); }));
    EXPECT_EQ(gone, refusal([&] { UserCollection().updateUser(user(L"alice")); }));
    EXPECT_EQ(0, UserCollection().getCount());
}

TEST_F(UserCollectionTest, TheLastUpdateCounts)
{
    UserCollection().addNewUser(user(L"alice"));
    User first = UserCollection().getAt(0);
    User second = first;
    first.setEnable(true);
    second.setUsername(L"bob");
    UserCollection().updateUser(first);
    UserCollection().updateUser(second);
    EXPECT_EQ((Names{"bob"}), names(UserCollection()));
    EXPECT_FALSE(UserCollection().getAt(0).isEnabled());
}

TEST_F(UserCollectionTest, DeletesWhateverTheValuesAre)
{
    UserCollection users;
    users.addNewUser(user(L"alice"));
    users.addNewUser(user(L"bob"));
    User first = users.getAt(0);
    first.setUsername(L"bob");
    users.deleteUser(first);
    EXPECT_EQ((Names{"bob"}), names(users));
    users.deleteUser(first);
    users.deleteUser(user(L"bob"));
    EXPECT_EQ((Names{"bob"}), names(UserCollection()));
}

TEST_F(UserCollectionTest, FindsAUserByTheVeryName)
{
    UserCollection users;
    users.addNewUser(user(L"alice"));
    users.addNewUser(user(L"Alice"));
    EXPECT_EQ(users.getAt(1).getId(), users.getUserByName(L"Alice").getId());
    EXPECT_EQ(users.getAt(0).getId(), users.getUserByName(L"alice").getId());
    EXPECT_EQ(L"There is no user \"ALICE\".", refusal([&] { users.getUserByName(L"ALICE"); }));
}

TEST_F(UserCollectionTest, FindsUsersByNameAfterItsOwnChanges)
{
    UserCollection users;
    EXPECT_EQ(L"There is no user \"alice\".", refusal([&] { users.getUserByName(L"alice"); }));
    users.addNewUser(user(L"alice"));
    users.addNewUser(user(L"bob"));
    EXPECT_EQ(L"bob", users.getUserByName(L"bob").getUsername());
    users.deleteUser(users.getAt(0));
    EXPECT_EQ(L"bob", users.getUserByName(L"bob").getUsername());
    EXPECT_EQ(L"There is no user \"alice\".", refusal([&] { users.getUserByName(L"alice"); }));
}

TEST_F(UserCollectionTest, SwitchesTheGuest)
{
    UserCollection users;
    users.setGuestEnabled(true);
    EXPECT_TRUE(users.isGuestEnabled());
    EXPECT_TRUE(UserCollection().isGuestEnabled());
    users.setGuestEnabled(false);
    EXPECT_FALSE(users.isGuestEnabled());
    EXPECT_FALSE(UserCollection().isGuestEnabled());
}

TEST_F(UserCollectionTest, KeepsNamesOfAnyScriptAndLength)
{
    const Core::String texts[] = {
        L"",
        L"\u65E5\u672C\u8A9E \U0001F600",
        Core::String(u"lone \xD800 and \xDC00"),
        Core::String(std::wstring(32'000, L'x')),
        L"quote'\"; DROP TABLE user; --",
    };
    for (const Core::String& text : texts)
    {
        UserCollection().addNewUser(user(text));
        EXPECT_EQ(text, UserCollection().getUserByName(text).getUsername());
    }
}

TEST_F(UserCollectionTest, NamesTheDatabaseThatIsDamaged)
{
    UserCollection held;
    held.addNewUser(user(L"bob"));
    const Core::String path = TessaroStore::machinePlace().database.path;
    std::ofstream(toPath(path)) << "This has never been a database, however long it may be.";
    const auto namesIt = [&](const Core::String& message) { return message.find(path) != Core::String::npos; };
    EXPECT_TRUE(namesIt(refusal([] { UserCollection(); })));
    EXPECT_TRUE(namesIt(refusal([&] { held.addNewUser(user(L"alice")); })));
    EXPECT_TRUE(namesIt(refusal([&] { held.updateUser(held.getAt(0)); })));
    EXPECT_TRUE(namesIt(refusal([&] { held.deleteUser(held.getAt(0)); })));
    EXPECT_TRUE(namesIt(refusal([&] { held.setGuestEnabled(true); })));
    EXPECT_EQ((Names{"bob"}), names(held));
    EXPECT_FALSE(held.isGuestEnabled());
}

} // namespace
