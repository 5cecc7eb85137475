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

} // namespace TMgmt
