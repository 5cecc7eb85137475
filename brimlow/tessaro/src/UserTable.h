#pragma once

#include "brimlow/database/Connection.h"
#include "brimlow/tessaro/User.h"

#include <vector>

namespace Tessaro
{

// Users and the guest account in a database: the tables, and the statements on them. Changes are made inside the
// caller's transaction; failures are thrown as the connection throws them.
class UserTable
{
  public:
    static void create(Database::Connection& connection);

    // All users, in the order in which they were added.
    static std::vector<User> load(const Database::Connection& connection);
    static bool isGuestEnabled(const Database::Connection& connection);

    // Returns the user as it is stored now. Throws Core::Exception when another has the name.
    static User add(Database::Connection& connection, const User& user);
    // Throws Core::Exception when the user is gone, or another has the name.
    static void update(Database::Connection& connection, const User& user);
    static void remove(Database::Connection& connection, const User& user);
    static void setGuestEnabled(Database::Connection& connection, bool enabled);

    // Where the user is in a list that load gave; the list's end when it is not there, whatever values it has.
    static std::vector<User>::iterator find(std::vector<User>& users, const User& user);

  private:
    static void checkUnique(Database::Connection& connection, const User& user);
};

} // namespace Tessaro
