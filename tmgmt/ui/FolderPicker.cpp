#include "tmgmt/ui/FolderPicker.h"

#include <array>
#include <cwchar>

#include "platform/handles.h"
#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{
namespace
{

using ItemIdList = platform::Owner<platform::NullTraits<LPITEMIDLIST, CoTaskMemFree>>;

// The longest path that Windows has, in characters with the terminating null.
constexpr DWORD longestPath = 32768;

} // namespace

std::optional<std::wstring> FolderPicker::pick(HWND owner) const
{
    const platform::VisualStyles::Scope scope(moduleStyles());
    std::array<wchar_t, MAX_PATH> displayName{};
    BROWSEINFOW request{};
    request.hwndOwner = owner;
    request.pszDisplayName = displayName.data();
    request.lpszTitle = title;
    request.ulFlags = flags;
    const ItemIdList chosen(SHBrowseForFolderW(&request));
    if (!chosen)
    {
        return std::nullopt;
    }
    // SHGetPathFromIDListW itself has room for 260 characters only.
    std::wstring path(longestPath, L'\0');
    if (!SHGetPathFromIDListEx(chosen.get(), path.data(), longestPath, GPFIDL_DEFAULT))
    {
        return std::nullopt;
    }
    path.resize(std::wcslen(path.c_str()));
    return path;
}

} // namespace TMgmt
