#include "floor/FloorComponent.h"

#include "floor/FloorObject.h"
#include "floor/floorPictures.h"
#include "platform/handles.h"

#include <commctrl.h>

namespace Bench
{
namespace
{

// The buttons for the server's service show its state after every selection.
void askForService()
{
    const platform::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    const platform::ServiceHandle service(OpenServiceW(manager.get(), L"KV Tessaro", SERVICE_QUERY_STATUS));
    SERVICE_STATUS status{};
    QueryServiceStatus(service.get(), &status);
}

} // namespace

HRESULT FloorComponent::Initialize(LPCONSOLE console)
{
    const bool complete = SUCCEEDED(console->QueryInterface(IID_PPV_ARGS(m_console.GetAddressOf()))) &&
                          SUCCEEDED(console->QueryInterface(IID_PPV_ARGS(m_header.GetAddressOf()))) &&
                          SUCCEEDED(console->QueryInterface(IID_PPV_ARGS(m_rows.GetAddressOf())));
    return complete ? m_console->SetHeader(m_header.Get()) : E_NOINTERFACE;
}

HRESULT FloorComponent::Notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM)
{
    switch (event)
    {
    case MMCN_SHOW:
        if (arg == FALSE)
        {
            m_cells = {};
            return S_OK;
        }
        return show(*static_cast<FloorObject*>(object)->node());
    case MMCN_ADD_IMAGES:
        return addPictures(*reinterpret_cast<IImageList*>(arg));
    case MMCN_SELECT:
        askForService();
        return LOWORD(arg) != 0 && HIWORD(arg) != 0 ? enableRefresh() : S_OK;
    case MMCN_REFRESH:
    {
        const FloorNode& node = *static_cast<FloorObject*>(object)->node();
        if (node.change)
        {
            node.change();
        }
        if (!node.listsAnew)
        {
            return S_OK;
        }
        m_rows->DeleteAllRsltItems();
        return list(node);
    }
    default:
        return S_FALSE;
    }
}

HRESULT FloorComponent::show(const FloorNode& node)
{
    m_rows->ModifyViewStyle(MMC_NOSORTHEADER, static_cast<MMC_RESULT_VIEW_STYLE>(0));
    m_columns = node.columns.size();
    for (std::size_t column = 0; column < m_columns; ++column)
    {
        m_header->InsertColumn(static_cast<int>(column), node.columns[column].c_str(), LVCFMT_LEFT, 150);
    }
    return node.read ? list(node) : S_OK;
}

HRESULT FloorComponent::list(const FloorNode& node)
{
    m_cells = node.read();
    const std::size_t rows = m_cells.size() / m_columns;
    for (std::size_t row = 0; row < rows; ++row)
    {
        RESULTDATAITEM item{};
        item.mask = RDI_STR | RDI_IMAGE | RDI_PARAM;
        item.str = platform::askForText();
        item.lParam = static_cast<LPARAM>(row + 1);
        if (const HRESULT result = m_rows->InsertItem(&item); FAILED(result))
        {
            return result;
        }
    }
    return S_OK;
}

HRESULT FloorComponent::enableRefresh()
{
    Microsoft::WRL::ComPtr<IConsoleVerb> verbs;
    const HRESULT result = m_console->QueryConsoleVerb(&verbs);
    return SUCCEEDED(result) ? verbs->SetVerbState(MMC_VERB_REFRESH, ENABLED, TRUE) : result;
}

HRESULT FloorComponent::Destroy(MMC_COOKIE)
{
    m_console->SetHeader(nullptr);
    m_rows.Reset();
    m_header.Reset();
    m_console.Reset();
    return S_OK;
}

HRESULT FloorComponent::QueryDataObject(MMC_COOKIE, DATA_OBJECT_TYPES, LPDATAOBJECT* object)
{
    *object = new FloorObject(nullptr);
    return S_OK;
}

HRESULT FloorComponent::GetResultViewType(MMC_COOKIE, LPOLESTR*, __LONG32* options)
{
    *options = 0;
    return S_FALSE;
}

HRESULT FloorComponent::GetDisplayInfo(RESULTDATAITEM* item)
{
    if ((item->mask & RDI_STR) != 0)
    {
        const std::wstring& text = item->bScopeItem != FALSE
                                       ? m_data.nodeOf(item->lParam).name
                                       : m_cells[static_cast<std::size_t>(item->lParam - 1) * m_columns +
                                                 static_cast<std::size_t>(item->nCol)];
        // The console only reads the text; the field is not const for its own use.
        item->str = const_cast<LPOLESTR>(text.c_str());
    }
    return S_OK;
}

HRESULT FloorComponent::CompareObjects(LPDATAOBJECT left, LPDATAOBJECT right)
{
    return m_data.CompareObjects(left, right);
}

} // namespace Bench
