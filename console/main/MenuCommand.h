#pragma once

#include "console/host/ContextMenu.h"

#include <string>
#include <vector>

namespace Console
{

// The command that a script names, searched through all submenus: by the snap-in's number for it ("1000"), or by its
// text without mnemonic, dots at the end and regard to case ("Edit Property"). 0 when there is none or it is disabled.
unsigned findMenuCommand(const std::vector<MenuItem>& items, const std::wstring& name);

} // namespace Console
