#include "brimlow/tessaro/ResourcesFolder.h"

#include "ApplicationStore.h"
#include "ResourcesFolderFields.h"
#include "position.h"

#include "brimlow/system/FileSystem.h"

namespace Tessaro
{

const ResourcesFolder::Fields& ResourcesFolder::fields() const noexcept
{
    static const Fields none;
    return m_fields ? *m_fields : none;
}

Core::String ResourcesFolder::getDisplayName() const
{
    return Core::IO::FileSystem::getFileName(fields().path);
}

const Core::String& ResourcesFolder::getResourcesFolderPath() const noexcept
{
    return fields().path;
}

int ResourcesFolder::getCount() const noexcept
{
    return static_cast<int>(fields().files.size());
}

const ResourceFile& ResourcesFolder::getAt(int index) const
{
    return elementAt(fields().files, index, L"The file is no longer there. Please refresh the list.");
}

void ResourcesFolder::addResourceFile(const ResourceFile& file)
{
    ApplicationStore::machine().addFile(*this, file.getResourceFilePath());
}

void ResourcesFolder::renameReourceFile(const ResourceFile& file, const Core::String& newPath)
{
    ApplicationStore::machine().renameFile(*this, file.getResourceFilePath(), newPath);
}

void ResourcesFolder::deleteResourceFile(const ResourceFile& file)
{
    ApplicationStore::machine().removeFile(*this, file.getResourceFilePath());
}

} // namespace Tessaro
