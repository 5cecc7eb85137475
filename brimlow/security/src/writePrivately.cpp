#include "writePrivately.h"

#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/system/PrivateFile.h"

namespace Security
{

void writePrivately(const Core::String& path, std::string_view content)
{
    const bool isNew = !Core::IO::AtomicFile::exists(path);
    if (isNew)
    {
        Core::IO::makePrivateFile(path);
    }
    try
    {
        Core::IO::AtomicFile::write(path, content);
    }
    catch (...)
    {
        if (isNew)
        {
            Core::IO::FileSystem::deleteFile(path);
        }
        throw;
    }
}

} // namespace Security
