#pragma once

#include "brimlow/database/Statement.h"
#include "brimlow/hotfolder/ActionList.h"

#include <cstdint>

namespace HotFolders
{

// The actions of all hot folders in a database; part of HotFolderTable.
class ActionTable
{
  public:
    static void create(Database::Connection& connection);

    static void add(Database::Connection& connection, std::int64_t hotFolder, const ActionList& onSuccess,
                    const ActionList& onFailure);
    static void remove(Database::Connection& connection, std::int64_t hotFolder);

    // Reads the actions of one hot folder after the other, in one pass.
    class Reader
    {
      public:
        explicit Reader(const Database::Connection& connection);

        // Puts the actions of the hot folder behind those in the lists. Each number must be above that of the last
        // call.
        void read(std::int64_t hotFolder, ActionList& onSuccess, ActionList& onFailure);

      private:
        Database::Statement m_row;
        bool m_hasRow;
    };
};

} // namespace HotFolders
