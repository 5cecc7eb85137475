#pragma once

#include <windows.h>

namespace Hostile
{

// Has the system make all that it makes at the first use, or when more is used at a time than ever before, and keeps
// until the program ends. What comes later is no part of it.
void fillSystemCaches(HWND window);

} // namespace Hostile
