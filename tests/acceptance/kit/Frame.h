#pragma once

#include <windows.h>

namespace Acceptance
{

// The console's main window: owns the dialogs that the plug-in opens for the active window.
class Frame
{
  public:
    Frame();
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;
    ~Frame();

    HWND handle() const { return m_window; }
    // As a click into it does.
    void activate() const;

  private:
    HWND m_window;
};

} // namespace Acceptance
