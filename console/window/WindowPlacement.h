#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace Console
{

// Where the main window was, for the next time.
struct WindowPlacement
{
    RECT normal{}; // not maximised, on the screen
    bool maximized = false;
    int treeWidth = 0; // at 96 dots per inch
    bool toolbar = true;
    bool statusBar = true;

    // As one line of numbers and back. Nothing when the text is not such a line.
    std::wstring toText() const;
    static std::optional<WindowPlacement> fromText(const std::wstring& text);
};

// Where a window starts: as the last time if that is remembered, of the size if one is given, else of the size and in
// the place that suit the screen.
WindowPlacement startPlacement(bool remembered, const std::optional<SIZE>& size, int dpi);

// Keeps it for the next run, with the window's present place.
void rememberPlacement(HWND window, WindowPlacement placement);

// Where a place is that GetWindowPlacement gave: it counts from the monitor's work area, not from its corner.
RECT onScreen(const RECT& place, const MONITORINFO& monitor);

// The same window where it can be seen and its caption reached: moved, and made smaller if need be, into the work area
// that it covers most of (the first one when it covers none). workAreas is not empty.
RECT keepOnScreen(const RECT& window, const std::vector<RECT>& workAreas);

// Of all monitors, the primary one first.
std::vector<RECT> workAreas();

} // namespace Console
