#pragma once

#include "brimlow/database/Snapshot.h"
#include "brimlow/hotfolder/HotFolder.h"

#include <vector>

namespace HotFolders
{

// What a HotFolderCollection stands on: the hot folders in a database, read again only when it changed. One for the
// whole process.
class HotFolderStore
{
  public:
    using List = Database::Snapshot<std::vector<HotFolder>>::Pointer;

    // The database of this machine, with the time that is waited for another program.
    static Database::DatabaseFile machineDatabase();
    static HotFolderStore& instance();

    HotFolderStore();

    // All operations throw as those of HotFolderCollection do. list is the caller's, and becomes the new one.
    List get(const Database::DatabaseFile& file);
    void add(const Database::DatabaseFile& file, List& list, const HotFolder& folder);
    void update(const Database::DatabaseFile& file, List& list, const HotFolder& folder);
    void remove(const Database::DatabaseFile& file, List& list, const HotFolder& folder);

  private:
    Database::Snapshot<std::vector<HotFolder>> m_snapshot;
};

} // namespace HotFolders
