#include "MenuPresenter.h"

#include "platform/handles.h"

namespace Console
{

namespace
{

std::wstring resourceString(UINT number)
{
    // With length 0 LoadString gives a pointer to the resource itself, and the text's length.
    const wchar_t* text = nullptr;
    const int length = LoadStringW(GetModuleHandleW(nullptr), number, reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 ? std::wstring(text, static_cast<std::size_t>(length)) : std::wstring();
}

} // namespace

void fillMenu(HMENU menu, const std::vector<MenuItem>& items, unsigned firstNumber)
{
    for (const MenuItem& item : items)
    {
        MENUITEMINFOW entry{};
        entry.cbSize = sizeof entry;
        entry.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_DATA;
        entry.dwItemData = reinterpret_cast<ULONG_PTR>(&item);
        if (item.kind == MenuItem::Kind::separator)
        {
            entry.fType = MFT_SEPARATOR;
        }
        else
        {
            entry.fMask |= MIIM_STRING;
            entry.dwTypeData = const_cast<wchar_t*>(item.text.c_str());
            entry.fState =
                static_cast<UINT>((item.enabled ? MFS_ENABLED : MFS_GRAYED) |
                                  (item.checked ? MFS_CHECKED : MFS_UNCHECKED) | (item.isDefault ? MFS_DEFAULT : 0));
        }
        if (item.kind == MenuItem::Kind::command)
        {
            entry.wID = firstNumber + item.command;
        }
        if (item.kind == MenuItem::Kind::submenu)
        {
            entry.fMask |= MIIM_SUBMENU;
            // The outer menu destroys it.
            entry.hSubMenu = CreatePopupMenu();
            fillMenu(entry.hSubMenu, item.children, firstNumber);
        }
        InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &entry);
    }
}

void emptyMenu(HMENU menu)
{
    while (DeleteMenu(menu, 0, MF_BYPOSITION))
    {
    }
}

unsigned trackMenu(HWND owner, const std::vector<MenuItem>& items, POINT screen)
{
    if (items.empty())
    {
        return 0;
    }
    const platform::Menu menu(CreatePopupMenu());
    fillMenu(menu.get(), items, 0);
    return static_cast<unsigned>(TrackPopupMenuEx(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON | TPM_LEFTALIGN, screen.x,
                                                  screen.y, owner, nullptr));
}

std::wstring menuHelp(WPARAM wParam, LPARAM lParam)
{
    const UINT number = LOWORD(wParam);
    const UINT flags = HIWORD(wParam);
    const auto menu = reinterpret_cast<HMENU>(lParam);
    if (menu == nullptr || (flags & (MF_SYSMENU | MF_SEPARATOR)) != 0)
    {
        return {};
    }
    MENUITEMINFOW entry{};
    entry.cbSize = sizeof entry;
    entry.fMask = MIIM_DATA;
    // Submenus are named by their place, commands by their number.
    const BOOL byPlace = (flags & MF_POPUP) != 0;
    if (GetMenuItemInfoW(menu, number, byPlace, &entry) && entry.dwItemData != 0)
    {
        return reinterpret_cast<const MenuItem*>(entry.dwItemData)->statusText;
    }
    return byPlace ? std::wstring() : resourceString(number);
}

} // namespace Console
