#include "Window.h"

#include "Failure.h"

namespace Console
{

Window::Window(const Creation& creation)
{
    const HINSTANCE module = GetModuleHandleW(nullptr);
    WNDCLASSEXW known{};
    known.cbSize = sizeof known;
    if (!GetClassInfoExW(module, creation.className, &known))
    {
        WNDCLASSEXW type{};
        type.cbSize = sizeof type;
        // Double clicks; a resized window is not drawn anew as a whole.
        type.style = CS_DBLCLKS;
        type.lpfnWndProc = procedure;
        type.hInstance = module;
        type.hIcon = creation.icon;
        type.hIconSm = creation.smallIcon;
        type.hCursor = creation.cursor != nullptr ? creation.cursor : LoadCursorW(nullptr, IDC_ARROW);
        type.hbrBackground = creation.background;
        type.lpszClassName = creation.className;
        if (RegisterClassExW(&type) == 0)
        {
            throwLastError("RegisterClassEx");
        }
    }
    const RECT& place = creation.place;
    // The procedure sets m_window at the first message, so that handlers can use it.
    if (CreateWindowExW(creation.extendedStyle, creation.className, creation.title, creation.style, place.left,
                        place.top, place.right - place.left, place.bottom - place.top, creation.parent, creation.menu,
                        module, this) == nullptr)
    {
        throwLastError("CreateWindowEx");
    }
}

Window::~Window()
{
    destroy();
}

void Window::destroy()
{
    if (m_window != nullptr)
    {
        DestroyWindow(m_window);
    }
}

LRESULT Window::handleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcW(m_window, message, wParam, lParam);
}

LRESULT CALLBACK Window::procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (message == WM_NCCREATE)
    {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        auto* created = static_cast<Window*>(creation->lpCreateParams);
        created->m_window = handle;
        SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* window = reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    if (window == nullptr)
    {
        return DefWindowProcW(handle, message, wParam, lParam);
    }
    if (message == WM_NCDESTROY)
    {
        window->m_window = nullptr;
        SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
        return DefWindowProcW(handle, message, wParam, lParam);
    }
    try
    {
        return window->handleMessage(message, wParam, lParam);
    }
    catch (...)
    {
        reportFailure();
        return DefWindowProcW(handle, message, wParam, lParam);
    }
}

} // namespace Console
