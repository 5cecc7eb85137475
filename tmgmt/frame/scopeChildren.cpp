#include "tmgmt/frame/scopeChildren.h"

#include "tmgmt/snapin/guard.h"

namespace TMgmt
{

HRESULT expandChildren(CSnapInItem& node, std::span<const Core::SmartPtr<CSnapInItem>> children, bool expanding,
                       HSCOPEITEM handle, Console& console)
{
    node.GetScopeData().ID = handle;
    const auto nameSpace = console.nameSpace();

    HSCOPEITEM first = 0;
    MMC_COOKIE cookie = 0;
    if (SUCCEEDED(nameSpace->GetChildItem(handle, &first, &cookie)) && first != 0)
    {
        throwIfFailed(nameSpace->DeleteItem(handle, FALSE));
    }
    if (!expanding)
    {
        return S_OK;
    }
    for (const auto& child : children)
    {
        child->GetScopeData().relativeID = handle;
    }
    for (const auto& child : children)
    {
        throwIfFailed(nameSpace->InsertItem(&child->GetScopeData()));
    }
    return S_OK;
}

HRESULT replaceChildren(CSnapInItem& node, std::span<const Core::SmartPtr<CSnapInItem>> children, Console& console)
{
    SCOPEDATAITEM record{};
    record.mask = SDI_STATE;
    record.ID = node.GetScopeData().ID;
    throwIfFailed(console.nameSpace()->GetItem(&record));
    if (record.nState & MMC_SCOPE_ITEM_STATE_EXPANDEDONCE)
    {
        expandChildren(node, children, true, record.ID, console);
    }
    console.updateScopeItem(node);
    return S_OK;
}

} // namespace TMgmt
