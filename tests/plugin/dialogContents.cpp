#include "dialogContents.h"

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

SIZE openSizeOf(HWND list)
{
    RECT closed{};
    GetWindowRect(list, &closed);
    SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    RECT open{};
    if (GetComboBoxInfo(list, &info))
    {
        GetWindowRect(info.hwndList, &open);
    }
    SendMessageW(list, CB_SHOWDROPDOWN, FALSE, 0);
    return {open.right - open.left, open.bottom - closed.top};
}

} // namespace Acceptance
