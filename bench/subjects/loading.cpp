#include "Fixtures.h"
#include "Report.h"
#include "Stage.h"
#include "console/host/Registration.h"
#include "floor/FloorObject.h"
#include "hotFolderFixture.h"
#include "logFolder.h"
#include "subjects/subjects.h"

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

// From nothing to the opened root, and back.
void loadAndTakeDown(const CLSID& clsid)
{
    Console::Host host;
    const Console::SnapIn& snapIn = host.addSnapIn(clsid);
    host.tree().expand(snapIn.root());
    if (host.tree().children(snapIn.root()).empty())
    {
        throw std::runtime_error("nothing below the root");
    }
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

// read: what has to be read while it is loaded.
void compareLoading(const char* what, std::size_t size, std::size_t repetitions, const std::function<void()>& read)
{
    const FloorNode floor{.name = L"KV Tessaro 2010",
                          .children = {{.name = L"Engine Settings", .children = {{.name = L"Settings"}}},
                                       {.name = L"Hot Folders"},
                                       {.name = L"Server Templates"},
                                       {.name = L"Users"},
                                       {.name = L"Server Certificates"},
                                       {.name = L"Log", .children = {{.name = L"Log Files"}}},
                                       {.name = L"About KV Tessaro"}}};
    const FloorRegistration registration(floor);
    const Factory kept = plugInLibrary();
    kept->LockServer(TRUE);
    compare(what, size, repetitions, {.act = [] { loadAndTakeDown(plugInClass); }},
            {.act = [&]
             {
                 read();
                 loadAndTakeDown(floorClass);
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
    compareLoading(size == 0 ? "Plug-in: load, open its root, take down" : "Plug-in: load with log files", size,
                   repetitions, [size] { logsIn(logFolder(size)); });
}

void loadingHotFolders(std::size_t size, std::size_t repetitions)
{
    makeHotFolders(size);
    compareLoading("Plug-in: load with hot folders", size, repetitions, [] {});
}

} // namespace Bench
