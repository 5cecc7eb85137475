#include "MemoryDatabase.h"

#include "rules.h"

#include "brimlow/system/FileSystem.h"

#include <sqlite3.h>

#include <filesystem>
#include <functional>
#include <random>
#include <stdexcept>

namespace
{

class Folder
{
  public:
    Folder() : m_path(std::filesystem::temp_directory_path() / ("fuzz-" + std::to_string(std::random_device()())))
    {
        std::filesystem::create_directories(m_path);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    // Databases in memory are shared by those who open them only under a path that begins with a separator.
    std::string pathOf(const char* name) const
    {
        const std::u8string text = (m_path / name).u8string();
        const std::string path(text.begin(), text.end());
        return path.starts_with('/') ? path : R"(\\?\)" + path;
    }

  private:
    std::filesystem::path m_path;
};

std::string pathOf(const char* name)
{
    static const Folder folder;
    return folder.pathOf(name);
}

bool isUpToDate(std::string_view content)
{
    constexpr std::size_t versionAt = 60; // four bytes, big-endian
    return content.size() >= versionAt + 4 && content.substr(versionAt, 4) == std::string_view("\0\0\0\1", 4);
}

} // namespace

MemoryDatabase::MemoryDatabase(std::string_view content, const char* name)
    : m_content(content), m_path(pathOf(name)), m_formerDefault(sqlite3_vfs_find(nullptr))
{
    sqlite3_vfs* const memory = sqlite3_vfs_find("memdb");
    if (!memory || sqlite3_vfs_register(memory, 1) != SQLITE_OK)
    {
        throw std::runtime_error("SQLite keeps no databases in memory");
    }
    m_file = std::make_unique<std::byte[]>(static_cast<std::size_t>(memory->szOsFile));
    int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MAIN_DB;
    require(memory->xOpen(memory, m_path.c_str(), file(), flags, &flags) == SQLITE_OK &&
                (content.empty() ||
                 file()->pMethods->xWrite(file(), content.data(), static_cast<int>(content.size()), 0) == SQLITE_OK),
            "a database in memory can be made");
}

MemoryDatabase::~MemoryDatabase()
{
    file()->pMethods->xClose(file());
    sqlite3_vfs_register(m_formerDefault, 1);
}

Core::String MemoryDatabase::path() const
{
    return Core::String::fromUtf8(m_path);
}

Core::String MemoryDatabase::journal() const
{
    const Core::String database = path();
    const std::size_t name = Core::IO::FileSystem::getFileName(database).length();
    return Core::IO::FileSystem::combinePath(database.view().substr(0, database.length() - name), L"Tessaro.moving");
}

void MemoryDatabase::requireUnchanged() const
{
    sqlite3_int64 size = 0;
    file()->pMethods->xFileSize(file(), &size);
    std::string now(static_cast<std::size_t>(size), '\0');
    file()->pMethods->xRead(file(), now.data(), static_cast<int>(now.size()), 0);
    require(!isUpToDate(m_content) || now == m_content, "reading leaves the file as it is");
}

sqlite3_file* MemoryDatabase::file() const noexcept
{
    return reinterpret_cast<sqlite3_file*>(m_file.get());
}

std::size_t chosenChange(std::string_view content, std::size_t count)
{
    return std::hash<std::string_view>()(content) % count;
}
