#pragma once

#include "platform/handles.h"

namespace Console
{

// Dots per inch of the monitor that the window is on; the system's where Windows knows no dpi per window.
int dpiOf(HWND window);

// Pixels at that dpi for a length given in pixels at 96.
int scaled(int length, int dpi);
// The way back.
int unscaled(int length, int dpi);

// The font that the user chose for message texts, which Windows uses for lists and trees too.
platform::Font messageFont(int dpi);

// Height of a line of text, without leading.
int lineHeight(HWND window, HFONT font);

} // namespace Console
