#pragma once

#include <windows.h>

namespace Console
{

// Lets the keyboard use a toolbar while it has the focus: the arrow keys, Home and End move from one enabled button to
// the next, Enter and Space press it, and Escape gives the focus back to the window at the top.
void serveKeys(HWND toolbar);

} // namespace Console
