#include "kit/FolderDialog.h"

#include "platform/handles.h"

#include <shlobj.h>

namespace Acceptance
{
namespace
{

// The system's own number of the text above the tree.
constexpr int folderTitle = 14146;

using ItemIdList = platform::Owner<platform::NullTraits<LPITEMIDLIST, CoTaskMemFree>>;

} // namespace

std::wstring FolderDialog::title() const
{
    return m_window.text(folderTitle);
}

void FolderDialog::choose(const std::wstring& path)
{
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
