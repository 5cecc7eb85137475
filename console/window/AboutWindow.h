#pragma once

#include "platform/handles.h"

#include <string>

namespace Console
{

// The box that says what a snap-in, or this program, is.
class AboutWindow
{
  public:
    struct Content
    {
        std::wstring name;
        std::wstring version;
        std::wstring provider;
        std::wstring description;
        HICON icon = nullptr; // lent
    };

    explicit AboutWindow(Content content);

    // Returns when the user closed it.
    void show(HWND owner);

  private:
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    void fill(HWND dialog) const;

    Content m_content;
};

} // namespace Console
