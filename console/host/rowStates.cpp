#include "rowStates.h"

#include "ViewState.h"

namespace Console
{

namespace
{

constexpr UINT special = LVIS_SELECTED | LVIS_FOCUSED;

UINT statesOf(const ResultPane& pane, const Row& row)
{
    return row.state | (row.selected ? LVIS_SELECTED : 0U) | (row.id == pane.focus ? LVIS_FOCUSED : 0U);
}

int firstFrom(const std::set<int>& places, int from)
{
    const auto found = places.lower_bound(from);
    return found == places.end() ? -1 : *found;
}

} // namespace

UINT rowState(const ViewState& view, int place)
{
    const ResultPane& pane = view.pane;
    if (pane.isVirtual())
    {
        return (pane.virtualSelection.contains(place) ? LVIS_SELECTED : 0U) |
               (place == pane.virtualFocus ? LVIS_FOCUSED : 0U);
    }
    const Row* const row = pane.rows.at(place);
    return row == nullptr ? 0 : statesOf(pane, *row);
}

void setRowState(ViewState& view, Row& row, UINT add, UINT remove)
{
    ResultPane& pane = view.pane;
    const UINT before = statesOf(pane, row);
    const UINT after = (before & ~remove) | add;
    row.state = after & ~special;
    const bool selected = (after & LVIS_SELECTED) != 0;
    if (selected && !row.selected && !pane.multiSelect())
    {
        for (const int place : view.selection.selectedRows())
        {
            ResultRows::select(*pane.rows.at(place), false);
        }
    }
    ResultRows::select(row, selected);
    if ((after & LVIS_FOCUSED) != 0)
    {
        pane.focus = row.id;
    }
    else if (pane.focus == row.id)
    {
        pane.focus = 0;
    }
    if (((before ^ after) & special) != 0)
    {
        view.listener().selectionChanged();
    }
}

HRESULT setVirtualState(ViewState& view, int place, UINT add, UINT remove)
{
    ResultPane& pane = view.pane;
    if (place < 0 || place >= pane.virtualCount)
    {
        return E_INVALIDARG;
    }
    const UINT after = (rowState(view, place) & ~remove) | add;
    if ((after & LVIS_SELECTED) == 0)
    {
        pane.virtualSelection.erase(place);
    }
    else
    {
        if (!pane.multiSelect())
        {
            pane.virtualSelection.clear();
        }
        pane.virtualSelection.insert(place);
    }
    if ((after & LVIS_FOCUSED) != 0)
    {
        pane.virtualFocus = place;
    }
    else if (pane.virtualFocus == place)
    {
        pane.virtualFocus = -1;
    }
    view.listener().selectionChanged();
    return S_OK;
}

int nextRowWithState(const ViewState& view, int from, UINT state)
{
    const ResultPane& pane = view.pane;
    const bool selected = (state & LVIS_SELECTED) != 0;
    if (from >= pane.rowCount())
    {
        return -1;
    }
    if (state == 0)
    {
        return from;
    }
    const auto firstSelected = [&](int place)
    { return pane.isVirtual() ? firstFrom(pane.virtualSelection, place) : pane.rows.nextSelected(place); };
    for (int place = selected ? firstSelected(from) : from; place >= 0 && place < pane.rowCount();
         place = selected ? firstSelected(place + 1) : place + 1)
    {
        if ((rowState(view, place) & state) == state)
        {
            return place;
        }
    }
    return -1;
}

} // namespace Console
