#pragma once

#include <windows.h>

#include <objbase.h>

#include "platform/Owner.h"

namespace platform
{

template <class T, auto Close>
struct NullTraits
{
    using Handle = T;
    static Handle none() noexcept { return nullptr; }
    static void close(Handle handle) noexcept { Close(handle); }
};

struct FileTraits
{
    using Handle = HANDLE;
    static Handle none() noexcept { return INVALID_HANDLE_VALUE; }
    static void close(Handle handle) noexcept { CloseHandle(handle); }
};

struct BitmapTraits : NullTraits<HBITMAP, DeleteObject>
{
};
struct FontTraits : NullTraits<HFONT, DeleteObject>
{
};

using FileHandle = Owner<FileTraits>;
using KernelHandle = Owner<NullTraits<HANDLE, CloseHandle>>;
using RegistryKey = Owner<NullTraits<HKEY, RegCloseKey>>;
using ServiceHandle = Owner<NullTraits<SC_HANDLE, CloseServiceHandle>>;
using Menu = Owner<NullTraits<HMENU, DestroyMenu>>;
using Icon = Owner<NullTraits<HICON, DestroyIcon>>;
using Bitmap = Owner<BitmapTraits>;
using Font = Owner<FontTraits>;
using Library = Owner<NullTraits<HMODULE, FreeLibrary>>;
using LocalMemory = Owner<NullTraits<HLOCAL, LocalFree>>;
using GlobalMemory = Owner<NullTraits<HGLOBAL, GlobalFree>>;
// Strings that cross a COM interface.
using TaskString = Owner<NullTraits<LPOLESTR, CoTaskMemFree>>;

// A storage medium that somebody filled; freed with ReleaseStgMedium.
class StorageMedium
{
  public:
    StorageMedium() noexcept = default;
    StorageMedium(const StorageMedium&) = delete;
    StorageMedium& operator=(const StorageMedium&) = delete;
    ~StorageMedium() { ReleaseStgMedium(&m_medium); }

    STGMEDIUM* get() noexcept { return &m_medium; }
    STGMEDIUM* operator->() noexcept { return &m_medium; }

  private:
    STGMEDIUM m_medium{};
};

} // namespace platform
