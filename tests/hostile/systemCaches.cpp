#include "systemCaches.h"

#include <array>

namespace Hostile
{
namespace
{

// More dialogs and boxes on top of each other than there ever are draw no more at a time.
constexpr std::size_t deviceContexts = 64;

const std::array icons{IDI_APPLICATION, IDI_ERROR, IDI_QUESTION, IDI_EXCLAMATION, IDI_INFORMATION, IDI_WINLOGO};
const std::array cursors{IDC_ARROW,  IDC_IBEAM,  IDC_WAIT,    IDC_CROSS, IDC_UPARROW, IDC_SIZENWSE,    IDC_SIZENESW,
                         IDC_SIZEWE, IDC_SIZENS, IDC_SIZEALL, IDC_NO,    IDC_HAND,    IDC_APPSTARTING, IDC_HELP};

} // namespace

void fillSystemCaches(HWND window)
{
    std::array<HDC, deviceContexts> contexts{};
    for (HDC& context : contexts)
    {
        context = GetDC(window);
    }
    for (const HDC context : contexts)
    {
        ReleaseDC(window, context);
    }
    for (const LPCWSTR icon : icons)
    {
        LoadIconW(nullptr, icon);
    }
    for (const LPCWSTR cursor : cursors)
    {
        LoadCursorW(nullptr, cursor);
    }
    for (int color = COLOR_SCROLLBAR; color <= COLOR_MENUBAR; ++color)
    {
        GetSysColorBrush(color);
    }
    // The user's settings of the mouse.
    GetDoubleClickTime();
}

} // namespace Hostile
