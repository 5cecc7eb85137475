#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>

namespace Hostile
{

// DialogBoxParamW without showing the dialog: all the same but for drawing, which takes a dialog's most time. A user
// who never lets its message loop wait keeps it so.
INT_PTR showUnseen(HINSTANCE module, LPCWSTR name, HWND owner, DLGPROC procedure, LPARAM parameter);

// And PropertySheetW: show is the function itself. The sheet brings no callback of its own.
INT_PTR showUnseen(const PROPSHEETHEADERW& sheet, const std::function<INT_PTR(LPCPROPSHEETHEADERW)>& show);

} // namespace Hostile
