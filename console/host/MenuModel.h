#pragma once

#include "console/host/ContextMenu.h"
#include "platform/mmc.h"

#include <deque>
#include <map>
#include <string>
#include <vector>

namespace Console
{

// The items that snap-ins add to one menu, before they are put in order. Each caller's submenus are its own.
class MenuModel
{
  public:
    // What a command number of the finished menu stands for.
    struct Command
    {
        unsigned caller = 0; // as given to add; 0: one of the console's own
        long id = 0;         // the caller's number, or a verb
    };

    // IContextMenuCallback::AddItem for a caller (counted from 1) that may fill the sections in allowed
    // (CCM_INSERTIONALLOWED_…). The text of the item is copied.
    HRESULT add(unsigned caller, long allowed, const CONTEXTMENUITEM& item);
    // One of the console's own commands, last in the menu.
    void addVerb(MMC_CONSOLE_VERB verb, const wchar_t* text, bool enabled, bool isDefault);

    // The menu as ContextMenu::items describes it.
    std::vector<MenuItem> build() const;
    // Null for a number that build did not give out.
    const Command* find(unsigned command) const;

  private:
    struct Group;
    struct Entry
    {
        MenuItem item;
        Group* children = nullptr;
    };
    struct Group
    {
        std::deque<Entry> entries;
    };
    // Where a caller may insert: sections have caller 0.
    using Point = std::pair<unsigned, long>;

    Group* groupFor(unsigned caller, long allowed, long insertionPoint);
    static std::vector<MenuItem> itemsOf(const Group& group);
    unsigned number(unsigned caller, long id);

    std::deque<Group> m_submenus;
    std::map<Point, Group*> m_points;
    Group m_top;
    Group m_view;
    Group m_new;
    Group m_task;
    Group m_verbs;
    std::vector<Command> m_commands;
};

} // namespace Console
