#include "Fixtures.h"
#include "ListBench.h"
#include "applicationFixture.h"
#include "subjects/subjects.h"

#include "tmgmt/resources/ids.h"

#include <brimlow/system/FileSystem.h>
#include <brimlow/tessaro/ServerTemplates.h>
#include <brimlow/tessaro/UserCollection.h>

namespace Bench
{
namespace
{

using Tessaro::ResourcesFolder;
using Tessaro::ServerApplication;
using Tessaro::ServerTemplates;

constexpr wchar_t applicationNode[] = L"Application 0";
constexpr wchar_t folderNode[] = L"folder0";

const Core::String guest = L"Guest";

Core::String inFolder(const Core::String& folder, const wchar_t* name)
{
    return Core::IO::FileSystem::combinePath(folder, name);
}

FloorNode list(const wchar_t* name, std::function<std::vector<std::wstring>()> read)
{
    return {.name = name, .columns = {L"Name"}, .read = std::move(read)};
}

// Of a collection with getAt.
std::vector<std::wstring> displayNames(const auto& collection, int count)
{
    std::vector<std::wstring> names;
    names.reserve(static_cast<std::size_t>(count));
    for (int index = 0; index < count; ++index)
    {
        names.push_back(collection.getAt(index).getDisplayName().str());
    }
    return names;
}

std::vector<std::wstring> templateNames()
{
    ServerTemplates applications;
    const ServerApplication& application = applications.getAt(0);
    return displayNames(application, application.getTemplatesCount());
}

std::vector<std::wstring> fileNames()
{
    ServerTemplates applications;
    const ResourcesFolder folder = applications.getAt(0).getResourceFolderAt(0);
    return displayNames(folder, folder.getCount());
}

std::vector<std::wstring> namesWithAccess()
{
    ServerTemplates applications;
    const Tessaro::UserCollection users;
    std::vector<std::wstring> names;
    names.reserve(applications.getAt(0).getUsers().size());
    for (const Core::String& name : applications.getAt(0).getUsers())
    {
        names.push_back(name == guest ? name.str() : users.getUserByName(name).getUsername().str());
    }
    return names;
}

void make(const char* fixture, std::size_t size)
{
    Fixtures::make("nothing", 0);
    makeModelApplication();
    Fixtures::make(fixture, size);
    Fixtures::make("keep", 0);
}

const auto putBack = [] { Fixtures::make("kept", 0); };
const auto openMiddle = [](List& list) { list.open(list.middle()); };

} // namespace

// The tree's own list of so many applications.
void applications(std::size_t size, std::chrono::milliseconds patience)
{
    make("applications", size);
    ListBench bench("Server Templates",
                    {.name = templatesNode, .children = std::vector<FloorNode>(size, {.name = L"Application"})},
                    {templatesNode}, size, size, patience, [] {});
    bench.show();
    bench.leave();
}

// So many templates of one application. A console lists the nodes below a node among its rows, too: here the users and
// a folder.
void templates(std::size_t size, std::chrono::milliseconds patience)
{
    constexpr std::size_t nodes = 2;
    make("templates", size);
    FloorNode floor = list(L"Application", templateNames);
    floor.children.resize(nodes, {.name = L"Node"});
    ListBench bench("Templates of an application", std::move(floor), {templatesNode, applicationNode}, size + nodes,
                    size, patience, putBack);
    bench.show();
    bench.leave();
    bench.readTexts();
    bench.change({.what = "rename one",
                  .command = openMiddle,
                  .least =
                      []
                  {
                      ServerTemplates applications;
                      ServerApplication& application = applications.getAt(0);
                      const Tessaro::Template middle = application.getAt(application.getTemplatesCount() / 2);
                      application.renameTemplate(middle, inFolder(application.getApplicationPath(), L"renamed"));
                  },
                  .rows = size + nodes,
                  .entry = Entry{IDD_EDIT_TEMPLATE, {{IDC_TEMPLATE_NAME, L"renamed"}}}});
    bench.change({.what = "delete one",
                  .command = &List::deleteSelected,
                  .least =
                      []
                  {
                      ServerTemplates applications;
                      ServerApplication& application = applications.getAt(0);
                      application.deleteTemplate(application.getAt(application.getTemplatesCount() / 2));
                      applications.updateApplication(application);
                  },
                  .rows = size + nodes - 1});
}

// So many resource folders of one application, which are nodes of the tree, beside the users and one template.
void resourceFolders(std::size_t size, std::chrono::milliseconds patience)
{
    make("folders", size);
    FloorNode floor = list(L"Application", templateNames);
    floor.children.resize(size + 1, {.name = L"Node"});
    ListBench bench("Resource folders of an application", std::move(floor), {templatesNode, applicationNode}, size + 2,
                    size, patience, putBack);
    bench.show();
    bench.leave();
    bench.readTexts();
}

// So many files of one resource folder.
void resourceFiles(std::size_t size, std::chrono::milliseconds patience)
{
    make("files", size);
    ListBench bench("Files of a resource folder", list(L"Folder", fileNames),
                    {templatesNode, applicationNode, folderNode}, size, size, patience, putBack);
    bench.show();
    bench.leave();
    bench.readTexts();
    bench.change({.what = "rename one",
                  .command = openMiddle,
                  .least =
                      []
                  {
                      ServerTemplates applications;
                      ResourcesFolder folder = applications.getAt(0).getResourceFolderAt(0);
                      const Tessaro::ResourceFile middle = folder.getAt(folder.getCount() / 2);
                      folder.renameReourceFile(middle, inFolder(folder.getResourcesFolderPath(), L"renamed"));
                  },
                  .rows = size,
                  .entry = Entry{IDD_RENAME_RESOURCE_FILE, {{IDC_RESOURCE_FILE_NAME, L"renamed"}}}});
    bench.change({.what = "delete one",
                  .command = &List::deleteSelected,
                  .least =
                      []
                  {
                      ServerTemplates applications;
                      ResourcesFolder folder = applications.getAt(0).getResourceFolderAt(0);
                      folder.deleteResourceFile(folder.getAt(folder.getCount() / 2));
                  },
                  .rows = size - 1});
}

// So many users who may use one application.
void accessList(std::size_t size, std::chrono::milliseconds patience)
{
    make("access", size);
    ListBench bench("Users of an application", list(L"Users", namesWithAccess),
                    {templatesNode, applicationNode, L"Users"}, size, size, patience, putBack);
    bench.show();
    bench.leave();
    bench.readTexts();
    bench.change({.what = "grant one",
                  .command = [](List& list) { list.runCommand(L"&Grant Access To..."); },
                  .least =
                      []
                  {
                      ServerTemplates applications;
                      ServerApplication& application = applications.getAt(0);
                      application.addUser(guest);
                      applications.updateApplication(application);
                  },
                  .rows = size + 1,
                  .entry = Entry{IDD_GRANT_ACCESS}});
    bench.change({.what = "revoke one",
                  .command = &List::deleteSelected,
                  .least =
                      []
                  {
                      ServerTemplates applications;
                      ServerApplication& application = applications.getAt(0);
                      const std::vector<Core::String>& names = application.getUsers();
                      application.deleteUser(Core::String(names[names.size() / 2]));
                      applications.updateApplication(application);
                  },
                  .rows = size - 1});
}

} // namespace Bench
