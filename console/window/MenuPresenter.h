#pragma once

#include "console/host/ContextMenu.h"

#include <windows.h>

#include <string>
#include <vector>

namespace Console
{

// Turns a context menu's items into a menu of the system. The items are lent: they must outlive what was made of them.

// Puts the items into a menu; an item's number there is firstNumber + its command.
void fillMenu(HMENU menu, const std::vector<MenuItem>& items, unsigned firstNumber);

void emptyMenu(HMENU menu);

// Shows the items at a place on the screen until the user has chosen. The chosen item's command, 0 for none.
unsigned trackMenu(HWND owner, const std::vector<MenuItem>& items, POINT screen);

// The line for the status bar, from the parameters of WM_MENUSELECT: of an item that fillMenu made its status text, of
// a command from the resources the string under its number.
std::wstring menuHelp(WPARAM wParam, LPARAM lParam);

} // namespace Console
