#pragma once

#include "console/host/View.h"

#include <windows.h>

#include <string>

namespace Console
{

// The line at the bottom: a text, a text or a progress, a text.
class StatusBar
{
  public:
    explicit StatusBar(HWND parent);

    HWND control() const { return m_control; }
    int height() const;
    void setAppearance(HFONT font, int dpi);
    // Places itself at the bottom of its parent.
    void arrange();

    // The snap-in's texts; where it says nothing at the left, the number of rows.
    void show(const View& view);
    // One text over the whole width, for as long as a menu is open.
    void showHelp(const std::wstring& text);
    void endHelp();

  private:
    HWND m_control;
    HWND m_progress;
    int m_dpi = 96;
};

} // namespace Console
