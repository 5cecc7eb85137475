#pragma once

#include <windows.h>

#include <cstring>
#include <stdexcept>
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
