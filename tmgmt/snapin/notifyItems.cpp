#include "tmgmt/snapin/notifyItems.h"

#include "tmgmt/snapin/ItemAccess.h"

namespace TMgmt
{

bool isDispatched(MMC_NOTIFY_TYPE event) noexcept
{
    switch (event)
    {
    case MMCN_SHOW:
    case MMCN_EXPAND:
    case MMCN_ADD_IMAGES:
    case MMCN_DBLCLICK:
    case MMCN_SELECT:
    case MMCN_DELETE:
    case MMCN_VIEW_CHANGE:
    case MMCN_REFRESH:
    case MMCN_BTN_CLICK:
        return true;
    default:
        return false;
    }
}

HRESULT notifyItems(const Selection& selection, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param, Console& console)
{
    HRESULT result = S_OK;
    if (selection.items.size() > 1)
    {
        console.holdRefreshes();
    }
    try
    {
        for (const auto& item : selection.items)
        {
            const HRESULT answer = item->Notify(event, arg, param, console, selection.type);
            if (!FAILED(result))
            {
                result = answer;
            }
        }
    }
    catch (...)
    {
        // What happened to the nodes before is shown all the same.
        console.releaseRefreshes();
        throw;
    }
    console.releaseRefreshes();
    return result;
}

HRESULT compareObjects(IDataObject* a, IDataObject* b)
{
    return selectionOf(a).items == selectionOf(b).items ? S_OK : S_FALSE;
}

HRESULT addMenuItems(IDataObject* object, IContextMenuCallback* menu, const LONG* allowed)
{
    if (!menu || !allowed)
    {
        return E_POINTER;
    }
    const Selection selection = selectionOf(object);
    return selection.items.size() == 1 ? selection.items.front()->AddMenuItems(*menu, *allowed, selection.type) : S_OK;
}

} // namespace TMgmt
