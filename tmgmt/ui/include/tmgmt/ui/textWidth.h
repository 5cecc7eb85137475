#pragma once

#include <windows.h>

#include <string>

namespace TMgmt
{

// How wide a line of text is in the font of that control, in pixels; 0 when it cannot be measured.
int textWidth(HWND control, const std::wstring& line) noexcept;

} // namespace TMgmt
