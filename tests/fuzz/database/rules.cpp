#include "rules.h"

#include "brimlow/system/AtomicFile.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace
{

std::filesystem::path toPath(const Core::String& text)
{
    const std::string bytes = text.toUtf8();
    return std::u8string(bytes.begin(), bytes.end());
}

// Whether the header says that the tables have the version of today.
bool isUpToDate(std::string_view content)
{
    constexpr std::size_t versionAt = 60; // four bytes, big-endian
    return content.size() >= versionAt + 4 && content.substr(versionAt, 4) == std::string_view("\0\0\0\1", 4);
}

} // namespace

void require(bool holds, const char* rule)
{
    if (!holds)
    {
        std::fprintf(stderr, "database: %s\n", rule);
        std::abort();
    }
}

void writeDatabase(const Core::String& path, std::string_view content)
{
    std::filesystem::remove(toPath(path + L"-journal"));
    std::ofstream(toPath(path), std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
}

void requireUnchanged(const Core::String& path, std::string_view content)
{
    require(!isUpToDate(content) || Core::IO::AtomicFile::read(path) == content, "reading leaves the file as it is");
}
