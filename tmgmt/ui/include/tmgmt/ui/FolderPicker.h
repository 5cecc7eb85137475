#pragma once

#include <windows.h>

#include <shlobj.h>

#include <optional>
#include <string>

namespace TMgmt
{

// The system's dialog that asks for a folder. The thread that shows it has called OleInitialize, as the console's user
// interface thread has: BIF_NEWDIALOGSTYLE needs it.
struct FolderPicker
{
    // What the dialog says above the tree.
    const wchar_t* title;
    // BIF_ constants, handed on as they are.
    UINT flags = BIF_STATUSTEXT | BIF_NEWDIALOGSTYLE | BIF_UAHINT;

    // Shows the dialog and returns the full path of the chosen folder, however long; nothing when the dialog was
    // cancelled or what was chosen is no folder of the file system.
    std::optional<std::wstring> pick(HWND owner) const;
};

} // namespace TMgmt
