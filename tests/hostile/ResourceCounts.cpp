#include "ResourceCounts.h"

#include "kit/windows.h"

#include <gtest/gtest.h>

#include <windows.h>
#include <winternl.h>

#include <array>
#include <stdexcept>
#include <vector>

namespace Hostile
{
namespace
{

// NtQuerySystemInformation and NtQueryObject, with numbers that winternl.h leaves out.
using QuerySystem = NTSTATUS WINAPI(ULONG what, void* buffer, ULONG size, ULONG* needed);
using QueryObject = NTSTATUS WINAPI(HANDLE handle, ULONG what, void* buffer, ULONG size, ULONG* needed);
constexpr ULONG allHandles = 64;                             // SystemExtendedHandleInformation
constexpr ULONG objectType = 2;                              // ObjectTypeInformation
constexpr auto tooSmall = static_cast<NTSTATUS>(0xC0000004); // STATUS_INFO_LENGTH_MISMATCH

struct HandleEntry
{
    void* object;
    ULONG_PTR process;
    HANDLE handle;
    ULONG access;
    USHORT creator;
    USHORT type;
    ULONG attributes;
    ULONG reserved;
};

struct HandleList
{
    ULONG_PTR count;
    ULONG_PTR reserved;
    HandleEntry entries[1];
};

template <class Function>
Function* ntdll(const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
}

std::string typeOf(HANDLE handle)
{
    static const auto query = ntdll<QueryObject>("NtQueryObject");
    alignas(UNICODE_STRING) std::array<std::byte, 1024> buffer{};
    query(handle, objectType, buffer.data(), static_cast<ULONG>(buffer.size()), nullptr);
    const auto* const name = reinterpret_cast<const UNICODE_STRING*>(buffer.data());
    return Acceptance::narrow(name->Buffer ? name->Buffer : L"of no type");
}

// Wine's GetProcessHandleCount says 0 whatever there is.
void addHandles(ResourceCounts& counts)
{
    static const auto query = ntdll<QuerySystem>("NtQuerySystemInformation");
    // Kept, so that counting changes nothing.
    static std::vector<std::byte> buffer(1 << 20);
    NTSTATUS status = 0;
    while ((status = query(allHandles, buffer.data(), static_cast<ULONG>(buffer.size()), nullptr)) == tooSmall)
    {
        buffer.resize(buffer.size() * 2);
    }
    if (status != 0)
    {
        throw std::runtime_error("the system does not list its handles");
    }
    const auto* const list = reinterpret_cast<const HandleList*>(buffer.data());
    for (const HandleEntry* entry = list->entries; entry != list->entries + list->count; ++entry)
    {
        if (entry->process == GetCurrentProcessId())
        {
            ++counts["handles: " + typeOf(entry->handle)];
        }
    }
}

// Handles of GDI objects and menus are an index in their lower half; with nothing in the upper half they stand for
// whatever is at that index. Wine's GetGuiResources says 0 whatever there is.
constexpr UINT_PTR indices = 0x10000;

// What GetObjectType says, by its number. Under Wine icons and cursors are bitmaps, too.
constexpr std::array gdiTypes{"",
                              "GDI: pen",
                              "GDI: brush",
                              "GDI: device context",
                              "GDI: metafile context",
                              "GDI: palette",
                              "GDI: font",
                              "GDI: bitmap",
                              "GDI: region",
                              "GDI: metafile",
                              "GDI: memory context",
                              "GDI: extended pen",
                              "GDI: enhanced metafile context",
                              "GDI: enhanced metafile",
                              "GDI: colour space"};

void addGdiObjects(ResourceCounts& counts)
{
    for (UINT_PTR index = 0; index < indices; ++index)
    {
        if (const DWORD type = GetObjectType(reinterpret_cast<HGDIOBJ>(index)))
        {
            ++counts[gdiTypes.at(type)];
        }
    }
}

void addMenus(ResourceCounts& counts)
{
    for (UINT_PTR index = 0; index < indices; ++index)
    {
        if (IsMenu(reinterpret_cast<HMENU>(index)))
        {
            ++counts["menus"];
        }
    }
}

BOOL CALLBACK addWindow(HWND, LPARAM counts)
{
    ++(*reinterpret_cast<ResourceCounts*>(counts))["windows"];
    return TRUE;
}

BOOL CALLBACK addWithChildren(HWND window, LPARAM counts)
{
    EnumChildWindows(window, addWindow, counts);
    return addWindow(window, counts);
}

} // namespace

ResourceCounts countResources()
{
    ResourceCounts counts;
    addHandles(counts);
    addGdiObjects(counts);
    addMenus(counts);
    // Of the calling thread, with their children.
    EnumThreadWindows(GetCurrentThreadId(), addWithChildren, reinterpret_cast<LPARAM>(&counts));
    return counts;
}

void expectNoMore(const ResourceCounts& before, const ResourceCounts& after)
{
    for (const auto& [what, count] : after)
    {
        const auto former = before.find(what);
        EXPECT_LE(count, former == before.end() ? 0 : former->second) << what;
    }
}

} // namespace Hostile
