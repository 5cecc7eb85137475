#include "Splitter.h"

#include <windowsx.h>

#include <utility>

namespace Console
{

Splitter::Splitter(HWND parent, std::function<void(int)> moved)
    : Window({.className = L"TConsole.Splitter",
              .title = L"Divider between tree and list",
              .style = WS_CHILD | WS_VISIBLE,
              .parent = parent,
              .cursor = LoadCursorW(nullptr, IDC_SIZEWE),
              .background = GetSysColorBrush(COLOR_3DFACE)}),
      m_moved(std::move(moved))
{
}

Splitter::~Splitter()
{
    destroy();
}

LRESULT Splitter::handleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
        m_grip = GET_X_LPARAM(lParam);
        SetCapture(handle());
        return 0;
    case WM_MOUSEMOVE:
        if (GetCapture() == handle())
        {
            POINT point{GET_X_LPARAM(lParam), 0};
            MapWindowPoints(handle(), GetParent(handle()), &point, 1);
            m_moved(point.x - m_grip);
        }
        return 0;
    case WM_LBUTTONUP:
        ReleaseCapture();
        return 0;
    default:
        return Window::handleMessage(message, wParam, lParam);
    }
}

} // namespace Console
