#pragma once

#include "StoredId.h"

#include "brimlow/database/Connection.h"
#include "brimlow/tessaro/XsltEngine.h"

#include <optional>
#include <vector>

namespace Tessaro
{

// Applications in a database: the tables, and what an application has beside names (see EntryTable). Changes are made
// inside the caller's transaction; failures are thrown as the connection throws them.
class ApplicationTable
{
  public:
    static void create(Database::Connection& connection);

    // The name of the application, or of a resource folder; nothing when it is gone, or its name is none for a folder.
    static std::optional<Core::String> nameOf(const Database::Connection& connection, const StoredId& application);
    static std::optional<Core::String> nameOfFolder(const Database::Connection& connection, const StoredId& folder);

    static void setEngine(Database::Connection& connection, std::int64_t application, XsltEngine engine);

    static std::vector<Core::String> getUsers(const Database::Connection& connection, std::int64_t application);
    static void setUsers(Database::Connection& connection, std::int64_t application,
                         const std::vector<Core::String>& users);
};

} // namespace Tessaro
