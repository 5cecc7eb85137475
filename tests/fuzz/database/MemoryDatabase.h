#pragma once

#include "brimlow/system/String.h"

#include <memory>
#include <string>
#include <string_view>

struct sqlite3_file;
struct sqlite3_vfs;

// A database file of any bytes that is only in memory, so that many can be tried. While the object lives, every
// database that is opened is in memory.
class MemoryDatabase
{
  public:
    explicit MemoryDatabase(std::string_view content, const char* name = "Any.db");
    MemoryDatabase(const MemoryDatabase&) = delete;
    MemoryDatabase& operator=(const MemoryDatabase&) = delete;
    ~MemoryDatabase();

    // In a folder on the disk that goes with the process.
    Core::String path() const;
    // What changes of files are written down in, in the same folder.
    Core::String journal() const;
    // Requires, where the bytes say that their tables have the version of today, that they are still the same.
    void requireUnchanged() const;

  private:
    sqlite3_file* file() const noexcept;

    std::string_view m_content;
    std::string m_path;
    sqlite3_vfs* m_formerDefault;
    std::unique_ptr<std::byte[]> m_file;
};

// One of that many changes: trying all of them with every content would take too long.
std::size_t chosenChange(std::string_view content, std::size_t count);
