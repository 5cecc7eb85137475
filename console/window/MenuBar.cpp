#include "MenuBar.h"

#include "resource.h"

namespace Console
{

namespace
{

// An ampersand of the text is none that marks a mnemonic.
std::wstring forMenu(const std::wstring& text)
{
    std::wstring result;
    for (const wchar_t c : text)
    {
        result.append(c == L'&' ? 2 : 1, c);
    }
    return result;
}

} // namespace

void updateMenu(HMENU menu, const View& view, const WindowPlacement& placement, const std::wstring& snapIn)
{
    // A list cannot filter, which shows as details.
    const bool filtered = view.viewMode() == MMCLV_VIEWSTYLE_FILTERED;
    const int mode = filtered ? static_cast<int>(MMCLV_VIEWSTYLE_REPORT) : view.viewMode();
    // The commands stand in the order of the view modes' numbers.
    CheckMenuRadioItem(menu, ID_VIEW_LARGE_ICONS, ID_VIEW_LIST, static_cast<UINT>(ID_VIEW_LARGE_ICONS + mode),
                       MF_BYCOMMAND);
    for (UINT command = ID_VIEW_LARGE_ICONS; command <= ID_VIEW_LIST; ++command)
    {
        EnableMenuItem(menu, command, view.pane() == View::Pane::list ? MF_ENABLED : MF_GRAYED);
    }
    EnableMenuItem(menu, ID_EDIT_COPY, view.selectedNode() != NodeId::none ? MF_ENABLED : MF_GRAYED);
    EnableMenuItem(menu, ID_EDIT_SELECT_ALL,
                   view.pane() == View::Pane::list && view.multiSelect() ? MF_ENABLED : MF_GRAYED);
    CheckMenuItem(menu, ID_VIEW_TOOLBAR, placement.toolbar ? MF_CHECKED : MF_UNCHECKED);
    CheckMenuItem(menu, ID_VIEW_STATUS_BAR, placement.statusBar ? MF_CHECKED : MF_UNCHECKED);
    if (!snapIn.empty())
    {
        const std::wstring about = L"About &" + forMenu(snapIn) + L"...";
        ModifyMenuW(menu, ID_HELP_ABOUT_SNAPIN, MF_BYCOMMAND | MF_STRING, ID_HELP_ABOUT_SNAPIN, about.c_str());
    }
}

} // namespace Console
