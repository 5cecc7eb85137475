#include "kit/FolderDialog.h"

#include "platform/handles.h"

#include <shlobj.h>

#include <filesystem>

namespace Acceptance
{
namespace
{

// The system's own number of the text above the tree.
constexpr int folderTitle = 14146;

using ItemIdList = platform::Owner<platform::NullTraits<LPITEMIDLIST, CoTaskMemFree>>;

// Wine tells a folder from another by its times, too, the last access among them, which looking into a fresh folder
// changes: between making an item of the path and looking for it in the tree. A last access that is yet to come stays.
void settleLastAccess(std::filesystem::path path)
{
    constexpr ULONGLONG hour = 36'000'000'000; // in units of 100 nanoseconds
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const ULONGLONG later = ((ULONGLONG{now.dwHighDateTime} << 32) | now.dwLowDateTime) + hour;
    const FILETIME access{static_cast<DWORD>(later), static_cast<DWORD>(later >> 32)};
    for (; path != path.root_path(); path = path.parent_path())
    {
        const platform::FileHandle folder(CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES,
                                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
        SetFileTime(folder.get(), nullptr, &access, nullptr);
    }
}

} // namespace

std::wstring FolderDialog::title() const
{
    return m_window.text(folderTitle);
}

void FolderDialog::choose(const std::wstring& path)
{
    settleLastAccess(path);
    SendMessageW(m_window.handle(), BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(path.c_str()));
    m_window.press(IDOK);
}

void FolderDialog::chooseComputer()
{
    ItemIdList computer;
    SHGetSpecialFolderLocation(nullptr, CSIDL_DRIVES, computer.put());
    SendMessageW(m_window.handle(), BFFM_SETSELECTIONW, FALSE, reinterpret_cast<LPARAM>(computer.get()));
    m_window.press(IDOK);
}

} // namespace Acceptance
