#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Console
{

class MenuSession;

struct MenuItem
{
    enum class Kind
    {
        command,
        submenu,
        separator,
    };
    Kind kind = Kind::command;
    std::wstring text; // with its mnemonic's '&'
    std::wstring statusText;
    bool enabled = true;
    bool checked = false;
    bool isDefault = false; // drawn bold
    // Names a command for ContextMenu::run. From 1 up, unique in the whole menu, not the snap-in's own number.
    // 0 for submenus and separators.
    unsigned command = 0;
    // The number that the snap-in gave the command; 0 for the console's own commands, submenus and separators.
    long snapInCommand = 0;
    std::vector<MenuItem> children;
};

// A context menu while it is open. It is built when it is made (the snap-ins are asked for their items) and keeps
// what it was opened on selected until it is destroyed. Destroy it before doing anything else with the view.
class ContextMenu
{
  public:
    explicit ContextMenu(std::unique_ptr<MenuSession> session);
    ContextMenu(ContextMenu&&) noexcept;
    ContextMenu& operator=(ContextMenu&&) noexcept;
    ~ContextMenu();

    // Top items, "View", "New", "All Tasks" (submenus, left out when empty), then the standard commands (Cut, Copy,
    // Paste, Delete, Rename, Refresh, Print, Properties) that the item's verb states show. No separator at either
    // end and never two in a row. Empty when there is nothing to show.
    const std::vector<MenuItem>& items() const;

    // Runs the command, at most once per menu. Numbers that items() does not hold are ignored. Whatever the command
    // fails with is the snap-in's to report. The view may be on another node afterwards.
    void run(unsigned command);

  private:
    std::unique_ptr<MenuSession> m_session;
};

} // namespace Console
