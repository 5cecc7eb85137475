#include "popupMenu.h"

#include "platform/handles.h"

namespace Console
{

namespace
{

platform::Menu popupOf(const std::vector<MenuItem>& items)
{
    platform::Menu menu(CreatePopupMenu());
    for (const MenuItem& item : items)
    {
        UINT flags = (item.enabled ? MF_ENABLED : MF_GRAYED) | (item.checked ? MF_CHECKED : MF_UNCHECKED);
        UINT_PTR command = item.command;
        if (item.kind == MenuItem::Kind::separator)
        {
            flags = MF_SEPARATOR;
        }
        else if (item.kind == MenuItem::Kind::submenu)
        {
            flags |= MF_POPUP;
            command = reinterpret_cast<UINT_PTR>(popupOf(item.children).release()); // goes with the menu
        }
        AppendMenuW(menu.get(), flags, command, item.text.c_str());
        if (item.isDefault)
        {
            SetMenuDefaultItem(menu.get(), static_cast<UINT>(GetMenuItemCount(menu.get()) - 1), TRUE);
        }
    }
    return menu;
}

} // namespace

unsigned trackPopupMenu(const std::vector<MenuItem>& items, HWND owner, int x, int y)
{
    const platform::Menu menu = popupOf(items);
    return static_cast<unsigned>(
        TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON | TPM_NONOTIFY, x, y, 0, owner, nullptr));
}

} // namespace Console
