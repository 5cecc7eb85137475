#include "WindowPlacement.h"

#include "Dpi.h"
#include "Settings.h"
#include "numberLine.h"

#include <algorithm>

namespace Console
{

namespace
{

// Below this a window cannot be used.
constexpr LONG smallestWidth = 200;
constexpr LONG smallestHeight = 150;
// In pixels, beyond the edge of any screen. Windows itself keeps places of windows in 16 bits in its messages.
constexpr int farthest = 100'000;

// At 96 dots per inch.
constexpr int defaultWidth = 1000;
constexpr int defaultHeight = 640;
constexpr int defaultTreeWidth = 260;

const wchar_t* const settingName = L"Window";

LONGLONG commonArea(const RECT& a, const RECT& b)
{
    RECT common{};
    return IntersectRect(&common, &a, &b)
               ? static_cast<LONGLONG>(common.right - common.left) * (common.bottom - common.top)
               : 0;
}

BOOL CALLBACK addMonitor(HMONITOR monitor, HDC, RECT*, LPARAM lParam)
{
    auto& areas = *reinterpret_cast<std::vector<RECT>*>(lParam);
    MONITORINFO information{};
    information.cbSize = sizeof information;
    if (GetMonitorInfoW(monitor, &information))
    {
        const bool primary = (information.dwFlags & MONITORINFOF_PRIMARY) != 0;
        areas.insert(primary ? areas.begin() : areas.end(), information.rcWork);
    }
    return TRUE;
}

} // namespace

std::wstring WindowPlacement::toText() const
{
    return formatNumbers({static_cast<int>(normal.left), static_cast<int>(normal.top), static_cast<int>(normal.right),
                          static_cast<int>(normal.bottom), maximized, treeWidth, toolbar, statusBar});
}

std::optional<WindowPlacement> WindowPlacement::fromText(const std::wstring& text)
{
    const auto numbers = parseNumbers(text, farthest);
    if (!numbers || numbers->size() != 8)
    {
        return std::nullopt;
    }
    const std::vector<int>& number = *numbers;
    const WindowPlacement placement{.normal = {number[0], number[1], number[2], number[3]},
                                    .maximized = number[4] != 0,
                                    .treeWidth = number[5],
                                    .toolbar = number[6] != 0,
                                    .statusBar = number[7] != 0};
    const bool sensible = placement.normal.right - placement.normal.left >= smallestWidth &&
                          placement.normal.bottom - placement.normal.top >= smallestHeight && placement.treeWidth >= 0;
    return sensible ? std::optional(placement) : std::nullopt;
}

WindowPlacement startPlacement(bool remembered, const std::optional<SIZE>& size, int dpi)
{
    const auto text = remembered ? Settings().text(settingName) : std::nullopt;
    const auto last = text ? WindowPlacement::fromText(*text) : std::nullopt;
    WindowPlacement placement = last.value_or(WindowPlacement{});
    if (placement.treeWidth == 0)
    {
        placement.treeWidth = defaultTreeWidth;
    }
    const std::vector<RECT> areas = workAreas();
    if (size || !last)
    {
        const SIZE wanted = size.value_or(SIZE{scaled(defaultWidth, dpi), scaled(defaultHeight, dpi)});
        const RECT& area = areas.front();
        const LONG left = area.left + std::max(0L, (area.right - area.left - wanted.cx) / 2);
        const LONG top = area.top + std::max(0L, (area.bottom - area.top - wanted.cy) / 2);
        placement.normal = {left, top, left + wanted.cx, top + wanted.cy};
        placement.maximized = false;
    }
    placement.normal = keepOnScreen(placement.normal, areas);
    return placement;
}

void rememberPlacement(HWND window, WindowPlacement placement)
{
    WINDOWPLACEMENT present{};
    present.length = sizeof present;
    if (GetWindowPlacement(window, &present))
    {
        // A window that is minimised now comes back as it was before.
        const bool minimized = present.showCmd == SW_SHOWMINIMIZED;
        placement.maximized =
            minimized ? (present.flags & WPF_RESTORETOMAXIMIZED) != 0 : present.showCmd == SW_SHOWMAXIMIZED;
        MONITORINFO monitor{};
        monitor.cbSize = sizeof monitor;
        GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
        placement.normal = onScreen(present.rcNormalPosition, monitor);
        Settings().setText(settingName, placement.toText());
    }
}

RECT onScreen(const RECT& place, const MONITORINFO& monitor)
{
    const LONG right = monitor.rcWork.left - monitor.rcMonitor.left;
    const LONG down = monitor.rcWork.top - monitor.rcMonitor.top;
    return {place.left + right, place.top + down, place.right + right, place.bottom + down};
}

RECT keepOnScreen(const RECT& window, const std::vector<RECT>& workAreas)
{
    const RECT& area =
        *std::max_element(workAreas.begin(), workAreas.end(),
                          [&](const RECT& a, const RECT& b) { return commonArea(window, a) < commonArea(window, b); });
    const LONG width = std::min(window.right - window.left, area.right - area.left);
    const LONG height = std::min(window.bottom - window.top, area.bottom - area.top);
    const LONG left = std::clamp(window.left, area.left, area.right - width);
    const LONG top = std::clamp(window.top, area.top, area.bottom - height);
    return {left, top, left + width, top + height};
}

std::vector<RECT> workAreas()
{
    std::vector<RECT> areas;
    EnumDisplayMonitors(nullptr, nullptr, addMonitor, reinterpret_cast<LPARAM>(&areas));
    if (areas.empty())
    {
        areas.push_back({0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
    }
    return areas;
}

} // namespace Console
