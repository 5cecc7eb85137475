#include "ResourceCounts.h"

#include <windows.h>

#include <ostream>
#include <stdexcept>
#include <vector>

namespace Hostile
{
namespace
{

// NtQuerySystemInformation, with numbers that winternl.h leaves out.
using Query = LONG(WINAPI*)(ULONG what, void* buffer, ULONG size, ULONG* needed);
constexpr ULONG allHandles = 64;                         // SystemExtendedHandleInformation
constexpr LONG tooSmall = static_cast<LONG>(0xC0000004); // STATUS_INFO_LENGTH_MISMATCH

struct HandleEntry
{
    void* object;
    ULONG_PTR process;
    ULONG_PTR handle;
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

// Wine's GetProcessHandleCount says 0 whatever there is.
std::size_t countHandles()
{
    static const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
    // Kept, so that counting changes nothing.
    static std::vector<std::byte> buffer(1 << 20);
    LONG status = 0;
    while ((status = query(allHandles, buffer.data(), static_cast<ULONG>(buffer.size()), nullptr)) == tooSmall)
    {
        buffer.resize(buffer.size() * 2);
    }
    if (status != 0)
    {
        throw std::runtime_error("the system does not list its handles");
    }
    const auto* const list = reinterpret_cast<const HandleList*>(buffer.data());
    std::size_t count = 0;
    for (const HandleEntry* entry = list->entries; entry != list->entries + list->count; ++entry)
    {
        count += entry->process == GetCurrentProcessId() ? 1 : 0;
    }
    return count;
}

// Handles of GDI objects and menus are an index in their lower half; with nothing in the upper half they stand for
// whatever is at that index. Wine's GetGuiResources says 0 whatever there is.
constexpr UINT_PTR indices = 0x10000;

std::size_t countGdiObjects()
{
    std::size_t count = 0;
    for (UINT_PTR index = 0; index < indices; ++index)
    {
        count += GetObjectType(reinterpret_cast<HGDIOBJ>(index)) ? 1U : 0U;
    }
    return count;
}

std::size_t countMenus()
{
    std::size_t count = 0;
    for (UINT_PTR index = 0; index < indices; ++index)
    {
        count += IsMenu(reinterpret_cast<HMENU>(index)) ? 1U : 0U;
    }
    return count;
}

BOOL CALLBACK countWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<std::size_t*>(count);
    return TRUE;
}

BOOL CALLBACK countWithChildren(HWND window, LPARAM count)
{
    EnumChildWindows(window, countWindow, count);
    return countWindow(window, count);
}

std::size_t countWindows()
{
    std::size_t count = 0;
    EnumThreadWindows(GetCurrentThreadId(), countWithChildren, reinterpret_cast<LPARAM>(&count));
    return count;
}

} // namespace

ResourceCounts ResourceCounts::now()
{
    return {
        .handles = countHandles(), .gdiObjects = countGdiObjects(), .windows = countWindows(), .menus = countMenus()};
}

std::ostream& operator<<(std::ostream& out, const ResourceCounts& counts)
{
    return out << counts.handles << " handles, " << counts.gdiObjects << " GDI objects, " << counts.windows
               << " windows, " << counts.menus << " menus";
}

} // namespace Hostile
