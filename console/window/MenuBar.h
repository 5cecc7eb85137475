#pragma once

#include "WindowPlacement.h"

#include "console/host/View.h"

#include <windows.h>

#include <string>

namespace Console
{

// Brings a menu of the menu bar up to date before it opens: checks, disabled items, the snap-in's name in the Help
// menu (empty: none is shown). Commands that the menu does not have are passed over.
void updateMenu(HMENU menu, const View& view, const WindowPlacement& placement, const std::wstring& snapIn);

} // namespace Console
