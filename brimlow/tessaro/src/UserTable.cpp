#include "UserTable.h"

#include "brimlow/database/Statement.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/StringFormatStream.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace Tessaro
{

using Database::Connection;
using Database::Statement;

// The order of the rows is the order in which they were added. A removed user's number never goes to another one
// (AUTOINCREMENT), so that a console that still shows the former cannot change the latter.
void UserTable::create(Connection& connection)
{
    connection.execute("CREATE TABLE user ("
                       " id INTEGER PRIMARY KEY AUTOINCREMENT,"
                       " username TEXT NOT NULL UNIQUE,"
                       " password TEXT NOT NULL,"
                       " enabled INTEGER NOT NULL);"
                       "CREATE TABLE guest (enabled INTEGER NOT NULL);"
                       "INSERT INTO guest VALUES (0)");
}

std::vector<User> UserTable::load(const Connection& connection)
{
    std::vector<User> users;
    // Numbers that an id cannot have, or that stand for no user, come from elsewhere.
    Statement row(connection, "SELECT id, username, password, enabled FROM user"
                              " WHERE id BETWEEN 1 AND 2147483647 ORDER BY id");
    while (row.step())
    {
        User& user = users.emplace_back();
        user.m_id = row.getInt(0);
        user.m_username = row.getText(1);
        user.m_password = row.getText(2);
        user.m_enabled = row.getBool(3);
    }
    return users;
}

bool UserTable::isGuestEnabled(const Connection& connection)
{
    Statement row(connection, "SELECT enabled FROM guest");
    return row.step() && row.getBool(0);
}

User UserTable::add(Connection& connection, const User& user)
{
    User added = user;
    // It may be a copy of one that is stored, and is another one all the same.
    added.m_id = -1;
    checkUnique(connection, added);

    Statement insert(connection, "INSERT INTO user (username, password, enabled) VALUES (?1, ?2, ?3) RETURNING id");
    insert.bind(user.m_username, user.m_password, user.m_enabled);
    insert.step();
    const std::int64_t id = insert.getInt64(0);
    if (id > std::numeric_limits<int>::max())
    {
        throw Core::Exception(
            Core::format(L"The user \"{0}\" cannot be added: the database has used up its numbers for users. "
                         L"Please restore it from a backup.",
                         user.m_username));
    }
    added.m_id = static_cast<int>(id);
    return added;
}

void UserTable::update(Connection& connection, const User& user)
{
    checkUnique(connection, user);
    Statement update(connection,
                     "UPDATE user SET username = ?1, password = ?2, enabled = ?3 WHERE id = ?4 RETURNING id");
    update.bind(user.m_username, user.m_password, user.m_enabled, user.m_id);
    if (!update.step())
    {
        throw Core::Exception(Core::format(
            L"The user \"{0}\" has been removed by another program. Please refresh the list.", user.m_username));
    }
}

void UserTable::remove(Connection& connection, const User& user)
{
    Statement(connection, "DELETE FROM user WHERE id = ?1").bind(user.m_id).step();
}

void UserTable::setGuestEnabled(Connection& connection, bool enabled)
{
    // One row, however many somebody left.
    connection.execute("DELETE FROM guest");
    Statement(connection, "INSERT INTO guest VALUES (?1)").bind(enabled).step();
}

std::vector<User>::iterator UserTable::find(std::vector<User>& users, const User& user)
{
    const auto found = std::lower_bound(users.begin(), users.end(), user.m_id,
                                        [](const User& each, int id) { return each.m_id < id; });
    return found != users.end() && found->m_id == user.m_id ? found : users.end();
}

void UserTable::checkUnique(Connection& connection, const User& user)
{
    Statement other(connection, "SELECT 1 FROM user WHERE username = ?1 AND id <> ?2");
    other.bind(user.m_username, user.m_id);
    if (other.step())
    {
        throw Core::Exception(
            Core::format(L"There is already a user \"{0}\". Please choose another name.", user.m_username));
    }
}

} // namespace Tessaro
