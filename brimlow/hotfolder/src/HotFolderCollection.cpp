#include "brimlow/hotfolder/HotFolderCollection.h"

#include "HotFolderStore.h"

#include "brimlow/system/Exception.h"

namespace HotFolders
{

HotFolderCollection::HotFolderCollection()
    : m_folders(HotFolderStore::instance().get(HotFolderStore::machineDatabase()))
{
}

int HotFolderCollection::getCount() const noexcept
{
    return static_cast<int>(m_folders->size());
}

const HotFolder& HotFolderCollection::getAt(int index) const
{
    if (index < 0 || index >= getCount())
    {
        throw Core::UnreacheableCodeException();
    }
    return (*m_folders)[static_cast<std::size_t>(index)];
}

void HotFolderCollection::addNewFolder(const HotFolder& folder)
{
    HotFolderStore::instance().add(HotFolderStore::machineDatabase(), m_folders, folder);
}

void HotFolderCollection::updateFolder(const HotFolder& folder)
{
    HotFolderStore::instance().update(HotFolderStore::machineDatabase(), m_folders, folder);
}

void HotFolderCollection::removeFolder(const HotFolder& folder)
{
    HotFolderStore::instance().remove(HotFolderStore::machineDatabase(), m_folders, folder);
}

} // namespace HotFolders
