#include "tmgmt/ui/FilePicker.h"

#include <cderr.h>
#include <commdlg.h>

#include <cwchar>
#include <system_error>

#include "tmgmt/ui/messageBox.h"
#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{
namespace
{

// The dialog takes the process to the folder of the chosen file; OFN_NOCHANGEDIR does not keep it from that.
class CurrentFolder
{
  public:
    CurrentFolder() : m_path(GetCurrentDirectoryW(0, nullptr), L'\0')
    {
        m_path.resize(GetCurrentDirectoryW(static_cast<DWORD>(m_path.size()), m_path.data()));
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() { SetCurrentDirectoryW(m_path.c_str()); }

  private:
    std::wstring m_path;
};

// Labels and patterns in turn, each with its null, and one more at the end.
std::wstring filterText(const std::vector<FileFilter>& filters)
{
    std::wstring text;
    for (const FileFilter& filter : filters)
    {
        text.append(filter.label).append(1, L'\0').append(filter.pattern).append(1, L'\0');
    }
    return text;
}

using FileDialog = BOOL(WINAPI*)(LPOPENFILENAMEW);

std::optional<std::wstring> ask(FileDialog dialog, const FilePicker& picker, HWND owner,
                                const std::wstring& initialFile)
{
    const platform::VisualStyles::Scope scope(moduleStyles());
    const CurrentFolder folder;
    const std::wstring filter = filterText(picker.filters);
    // Half a path would be another file's.
    std::wstring file = initialFile.size() < picker.capacity ? initialFile : std::wstring();
    file.resize(picker.capacity);

    OPENFILENAMEW request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpstrFilter = filter.c_str();
    request.nFilterIndex = 1;
    request.lpstrFile = file.data();
    request.nMaxFile = picker.capacity;
    request.lpstrTitle = picker.title;
    request.lpstrDefExt = picker.defaultExtension;
    request.Flags = picker.flags;
    if (dialog(&request))
    {
        file.resize(std::wcslen(file.c_str()));
        return file;
    }
    switch (const DWORD error = CommDlgExtendedError())
    {
    case 0:
        return std::nullopt;
    case FNERR_INVALIDFILENAME:
        return initialFile.empty() ? std::nullopt : ask(dialog, picker, owner, {});
    case FNERR_BUFFERTOOSMALL:
    {
        const std::wstring message = L"The path of the file is too long. Please choose a file whose path has at most " +
                                     std::to_wstring(picker.capacity - 1) + L" characters.";
        showMessage(owner, message.c_str(), productCaption, MB_OK | MB_ICONERROR);
        return std::nullopt;
    }
    default:
        throw std::system_error(static_cast<int>(error), std::generic_category(), "A file dialog cannot be shown");
    }
}

} // namespace

std::optional<std::wstring> FilePicker::pick(HWND owner, const std::wstring& initialFile) const
{
    return ask(GetOpenFileNameW, *this, owner, initialFile);
}

std::optional<std::wstring> FilePicker::pickToSave(HWND owner, const std::wstring& initialFile) const
{
    return ask(GetSaveFileNameW, *this, owner, initialFile);
}

} // namespace TMgmt
