#include "brimlow/tessaro/Template.h"

#include "brimlow/system/FileSystem.h"

namespace Tessaro
{

Core::String Template::getDisplayName() const
{
    return Core::IO::FileSystem::getFileName(m_path);
}

} // namespace Tessaro
