#include "brimlow/system/FileStream.h"

#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/Exception.h"

#include <utility>

namespace Core::IO
{

FileStream::FileStream(String path) : m_path(std::move(path))
{
    if (m_path.empty())
    {
        throw IOException(L"There is no name of a file to write. Please enter one.");
    }
}

void FileStream::flush()
{
    AtomicFile::write(m_path, m_content);
}

} // namespace Core::IO
