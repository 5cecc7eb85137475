#pragma once

#include <windows.h>

namespace Console
{

// Names the control that is created next in that window for screen readers: they speak the label right before a tree
// or a list, seen or not.
void createHiddenLabel(HWND parent, const wchar_t* text);

} // namespace Console
