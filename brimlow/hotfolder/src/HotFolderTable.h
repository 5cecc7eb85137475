#pragma once

#include "brimlow/database/Connection.h"
#include "brimlow/hotfolder/HotFolder.h"

#include <vector>

namespace HotFolders
{

// Hot folders in a database: the tables, and the statements on them. Changes are made inside the caller's transaction;
// failures are thrown as the connection throws them.
class HotFolderTable
{
  public:
    static const Database::Schema schema;

    // All hot folders, in the order in which they were added.
    static std::vector<HotFolder> load(const Database::Connection& connection);

    // Returns the hot folder as it is stored now. Throws Core::Exception when another watches the same files.
    static HotFolder add(Database::Connection& connection, const HotFolder& folder);
    // Throws Core::Exception when the hot folder is gone, or another watches the same files.
    static void update(Database::Connection& connection, const HotFolder& folder);
    static void remove(Database::Connection& connection, const HotFolder& folder);

    // Where the hot folder is in a list that load gave; the list's end when it is not there, whatever values it has.
    static std::vector<HotFolder>::iterator find(std::vector<HotFolder>& folders, const HotFolder& folder);

  private:
    static void create(Database::Connection& connection, int from);
    static void checkUnique(Database::Connection& connection, const HotFolder& folder);
};

} // namespace HotFolders
