#include "Fixtures.h"
#include "Report.h"
#include "Stage.h"
#include "applicationFixture.h"
#include "console/host/Registration.h"
#include "floor/FloorObject.h"
#include "hotFolderFixture.h"
#include "logFolder.h"
#include "subjects/subjects.h"

#include <brimlow/tessaro/ServerTemplates.h>
#include <brimlow/tessaro/UserCollection.h>

#include <wrl/client.h>

#include <stdexcept>

namespace Bench
{
namespace
{

using Factory = Microsoft::WRL::ComPtr<IClassFactory>;

Factory plugInLibrary()
{
    Factory factory;
    if (FAILED(CoGetClassObject(plugInClass, CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(factory.GetAddressOf()))))
    {
        throw std::runtime_error("the plug-in cannot be loaded; register it");
    }
    return factory;
}

constexpr wchar_t templatesNode[] = L"Server Templates";

// From nothing to the opened root and the opened applications in it, and back.
void loadAndTakeDown(const CLSID& clsid, std::size_t applications)
{
    Console::Host host;
    const Console::SnapIn& snapIn = host.addSnapIn(clsid);
    host.tree().expand(snapIn.root());
    for (const Console::NodeId node : host.tree().children(snapIn.root()))
    {
        if (host.tree().text(node) == templatesNode)
        {
            host.tree().expand(node);
            if (host.tree().children(node).size() == applications)
            {
                return;
            }
        }
    }
    throw std::runtime_error("the tree does not have the applications");
}

void mapLibrary(const std::wstring& library)
{
    const HMODULE module = LoadLibraryExW(library.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE);
    if (!module)
    {
        throw std::runtime_error("the library cannot be mapped");
    }
    FreeLibrary(module);
}

// Applications and the users whom they list, as they have to be read for their nodes.
void readApplications()
{
    Tessaro::ServerTemplates applications;
    const Tessaro::UserCollection users;
    for (int index = 0; index < applications.getCount(); ++index)
    {
        for (const Core::String& name : applications.getAt(index).getUsers())
        {
            users.getUserByName(name);
        }
    }
}

// read: what has to be read while it is loaded.
void compareLoading(const char* what, std::size_t size, std::size_t applications, std::size_t repetitions,
                    const std::function<void()>& read)
{
    const FloorNode floor{.name = L"KV Tessaro 2010",
                          .children = {{.name = L"Engine Settings", .children = {{.name = L"Settings"}}},
                                       {.name = L"Hot Folders"},
                                       {.name = templatesNode,
                                        .children = std::vector<FloorNode>(applications, {.name = L"Application"})},
                                       {.name = L"Users"},
                                       {.name = L"Server Certificates"},
                                       {.name = L"Log", .children = {{.name = L"Log Files"}}},
                                       {.name = L"About KV Tessaro"}}};
    const FloorRegistration registration(floor);
    const Factory kept = plugInLibrary();
    kept->LockServer(TRUE);
    compare(what, size, repetitions, {.act = [&] { loadAndTakeDown(plugInClass, applications); }},
            {.act = [&]
             {
                 read();
                 loadAndTakeDown(floorClass, applications);
             }});
    kept->LockServer(FALSE);
}

} // namespace

// No file of the server's at all, or (size) that many log files.
void loading(std::size_t size, std::size_t repetitions)
{
    Fixtures::make(size == 0 ? "nothing" : "logs", size);
    if (size == 0)
    {
        const std::wstring library = Console::inspectServer(plugInClass).library;
        const auto unload = [] { Console::Host::freeUnusedLibraries(); };
        compare("TMgmt.dll into memory and out", 0, repetitions,
                {.act =
                     []
                 {
                     plugInLibrary();
                     Console::Host::freeUnusedLibraries();
                 },
                 .before = unload},
                {.act = [&] { mapLibrary(library); }, .before = unload});
    }
    compareLoading(size == 0 ? "Plug-in: load, open its root, take down" : "Plug-in: load with log files", size, 0,
                   repetitions, [size] { logsIn(logFolder(size)); });
}

void loadingApplications(std::size_t size, std::size_t repetitions)
{
    makeApplications(size, usersOfEach);
    compareLoading("Plug-in: load with applications", size, size, repetitions, readApplications);
}

void loadingHotFolders(std::size_t size, std::size_t repetitions)
{
    makeHotFolders(size);
    compareLoading("Plug-in: load with hot folders", size, 0, repetitions, [] {});
}

} // namespace Bench
