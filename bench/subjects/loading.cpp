#include "Fixtures.h"
#include "List.h"
#include "Report.h"
#include "applicationFixture.h"
#include "certificateFixture.h"
#include "console/host/Registration.h"
#include "floor/FloorObject.h"
#include "floorLists.h"
#include "hotFolderFixture.h"
#include "importedLibraries.h"
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

// As for running, with the libraries of the system that it needs, but without its start.
void mapLibrary(const std::wstring& library)
{
    const HMODULE module = LoadLibraryExW(library.c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES);
    if (!module)
    {
        throw std::runtime_error("the library cannot be mapped");
    }
    std::vector<HMODULE> needed;
    for (const char* const name : importedLibraries(module))
    {
        needed.push_back(LoadLibraryA(name));
    }
    for (const HMODULE system : needed)
    {
        FreeLibrary(system);
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

// The tree with everything that it lists.
FloorNode tree(std::size_t applications, std::size_t logs)
{
    return {.name = L"KV Tessaro 2010",
            .children = {
                {.name = L"Engine Settings", .children = {privateFontList()}},
                hotFolderList(),
                {.name = templatesNode, .children = std::vector<FloorNode>(applications, {.name = L"Application"})},
                userList(),
                certificateList(),
                {.name = L"Log", .children = {logFileList(logs)}},
                {.name = L"About KV Tessaro"}}};
}

void showEveryList(Stage& stage, const Console::SnapIn& snapIn)
{
    const std::vector<std::vector<std::wstring>> paths{{L"Engine Settings", L"Private Fonts"},
                                                       {L"Hot Folders"},
                                                       {templatesNode},
                                                       {L"Users"},
                                                       {L"Server Certificates"},
                                                       {L"Log", L"Log Files"}};
    for (const std::vector<std::wstring>& path : paths)
    {
        List list(stage, snapIn, path);
        list.show();
        list.readTexts();
    }
    stage.leave();
}

// read: what has to be read while it is loaded.
void compareLoading(const char* what, std::size_t size, std::size_t applications, std::chrono::milliseconds patience,
                    const std::function<void()>& read)
{
    const FloorNode floor = tree(applications, 0);
    const FloorRegistration registration(floor);
    const Factory kept = plugInLibrary();
    kept->LockServer(TRUE);
    compare(what, size, patience, {.act = [&] { loadAndTakeDown(plugInClass, applications); }},
            {.act = [&]
             {
                 read();
                 loadAndTakeDown(floorClass, applications);
             }});
    kept->LockServer(FALSE);
}

} // namespace

// No file of the server's at all.
void loading(std::size_t, std::chrono::milliseconds patience)
{
    Fixtures::make("nothing", 0);
    const std::wstring library = Console::inspectServer(plugInClass).library;
    const auto unload = [] { Console::Host::freeUnusedLibraries(); };
    compare("Start: TMgmt.dll into memory and out", 0, patience,
            {.act =
                 []
             {
                 plugInLibrary();
                 Console::Host::freeUnusedLibraries();
             },
             .before = unload},
            {.act = [&] { mapLibrary(library); }, .before = unload});
    compareLoading("Start: load the plug-in, open its root, take down", 0, 0, patience, [] {});
}

void loadingLogFiles(std::size_t size, std::chrono::milliseconds patience)
{
    Fixtures::make("nothing", 0);
    Fixtures::make("logs", size);
    compareLoading("Start: with log files", size, 0, patience, [size] { logsIn(logFolder(size)); });
}

void loadingPrivateFonts(std::size_t size, std::chrono::milliseconds patience)
{
    Fixtures::make("nothing", 0);
    Fixtures::make("fonts", size);
    compareLoading("Start: with private fonts", size, 0, patience, [] { privateFontList().read(); });
}

void loadingApplications(std::size_t size, std::chrono::milliseconds patience)
{
    Fixtures::make("nothing", 0);
    makeModelApplication();
    Fixtures::make("applications", size);
    compareLoading("Start: with applications, their nodes in the tree", size, size, patience, readApplications);
}

// 1,000 applications, 10,000 users, hot folders, private fonts and log files, 1,000 certificates.
void everything(std::size_t, std::chrono::milliseconds patience)
{
    constexpr std::size_t many = 10000;
    constexpr std::size_t some = 1000;
    Fixtures::make("nothing", 0);
    makeModelApplication();
    Fixtures::make("users", many);
    Fixtures::make("applications", some);
    makeHotFolders(many);
    makeCertificates(some);
    Fixtures::make("fonts", many);
    Fixtures::make("logs", many);
    compareLoading("Start: with everything, 41,000 entries in all", 0, some, patience,
                   []
                   {
                       logsIn(logFolder(many));
                       privateFontList().read();
                       readApplications();
                   });

    const FloorNode floor = tree(some, many);
    Stage stage(floor);
    compare("Console: show everything, list after list, and read every text", 0, patience,
            {.act = [&] { showEveryList(stage, stage.plugIn()); }},
            {.act = [&] { showEveryList(stage, stage.floor()); }});
}

} // namespace Bench
