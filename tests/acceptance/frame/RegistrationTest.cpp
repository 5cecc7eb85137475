#include "frame/LoadedModule.h"
#include "frame/RegistrySnapshot.h"
#include "frame/childProcess.h"
#include "kit/ConsoleTest.h"
#include "kit/ImportPatch.h"
#include "kit/windows.h"
#include "platform/mmc.h"

#include <wrl/client.h>

#include <set>

using Microsoft::WRL::ComPtr;

namespace Acceptance
{
namespace
{

using Lines = std::map<std::wstring, std::wstring>;

std::filesystem::path modulePath()
{
    return ServerFiles::programFolder() / L"TMgmt.dll";
}

constexpr const wchar_t* nodeTypes[] = {
    L"{5E04C557-3019-11D3-8856-204C4F4F5020}", L"{C9CFDCE2-4C8D-457b-8492-2EA136475ABA}",
    L"{BE7B740F-E74E-4818-A79F-CEEBF492B986}", L"{EE8DB654-09FB-4cab-AB61-D91F314D9DAB}",
    L"{5E04C561-3019-11D3-8856-204C4F4F5020}", L"{A1D01998-8EA3-4dc6-AE51-C226DA74EF8C}",
    L"{397A6641-1495-4e11-A789-A13D417DA4CD}", L"{96C4A83C-DD97-465b-8404-F146ED2C527C}",
    L"{AFF1F810-6492-44b3-969A-6441B44B4D77}"};

void addClass(Lines& lines, const std::wstring& name, const std::wstring& classId, const std::wstring& module)
{
    lines[L"HKCR\\TMgmt." + name + L".1"];
    lines[L"HKCR\\TMgmt." + name + L".1 : "] = name + L" Class";
    lines[L"HKCR\\TMgmt." + name + L".1\\CLSID"];
    lines[L"HKCR\\TMgmt." + name + L".1\\CLSID : "] = classId;
    lines[L"HKCR\\TMgmt." + name];
    lines[L"HKCR\\TMgmt." + name + L" : "] = name + L" Class";
    lines[L"HKCR\\TMgmt." + name + L"\\CLSID"];
    lines[L"HKCR\\TMgmt." + name + L"\\CLSID : "] = classId;
    lines[L"HKCR\\TMgmt." + name + L"\\CurVer"];
    lines[L"HKCR\\TMgmt." + name + L"\\CurVer : "] = L"TMgmt." + name + L".1";
    const std::wstring key = L"HKCR\\CLSID\\" + classId;
    lines[key];
    lines[key + L" : "] = name + L" Class";
    lines[key + L" : AppID"] = L"{8137C807-77DB-4E83-AFE3-47F4A33D4D48}";
    lines[key + L"\\ProgID"];
    lines[key + L"\\ProgID : "] = L"TMgmt." + name + L".1";
    lines[key + L"\\VersionIndependentProgID"];
    lines[key + L"\\VersionIndependentProgID : "] = L"TMgmt." + name;
    lines[key + L"\\Programmable"];
    lines[key + L"\\InprocServer32"];
    lines[key + L"\\InprocServer32 : "] = module;
    lines[key + L"\\InprocServer32 : ThreadingModel"] = L"Apartment";
    lines[key + L"\\TypeLib"];
    lines[key + L"\\TypeLib : "] = L"{D4726D92-A622-4f98-AB12-E49B49BAB8FD}";
}

// Everything that registration enters, but for the type library, whose form is the system's.
Lines expectedEntries(const std::wstring& module)
{
    Lines lines;
    lines[L"HKCR\\AppID\\{8137C807-77DB-4E83-AFE3-47F4A33D4D48}"];
    lines[L"HKCR\\AppID\\{8137C807-77DB-4E83-AFE3-47F4A33D4D48} : "] = L"TMgmt";
    lines[L"HKCR\\AppID\\TMgmt.DLL"];
    lines[L"HKCR\\AppID\\TMgmt.DLL : AppID"] = L"{8137C807-77DB-4E83-AFE3-47F4A33D4D48}";
    addClass(lines, L"MMCSnapIn", L"{B86BF80B-252D-44cd-8D11-D8EA4C1702ED}", module);
    addClass(lines, L"MMCSnapInAbout", L"{5D89C286-C3C4-4239-85B6-30E47FE76EF2}", module);
    const std::wstring snapIn = L"MMC\\Snapins\\{B86BF80B-252D-44cd-8D11-D8EA4C1702ED}";
    lines[snapIn];
    lines[snapIn + L" : "] = L"KV Tessaro 2010";
    lines[snapIn + L" : NameString"] = L"KV Tessaro 2010";
    lines[snapIn + L" : About"] = L"{5D89C286-C3C4-4239-85B6-30E47FE76EF2}";
    lines[snapIn + L"\\StandAlone"];
    lines[snapIn + L"\\NodeTypes"];
    for (const std::wstring nodeType : nodeTypes)
    {
        lines[snapIn + L"\\NodeTypes\\" + nodeType];
        lines[L"MMC\\NodeTypes\\" + nodeType];
    }
    return lines;
}

// Systems differ in how they spell the key.
bool isTypeLibrary(const std::wstring& line)
{
    constexpr std::wstring_view key = L"HKCR\\TypeLib";
    return _wcsnicmp(line.c_str(), key.data(), key.size()) == 0;
}

// The keys above the plug-in's own, which stay when it goes.
const std::set<std::wstring> keptKeys{L"HKCR\\AppID", L"HKCR\\CLSID", L"MMC", L"MMC\\Snapins", L"MMC\\NodeTypes"};

Lines own(Lines lines)
{
    std::erase_if(lines, [](const auto& line) { return isTypeLibrary(line.first) || keptKeys.contains(line.first); });
    return lines;
}

std::string text(const Lines& lines)
{
    std::wstring text;
    for (const auto& [line, content] : lines)
    {
        text += L"\n  " + line + L" = " + content;
    }
    return narrow(text);
}

void expectEqual(const Lines& expected, const Lines& found)
{
    for (const auto& line : expected)
    {
        EXPECT_TRUE(found.contains(line.first) && found.at(line.first) == line.second) << "missing:" << text({line});
    }
    for (const auto& line : found)
    {
        EXPECT_TRUE(expected.contains(line.first)) << "not expected:" << text({line});
    }
}

// Every test starts with the plug-in registered and leaves it so, whatever happens in between.
class Registering : public ConsoleTest
{
  protected:
    void SetUp() override
    {
        ConsoleTest::SetUp();
        registered();
    }
    void TearDown() override
    {
        registerAfresh();
        expectEqual(registered().lines(), RegistrySnapshot().lines());
        ConsoleTest::TearDown();
    }

    static void unregister() { ASSERT_EQ(S_OK, LoadedModule(modulePath()).unregisterServer()); }

    // The registry with the plug-in freshly in it. An earlier registration from another folder would have left that
    // one as the type library's help folder: the system keeps what is there.
    static const RegistrySnapshot& registered()
    {
        static const RegistrySnapshot snapshot = []
        {
            registerAfresh();
            return RegistrySnapshot();
        }();
        return snapshot;
    }
    static void registerAfresh()
    {
        const LoadedModule module(modulePath());
        EXPECT_EQ(S_OK, module.unregisterServer());
        EXPECT_EQ(S_OK, module.registerServer());
    }
};

// Proves: of the nine node types that are registered four belong to no node, and those of most nodes are missing.
TEST_F(Registering, entersThisAndNothingElse)
{
    unregister();
    const RegistrySnapshot before;
    ASSERT_EQ(S_OK, LoadedModule(modulePath()).registerServer());
    const RegistrySnapshot after;
    expectEqual(expectedEntries(modulePath().wstring()), own(after.without(before)));
    expectEqual({}, before.without(after));
}

TEST_F(Registering, againChangesNothing)
{
    const RegistrySnapshot before;
    ASSERT_EQ(S_OK, LoadedModule(modulePath()).registerServer());
    expectEqual(before.lines(), RegistrySnapshot().lines());
}

TEST_F(Registering, replacesTheSnapInsKeyWhole)
{
    RegSetKeyValueW(HKEY_LOCAL_MACHINE,
                    L"Software\\Microsoft\\MMC\\Snapins\\{B86BF80B-252D-44cd-8D11-D8EA4C1702ED}\\NodeTypes\\foreign",
                    L"value", REG_SZ, L"x", 4);
    ASSERT_EQ(S_OK, LoadedModule(modulePath()).registerServer());
    const RegistrySnapshot after;
    EXPECT_FALSE(after.lines().contains(L"MMC\\Snapins\\{B86BF80B-252D-44cd-8D11-D8EA4C1702ED}\\NodeTypes\\foreign"));
}

TEST_F(Registering, undoneLeavesNothingBehindButTheKeysAbove)
{
    const RegistrySnapshot before;
    unregister();
    const RegistrySnapshot after;
    expectEqual(expectedEntries(modulePath().wstring()), own(before.without(after)));
    expectEqual({}, after.without(before));
    for (const auto& [line, content] : after.lines())
    {
        EXPECT_EQ(std::wstring::npos, line.find(L"D4726D92")) << narrow(line);
    }
    for (const std::wstring& key : keptKeys)
    {
        EXPECT_TRUE(after.lines().contains(key)) << narrow(key);
    }
}

TEST_F(Registering, undoneTwiceIsNoFailure)
{
    unregister();
    const RegistrySnapshot before;
    unregister();
    expectEqual(before.lines(), RegistrySnapshot().lines());
}

TEST_F(Registering, undoneLeavesOthersBesideIt)
{
    struct Foreign
    {
        HKEY root;
        std::wstring key;
        std::wstring line;
    };
    const std::wstring id = L"{11111111-2222-3333-4444-555555555555}";
    const Foreign foreign[] = {
        {HKEY_CLASSES_ROOT, L"AppID\\" + id, L"HKCR\\AppID\\" + id},
        {HKEY_CLASSES_ROOT, L"CLSID\\" + id, L"HKCR\\CLSID\\" + id},
        {HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\MMC\\Snapins\\" + id, L"MMC\\Snapins\\" + id},
        {HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\MMC\\NodeTypes\\" + id, L"MMC\\NodeTypes\\" + id},
    };
    for (const Foreign& other : foreign)
    {
        RegSetKeyValueW(other.root, (other.key + L"\\sub").c_str(), L"value", REG_SZ, L"x", 4);
    }
    unregister();
    const RegistrySnapshot after;
    for (const Foreign& other : foreign)
    {
        EXPECT_TRUE(after.lines().contains(other.line + L"\\sub : value")) << narrow(other.line);
        RegDeleteTreeW(other.root, other.key.c_str());
    }
}

class OddPaths : public Registering, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(OddPaths, areEnteredAsTheyAreAndWork)
{
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / GetParam();
    std::filesystem::create_directories(folder);
    const std::filesystem::path copy = folder / L"TMgmt.dll";
    std::filesystem::copy_file(modulePath(), copy, std::filesystem::copy_options::overwrite_existing);
    unregister();
    {
        const RegistrySnapshot before;
        const LoadedModule module(copy);
        EXPECT_EQ(S_OK, module.registerServer());
        expectEqual(expectedEntries(copy.wstring()), own(RegistrySnapshot().without(before)));
        ComPtr<ISnapinAbout> about;
        EXPECT_EQ(S_OK,
                  CoCreateInstance(aboutClass, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(about.GetAddressOf())));
        EXPECT_EQ(module.handle(), GetModuleHandleW(L"TMgmt.dll"));
        about.Reset();
        EXPECT_EQ(S_OK, module.unregisterServer());
        expectEqual({}, own(RegistrySnapshot().without(before)));
    }
    Console::Host::freeUnusedLibraries();
    std::error_code error;
    std::filesystem::remove_all(folder, error);
}

INSTANTIATE_TEST_SUITE_P(All, OddPaths,
                         testing::Values(L"O'Brien's plug-ins", L"Größe 日本語 Жз", L"100% {of} it", L"''"));

// The classes are created by a real program's way, and the tool agrees with the registry.
TEST_F(Registering, isDoneAndUndoneByTheSystemsTool)
{
    const RegistrySnapshot before;
    const std::wstring module = L"\"" + modulePath().wstring() + L"\"";
    EXPECT_EQ(0u, run(L"regsvr32 /s /u " + module).exitCode);
    expectEqual(expectedEntries(modulePath().wstring()), own(before.without(RegistrySnapshot())));
    EXPECT_EQ(0u, run(L"regsvr32 /s " + module).exitCode);
    expectEqual(before.lines(), RegistrySnapshot().lines());
}

TEST_F(Registering, isSeenByTheRegistryTool)
{
    const auto query = [](const std::wstring& key) { return run(L"reg query \"" + key + L"\" /s").output; };
    const std::string snapIn =
        query(L"HKLM\\Software\\Microsoft\\MMC\\Snapins\\{B86BF80B-252D-44cd-8D11-D8EA4C1702ED}");
    for (const char* const part : {"NameString", "KV Tessaro 2010", "{5D89C286-C3C4-4239-85B6-30E47FE76EF2}",
                                   "\\StandAlone", "\\NodeTypes\\{AFF1F810-6492-44b3-969A-6441B44B4D77}"})
    {
        EXPECT_NE(std::string::npos, snapIn.find(part)) << part << " is not in:\n" << snapIn;
    }
    const std::string server = query(L"HKCR\\CLSID\\{B86BF80B-252D-44cd-8D11-D8EA4C1702ED}\\InprocServer32");
    EXPECT_NE(std::string::npos, server.find(narrow(modulePath().wstring()))) << server;
    EXPECT_NE(std::string::npos, server.find("Apartment")) << server;
}

TEST_F(Registering, programIdsNameTheClasses)
{
    for (const wchar_t* const id : {L"TMgmt.MMCSnapIn", L"TMgmt.MMCSnapIn.1"})
    {
        CLSID found{};
        EXPECT_EQ(S_OK, CLSIDFromProgID(id, &found));
        EXPECT_EQ(snapInClass, found);
    }
    for (const wchar_t* const id : {L"TMgmt.MMCSnapInAbout", L"TMgmt.MMCSnapInAbout.1"})
    {
        CLSID found{};
        EXPECT_EQ(S_OK, CLSIDFromProgID(id, &found));
        EXPECT_EQ(aboutClass, found);
    }
}

const GUID typeLibrary{0xD4726D92, 0xA622, 0x4F98, {0xAB, 0x12, 0xE4, 0x9B, 0x49, 0xBA, 0xB8, 0xFD}};

std::wstring typeName(ITypeLib& library, REFGUID id)
{
    ComPtr<ITypeInfo> type;
    BSTR name = nullptr;
    if (FAILED(library.GetTypeInfoOfGuid(id, &type)) ||
        FAILED(type->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr)))
    {
        return L"(none)";
    }
    const std::wstring text = name;
    SysFreeString(name);
    return text;
}

TEST_F(Registering, entersTheTypeLibraryThatNamesBothClasses)
{
    ComPtr<ITypeLib> library;
    ASSERT_EQ(S_OK, LoadRegTypeLib(typeLibrary, 1, 0, LOCALE_NEUTRAL, &library));
    EXPECT_EQ(L"MMCSnapIn", typeName(*library.Get(), snapInClass));
    EXPECT_EQ(L"MMCSnapInAbout", typeName(*library.Get(), aboutClass));
    BSTR path = nullptr;
    ASSERT_EQ(S_OK, QueryPathOfRegTypeLib(typeLibrary, 1, 0, LOCALE_NEUTRAL, &path));
    EXPECT_TRUE(std::filesystem::equivalent(path, modulePath()));
    SysFreeString(path);
    unregister();
    EXPECT_NE(S_OK, LoadRegTypeLib(typeLibrary, 1, 0, LOCALE_NEUTRAL, library.ReleaseAndGetAddressOf()));
}

std::vector<LCID> locales;

BOOL WINAPI setLocale(LCID locale)
{
    locales.push_back(locale);
    return SetThreadLocale(locale);
}

TEST_F(Registering, worksInTheSystemsLocaleAndRestoresTheThreads)
{
    const LCID former = GetThreadLocale();
    const LCID german = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
    SetThreadLocale(german);
    {
        const LoadedModule module(modulePath());
        const ImportPatch patch("SetThreadLocale", setLocale);
        for (const bool add : {false, true})
        {
            locales.clear();
            EXPECT_EQ(S_OK, add ? module.registerServer() : module.unregisterServer());
            EXPECT_EQ((std::vector<LCID>{LOCALE_SYSTEM_DEFAULT, german}), locales);
            EXPECT_EQ(german, GetThreadLocale());
        }
    }
    SetThreadLocale(former);
}

HRESULT WINAPI noRegistrar(REFCLSID, IUnknown*, DWORD, REFIID, void**)
{
    return REGDB_E_CLASSNOTREG;
}

TEST_F(Registering, endsWithTheFirstFailure)
{
    const LCID former = GetThreadLocale();
    const LoadedModule module(modulePath());
    const ImportPatch patch("CoCreateInstance", noRegistrar);
    EXPECT_EQ(REGDB_E_CLASSNOTREG, module.registerServer());
    EXPECT_EQ(REGDB_E_CLASSNOTREG, module.unregisterServer());
    EXPECT_EQ(former, GetThreadLocale());
}

HRESULT WINAPI refuseLibrary(ITypeLib*, LPOLESTR, LPOLESTR)
{
    return TYPE_E_REGISTRYACCESS;
}

TEST_F(Registering, keepsTheStepsDoneBeforeAFailure)
{
    unregister();
    const RegistrySnapshot before;
    const LoadedModule module(modulePath());
    const ImportPatch patch("RegisterTypeLib", refuseLibrary);
    EXPECT_EQ(TYPE_E_REGISTRYACCESS, module.registerServer());
    expectEqual(expectedEntries(modulePath().wstring()), own(RegistrySnapshot().without(before)));
}

} // namespace
} // namespace Acceptance
