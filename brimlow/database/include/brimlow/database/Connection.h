#pragma once

#include "brimlow/database/DatabaseFile.h"

#include <memory>
#include <optional>

struct sqlite3;

namespace Database
{

// An open SQLite database. It is opened for one look or one change and closed at once: that costs a tenth of a
// millisecond, and between two operations the file can be replaced, restored or removed, and the module unloaded.
//
// Changes are safe against crashes (rollback journal, written through to the disk). A text is kept unit by unit as it
// is, unpaired surrogates and zeros included.
//
// Everything throws DatabaseException; also where SQLite reports a lack of memory, since a damaged file can be the
// cause of that too.
class Connection
{
  public:
    // Opens the file, and upgrades its tables where they are older. Throws for a file that was written by a newer
    // version of the product, that is damaged, or that may not be opened. Nothing when there is no such file.
    static std::optional<Connection> openExisting(const DatabaseFile& file);

    // The same, but makes the file where there is none: with its folder, both for administrators and SYSTEM only.
    static Connection openOrCreate(const DatabaseFile& file);

    // Runs one or several statements that give no rows.
    void execute(const char* sql);

    // Throws what an SQLite result code stands for. SQLITE_OK is no reason to come here.
    [[noreturn]] void fail(int result) const;

    sqlite3* get() const noexcept { return m_database.get(); }

  private:
    struct Closer
    {
        void operator()(sqlite3* database) const noexcept;
    };

    explicit Connection(const DatabaseFile& file) : m_path(file.path) {}
    // Returns false when there is no such file.
    bool open(const DatabaseFile& file);
    // SQLite's result.
    int openToWrite(const Core::String& path);
    void upgrade(const Schema& schema);
    int readVersion();

    Core::String m_path;
    std::unique_ptr<sqlite3, Closer> m_database;
};

} // namespace Database
