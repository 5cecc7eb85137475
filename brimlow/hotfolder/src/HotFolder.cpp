#include "brimlow/hotfolder/HotFolder.h"

#include "paths.h"

namespace HotFolders
{

HotFolder::HotFolder() : m_fileMatchPattern(L"*.*") {}

Core::String HotFolder::getDisplayName() const
{
    return lastComponent(m_folder);
}

} // namespace HotFolders
