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

// The system's dialogs that ask for a file. The first filter is chosen when one opens.
struct FilePicker
{
    std::vector<FileFilter> filters;
    // OFN_ constants, handed on as they are.
    DWORD flags = 0;
    // Room for the path in characters, the terminating null among them. A longer choice is refused with a message.
    DWORD capacity = 260;
    // The dialog's caption; null: the system's own.
    const wchar_t* title = nullptr;
    // What a name that is typed without an extension gets, as "p12"; null: nothing.
    const wchar_t* defaultExtension = nullptr;

    // Shows the dialog for a file to open and returns the full path that was chosen; nothing when it was cancelled.
    // initialFile is what it starts with; a text that cannot be a path, or has no room, is left out. The current folder
    // of the process stays what it is. Throws std::system_error, with the dialog's own error code, when the dialog
    // cannot be shown.
    std::optional<std::wstring> pick(HWND owner, const std::wstring& initialFile) const;

    // The same with the dialog for a file to write.
    std::optional<std::wstring> pickToSave(HWND owner, const std::wstring& initialFile) const;
};

} // namespace TMgmt
