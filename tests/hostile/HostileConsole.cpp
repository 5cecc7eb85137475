#include "HostileConsole.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Hostile
{

HostileConsole::~HostileConsole()
{
    EXPECT_EQ(0, m_references) << "the plug-in keeps a console that is gone";
}

void HostileConsole::clearPane()
{
    m_rows.clear();
    m_selected = false;
}

HRESULT HostileConsole::QueryInterface(REFIID iid, void** object)
{
    *object = nullptr;
    if (const HRESULT answer = m_whim.answer(); FAILED(answer))
    {
        return answer;
    }
    if (iid == __uuidof(IUnknown) || iid == __uuidof(IConsole) || iid == __uuidof(IConsole2))
    {
        *object = static_cast<IConsole2*>(this);
    }
    else if (iid == __uuidof(IConsoleNameSpace) || iid == __uuidof(IConsoleNameSpace2))
    {
        *object = static_cast<IConsoleNameSpace2*>(this);
    }
    else if (iid == __uuidof(IHeaderCtrl))
    {
        *object = static_cast<IHeaderCtrl*>(this);
    }
    else if (iid == __uuidof(IResultData))
    {
        *object = static_cast<IResultData*>(this);
    }
    else
    {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

// A list has no control of its own to give.
HRESULT HostileConsole::QueryResultView(IUnknown** view)
{
    *view = nullptr;
    return E_FAIL;
}

HRESULT HostileConsole::UpdateAllViews(IDataObject* object, LPARAM data, LONG_PTR hint)
{
    const HRESULT answer = m_whim.answer();
    if (SUCCEEDED(answer) && onUpdateAllViews)
    {
        onUpdateAllViews(object, data, hint);
    }
    return answer;
}

HRESULT HostileConsole::MessageBox(LPCWSTR, LPCWSTR, UINT, int* answer)
{
    if (answer)
    {
        *answer = IDCANCEL;
    }
    return m_whim.answer();
}

HRESULT HostileConsole::SelectScopeItem(HSCOPEITEM item)
{
    if (!m_items.contains(item))
    {
        return E_FAIL;
    }
    const HRESULT answer = m_whim.answer();
    if (SUCCEEDED(answer) && onSelectScopeItem)
    {
        onSelectScopeItem(item);
    }
    return answer;
}

HRESULT HostileConsole::GetMainWindow(HWND* window)
{
    const HRESULT answer = m_whim.answer();
    *window = SUCCEEDED(answer) ? m_frame : nullptr;
    return answer;
}

HRESULT HostileConsole::InsertItem(SCOPEDATAITEM* item)
{
    const HRESULT answer = m_whim.answer();
    if (SUCCEEDED(answer))
    {
        item->ID = ++m_lastHandle;
        m_items[item->ID] = {item->lParam, item->relativeID};
        if (onNode)
        {
            onNode(item->lParam);
        }
    }
    return answer;
}

HRESULT HostileConsole::DeleteItem(HSCOPEITEM item, long itself)
{
    const HRESULT answer = m_whim.answer();
    if (FAILED(answer))
    {
        return answer;
    }
    std::vector<HSCOPEITEM> children;
    for (const auto& [handle, record] : m_items)
    {
        if (record.parent == item)
        {
            children.push_back(handle);
        }
    }
    if (itself)
    {
        m_items.erase(item);
    }
    for (const HSCOPEITEM child : children)
    {
        DeleteItem(child, TRUE);
    }
    return S_OK;
}

HRESULT HostileConsole::SetItem(SCOPEDATAITEM* item)
{
    return m_items.contains(item->ID) ? m_whim.answer() : E_INVALIDARG;
}

HRESULT HostileConsole::GetItem(SCOPEDATAITEM* item)
{
    const HRESULT answer = m_whim.answer();
    item->nState = m_whim.oneIn(4) ? 0 : MMC_SCOPE_ITEM_STATE_EXPANDEDONCE;
    return answer;
}

HRESULT HostileConsole::found(std::map<HSCOPEITEM, ScopeItem>::const_iterator item, HSCOPEITEM* handle,
                              MMC_COOKIE* cookie)
{
    *handle = 0;
    *cookie = 0;
    const HRESULT answer = m_whim.answer();
    if (FAILED(answer))
    {
        return answer;
    }
    if (item == m_items.end())
    {
        return S_FALSE;
    }
    *handle = item->first;
    *cookie = item->second.cookie;
    return S_OK;
}

HRESULT HostileConsole::GetChildItem(HSCOPEITEM item, HSCOPEITEM* child, MMC_COOKIE* cookie)
{
    return found(std::ranges::find_if(m_items, [item](const auto& entry) { return entry.second.parent == item; }),
                 child, cookie);
}

HRESULT HostileConsole::GetNextItem(HSCOPEITEM item, HSCOPEITEM* next, MMC_COOKIE* cookie)
{
    const auto self = m_items.find(item);
    if (self == m_items.end())
    {
        return E_INVALIDARG;
    }
    const HSCOPEITEM parent = self->second.parent;
    return found(std::find_if(std::next(self), m_items.end(),
                              [parent](const auto& entry) { return entry.second.parent == parent; }),
                 next, cookie);
}

HRESULT HostileConsole::GetParentItem(HSCOPEITEM item, HSCOPEITEM* parent, MMC_COOKIE* cookie)
{
    const auto self = m_items.find(item);
    return found(self == m_items.end() ? self : m_items.find(self->second.parent), parent, cookie);
}

HRESULT HostileConsole::GetColumnText(int, LPOLESTR* text)
{
    *text = nullptr;
    return E_FAIL;
}

HRESULT HostileConsole::GetColumnWidth(int, int* width)
{
    *width = 0;
    return m_whim.answer();
}

HRESULT HostileConsole::InsertItem(RESULTDATAITEM* item)
{
    const HRESULT answer = m_whim.answer();
    if (SUCCEEDED(answer))
    {
        item->itemID = ++m_lastHandle;
        m_rows.push_back({item->itemID, item->lParam});
        if (onNode)
        {
            onNode(item->lParam);
        }
    }
    return answer;
}

HRESULT HostileConsole::DeleteItem(HRESULTITEM item, int)
{
    std::erase_if(m_rows, [item](const Row& row) { return row.id == item; });
    return m_whim.answer();
}

HRESULT HostileConsole::FindItemByLParam(LPARAM cookie, HRESULTITEM* item)
{
    const auto row = std::ranges::find(m_rows, cookie, &Row::cookie);
    *item = row == m_rows.end() ? 0 : row->id;
    return *item ? m_whim.answer() : S_FALSE;
}

HRESULT HostileConsole::DeleteAllRsltItems()
{
    const HRESULT answer = m_whim.answer();
    if (SUCCEEDED(answer))
    {
        m_rows.clear();
    }
    return answer;
}

HRESULT HostileConsole::GetNextItem(RESULTDATAITEM* item)
{
    const HRESULT answer = m_whim.answer();
    const int next = item->nIndex + 1;
    const bool isThere = m_selected && next >= 0 && static_cast<std::size_t>(next) < m_rows.size();
    item->nIndex = isThere && SUCCEEDED(answer) ? next : -1;
    item->bScopeItem = FALSE;
    item->lParam = isThere ? m_rows.at(static_cast<std::size_t>(next)).cookie : 0;
    return answer;
}

HRESULT HostileConsole::GetViewMode(long* mode)
{
    *mode = MMCLV_VIEWSTYLE_REPORT;
    return m_whim.answer();
}

HRESULT HostileConsole::GetVerbState(MMC_CONSOLE_VERB, MMC_BUTTON_STATE, BOOL* state)
{
    *state = FALSE;
    return m_whim.answer();
}

HRESULT HostileConsole::GetDefaultVerb(MMC_CONSOLE_VERB* verb)
{
    *verb = MMC_VERB_NONE;
    return m_whim.answer();
}

} // namespace Hostile
