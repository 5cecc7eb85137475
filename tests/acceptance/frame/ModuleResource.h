#pragma once

#include <windows.h>

#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "kit/ServerFiles.h"

namespace Acceptance
{

// The resources of TMgmt.dll, read without running it.
class ModuleResource
{
  public:
    ModuleResource()
        : m_module(
              LoadLibraryExW((ServerFiles::programFolder() / L"TMgmt.dll").c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE))
    {
    }
    ModuleResource(const ModuleResource&) = delete;
    ModuleResource& operator=(const ModuleResource&) = delete;
    ~ModuleResource() { FreeLibrary(m_module); }

    // The first bytes of a resource as that structure.
    template <class T>
    T read(int id, LPCWSTR type) const
    {
        T value{};
        const auto [data, size] = find(id, type);
        std::memcpy(&value, data, size < sizeof value ? size : sizeof value);
        return value;
    }

    std::vector<WORD> words(int id, LPCWSTR type) const
    {
        const auto [data, size] = find(id, type);
        std::vector<WORD> words(size / sizeof(WORD));
        std::memcpy(words.data(), data, words.size() * sizeof(WORD));
        return words;
    }

    // A text of the string table; empty when there is none.
    std::wstring text(UINT id) const
    {
        wchar_t buffer[256] = L"";
        LoadStringW(m_module, id, buffer, 256);
        return buffer;
    }

    // What a menu calls its popup and the command in it.
    std::pair<std::wstring, std::wstring> menuTexts(int id, UINT command) const
    {
        const HMENU menu = LoadMenuW(m_module, MAKEINTRESOURCEW(id));
        wchar_t popup[64] = L"";
        wchar_t item[64] = L"";
        GetMenuStringW(menu, 0, popup, 64, MF_BYPOSITION);
        GetMenuStringW(menu, command, item, 64, MF_BYCOMMAND);
        DestroyMenu(menu);
        return {popup, item};
    }

  private:
    std::pair<const void*, std::size_t> find(int id, LPCWSTR type) const
    {
        const HRSRC found = FindResourceW(m_module, MAKEINTRESOURCEW(id), type);
        if (!found)
        {
            throw std::runtime_error("no resource " + std::to_string(id));
        }
        return {LockResource(LoadResource(m_module, found)), SizeofResource(m_module, found)};
    }

    HMODULE m_module;
};

} // namespace Acceptance
