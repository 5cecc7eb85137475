#pragma once

#include <windows.h>

#include <string>

namespace Console
{

// Puts the text on the clipboard, in place of what is there. Beeps when another program does not let go of it.
void putOnClipboard(HWND owner, const std::wstring& text);

} // namespace Console
