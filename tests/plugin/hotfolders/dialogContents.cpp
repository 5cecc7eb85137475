#include "hotfolders/dialogContents.h"

#include "kit/windows.h"

namespace Acceptance
{

std::vector<std::wstring> contentsOf(HWND dialog)
{
    std::vector<std::wstring> contents;
    for (const HWND control : childWindows(dialog))
    {
        contents.push_back(std::to_wstring(GetDlgCtrlID(control)) + L' ' + windowClass(control) + L' ' +
                           windowText(control));
    }
    return contents;
}

std::vector<int> tabOrderOf(HWND dialog)
{
    std::vector<int> ids;
    const HWND first = GetNextDlgTabItem(dialog, nullptr, FALSE);
    for (HWND control = first; control; control = GetNextDlgTabItem(dialog, control, FALSE))
    {
        if (control == first && !ids.empty())
        {
            break;
        }
        ids.push_back(GetDlgCtrlID(control));
    }
    return ids;
}

} // namespace Acceptance
