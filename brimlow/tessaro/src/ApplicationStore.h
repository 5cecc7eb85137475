#pragma once

#include "ApplicationFiles.h"
#include "EntryTable.h"
#include "MoveJournal.h"
#include "StoredId.h"
#include "TessaroStore.h"

#include "brimlow/tessaro/ServerApplication.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace Tessaro
{

// What ServerTemplates, ServerApplication and ResourcesFolder stand on: each change of the records together with the
// files. All operations throw as those of these classes do. They return the content as it is then; a copy that is
// given to be changed becomes what is stored.
class ApplicationStore
{
  public:
    using Pointer = TessaroStore::Pointer;

    // That of this machine.
    static ApplicationStore machine();

    // store and system must outlive the object.
    ApplicationStore(TessaroStore& store, const Place& place, const Core::IO::FileTree& system);
    ApplicationStore(const ApplicationStore&) = delete;
    ApplicationStore& operator=(const ApplicationStore&) = delete;

    Pointer get();

    Pointer addApplication(const ServerApplication& application);
    Pointer renameApplication(const ServerApplication& application, const Core::String& newPath);
    Pointer removeApplication(const Core::String& path);
    Pointer updateApplication(const ServerApplication& application);

    void addTemplate(ServerApplication& application, const Core::String& file);
    void renameTemplate(ServerApplication& application, const Core::String& path, const Core::String& newPath);
    void removeTemplate(ServerApplication& application, const Core::String& path);

    void addFolder(ServerApplication& application, const Core::String& name);
    void renameFolder(ServerApplication& application, const Core::String& path, const Core::String& newPath);
    void removeFolder(ServerApplication& application, const Core::String& path);

    void addFile(ResourcesFolder& folder, const Core::String& file);
    void renameFile(ResourcesFolder& folder, const Core::String& path, const Core::String& newPath);
    void removeFile(ResourcesFolder& folder, const Core::String& path);

  private:
    // Where things of one kind are: whose they are in the database, and in which folder.
    struct Shelf
    {
        const EntryTable& entries;
        std::int64_t owner;
        // The row of the application that they are in; 0 for applications themselves.
        std::int64_t application;
        Core::String folder;
    };
    // What a change of records comes to: the row of the only application that it concerns, and what is moved.
    struct Change
    {
        std::int64_t application;
        std::optional<Move> move;
    };

    static Shelf applications(const Database::Connection& connection);
    // Each gives a function that finds the shelf in a database, and throws when what it is in is not stored (any more).
    static auto templatesOf(const ServerApplication& application);
    static auto foldersOf(const ServerApplication& application);
    static auto filesOf(const ResourcesFolder& folder);
    // Throws likewise.
    static Core::String nameOf(const Database::Connection& connection, const ServerApplication& application);

    static void storeSettings(Database::Connection& connection, const ServerApplication& application);
    static void forgetFormerSettings(const ServerApplication& application);
    static void put(std::vector<ServerApplication>& applications, std::int64_t row,
                    const std::optional<ServerApplication>& now);
    static bool isBefore(const ServerApplication& application, std::int64_t row) noexcept;
    // Null when it is not there.
    static const ServerApplication* find(const Content& content, const StoredId& id) noexcept;
    // Throws when it is not there.
    static const ServerApplication& get(const Content& content, const StoredId& id);
    static void refresh(ServerApplication& application, const Content& content);
    static void refresh(ResourcesFolder& folder, const Content& content);

    // The three changes of a list. findShelf(connection) is asked under the right to write.
    //
    // make(path) makes the thing under another name first, which may take its time; store(connection, row) stores what
    // it has beside its name.
    template <class FindShelf, class Make, class Store>
    Pointer add(FindShelf findShelf, const Core::String& name, Make make, Store store);
    template <class FindShelf>
    Pointer rename(FindShelf findShelf, const Core::String& path, const Core::String& newPath);
    template <class FindShelf>
    Pointer remove(FindShelf findShelf, const Core::String& path);

    // write(connection) changes the records and returns the Change.
    template <class Write>
    Pointer change(Write write);
    Change renameEntry(Database::Connection& connection, const Shelf& shelf, const EntryTable::Entry& entry,
                       const Core::String& newPath) const;
    bool isThere(const Shelf& shelf, const Core::String& name) const;

    void copy(const Core::String& from, const Core::String& to) const;
    void makeFolder(const Core::String& path) const;

    TessaroStore& m_store;
    Place m_place;
    ApplicationFiles m_files;
    MoveJournal m_journal;
};

} // namespace Tessaro
