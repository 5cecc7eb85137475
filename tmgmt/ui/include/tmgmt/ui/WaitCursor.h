#pragma once

#include <windows.h>

namespace TMgmt
{

// Shows the wait cursor while it lives and gives the former cursor back on every way out.
class WaitCursor
{
  public:
    WaitCursor() noexcept;
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor();

  private:
    HCURSOR m_former;
};

} // namespace TMgmt
