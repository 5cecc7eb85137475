#include "floor/floorDialog.h"

#include "platform/VisualStyles.h"
#include "resources.h"

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

void showFloorDialog()
{
    static const platform::VisualStyles styles(GetModuleHandleW(nullptr));
    const platform::VisualStyles::Scope scope(styles);
    DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_FLOOR), GetActiveWindow(), procedure, 0);
}

} // namespace Bench
