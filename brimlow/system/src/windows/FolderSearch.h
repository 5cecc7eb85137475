#pragma once

#include "platform/handles.h"

#include <string>

namespace Core::IO
{

// Goes over the entries of a folder, in no order, without "." and "..". Of a folder that cannot be read to its end:
// those that could.
//
//     for (FolderSearch search(folder); search; search.next()) { … search->cFileName … }
class FolderSearch
{
  public:
    // The folder in its extended form.
    explicit FolderSearch(const std::wstring& folder);

    explicit operator bool() const noexcept { return m_found; }
    const WIN32_FIND_DATAW* operator->() const noexcept { return &m_entry; }
    bool isFolder() const noexcept { return m_entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY; }
    bool isLink() const noexcept { return m_entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT; }
    void next() noexcept;

  private:
    struct SearchTraits
    {
        using Handle = HANDLE;
        static Handle none() noexcept { return INVALID_HANDLE_VALUE; }
        static void close(Handle handle) noexcept { FindClose(handle); }
    };

    bool isDots() const noexcept;

    WIN32_FIND_DATAW m_entry{};
    platform::Owner<SearchTraits> m_search;
    bool m_found = false;
};

} // namespace Core::IO
