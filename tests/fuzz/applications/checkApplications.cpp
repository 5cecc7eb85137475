// Any bytes as the database of the applications and users: they are refused with a sentence that names the file, or
// else read without a change to the file, and can be changed as far as the damage allows. No path leads out of the
// folder of the applications, and no change does.

#include "ApplicationStore.h"
#include "MemoryDatabase.h"
#include "MemoryFiles.h"
#include "UserTable.h"
#include "checks.h"
#include "names.h"
#include "rules.h"

#include "brimlow/system/FileSystem.h"

#include <functional>
#include <vector>

using Core::String;
using Core::IO::FileSystem::combinePath;
using namespace Tessaro;

namespace
{

// A path that is made of a name is that name in its folder.
void requireInside(const String& path, const String& folder)
{
    const String name = Core::IO::FileSystem::getFileName(path);
    require(path == combinePath(folder, name) && !nameRefusal(name), "a path is a name in its folder");
}

// Goes over everything that an application holds.
void look(const ServerApplication& application, const String& folder)
{
    requireInside(application.getApplicationPath(), folder);
    for (int index = 0; index < application.getTemplatesCount(); ++index)
    {
        requireInside(application.getAt(index).getTemplatePath(), application.getApplicationPath());
    }
    for (int index = 0; index < application.getResourcesCount(); ++index)
    {
        const ResourcesFolder& resources = application.getResourceFolderAt(index);
        requireInside(resources.getResourcesFolderPath(), application.getApplicationPath());
        for (int file = 0; file < resources.getCount(); ++file)
        {
            requireInside(resources.getAt(file).getResourceFilePath(), resources.getResourcesFolderPath());
        }
    }
}

// The files that the applications say they have, so that changes find something.
void makeFiles(MemoryFiles& files, const ServerApplication& application)
{
    const String folder = combinePath(files.folder(), application.getDisplayName());
    files.put(folder, MemoryFiles::Kind::folder);
    for (int index = 0; index < application.getTemplatesCount(); ++index)
    {
        files.put(combinePath(folder, application.getAt(index).getDisplayName()), MemoryFiles::Kind::file);
    }
    for (int index = 0; index < application.getResourcesCount(); ++index)
    {
        const ResourcesFolder& resources = application.getResourceFolderAt(index);
        const String path = combinePath(folder, resources.getDisplayName());
        files.put(path, MemoryFiles::Kind::folder);
        for (int file = 0; file < resources.getCount(); ++file)
        {
            files.put(combinePath(path, resources.getAt(file).getDisplayName()), MemoryFiles::Kind::file);
        }
    }
}

using Changes = std::vector<std::function<void()>>;

void addChangesOfApplications(Changes& changes, ApplicationStore& store, ServerApplication& application,
                              const String& file)
{
    application.addUser(L"alice");
    application.setParser(XsltEngine::DotNet);
    changes.insert(changes.end(),
                   {[&] { store.updateApplication(application); }, [&] { store.addTemplate(application, file); },
                    [&] { store.addFolder(application, L"Folder"); },
                    [&] { store.renameApplication(application, L"Renamed"); },
                    [&] { store.removeApplication(application.getApplicationPath()); }});
    if (application.getTemplatesCount() > 0)
    {
        const String path = application.getAt(0).getTemplatePath();
        changes.insert(changes.end(),
                       {[&store, &application, path] { store.renameTemplate(application, path, L"renamed"); },
                        [&store, &application, path] { store.removeTemplate(application, path); }});
    }
}

void addChangesOfFolder(Changes& changes, ApplicationStore& store, ServerApplication& application,
                        ResourcesFolder& folder, const String& file)
{
    const String path = folder.getResourcesFolderPath();
    changes.insert(changes.end(), {[&] { store.addFile(folder, file); },
                                   [&store, &application, path] { store.renameFolder(application, path, L"Renamed"); },
                                   [&store, &application, path] { store.removeFolder(application, path); }});
    if (folder.getCount() > 0)
    {
        const String name = folder.getAt(0).getDisplayName();
        changes.insert(changes.end(), {[&store, &folder, name] { store.renameFile(folder, name, L"renamed"); },
                                       [&store, &folder, name] { store.removeFile(folder, name); }});
    }
}

void addChangesOfUsers(Changes& changes, TessaroStore& store, const Place& place, TessaroStore::Pointer& content)
{
    const auto change = [&](auto write)
    { return [&, write] { store.change(place, content, write, [](Content&) {}); }; };
    User user = content->users.empty() ? User() : content->users.front();
    user.setUsername(L"alice");
    changes.insert(changes.end(),
                   {change([user](Database::Connection& connection) { UserTable::add(connection, user); }),
                    change([user](Database::Connection& connection) { UserTable::update(connection, user); }),
                    change([user](Database::Connection& connection) { UserTable::remove(connection, user); }),
                    change([](Database::Connection& connection) { UserTable::setGuestEnabled(connection, true); })});
}

} // namespace

void checkApplications(std::string_view content)
{
    const MemoryDatabase database(content);
    Place place = TessaroStore::machinePlace();
    const String machineFolder = place.applications;
    place.database.path = database.path();
    place.database.busyTimeout = std::chrono::milliseconds(0);
    place.applications = database.path() + L".applications";

    MemoryFiles files(place.applications, database.journal());
    TessaroStore records;
    ApplicationStore store(records, place, files);
    TessaroStore::Pointer read = readOrRefuse(place.database.path, [&] { return store.get(); });
    if (!read)
    {
        return;
    }
    database.requireUnchanged();
    for (const ServerApplication& application : read->applications)
    {
        look(application, machineFolder);
        makeFiles(files, application);
    }

    const String file = combinePath(place.applications + L".outside", L"file");
    files.put(file, MemoryFiles::Kind::file);
    Changes changes;
    addChangesOfUsers(changes, records, place, read);
    ServerApplication application;
    application.setApplicationPath(L"New");
    application.setUsers({L"Guest"});
    changes.emplace_back([&] { store.addApplication(application); });
    ServerApplication stored;
    ResourcesFolder folder;
    if (!read->applications.empty())
    {
        stored = read->applications.front();
        addChangesOfApplications(changes, store, stored, file);
        if (stored.getResourcesCount() > 0)
        {
            folder = stored.getResourceFolderAt(0);
            addChangesOfFolder(changes, store, stored, folder, file);
        }
    }
    tryTo(changes[chosenChange(content, changes.size())]);
}
