#include "checkDatabase.h"

#include "ApplicationStore.h"
#include "UserTable.h"
#include "names.h"
#include "rules.h"

#include "brimlow/system/FileSystem.h"

using Core::String;
using Core::IO::FileTree;
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

void changeApplications(ApplicationStore& store, const TessaroStore::Pointer& content, const String& file)
{
    ServerApplication application;
    application.setApplicationPath(L"New");
    application.setUsers({L"Guest"});
    tryTo([&] { store.addApplication(application); });
    if (!content->applications.empty())
    {
        application = content->applications.front();
        application.addUser(L"alice");
        application.setParser(XsltEngine::DotNet);
        tryTo([&] { store.updateApplication(application); });
        tryTo([&] { store.addTemplate(application, file); });
        tryTo([&] { store.addFolder(application, L"Folder"); });
        if (application.getResourcesCount() > 0)
        {
            ResourcesFolder folder = application.getResourceFolderAt(0);
            tryTo([&] { store.addFile(folder, file); });
            tryTo([&] { store.renameFile(folder, file, L"renamed"); });
            tryTo([&] { store.removeFile(folder, L"renamed"); });
            tryTo([&] { store.renameFolder(application, folder.getResourcesFolderPath(), L"Renamed"); });
            tryTo([&] { store.removeFolder(application, L"Renamed"); });
        }
        if (application.getTemplatesCount() > 0)
        {
            const String path = application.getAt(0).getTemplatePath();
            tryTo([&] { store.renameTemplate(application, path, L"renamed"); });
            tryTo([&] { store.removeTemplate(application, L"renamed"); });
        }
        tryTo([&] { store.renameApplication(application, L"Renamed"); });
        tryTo([&] { store.removeApplication(L"Renamed"); });
    }
}

void changeUsers(TessaroStore& store, const Place& place, TessaroStore::Pointer content)
{
    const auto change = [&](auto write) { tryTo([&] { store.change(place, content, write, [](Content&) {}); }); };
    User user;
    user.setUsername(L"alice");
    change([&](Database::Connection& connection) { UserTable::add(connection, user); });
    if (!content->users.empty())
    {
        user = content->users.front();
        change([&](Database::Connection& connection) { UserTable::update(connection, user); });
        change([&](Database::Connection& connection) { UserTable::remove(connection, user); });
    }
    change([](Database::Connection& connection) { UserTable::setGuestEnabled(connection, true); });
}

} // namespace

void checkTessaro(const String& path, std::string_view content)
{
    writeDatabase(path, content);
    Place place = TessaroStore::machinePlace();
    const String machineFolder = place.applications;
    place.database.path = path;
    place.database.busyTimeout = std::chrono::milliseconds(0);
    place.applications = path + L".applications";
    const String file = path + L".file";
    writeDatabase(file, "x");

    TessaroStore records;
    ApplicationStore store(records, place, FileTree::system());
    const TessaroStore::Pointer read = readOrRefuse(path, [&] { return store.get(); });
    if (!read)
    {
        return;
    }
    requireUnchanged(path, content);
    for (const ServerApplication& application : read->applications)
    {
        look(application, machineFolder);
        // So that changes find something.
        FileTree::makeParentFolders(combinePath(combinePath(place.applications, application.getDisplayName()), L"x"));
    }
    changeUsers(records, place, read);
    changeApplications(store, read, file);
    tryTo([&] { TessaroStore().get(place); });
    require(FileTree::system().kind(file) == FileTree::Kind::file, "nothing outside changes");
    FileTree::system().remove(place.applications);
}
