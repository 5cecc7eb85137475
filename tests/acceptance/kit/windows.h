#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace Acceptance
{

std::wstring windowClass(HWND window);
// Asks the window itself, but gives up on one that does not answer: may be called from another thread.
std::wstring windowText(HWND window);
std::vector<HWND> childWindows(HWND window);
// Top-level windows of this thread that a user would see, and dialogs whether visible or not.
std::vector<HWND> openWindows(DWORD thread);
// Class, caption, owner and children of a window, a line each.
std::wstring describeWindow(HWND window);

// For messages on the console: UTF-8.
std::string narrow(const std::wstring& text);
// The system's text for an error code, with its line break, as FormatMessageW gives it.
std::wstring systemText(DWORD error);

} // namespace Acceptance
