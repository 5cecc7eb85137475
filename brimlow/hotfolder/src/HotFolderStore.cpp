#include "HotFolderStore.h"

#include "HotFolderTable.h"

#include "brimlow/system/Exception.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/system/Process.h"

#include <optional>

namespace HotFolders
{

namespace
{

using Database::Connection;
using Folders = std::vector<HotFolder>;

void check(const HotFolder& folder)
{
    Core::String message;
    if (!folder.validate(false, message))
    {
        throw Core::Exception(message);
    }
}

} // namespace

Database::DatabaseFile HotFolderStore::machineDatabase()
{
    return {Core::IO::FileSystem::combinePath(Core::Process::getCommonAppDataFolder(), L"Brimlow\\Data\\HotFolders.db"),
            HotFolderTable::schema};
}

HotFolderStore& HotFolderStore::instance()
{
    static HotFolderStore store;
    return store;
}

HotFolderStore::HotFolderStore() : m_snapshot(&HotFolderTable::load) {}

HotFolderStore::List HotFolderStore::get(const Database::DatabaseFile& file)
{
    return m_snapshot.get(file);
}

void HotFolderStore::add(const Database::DatabaseFile& file, List& list, const HotFolder& folder)
{
    check(folder);
    std::optional<HotFolder> added;
    m_snapshot.change(
        file, list, [&](Connection& connection) { added = HotFolderTable::add(connection, folder); },
        [&](Folders& folders) { folders.push_back(*added); });
}

void HotFolderStore::update(const Database::DatabaseFile& file, List& list, const HotFolder& folder)
{
    check(folder);
    m_snapshot.change(
        file, list, [&](Connection& connection) { HotFolderTable::update(connection, folder); },
        [&](Folders& folders)
        {
            if (const auto found = HotFolderTable::find(folders, folder); found != folders.end())
            {
                *found = folder;
            }
        });
}

void HotFolderStore::remove(const Database::DatabaseFile& file, List& list, const HotFolder& folder)
{
    m_snapshot.change(
        file, list, [&](Connection& connection) { HotFolderTable::remove(connection, folder); },
        [&](Folders& folders)
        {
            if (const auto found = HotFolderTable::find(folders, folder); found != folders.end())
            {
                folders.erase(found);
            }
        });
}

} // namespace HotFolders
