#pragma once

#include "console/host/ContextMenu.h"

#include <windows.h>

#include <optional>

namespace Console
{

class ViewController;

// The Action menu in the menu bar: the context menu of what commands act on, built each time that it opens.
class ActionMenu
{
  public:
    // The menu opens. Items are numbered from ID_ACTION_FIRST. The controller and the menu are lent until release().
    void fill(ViewController& controller, HMENU menu);
    // The user chose an item, by its number less ID_ACTION_FIRST. Also closes.
    void run(unsigned command);
    // Lets go of the context menu. Harmless when nothing is open.
    void release();
    bool isOpen() const { return m_items.has_value(); }

  private:
    ViewController* m_controller = nullptr;
    HMENU m_menu = nullptr;
    std::optional<ContextMenu> m_items;
};

} // namespace Console
