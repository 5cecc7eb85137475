#include "ResultDataPart.h"

#include "ViewState.h"
#include "rowStates.h"

namespace Console
{

template <class Arguments, class Body>
HRESULT ResultDataPart::onView(const wchar_t* method, Arguments&& arguments, Body&& body)
{
    return m_whole.answer(method, arguments,
                          [&]() -> HRESULT
                          {
                              Component* const component = m_whole.component();
                              if (component == nullptr || component->view().current() != component ||
                                  !component->view().pane.shown)
                              {
                                  return E_UNEXPECTED;
                              }
                              return body(component->view());
                          });
}

Row* ResultDataPart::find(ViewState& view, HRESULTITEM item) const
{
    Row* const row = view.pane.rows.find(item);
    if (row == nullptr)
    {
        m_whole.complain(L"A handle that is none of the view's rows was passed: " +
                         describe(static_cast<unsigned long long>(item)) + L".");
    }
    return row;
}

HRESULT ResultDataPart::insert(ViewState& view, RESULTDATAITEM& item)
{
    ResultPane& pane = view.pane;
    if (pane.isVirtual() || pane.kind != View::Pane::list)
    {
        m_whole.complain(L"A row was inserted into a view that takes none.");
        return E_UNEXPECTED;
    }
    if (item.nCol != 0 || item.bScopeItem != FALSE)
    {
        m_whole.complain(L"A row was inserted with a column number or as a tree item.");
        return E_INVALIDARG;
    }
    const bool ownText = (item.mask & RDI_STR) != 0 && item.str != platform::askForText();
    if (ownText && m_whole.objects(L"A row was inserted with a text in place of the text callback."))
    {
        return E_INVALIDARG;
    }
    const bool placed = (item.mask & RDI_INDEX) != 0 && item.nIndex >= 0 && item.nIndex < pane.rows.count();
    Row& row =
        pane.rows.insert(placed ? item.nIndex : pane.rows.count(), (item.mask & RDI_PARAM) != 0 ? item.lParam : 0);
    row.hasImage = (item.mask & RDI_IMAGE) != 0;
    row.image = row.hasImage ? item.nImage : 0;
    row.indent = (item.mask & RDI_INDENT) != 0 ? item.iIndent : 0;
    if (ownText && item.str != nullptr)
    {
        row.text = std::make_unique<std::wstring>(item.str);
    }
    if ((item.mask & RDI_STATE) != 0)
    {
        setRowState(view, row, item.nState, ~0U);
    }
    item.itemID = row.id;
    view.listener().rowsChanged();
    return S_OK;
}

HRESULT ResultDataPart::InsertItem(LPRESULTDATAITEM item)
{
    return onView(
        L"IResultData::InsertItem",
        [&] { return item == nullptr ? std::wstring(L"null") : listOf(L"mask", item->mask, L"lParam", item->lParam); },
        [&](ViewState& view) { return item == nullptr ? E_POINTER : insert(view, *item); });
}

HRESULT ResultDataPart::erase(ViewState& view, HRESULTITEM item)
{
    ResultPane& pane = view.pane;
    if (pane.isVirtual())
    {
        if (item < 0 || item >= pane.virtualCount)
        {
            return E_INVALIDARG;
        }
        --pane.virtualCount;
        pane.virtualSelection.clear(); // its places are not the same rows any more
        view.selection.forgetRows();
        view.listener().rowsChanged();
        return S_OK;
    }
    Row* const row = find(view, item);
    if (row == nullptr || row->node != NodeId::none)
    {
        return E_INVALIDARG; // a tree item's row goes with the item
    }
    view.selection.forgetRow(row->id, row->selected);
    pane.rows.erase(*row);
    view.listener().rowsChanged();
    return S_OK;
}

HRESULT ResultDataPart::DeleteItem(HRESULTITEM item, int column)
{
    return onView(
        L"IResultData::DeleteItem",
        [&] { return listOf(L"itemID", static_cast<unsigned long long>(item), L"nCol", column); },
        [&](ViewState& view) { return column != 0 ? E_INVALIDARG : erase(view, item); });
}

HRESULT ResultDataPart::FindItemByLParam(LPARAM cookie, HRESULTITEM* item)
{
    return onView(
        L"IResultData::FindItemByLParam", [&] { return listOf(L"lParam", cookie); },
        [&](ViewState& view)
        {
            if (item == nullptr)
            {
                return E_POINTER;
            }
            const Row* const row = view.pane.rows.findCookie(cookie);
            *item = row == nullptr ? 0 : row->id;
            return row == nullptr ? S_FALSE : S_OK;
        });
}

HRESULT ResultDataPart::DeleteAllRsltItems()
{
    return onView(L"IResultData::DeleteAllRsltItems", noArguments,
                  [&](ViewState& view)
                  {
                      const Target target = view.selection.target();
                      if (view.pane.isVirtual())
                      {
                          view.pane.virtualCount = 0;
                          view.pane.virtualSelection.clear();
                      }
                      else
                      {
                          view.pane.rows.eraseOwn();
                      }
                      // A selected row of a tree's node stays, and stays selected.
                      if (target.kind != Target::Kind::node)
                      {
                          view.selection.forgetRows();
                      }
                      view.listener().rowsChanged();
                      return S_OK;
                  });
}

HRESULT ResultDataPart::SetItem(LPRESULTDATAITEM item)
{
    return onView(
        L"IResultData::SetItem",
        [&]
        {
            return item == nullptr
                       ? std::wstring(L"null")
                       : listOf(L"mask", item->mask, L"itemID", static_cast<unsigned long long>(item->itemID));
        },
        [&](ViewState& view)
        {
            if (item == nullptr)
            {
                return E_POINTER;
            }
            Row* const row = item->nCol == 0 ? find(view, item->itemID) : nullptr;
            if (row == nullptr)
            {
                return E_INVALIDARG;
            }
            if ((item->mask & RDI_STR) != 0)
            {
                const bool own = item->str != nullptr && item->str != platform::askForText();
                row->text = own ? std::make_unique<std::wstring>(item->str) : nullptr;
            }
            if ((item->mask & RDI_IMAGE) != 0)
            {
                row->image = item->nImage;
                row->hasImage = true;
            }
            if ((item->mask & RDI_PARAM) != 0 && row->node == NodeId::none)
            {
                view.pane.rows.setCookie(*row, item->lParam);
            }
            if ((item->mask & RDI_INDENT) != 0)
            {
                row->indent = item->iIndent;
            }
            if ((item->mask & RDI_STATE) != 0)
            {
                setRowState(view, *row, item->nState, ~0U);
            }
            view.listener().rowChanged(ResultRows::placeOf(*row));
            return S_OK;
        });
}

HRESULT ResultDataPart::GetItem(LPRESULTDATAITEM item)
{
    return onView(
        L"IResultData::GetItem",
        [&]
        {
            return item == nullptr
                       ? std::wstring(L"null")
                       : listOf(L"itemID", static_cast<unsigned long long>(item->itemID), L"nIndex", item->nIndex);
        },
        [&](ViewState& view)
        {
            if (item == nullptr)
            {
                return E_POINTER;
            }
            if (view.pane.isVirtual())
            {
                item->nState = rowState(view, item->nIndex);
                return item->nIndex < 0 || item->nIndex >= view.pane.virtualCount ? E_INVALIDARG : S_OK;
            }
            const Row* const row = item->itemID != 0 ? find(view, item->itemID) : view.pane.rows.at(item->nIndex);
            if (row == nullptr)
            {
                return E_INVALIDARG;
            }
            item->bScopeItem = row->node != NodeId::none;
            item->itemID = row->id;
            item->nIndex = ResultRows::placeOf(*row);
            item->lParam = row->cookie;
            item->nImage = row->image;
            item->iIndent = row->indent;
            item->nState = rowState(view, item->nIndex);
            if ((item->mask & RDI_STR) != 0)
            {
                item->str = row->text != nullptr ? row->text->data() : platform::askForText();
            }
            return S_OK;
        });
}

HRESULT ResultDataPart::next(ViewState& view, RESULTDATAITEM& item) const
{
    const int found = nextRowWithState(view, item.nIndex + 1, (item.mask & RDI_STATE) != 0 ? item.nState : 0);
    item.nIndex = found;
    if (found < 0)
    {
        return S_FALSE;
    }
    const Row* const row = view.pane.rows.at(found);
    item.bScopeItem = row != nullptr && row->node != NodeId::none;
    item.lParam = row == nullptr ? 0 : row->cookie;
    item.itemID = row == nullptr ? found : row->id;
    item.nState = rowState(view, found);
    return S_OK;
}

HRESULT ResultDataPart::GetNextItem(LPRESULTDATAITEM item)
{
    return onView(
        L"IResultData::GetNextItem",
        [&]
        {
            return item == nullptr ? std::wstring(L"null")
                                   : listOf(L"mask", item->mask, L"nIndex", item->nIndex, L"nState", item->nState);
        },
        [&](ViewState& view) {
            return item == nullptr ? E_POINTER : item->nIndex < -1 ? E_INVALIDARG : next(view, *item);
        });
}

HRESULT ResultDataPart::ModifyItemState(int index, HRESULTITEM item, UINT add, UINT remove)
{
    return onView(
        L"IResultData::ModifyItemState",
        [&] {
            return listOf(L"nIndex", index, L"itemID", static_cast<unsigned long long>(item), L"add", add, L"remove",
                          remove);
        },
        [&](ViewState& view)
        {
            if (view.pane.isVirtual())
            {
                return setVirtualState(view, index, add, remove);
            }
            Row* const row = item != 0 ? find(view, item) : view.pane.rows.at(index);
            if (row == nullptr)
            {
                return E_INVALIDARG;
            }
            setRowState(view, *row, add, remove);
            return S_OK;
        });
}

HRESULT ResultDataPart::ModifyViewStyle(MMC_RESULT_VIEW_STYLE add, MMC_RESULT_VIEW_STYLE remove)
{
    return onView(
        L"IResultData::ModifyViewStyle",
        [&] { return listOf(L"add", static_cast<int>(add), L"remove", static_cast<int>(remove)); },
        [&](ViewState& view)
        {
            view.pane.style = (view.pane.style | static_cast<unsigned>(add)) & ~static_cast<unsigned>(remove);
            view.listener().paneChanged();
            return S_OK;
        });
}

HRESULT ResultDataPart::SetViewMode(__LONG32 mode)
{
    return onView(
        L"IResultData::SetViewMode", [&] { return listOf(L"mode", mode); },
        [&](ViewState& view)
        {
            if (mode < MMCLV_VIEWSTYLE_ICON || mode > MMCLV_VIEWSTYLE_FILTERED)
            {
                return E_INVALIDARG;
            }
            view.pane.mode = mode;
            view.listener().paneChanged();
            return S_OK;
        });
}

HRESULT ResultDataPart::GetViewMode(__LONG32* mode)
{
    return onView(L"IResultData::GetViewMode", noArguments,
                  [&](ViewState& view)
                  {
                      if (mode == nullptr)
                      {
                          return E_POINTER;
                      }
                      *mode = view.pane.mode;
                      return S_OK;
                  });
}

HRESULT ResultDataPart::UpdateItem(HRESULTITEM item)
{
    return onView(
        L"IResultData::UpdateItem", [&] { return listOf(L"itemID", static_cast<unsigned long long>(item)); },
        [&](ViewState& view)
        {
            if (view.pane.isVirtual())
            {
                view.listener().rowChanged(static_cast<int>(item));
                return S_OK;
            }
            const Row* const row = find(view, item);
            if (row == nullptr)
            {
                return E_INVALIDARG;
            }
            view.listener().rowChanged(ResultRows::placeOf(*row));
            return S_OK;
        });
}

HRESULT ResultDataPart::Sort(int column, DWORD options, LPARAM user)
{
    return onView(
        L"IResultData::Sort", [&] { return listOf(L"nColumn", column, L"options", options, L"user", user); },
        [&](ViewState& view) { return view.sorter.sort(column, options, user); });
}

HRESULT ResultDataPart::SetDescBarText(LPOLESTR text)
{
    return onView(
        L"IResultData::SetDescBarText", [&] { return listOf(L"text", static_cast<const wchar_t*>(text)); },
        [&](ViewState& view)
        {
            view.pane.description = text == nullptr ? L"" : text;
            view.listener().descriptionChanged();
            return S_OK;
        });
}

HRESULT ResultDataPart::SetItemCount(int count, DWORD options)
{
    return onView(
        L"IResultData::SetItemCount", [&] { return listOf(L"count", count, L"options", options); },
        [&](ViewState& view)
        {
            if (count < 0)
            {
                return E_INVALIDARG;
            }
            if (view.pane.isVirtual()) // for an ordinary list it only announces how many rows will come
            {
                ResultPane& pane = view.pane;
                pane.virtualCount = count;
                pane.virtualSelection.erase(pane.virtualSelection.lower_bound(count), pane.virtualSelection.end());
                view.listener().rowsChanged();
            }
            return S_OK;
        });
}

HRESULT ResultDataPart::RenameResultItem(HRESULTITEM item)
{
    return onView(
        L"IResultData2::RenameResultItem", [&] { return listOf(L"itemID", static_cast<unsigned long long>(item)); },
        [&](ViewState& view)
        {
            const Row* const row = find(view, item);
            if (row == nullptr)
            {
                return E_INVALIDARG;
            }
            view.listener().renameRowAsked(ResultRows::placeOf(*row));
            return S_OK;
        });
}

} // namespace Console
