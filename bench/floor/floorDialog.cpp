#include "floor/floorDialog.h"

#include "platform/VisualStyles.h"

#include <windows.h>

namespace Bench
{
namespace
{

INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wparam, LPARAM) noexcept
{
    if (message == WM_COMMAND && (LOWORD(wparam) == IDOK || LOWORD(wparam) == IDCANCEL))
    {
        EndDialog(dialog, LOWORD(wparam));
    }
    return message == WM_INITDIALOG ? TRUE : FALSE;
}

} // namespace

void showFloorDialog(int dialog)
{
    const HMODULE plugIn = GetModuleHandleW(L"TMgmt.dll");
    static const platform::VisualStyles styles(plugIn);
    const platform::VisualStyles::Scope scope(styles);
    DialogBoxParamW(plugIn, MAKEINTRESOURCEW(dialog), GetActiveWindow(), procedure, 0);
}

} // namespace Bench
