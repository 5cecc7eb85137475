#include "tmgmt/snapin/MenuResource.h"

#include "platform/handles.h"

#include <array>
#include <string>

#include "tmgmt/snapin/guard.h"
#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{
namespace
{

struct InsertionPoint
{
    LONG allowed;
    LONG id;
};

constexpr std::array<InsertionPoint, 4> insertionPoints{{
    {CCM_INSERTIONALLOWED_TOP, static_cast<LONG>(CCM_INSERTIONPOINTID_PRIMARY_TOP)},
    {CCM_INSERTIONALLOWED_NEW, static_cast<LONG>(CCM_INSERTIONPOINTID_PRIMARY_NEW)},
    {CCM_INSERTIONALLOWED_TASK, static_cast<LONG>(CCM_INSERTIONPOINTID_PRIMARY_TASK)},
    {CCM_INSERTIONALLOWED_VIEW, static_cast<LONG>(CCM_INSERTIONPOINTID_PRIMARY_VIEW)},
}};

void addEntry(HMENU popup, UINT position, IContextMenuCallback& target, LONG insertionPoint)
{
    std::array<wchar_t, 256> text{};
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STRING;
    info.dwTypeData = text.data();
    info.cch = static_cast<UINT>(text.size());
    if (!GetMenuItemInfoW(popup, position, TRUE, &info))
    {
        throw ComError(HRESULT_FROM_WIN32(GetLastError()));
    }
    if (info.fType != MFT_STRING)
    {
        return;
    }
    // Some consoles do not take a null pointer for "no status bar text".
    std::wstring statusBarText = loadText(info.wID);
    CONTEXTMENUITEM entry{};
    entry.strName = text.data();
    entry.strStatusBarText = statusBarText.data();
    entry.lCommandID = static_cast<LONG>(info.wID);
    entry.lInsertionPointID = insertionPoint;
    throwIfFailed(target.AddItem(&entry));
}

} // namespace

void addMenuResource(UINT menu, IContextMenuCallback& target, LONG allowed)
{
    const platform::Menu loaded(LoadMenuW(moduleInstance(), MAKEINTRESOURCEW(menu)));
    if (!loaded)
    {
        throw ComError(HRESULT_FROM_WIN32(GetLastError()));
    }
    for (std::size_t i = 0; i < insertionPoints.size(); ++i)
    {
        const HMENU popup = GetSubMenu(loaded.get(), static_cast<int>(i));
        if (!popup || !(allowed & insertionPoints[i].allowed))
        {
            continue;
        }
        const int count = GetMenuItemCount(popup);
        for (int position = 0; position < count; ++position)
        {
            addEntry(popup, static_cast<UINT>(position), target, insertionPoints[i].id);
        }
    }
}

} // namespace TMgmt
