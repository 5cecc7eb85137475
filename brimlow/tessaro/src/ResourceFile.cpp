#include "brimlow/tessaro/ResourceFile.h"

#include "brimlow/system/FileSystem.h"

namespace Tessaro
{

Core::String ResourceFile::getDisplayName() const
{
    return Core::IO::FileSystem::getFileName(m_path);
}

} // namespace Tessaro
