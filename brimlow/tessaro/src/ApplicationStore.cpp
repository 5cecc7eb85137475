#include "ApplicationStore.h"

#include "ApplicationReader.h"
#include "ApplicationTable.h"
#include "ResourcesFolderFields.h"
#include "ServerApplicationFields.h"
#include "names.h"
#include "userLists.h"

#include "brimlow/database/Transaction.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/system/StringFormatStream.h"

#include <algorithm>
#include <utility>

namespace Tessaro
{

using Core::String;
using Core::IO::FileTree;
using Core::IO::FileSystem::getFileName;
using Database::Connection;

namespace
{

// Removes in the end what is still under its temporary name.
class TemporaryEntry
{
  public:
    TemporaryEntry(const ApplicationFiles& files, String relative) : m_files(files), m_relative(std::move(relative)) {}
    TemporaryEntry(const TemporaryEntry&) = delete;
    TemporaryEntry& operator=(const TemporaryEntry&) = delete;
    ~TemporaryEntry() { m_files.remove(m_relative); }

  private:
    const ApplicationFiles& m_files;
    String m_relative;
};

// Settles a change when it has succeeded or failed.
class Settlement
{
  public:
    explicit Settlement(const MoveJournal& journal) : m_journal(journal) {}
    Settlement(const Settlement&) = delete;
    Settlement& operator=(const Settlement&) = delete;
    ~Settlement() { m_journal.settleIfPossible(); }

  private:
    const MoveJournal& m_journal;
};

// For what has nothing beside its name.
void nothingElse(const Connection&, std::int64_t) {}

} // namespace

ApplicationStore ApplicationStore::machine()
{
    return {TessaroStore::instance(), TessaroStore::machinePlace(), FileTree::system()};
}

ApplicationStore::ApplicationStore(TessaroStore& store, const Place& place, const FileTree& system)
    : m_store(store), m_place(place), m_files(place.applications, system), m_journal(place.database, m_files)
{
}

ApplicationStore::Pointer ApplicationStore::get()
{
    m_journal.settleIfPossible();
    return m_store.get(m_place);
}

ApplicationStore::Shelf ApplicationStore::applications(const Connection&)
{
    return {EntryTable::applications, 0, 0, {}};
}

auto ApplicationStore::templatesOf(const ServerApplication& application)
{
    return [&application](const Connection& connection)
    {
        const std::int64_t row = application.fields().id.row;
        return Shelf{EntryTable::templates, row, row, nameOf(connection, application)};
    };
}

auto ApplicationStore::foldersOf(const ServerApplication& application)
{
    return [&application](const Connection& connection)
    {
        const std::int64_t row = application.fields().id.row;
        return Shelf{EntryTable::folders, row, row, nameOf(connection, application)};
    };
}

auto ApplicationStore::filesOf(const ResourcesFolder& folder)
{
    return [&folder](const Connection& connection)
    {
        if (!folder.m_fields)
        {
            throw Core::Exception(L"The folder belongs to no application yet. Please add it to one first.");
        }
        const ResourcesFolder::Fields& fields = *folder.m_fields;
        const std::optional<String> application = ApplicationTable::nameOf(connection, fields.application);
        const std::optional<String> name = ApplicationTable::nameOfFolder(connection, fields.id);
        if (!application || !name)
        {
            EntryTable::folders.failAsRemoved(folder.getDisplayName());
        }
        return Shelf{EntryTable::files, fields.id.row, fields.application.row, join(*application, *name)};
    };
}

String ApplicationStore::nameOf(const Connection& connection, const ServerApplication& application)
{
    const StoredId& id = application.fields().id;
    if (id == StoredId())
    {
        throw Core::Exception(Core::format(L"The {0} \"{1}\" is not stored yet. Please add it first.",
                                           EntryTable::applications.noun, application.getDisplayName()));
    }
    const std::optional<String> name = ApplicationTable::nameOf(connection, id);
    if (!name)
    {
        EntryTable::applications.failAsRemoved(application.getDisplayName());
    }
    return *name;
}

template <class Write>
ApplicationStore::Pointer ApplicationStore::change(Write write)
{
    const Settlement settlement(m_journal);
    Pointer content;
    std::int64_t row = 0;
    std::optional<ServerApplication> now;
    m_store.change(
        m_place, content,
        [&](Connection& connection)
        {
            m_journal.settle(connection);
            const Change change = write(connection);
            row = change.application;
            now = ApplicationReader::readOne(connection, m_files.folder(), row);
            if (change.move)
            {
                m_journal.move(connection, *change.move);
            }
        },
        [&](Content& all) { put(all.applications, row, now); });
    return content;
}

template <class FindShelf, class Make, class Store>
ApplicationStore::Pointer ApplicationStore::add(FindShelf findShelf, const String& name, Make make, Store store)
{
    String temporary = newTemporaryName();
    {
        Connection connection = Connection::openOrCreate(m_place.database);
        const Database::Transaction transaction(connection, Database::Transaction::Kind::write);
        m_journal.settle(connection);
        const Shelf shelf = findShelf(connection);
        shelf.entries.checkFree(connection, shelf.owner, 0, name);
        m_files.requireFolder(shelf.folder);
        m_files.removeLeftovers(shelf.folder);
        temporary = join(shelf.folder, temporary);
    }
    make(m_files.pathOf(temporary));
    const TemporaryEntry entry(m_files, temporary);
    return change(
        [&](Connection& connection)
        {
            // Its folder may have got another name meanwhile; then what was made has gone with it.
            const Shelf shelf = findShelf(connection);
            m_files.requireFolder(shelf.folder);
            const std::int64_t row = shelf.entries.add(connection, shelf.owner, name);
            store(connection, row);
            return Change{shelf.application ? shelf.application : row,
                          Move{join(shelf.folder, getFileName(temporary)), join(shelf.folder, name),
                               Core::format(L"The {0} \"{1}\" cannot be added", shelf.entries.noun, name)}};
        });
}

template <class FindShelf>
ApplicationStore::Pointer ApplicationStore::rename(FindShelf findShelf, const String& path, const String& newPath)
{
    return change(
        [&](Connection& connection)
        {
            const Shelf shelf = findShelf(connection);
            return renameEntry(connection, shelf, shelf.entries.get(connection, shelf.owner, getFileName(path)),
                               newPath);
        });
}

template <class FindShelf>
ApplicationStore::Pointer ApplicationStore::remove(FindShelf findShelf, const String& path)
{
    return change(
        [&](Connection& connection)
        {
            const Shelf shelf = findShelf(connection);
            Change change{shelf.application, std::nullopt};
            if (const auto entry = shelf.entries.find(connection, shelf.owner, getFileName(path)))
            {
                shelf.entries.remove(connection, entry->row);
                change.application = shelf.application ? shelf.application : entry->row;
                m_files.requireNoLink(shelf.folder);
                // What somebody removed by hand only needs to leave the list.
                if (isThere(shelf, entry->name))
                {
                    change.move =
                        Move{join(shelf.folder, entry->name), join(shelf.folder, newTemporaryName()),
                             Core::format(L"The {0} \"{1}\" cannot be deleted", shelf.entries.noun, entry->name)};
                }
            }
            return change;
        });
}

ApplicationStore::Change ApplicationStore::renameEntry(Connection& connection, const Shelf& shelf,
                                                       const EntryTable::Entry& entry, const String& newPath) const
{
    Change change{shelf.application ? shelf.application : entry.row, std::nullopt};
    const String newName = getFileName(newPath);
    if (newName == entry.name)
    {
        return change;
    }
    shelf.entries.rename(connection, shelf.owner, entry.row, newName);
    m_files.requireFolder(shelf.folder);
    if (!isThere(shelf, entry.name))
    {
        m_files.failAsMissing(join(shelf.folder, entry.name));
    }
    change.move = Move{join(shelf.folder, entry.name), join(shelf.folder, newName),
                       Core::format(L"The {0} \"{1}\" cannot be renamed", shelf.entries.noun, entry.name)};
    return change;
}

ApplicationStore::Pointer ApplicationStore::addApplication(const ServerApplication& application)
{
    const String name = checkedName(application.getDisplayName());
    FileTree::makeParentFolders(m_files.pathOf(name));
    return add(
        &applications, name, [this](const String& path) { makeFolder(path); },
        [&](Connection& connection, std::int64_t row)
        {
            ApplicationTable::setEngine(connection, row, application.getParser());
            ApplicationTable::setUsers(connection, row, application.getUsers());
        });
}

ApplicationStore::Pointer ApplicationStore::renameApplication(const ServerApplication& application,
                                                              const String& newPath)
{
    Pointer content = change(
        [&](Connection& connection)
        {
            const EntryTable::Entry entry{application.fields().id.row, nameOf(connection, application)};
            storeSettings(connection, application);
            return renameEntry(connection, applications(connection), entry, newPath);
        });
    forgetFormerSettings(application);
    return content;
}

ApplicationStore::Pointer ApplicationStore::removeApplication(const String& path)
{
    return remove(&applications, path);
}

ApplicationStore::Pointer ApplicationStore::updateApplication(const ServerApplication& application)
{
    const ServerApplication::Fields& fields = application.fields();
    if (!fields.formerEngine && !fields.formerUsers)
    {
        // There is nothing to store; whether it is still there does matter.
        Pointer content = get();
        if (find(*content, fields.id))
        {
            return content;
        }
    }
    Pointer content = change(
        [&](Connection& connection)
        {
            nameOf(connection, application);
            storeSettings(connection, application);
            return Change{application.fields().id.row, std::nullopt};
        });
    forgetFormerSettings(application);
    return content;
}

void ApplicationStore::addTemplate(ServerApplication& application, const String& file)
{
    const auto makeCopy = [&](const String& path) { copy(file, path); };
    refresh(application, *add(templatesOf(application), getFileName(file), makeCopy, nothingElse));
}

void ApplicationStore::renameTemplate(ServerApplication& application, const String& path, const String& newPath)
{
    refresh(application, *rename(templatesOf(application), path, newPath));
}

void ApplicationStore::removeTemplate(ServerApplication& application, const String& path)
{
    refresh(application, *remove(templatesOf(application), path));
}

void ApplicationStore::addFolder(ServerApplication& application, const String& name)
{
    const auto make = [this](const String& path) { makeFolder(path); };
    refresh(application, *add(foldersOf(application), name, make, nothingElse));
}

void ApplicationStore::renameFolder(ServerApplication& application, const String& path, const String& newPath)
{
    refresh(application, *rename(foldersOf(application), path, newPath));
}

void ApplicationStore::removeFolder(ServerApplication& application, const String& path)
{
    refresh(application, *remove(foldersOf(application), path));
}

void ApplicationStore::addFile(ResourcesFolder& folder, const String& file)
{
    const auto makeCopy = [&](const String& path) { copy(file, path); };
    refresh(folder, *add(filesOf(folder), getFileName(file), makeCopy, nothingElse));
}

void ApplicationStore::renameFile(ResourcesFolder& folder, const String& path, const String& newPath)
{
    refresh(folder, *rename(filesOf(folder), path, newPath));
}

void ApplicationStore::removeFile(ResourcesFolder& folder, const String& path)
{
    refresh(folder, *remove(filesOf(folder), path));
}

bool ApplicationStore::isThere(const Shelf& shelf, const String& name) const
{
    const FileTree::Kind kind = m_files.kind(join(shelf.folder, name));
    if (kind == FileTree::Kind::unknown)
    {
        // It is tried, and the system says what is in the way.
        return true;
    }
    return shelf.entries.isFolder ? kind == FileTree::Kind::folder || kind == FileTree::Kind::link
                                  : kind == FileTree::Kind::file;
}

void ApplicationStore::copy(const String& from, const String& to) const
{
    switch (m_files.system().kind(from))
    {
    case FileTree::Kind::none:
        throw Core::FileNotFoundException(from);
    case FileTree::Kind::folder:
    case FileTree::Kind::link:
        throw Core::IOException(L"\"" + from + L"\" cannot be copied, because it is a folder.");
    case FileTree::Kind::file:
    case FileTree::Kind::unknown:
        break;
    }
    if (const Core::SystemError error = m_files.system().copy(from, to))
    {
        throw Core::IOException(L"The file \"" + from + L"\" cannot be copied to \"" + m_files.folder() + L"\"", error);
    }
}

void ApplicationStore::makeFolder(const String& path) const
{
    if (const Core::SystemError error = m_files.system().makeFolder(path))
    {
        throw Core::IOException(L"A folder cannot be made in \"" + m_files.folder() + L"\"", error);
    }
}

// What the caller's copy has changed, and nobody else did.
void ApplicationStore::storeSettings(Connection& connection, const ServerApplication& application)
{
    const ServerApplication::Fields& fields = application.fields();
    if (fields.formerEngine && *fields.formerEngine != fields.engine)
    {
        ApplicationTable::setEngine(connection, fields.id.row, fields.engine);
    }
    if (fields.formerUsers)
    {
        const UserList stored = ApplicationTable::getUsers(connection, fields.id.row);
        if (const UserList users = mergedUsers(stored, *fields.formerUsers, fields.users); users != stored)
        {
            ApplicationTable::setUsers(connection, fields.id.row, users);
        }
    }
}

// What is stored now is no change of this copy any more, nor of those that share its fields.
void ApplicationStore::forgetFormerSettings(const ServerApplication& application)
{
    if (application.m_fields)
    {
        application.m_fields->formerEngine.reset();
        application.m_fields->formerUsers.reset();
    }
}

bool ApplicationStore::isBefore(const ServerApplication& application, std::int64_t row) noexcept
{
    return application.fields().id.row < row;
}

void ApplicationStore::put(std::vector<ServerApplication>& all, std::int64_t row,
                           const std::optional<ServerApplication>& now)
{
    const auto found = std::lower_bound(all.begin(), all.end(), row, isBefore);
    const bool isThere = found != all.end() && found->fields().id.row == row;
    if (isThere && now)
    {
        *found = *now;
    }
    else if (isThere)
    {
        all.erase(found);
    }
    else if (now)
    {
        all.insert(found, *now);
    }
}

const ServerApplication* ApplicationStore::find(const Content& content, const StoredId& id) noexcept
{
    const auto& all = content.applications;
    const auto found = std::lower_bound(all.begin(), all.end(), id.row, isBefore);
    return found != all.end() && found->fields().id == id ? &*found : nullptr;
}

const ServerApplication& ApplicationStore::get(const Content& content, const StoredId& id)
{
    if (const ServerApplication* const found = find(content, id))
    {
        return *found;
    }
    throw Core::UnreacheableCodeException();
}

void ApplicationStore::refresh(ServerApplication& application, const Content& content)
{
    const ServerApplication former = application;
    const ServerApplication::Fields& copied = former.fields();
    application.m_fields = get(content, copied.id).m_fields;
    // What waits for an update still does.
    if (copied.formerEngine)
    {
        application.change().engine = copied.engine;
        application.change().formerEngine = copied.formerEngine;
    }
    if (copied.formerUsers)
    {
        application.change().users = copied.users;
        application.change().formerUsers = copied.formerUsers;
    }
}

void ApplicationStore::refresh(ResourcesFolder& folder, const Content& content)
{
    const ServerApplication& application = get(content, folder.m_fields->application);
    for (const ResourcesFolder& now : application.fields().folders)
    {
        if (now.m_fields->id == folder.m_fields->id)
        {
            folder.m_fields = now.m_fields;
            return;
        }
    }
}

} // namespace Tessaro
