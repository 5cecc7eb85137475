#include "tmgmt/snapin/Console.h"

#include <commctrl.h>

#include <algorithm>

#include "tmgmt/snapin/ViewRows.h"
#include "tmgmt/snapin/guard.h"

using Microsoft::WRL::ComPtr;

namespace TMgmt
{

Console::Console(ComPtr<IConsole> console, ComPtr<IConsole> tree, std::shared_ptr<ViewRows> rows,
                 ComPtr<IExtendControlbar> controlbar)
    : m_console(std::move(console)),
      m_tree(std::move(tree)),
      m_rows(std::move(rows)),
      m_controlbar(std::move(controlbar))
{
    if (!m_console)
    {
        throw ComError(E_UNEXPECTED);
    }
}

template <class Interface>
ComPtr<Interface> Console::query()
{
    ComPtr<Interface> found;
    throwIfFailed(m_console.As(&found));
    return found;
}

IResultData& Console::results()
{
    if (!m_results)
    {
        m_results = query<IResultData>();
    }
    return *m_results.Get();
}

ViewRows& Console::rows()
{
    if (!m_rows)
    {
        throw ComError(E_UNEXPECTED);
    }
    return *m_rows;
}

bool Console::shows(const CSnapInItem& node) const noexcept
{
    return m_rows && m_rows->showsNode(node);
}

void Console::insertColumn(int position, const wchar_t* title, int width)
{
    throwIfFailed(query<IHeaderCtrl>()->InsertColumn(position, title, LVCFMT_LEFT, width));
}

void Console::modifyViewStyle(MMC_RESULT_VIEW_STYLE add, MMC_RESULT_VIEW_STYLE remove)
{
    throwIfFailed(results().ModifyViewStyle(add, remove));
}

void Console::insertRow(CSnapInItem& item)
{
    ViewRows& rows = this->rows();
    RESULTDATAITEM& record = item.GetResultData();
    throwIfFailed(results().InsertItem(&record));
    rows.add(item, record.itemID);
}

void Console::selectFirstRow()
{
    // The index counts where no item is named.
    results().ModifyItemState(0, 0, LVIS_FOCUSED | LVIS_SELECTED, 0);
}

void Console::updateRow(CSnapInItem& item)
{
    if (const HRESULTITEM id = rows().find(item))
    {
        throwIfFailed(results().UpdateItem(id));
    }
}

void Console::clearRows()
{
    ViewRows& rows = this->rows();
    IResultData& results = this->results();
    HWND frame = nullptr;
    m_console->GetMainWindow(&frame);
    LockWindowUpdate(frame);
    const HRESULT result = results.DeleteAllRsltItems();
    LockWindowUpdate(nullptr);
    throwIfFailed(result);
    rows.clear();
}

void Console::refreshResultList(CSnapInItem& node)
{
    if (!m_holdsRefreshes)
    {
        node.refreshResultList(*this);
        return;
    }
    const Core::SmartPtr<CSnapInItem> held(&node);
    if (std::find(m_heldRefreshes.begin(), m_heldRefreshes.end(), held) == m_heldRefreshes.end())
    {
        m_heldRefreshes.push_back(held);
    }
}

void Console::releaseRefreshes()
{
    m_holdsRefreshes = false;
    for (const auto& node : std::exchange(m_heldRefreshes, {}))
    {
        node->refreshResultList(*this);
    }
}

bool Console::enableVerb(MMC_CONSOLE_VERB verb)
{
    ComPtr<IConsoleVerb> verbs;
    if (FAILED(m_console->QueryConsoleVerb(&verbs)) || !verbs)
    {
        return false;
    }
    throwIfFailed(verbs->SetVerbState(verb, ENABLED, TRUE));
    return true;
}

HRESULT Console::selectScopeItem(HSCOPEITEM item)
{
    return m_console->SelectScopeItem(item);
}

void Console::selectAndRefresh(CSnapInItem& node)
{
    const unsigned before = node.showings();
    selectScopeItem(node.GetScopeData().ID);
    if (node.showings() == before)
    {
        refreshResultList(node);
    }
}

ComPtr<IConsoleNameSpace> Console::nameSpace()
{
    if (!m_tree)
    {
        throw ComError(E_UNEXPECTED);
    }
    ComPtr<IConsoleNameSpace> found;
    throwIfFailed(m_tree.As(&found));
    return found;
}

void Console::updateScopeItem(CSnapInItem& node)
{
    SCOPEDATAITEM record = node.GetScopeData();
    if (record.ID != 0)
    {
        record.mask = SDI_STR | SDI_IMAGE | SDI_OPENIMAGE | SDI_CHILDREN;
        throwIfFailed(nameSpace()->SetItem(&record));
    }
}

void Console::removeScopeItem(CSnapInItem& node)
{
    if (const HSCOPEITEM id = std::exchange(node.GetScopeData().ID, 0))
    {
        throwIfFailed(nameSpace()->DeleteItem(id, TRUE));
    }
}

void Console::updateAllViews(CSnapInItem& item, DATA_OBJECT_TYPES type)
{
    const auto object = item.GetDataObject(type);
    m_console->UpdateAllViews(object.Get(), 0, 0);
}

void Console::updateOtherViews(CSnapInItem& item, DATA_OBJECT_TYPES type)
{
    const OwnChange own(m_rows, item);
    updateAllViews(item, type);
}

} // namespace TMgmt
