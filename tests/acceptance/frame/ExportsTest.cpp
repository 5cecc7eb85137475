#include "frame/BareSnapIn.h"
#include "frame/LoadedModule.h"
#include "kit/ConsoleTest.h"

#include <set>

using Microsoft::WRL::ComPtr;

namespace Acceptance
{
namespace
{

class Exports : public ConsoleTest
{
  protected:
    ComPtr<IClassFactory> factory(const LoadedModule& module, REFCLSID classId) const
    {
        ComPtr<IClassFactory> factory;
        EXPECT_EQ(S_OK, module.getClassObject(classId, __uuidof(IClassFactory),
                                              reinterpret_cast<void**>(factory.GetAddressOf())));
        return factory;
    }

    static std::filesystem::path modulePath() { return ServerFiles::programFolder() / L"TMgmt.dll"; }
};

TEST_F(Exports, areTheFourOfAnInProcessServer)
{
    const LoadedModule module(modulePath());
    const auto* const base = reinterpret_cast<const BYTE*>(module.handle());
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const DWORD address = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress;
    const auto* const exports = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + address);
    const auto* const names = reinterpret_cast<const DWORD*>(base + exports->AddressOfNames);
    std::set<std::string> found;
    for (DWORD i = 0; i < exports->NumberOfNames; ++i)
    {
        found.insert(reinterpret_cast<const char*>(base + names[i]));
    }
    EXPECT_EQ(
        (std::set<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"}),
        found);
    EXPECT_EQ(4u, exports->NumberOfFunctions) << "something is exported by number";
}

TEST_F(Exports, classObjectsOfTheTwoClassesOnly)
{
    const LoadedModule module(modulePath());
    void* object = nullptr;
    EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, module.getClassObject(IID_IUnknown, IID_IClassFactory, &object));
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ(E_POINTER, module.getClassObject(snapInClass, IID_IClassFactory, nullptr));
    EXPECT_EQ(E_NOINTERFACE, module.getClassObject(snapInClass, __uuidof(IComponentData), &object));
    EXPECT_EQ(nullptr, object);
    for (const CLSID& classId : {snapInClass, aboutClass})
    {
        EXPECT_NE(nullptr, factory(module, classId).Get());
    }
    EXPECT_EQ(S_OK, module.canUnloadNow());
}

TEST_F(Exports, factoriesMakeWhatTheyAreAskedFor)
{
    const LoadedModule module(modulePath());
    ComPtr<IComponentData> data;
    EXPECT_EQ(S_OK, factory(module, snapInClass)->CreateInstance(nullptr, IID_PPV_ARGS(data.GetAddressOf())));
    ComPtr<ISnapinAbout> about;
    EXPECT_EQ(S_OK, factory(module, aboutClass)->CreateInstance(nullptr, IID_PPV_ARGS(about.GetAddressOf())));
    ComPtr<IUnknown> unknown;
    EXPECT_EQ(S_OK, factory(module, snapInClass)->CreateInstance(nullptr, IID_PPV_ARGS(unknown.GetAddressOf())));
}

TEST_F(Exports, factoriesRefuseAggregationAndForeignInterfaces)
{
    const LoadedModule module(modulePath());
    ConsoleDouble outer;
    for (const CLSID& classId : {snapInClass, aboutClass})
    {
        const auto made = factory(module, classId);
        void* object = &outer;
        EXPECT_EQ(CLASS_E_NOAGGREGATION, made->CreateInstance(&outer, IID_IUnknown, &object));
        EXPECT_EQ(nullptr, object);
        object = &outer;
        EXPECT_EQ(E_NOINTERFACE, made->CreateInstance(nullptr, __uuidof(IConsole), &object));
        EXPECT_EQ(nullptr, object);
        EXPECT_EQ(E_POINTER, made->CreateInstance(nullptr, IID_IUnknown, nullptr));
    }
    EXPECT_EQ(S_OK, module.canUnloadNow());
}

TEST_F(Exports, locksAndObjectsKeepTheLibrary)
{
    const LoadedModule module(modulePath());
    EXPECT_EQ(S_OK, module.canUnloadNow());
    auto made = factory(module, snapInClass);
    EXPECT_EQ(S_OK, made->LockServer(TRUE));
    EXPECT_EQ(S_OK, made->LockServer(TRUE));
    made.Reset();
    EXPECT_EQ(S_FALSE, module.canUnloadNow());
    made = factory(module, aboutClass);
    EXPECT_EQ(S_OK, made->LockServer(FALSE));
    EXPECT_EQ(S_FALSE, module.canUnloadNow());
    EXPECT_EQ(S_OK, made->LockServer(FALSE));
    made.Reset();
    EXPECT_EQ(S_OK, module.canUnloadNow());
    {
        const BareSnapIn snapIn;
        EXPECT_EQ(S_FALSE, module.canUnloadNow());
    }
    EXPECT_EQ(S_OK, module.canUnloadNow());
}

TEST_F(Exports, theLibraryWorksAgainAfterItWasUnloaded)
{
    for (int time = 0; time < 5; ++time)
    {
        {
            BareSnapIn snapIn;
            EXPECT_EQ(L"Log", snapIn.displayName(snapIn.node(L"Log").lParam));
        }
        Console::Host::freeUnusedLibraries();
        EXPECT_EQ(nullptr, GetModuleHandleW(L"TMgmt.dll"));
    }
}

} // namespace
} // namespace Acceptance
