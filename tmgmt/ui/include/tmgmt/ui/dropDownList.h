#pragma once

#include <windows.h>

namespace TMgmt
{

// Makes a drop-down list, when it is opened, five times as tall as it is closed. Its resource has CBS_NOINTEGRALHEIGHT:
// without it the list of the common controls 6 grows until all its entries fit.
void sizeOpenList(HWND list) noexcept;

} // namespace TMgmt
