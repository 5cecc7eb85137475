#pragma once

#include <windows.h>

namespace Console
{

// Shows the hourglass while it lives. Windows that open meanwhile set their own cursor.
class WaitCursor
{
  public:
    WaitCursor() : m_previous(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { SetCursor(m_previous); }

  private:
    HCURSOR m_previous;
};

} // namespace Console
