#pragma once

#include "brimlow/database/Connection.h"

#include <cstdint>
#include <optional>

namespace Tessaro
{

// The names of one kind of thing as the database lists them: each is the name of a file or folder, too. Changes are
// made inside the caller's transaction; failures are thrown as the connection throws them.
//
// Applications belong to owner 0, templates and resource folders to the row of their application, resource files to
// the row of their folder.
struct EntryTable
{
    static const EntryTable applications;
    static const EntryTable templates;
    static const EntryTable folders;
    static const EntryTable files;

    struct Entry
    {
        std::int64_t row;
        Core::String name;
    };

    // What one of them is called in a sentence.
    const wchar_t* noun;
    // On the disk.
    bool isFolder;

    // ?1 is the owner or the row, ?2 the name or its key, ?3 the key.
    const char* selectEntry;
    const char* insertEntry;
    const char* updateName;
    const char* deleteRow;

    // In any case of the letters. An entry whose name is none for a file is nowhere found.
    std::optional<Entry> find(const Database::Connection& connection, std::int64_t owner,
                              const Core::String& name) const;
    // The same. Throws Core::Exception when there is none.
    Entry get(const Database::Connection& connection, std::int64_t owner, const Core::String& name) const;

    // Behind all others. Returns the row. Throws Core::Exception for a name that is taken or not allowed.
    std::int64_t add(Database::Connection& connection, std::int64_t owner, const Core::String& name) const;
    // Throws Core::Exception for a name that another entry has, or that is not allowed.
    void rename(Database::Connection& connection, std::int64_t owner, std::int64_t row, const Core::String& name) const;
    void remove(Database::Connection& connection, std::int64_t row) const;

    // Says that another program removed the thing.
    [[noreturn]] void failAsRemoved(const Core::String& name) const;

    // Throws Core::Exception for a name that is not allowed, or that an entry other than that of the row has.
    void checkFree(const Database::Connection& connection, std::int64_t owner, std::int64_t row,
                   const Core::String& name) const;
};

} // namespace Tessaro
