#include "UserTable.h"
#include "OtherProgram.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/database/Statement.h"
#include "refusal.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace
{

using namespace Tessaro;

// What another program may have left in the tables.
class UserTableTest : public testing::Test
{
  protected:
    void execute(const char* sql) { OtherProgram(m_file.path).execute(sql); }

    std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        for (const User& user : UserTable::load(m_connection))
        {
            names.push_back(user.getUsername().toUtf8());
        }
        return names;
    }

    const TemporaryFolder m_disk;
    const Database::DatabaseFile m_file{
        m_disk.path(L"Users.db"), {1, [](Database::Connection& connection, int) { UserTable::create(connection); }}};
    Database::Connection m_connection = Database::Connection::openOrCreate(m_file);
};

using Names = std::vector<std::string>;

TEST_F(UserTableTest, StartsWithoutUsersAndWithTheGuestOff)
{
    EXPECT_EQ(Names{}, names());
    EXPECT_FALSE(UserTable::isGuestEnabled(m_connection));
}

TEST_F(UserTableTest, PassesOverNumbersThatNoUserCanHave)
{
    execute("INSERT INTO user VALUES (-1, 'minus', '', 1), (0, 'zero', '', 1), (1, 'first', '', 1),"
            " (2147483647, 'last', '', 1), (2147483648, 'beyond', '', 1)");
    EXPECT_EQ((Names{"first", "last"}), names());
    EXPECT_EQ(std::numeric_limits<int>::max(), UserTable::load(m_connection)[1].getId());
}

TEST_F(UserTableTest, RefusesAUserForWhomNoNumberIsLeft)
{
    execute("INSERT INTO user VALUES (2147483647, 'last', '', 1)");
    User user;
    user.setUsername(L"alice");
    EXPECT_EQ(L"The user \"alice\" cannot be added: the database has used up its numbers for users. "
              L"Please restore it from a backup.",
              refusal([&] { UserTable::add(m_connection, user); }));
}

TEST_F(UserTableTest, ReadsWhateverTheColumnsHold)
{
    execute("INSERT INTO user VALUES (1, x'C3', 5, 'yes'), (2, 'bob', x'', 2), (3, 'carol', '', -1)");
    const std::vector<User> users = UserTable::load(m_connection);
    ASSERT_EQ(3u, users.size());
    EXPECT_FALSE(users[0].isEnabled());
    EXPECT_EQ(L"5", users[0].getPassword());
    EXPECT_TRUE(users[1].isEnabled());
    EXPECT_EQ(L"", users[1].getPassword());
    EXPECT_TRUE(users[2].isEnabled());
}

TEST_F(UserTableTest, SurvivesAMissingGuest)
{
    execute("DELETE FROM guest");
    EXPECT_FALSE(UserTable::isGuestEnabled(m_connection));
    UserTable::setGuestEnabled(m_connection, true);
    EXPECT_TRUE(UserTable::isGuestEnabled(m_connection));
}

TEST_F(UserTableTest, HasOneGuestAfterAChangeHoweverManyThereWere)
{
    execute("INSERT INTO guest VALUES (1), (1)");
    UserTable::setGuestEnabled(m_connection, false);
    EXPECT_FALSE(UserTable::isGuestEnabled(m_connection));
    Database::Statement count(m_connection, "SELECT count(*) FROM guest");
    ASSERT_TRUE(count.step());
    EXPECT_EQ(1, count.getInt(0));
}

} // namespace
