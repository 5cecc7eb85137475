#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace TMgmt
{

// One line of a file dialog's list of file types.
struct FileFilter
{
    const wchar_t* label;
    // Patterns separated by semicolons, as "*.xsl;*.xslt".
    const wchar_t* pattern;
};

// The system's dialog that asks for a file to open. The first filter is chosen when it opens.
struct FilePicker
{
    std::vector<FileFilter> filters;
    // OFN_ constants, handed on as they are.
    DWORD flags = 0;
    // Room for the path in characters, the terminating null among them. A longer choice is refused with a message.
    DWORD capacity = 260;

    // Shows the dialog and returns the full path that was chosen; nothing when it was cancelled. initialFile is what it
    // starts with; a text that cannot be a path, or has no room, is left out. The current folder of the process stays
    // what it is. Throws std::system_error, with the dialog's own error code, when the dialog cannot be shown.
    std::optional<std::wstring> pick(HWND owner, const std::wstring& initialFile) const;
};

} // namespace TMgmt
