#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

namespace Console
{

struct ToolbarButton
{
    int command = 0; // unique within its bar
    int image = -1;  // index into Toolbar::images, -1 for none
    std::wstring text;
    std::wstring tooltip;
    bool separator = false;
    bool checkable = false;
    bool enabled = true;
    bool checked = false;
    bool hidden = false;
    bool indeterminate = false;
    bool pressed = false;
};

// One bar that a snap-in attached to a view. Valid until the view's next toolbarsChanged.
struct Toolbar
{
    unsigned id = 0;             // names the bar for View::pressToolbarButton
    HIMAGELIST images = nullptr; // 16 by 16; lent
    std::vector<ToolbarButton> buttons;
};

// One menu button that a snap-in attached to a view. When it is pressed, the snap-in shows a menu of its own.
struct MenuButton
{
    unsigned id = 0; // names the group for View::pressMenuButton
    int command = 0;
    std::wstring text;
    std::wstring tooltip;
    bool enabled = true;
    bool hidden = false;
    bool pressed = false;
};

} // namespace Console
