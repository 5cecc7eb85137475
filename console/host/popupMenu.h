#pragma once

#include "console/host/ContextMenu.h"

#include <windows.h>

#include <vector>

namespace Console
{

// Shows the items as a popup menu and waits. The chosen item's command; 0 when none was chosen.
unsigned trackPopupMenu(const std::vector<MenuItem>& items, HWND owner, int x, int y);

} // namespace Console
