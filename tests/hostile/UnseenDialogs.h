#pragma once

#include <windows.h>

namespace Hostile
{

// DialogBoxParamW without showing the dialog: all the same but for drawing, which takes a dialog's most time. A user
// who never lets its message loop wait keeps it so.
INT_PTR showUnseen(HINSTANCE module, LPCWSTR name, HWND owner, DLGPROC procedure, LPARAM parameter);

} // namespace Hostile
