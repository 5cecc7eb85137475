#pragma once

#include "frame/doubles/ComDouble.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace Acceptance
{

// A tree of two levels below whatever node is expanded: it remembers each call and the children that are in it now.
class NameSpaceDouble final : public ComDouble<IConsoleNameSpace>
{
  public:
    struct Deletion
    {
        HSCOPEITEM item;
        bool itself;

        bool operator==(const Deletion&) const = default;
    };

    HRESULT STDMETHODCALLTYPE InsertItem(SCOPEDATAITEM* item) override
    {
        inserted.push_back(*item);
        if (SUCCEEDED(insertAnswer))
        {
            // Above 4 GiB, so that a handle that is cut to 32 bits shows.
            item->ID = static_cast<HSCOPEITEM>(0x7100000000 + static_cast<LONG_PTR>(inserted.size()));
            children.push_back(*item);
        }
        return insertAnswer;
    }
    HRESULT STDMETHODCALLTYPE DeleteItem(HSCOPEITEM item, long itself) override
    {
        deletions.push_back({item, itself != 0});
        if (onDelete)
        {
            onDelete();
        }
        std::erase_if(children, [item](const SCOPEDATAITEM& child) { return child.relativeID == item; });
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetChildItem(HSCOPEITEM item, HSCOPEITEM* child, MMC_COOKIE* cookie) override
    {
        const auto found = std::ranges::find(children, item, &SCOPEDATAITEM::relativeID);
        const bool any = found != children.end();
        *child = any ? found->ID : 0;
        *cookie = any ? found->lParam : 0;
        return any ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE SetItem(SCOPEDATAITEM*) override { return S_OK; }
    // Every node counts as expanded.
    HRESULT STDMETHODCALLTYPE GetItem(SCOPEDATAITEM* item) override
    {
        item->nState = MMC_SCOPE_ITEM_STATE_EXPANDEDONCE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetNextItem(HSCOPEITEM, HSCOPEITEM*, MMC_COOKIE*) override
    {
        return uncalled("GetNextItem");
    }
    HRESULT STDMETHODCALLTYPE GetParentItem(HSCOPEITEM, HSCOPEITEM*, MMC_COOKIE*) override
    {
        return uncalled("GetParentItem");
    }

    // Every record as it was given.
    std::vector<SCOPEDATAITEM> inserted;
    std::vector<Deletion> deletions;
    // What is in the tree now, with the handles given.
    std::vector<SCOPEDATAITEM> children;
    HRESULT insertAnswer = S_OK;
    // Called when something is deleted, while it is still in the tree.
    std::function<void()> onDelete;
};

} // namespace Acceptance
