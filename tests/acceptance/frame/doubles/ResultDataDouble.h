#pragma once

#include "frame/doubles/ComDouble.h"

#include <functional>
#include <vector>

namespace Acceptance
{

// A result pane that remembers its rows and what was done to it.
class ResultDataDouble final : public ComDouble<IResultData>
{
  public:
    HRESULT STDMETHODCALLTYPE InsertItem(RESULTDATAITEM* item) override
    {
        inserted.push_back(*item);
        if (FAILED(insertAnswer))
        {
            return insertAnswer;
        }
        item->itemID = static_cast<HRESULTITEM>(0x7200000000 + static_cast<LONG_PTR>(inserted.size()));
        rows.push_back(*item);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DeleteAllRsltItems() override
    {
        ++clears;
        rows.clear();
        if (onClear)
        {
            onClear();
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ModifyViewStyle(MMC_RESULT_VIEW_STYLE add, MMC_RESULT_VIEW_STYLE remove) override
    {
        styles.emplace_back(add, remove);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE UpdateItem(HRESULTITEM item) override
    {
        updated.push_back(item);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetNextItem(RESULTDATAITEM* item) override
    {
        const auto next = static_cast<std::size_t>(item->nIndex + 1);
        if (next >= selected.size())
        {
            item->nIndex = -1;
            return S_FALSE;
        }
        item->nIndex = static_cast<int>(next);
        item->lParam = selected[next];
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DeleteItem(HRESULTITEM, int) override { return uncalled("DeleteItem"); }
    HRESULT STDMETHODCALLTYPE FindItemByLParam(LPARAM, HRESULTITEM*) override { return uncalled("FindItemByLParam"); }
    HRESULT STDMETHODCALLTYPE SetItem(RESULTDATAITEM*) override { return uncalled("SetItem"); }
    HRESULT STDMETHODCALLTYPE GetItem(RESULTDATAITEM*) override { return uncalled("GetItem"); }
    HRESULT STDMETHODCALLTYPE ModifyItemState(int index, HRESULTITEM item, UINT add, UINT remove) override
    {
        states.push_back({index, item, add, remove});
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetViewMode(long) override { return uncalled("SetViewMode"); }
    HRESULT STDMETHODCALLTYPE GetViewMode(long*) override { return uncalled("GetViewMode"); }
    HRESULT STDMETHODCALLTYPE Sort(int, DWORD, LPARAM) override { return uncalled("Sort"); }
    HRESULT STDMETHODCALLTYPE SetDescBarText(LPOLESTR) override { return uncalled("SetDescBarText"); }
    HRESULT STDMETHODCALLTYPE SetItemCount(int, DWORD) override { return uncalled("SetItemCount"); }

    struct State
    {
        int index;
        HRESULTITEM item;
        UINT add;
        UINT remove;
        bool operator==(const State&) const = default;
    };

    // Every record as it was given.
    std::vector<RESULTDATAITEM> inserted;
    // What is in the list now, with the ids given.
    std::vector<RESULTDATAITEM> rows;
    std::vector<HRESULTITEM> updated;
    std::vector<std::pair<MMC_RESULT_VIEW_STYLE, MMC_RESULT_VIEW_STYLE>> styles; // added, removed
    std::vector<State> states;
    int clears = 0;
    std::function<void()> onClear;
    // The cookies of the selected rows, in the list's order.
    std::vector<MMC_COOKIE> selected;
    HRESULT insertAnswer = S_OK;
};

} // namespace Acceptance
