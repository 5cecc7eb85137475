#pragma once

#include "Window.h"

#include <functional>

namespace Console
{

// The bar between two panes, which the mouse moves sideways.
class Splitter final : public Window
{
  public:
    // moved: told the bar's new left edge, in the parent's pixels, while it is dragged.
    Splitter(HWND parent, std::function<void(int)> moved);
    ~Splitter() override;

  private:
    LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    std::function<void(int)> m_moved;
    int m_grip = 0; // where in the bar the mouse holds it
};

} // namespace Console
