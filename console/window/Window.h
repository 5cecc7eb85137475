#pragma once

#include <windows.h>

namespace Console
{

// A window with a class of its own. Whatever its procedure throws is reported once and goes no further.
class Window
{
  public:
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    HWND handle() const { return m_window; }

  protected:
    struct Creation
    {
        const wchar_t* className = nullptr;
        const wchar_t* title = L"";
        DWORD style = 0;
        DWORD extendedStyle = 0;
        RECT place{};
        HWND parent = nullptr;
        HMENU menu = nullptr;
        HICON icon = nullptr;
        HICON smallIcon = nullptr;
        HCURSOR cursor = nullptr; // null: the arrow
        HBRUSH background = nullptr;
    };

    // Registers the class when it is new. Throws std::system_error. Messages that come while the window is created
    // are not seen by derived classes.
    explicit Window(const Creation& creation);
    virtual ~Window();
    // Derived classes call it in their destructors, before the members that their messages reach into go.
    void destroy();

    virtual LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam);

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    HWND m_window = nullptr;
};

} // namespace Console
