#include "MenuModel.h"

#include <algorithm>

namespace Console
{

namespace
{

void trimSeparators(std::vector<MenuItem>& items)
{
    const auto separator = [](const MenuItem& item) { return item.kind == MenuItem::Kind::separator; };
    const auto twice = [&](const MenuItem& left, const MenuItem& right) { return separator(left) && separator(right); };
    items.erase(std::unique(items.begin(), items.end(), twice), items.end());
    if (!items.empty() && separator(items.front()))
    {
        items.erase(items.begin());
    }
    if (!items.empty() && separator(items.back()))
    {
        items.pop_back();
    }
}

MenuItem separatorItem()
{
    MenuItem item;
    item.kind = MenuItem::Kind::separator;
    return item;
}

} // namespace

MenuModel::Group* MenuModel::groupFor(unsigned caller, long allowed, long insertionPoint)
{
    // Sections are the same for all callers; the constants have their top bit set.
    switch (static_cast<unsigned long>(insertionPoint))
    {
    case CCM_INSERTIONPOINTID_ROOT_MENU:
    case CCM_INSERTIONPOINTID_PRIMARY_TOP:
        return (allowed & CCM_INSERTIONALLOWED_TOP) != 0 ? &m_top : nullptr;
    case CCM_INSERTIONPOINTID_PRIMARY_NEW:
    case CCM_INSERTIONPOINTID_3RDPARTY_NEW:
        return (allowed & CCM_INSERTIONALLOWED_NEW) != 0 ? &m_new : nullptr;
    case CCM_INSERTIONPOINTID_PRIMARY_TASK:
    case CCM_INSERTIONPOINTID_3RDPARTY_TASK:
        return (allowed & CCM_INSERTIONALLOWED_TASK) != 0 ? &m_task : nullptr;
    case CCM_INSERTIONPOINTID_PRIMARY_VIEW:
        return (allowed & CCM_INSERTIONALLOWED_VIEW) != 0 ? &m_view : nullptr;
    default:
        break;
    }
    const auto found = m_points.find({caller, insertionPoint});
    return found == m_points.end() ? nullptr : found->second;
}

unsigned MenuModel::number(unsigned caller, long id)
{
    m_commands.push_back({caller, id});
    return static_cast<unsigned>(m_commands.size());
}

HRESULT MenuModel::add(unsigned caller, long allowed, const CONTEXTMENUITEM& item)
{
    Group* const group = groupFor(caller, allowed, item.lInsertionPointID);
    const auto flags = static_cast<unsigned long>(item.fFlags);
    const auto special = static_cast<unsigned long>(item.fSpecialFlags);
    if (group == nullptr || (flags & (MF_OWNERDRAW | MF_BITMAP)) != 0)
    {
        return E_INVALIDARG;
    }
    if ((special & CCM_SPECIAL_SEPARATOR) != 0 || (flags & MF_SEPARATOR) != 0)
    {
        group->entries.push_back({separatorItem()});
        return S_OK;
    }
    if ((special & CCM_SPECIAL_INSERTION_POINT) != 0)
    {
        // A place for later items: they are added to the same menu, where it is now.
        return m_points.emplace(Point{caller, item.lCommandID}, group).second ? S_OK : E_INVALIDARG;
    }
    const bool submenu = (special & CCM_SPECIAL_SUBMENU) != 0;
    if (item.strName == nullptr || submenu != ((flags & MF_POPUP) != 0))
    {
        return E_INVALIDARG;
    }
    if ((special & CCM_SPECIAL_TESTONLY) != 0)
    {
        return S_OK;
    }
    MenuItem made;
    made.text = item.strName;
    made.statusText = item.strStatusBarText == nullptr ? L"" : item.strStatusBarText;
    made.enabled = (flags & (MF_GRAYED | MF_DISABLED)) == 0;
    made.checked = (flags & MF_CHECKED) != 0;
    made.isDefault = (special & CCM_SPECIAL_DEFAULT_ITEM) != 0;
    if (submenu)
    {
        Group& children = m_submenus.emplace_back();
        if (!m_points.emplace(Point{caller, item.lCommandID}, &children).second)
        {
            m_submenus.pop_back();
            return E_INVALIDARG;
        }
        made.kind = MenuItem::Kind::submenu;
        group->entries.push_back({std::move(made), &children});
        return S_OK;
    }
    const bool reserved = (static_cast<unsigned long>(item.lCommandID) & CCM_COMMANDID_MASK_RESERVED) != 0;
    const bool taken =
        std::any_of(m_commands.begin(), m_commands.end(),
                    [&](const Command& present) { return present.caller == caller && present.id == item.lCommandID; });
    if (reserved || taken)
    {
        return E_INVALIDARG;
    }
    made.command = number(caller, item.lCommandID);
    made.snapInCommand = item.lCommandID;
    group->entries.push_back({std::move(made)});
    return S_OK;
}

void MenuModel::addVerb(MMC_CONSOLE_VERB verb, const wchar_t* text, bool enabled, bool isDefault)
{
    MenuItem made;
    made.text = text;
    made.enabled = enabled;
    made.isDefault = isDefault;
    made.command = number(0, verb);
    m_verbs.entries.push_back({std::move(made)});
}

std::vector<MenuItem> MenuModel::itemsOf(const Group& group)
{
    std::vector<MenuItem> items;
    for (const Entry& entry : group.entries)
    {
        items.push_back(entry.item);
        if (entry.children != nullptr)
        {
            items.back().children = itemsOf(*entry.children);
        }
    }
    trimSeparators(items);
    return items;
}

std::vector<MenuItem> MenuModel::build() const
{
    std::vector<MenuItem> items = itemsOf(m_top);
    const auto section = [&](const Group& group, const wchar_t* text)
    {
        std::vector<MenuItem> children = itemsOf(group);
        if (!children.empty())
        {
            MenuItem item;
            item.kind = MenuItem::Kind::submenu;
            item.text = text;
            item.children = std::move(children);
            items.push_back(std::move(item));
        }
    };
    items.push_back(separatorItem());
    section(m_view, L"&View");
    section(m_new, L"&New");
    section(m_task, L"All Tas&ks");
    items.push_back(separatorItem());
    const std::vector<MenuItem> verbs = itemsOf(m_verbs);
    items.insert(items.end(), verbs.begin(), verbs.end());
    trimSeparators(items);
    return items;
}

const MenuModel::Command* MenuModel::find(unsigned command) const
{
    return command == 0 || command > m_commands.size() ? nullptr : &m_commands[command - 1];
}

} // namespace Console
