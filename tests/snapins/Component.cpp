#include "Component.h"

#include <commctrl.h>

#include <cstring>
#include <cwchar>
#include <stdexcept>

namespace Foreign
{

HRESULT Component::QueryInterface(REFIID id, void** object)
{
    const bool absent =
        (id == __uuidof(IComponent2) && !settings().secondGeneration) ||
        (id == __uuidof(IResultDataCompare) && !settings().compare) ||
        (id == __uuidof(IResultOwnerData) && (settings().viewOptions & MMC_VIEW_OPTIONS_OWNERDATALIST) == 0);
    *object = nullptr;
    return absent ? E_NOINTERFACE : Object::QueryInterface(id, object);
}

void* Component::findMore(REFIID id)
{
    return id == __uuidof(IComponent) ? static_cast<IComponent*>(this) : nullptr;
}

HRESULT Component::Initialize(LPCONSOLE console)
{
    const auto ask = [&](REFIID id, auto& pointer)
    { return console->QueryInterface(id, reinterpret_cast<void**>(pointer.GetAddressOf())); };
    const bool asked = SUCCEEDED(ask(__uuidof(IConsole2), m_console)) &&
                       SUCCEEDED(ask(__uuidof(IHeaderCtrl), m_header)) && SUCCEEDED(ask(__uuidof(IResultData), m_rows));
    if (asked)
    {
        m_console->SetHeader(m_header.Get());
        settings().componentConsole = m_console.Get();
        settings().component = static_cast<IComponent*>(this);
    }
    return asked ? S_OK : E_NOINTERFACE;
}

HRESULT Component::Destroy(MMC_COOKIE)
{
    m_console->SetHeader(nullptr);
    settings().componentConsole = nullptr;
    m_rows.Reset();
    m_header.Reset();
    m_console.Reset();
    return S_OK;
}

HRESULT Component::Notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param)
{
    Kind kind{};
    MMC_COOKIE cookie = 0;
    int count = 0;
    switch (event)
    {
    case MMCN_PROPERTY_CHANGE:
        settings().propertyChange = param;
        return S_OK;
    case MMCN_VIEW_CHANGE:
        ++settings().viewChanges;
        settings().viewChangeData = arg;
        settings().viewChangeHint = param;
        return S_OK;
    case MMCN_COLUMN_CLICK:
        return S_OK;
    case MMCN_ADD_IMAGES:
    {
        auto* const images = reinterpret_cast<IImageList*>(arg);
        const HRESULT result = addImages(images);
        if (settings().misdeed == Misdeed::releaseImageList)
        {
            images->Release();
        }
        return result;
    }
    default:
        break;
    }
    if (!readDataObject(object, kind, cookie, count))
    {
        return settings().unhandled;
    }
    switch (event)
    {
    case MMCN_SHOW:
        return show(arg != FALSE, cookie);
    case MMCN_SELECT:
        if (HIWORD(arg) != 0)
        {
            select(LOWORD(arg) != 0, kind == Kind::rows);
        }
        return S_OK;
    case MMCN_DBLCLICK:
        if (settings().openOnDoubleClick)
        {
            return m_console->SelectScopeItem(m_data->handleOf(firstChildCookie + 1));
        }
        return settings().unhandled;
    case MMCN_DELETE:
        return removeRows(kind, cookie);
    case MMCN_REFRESH:
        m_rows->DeleteAllRsltItems();
        return insertRows();
    case MMCN_RENAME:
        std::wcsncpy(settings().renamedTo, reinterpret_cast<LPOLESTR>(param), 63);
        return settings().renamedTo[0] == L'!' ? S_FALSE : S_OK;
    case MMCN_QUERY_PASTE:
    case MMCN_PASTE:
        settings().lastCommand = static_cast<long>(event);
        return S_OK;
    default:
        return settings().unhandled;
    }
}

HRESULT Component::show(bool shown, MMC_COOKIE)
{
    switch (settings().misdeed)
    {
    case Misdeed::failShow:
        return E_FAIL;
    case Misdeed::throwInShow:
        throw std::runtime_error("thrown in MMCN_SHOW");
    case Misdeed::crashInShow:
        crash();
        return S_OK;
    case Misdeed::badHandles:
        for (const auto handle : {reinterpret_cast<HRESULTITEM>(this), HRESULTITEM{1}, HRESULTITEM{-1}})
        {
            settings().consoleResults += FAILED(m_rows->DeleteItem(handle, 0)) ? 1 : 0;
            settings().consoleResults += FAILED(m_rows->UpdateItem(handle)) ? 1 : 0;
        }
        break;
    default:
        break;
    }
    if (!shown)
    {
        return m_rows->DeleteAllRsltItems(); // needless, but many do
    }
    if (settings().viewType != nullptr)
    {
        return S_OK; // not a list
    }
    m_header->InsertColumn(0, L"Name", LVCFMT_LEFT, 180);
    m_header->InsertColumn(1, L"Number", LVCFMT_RIGHT, 80);
    m_header->InsertColumn(2, L"Fitted title", LVCFMT_LEFT, MMCLV_AUTO);
    m_rows->SetDescBarText(const_cast<LPOLESTR>(L"Things"));
    m_console->SetStatusText(const_cast<LPOLESTR>(L"100%% full|%42|ready"));
    const HRESULT result = insertRows();
    if (settings().misdeed == Misdeed::columnsAfterRows)
    {
        settings().consoleResult = m_header->InsertColumn(3, L"Late", LVCFMT_LEFT, 50);
    }
    return result;
}

HRESULT Component::insertRows()
{
    if ((settings().viewOptions & MMC_VIEW_OPTIONS_OWNERDATALIST) != 0)
    {
        return m_rows->SetItemCount(settings().rows, 0);
    }
    for (int number = 0; number < settings().rows; ++number)
    {
        RESULTDATAITEM item{};
        item.mask = RDI_STR | RDI_IMAGE | RDI_PARAM;
        item.str = platform::askForText();
        item.nImage = number % 2 == 0 ? 1 : MMC_IMAGECALLBACK;
        item.lParam = firstRowCookie + number;
        if (const HRESULT result = m_rows->InsertItem(&item); FAILED(result))
        {
            return result;
        }
    }
    return S_OK;
}

void Component::select(bool scope, bool several)
{
    Microsoft::WRL::ComPtr<IConsoleVerb> verbs;
    if (FAILED(m_console->QueryConsoleVerb(&verbs)))
    {
        return;
    }
    verbs->SetVerbState(MMC_VERB_REFRESH, ENABLED, TRUE);
    if (several)
    {
        verbs->SetVerbState(MMC_VERB_DELETE, ENABLED, TRUE);
        return;
    }
    for (const MMC_CONSOLE_VERB verb : {MMC_VERB_DELETE, MMC_VERB_RENAME, MMC_VERB_PROPERTIES, MMC_VERB_COPY})
    {
        verbs->SetVerbState(verb, HIDDEN, FALSE);
        verbs->SetVerbState(verb, ENABLED, TRUE);
    }
    verbs->SetVerbState(MMC_VERB_COPY, ENABLED, settings().copies);
    verbs->SetVerbState(MMC_VERB_PASTE, ENABLED, scope);
    if (!scope)
    {
        verbs->SetDefaultVerb(MMC_VERB_PROPERTIES);
    }
}

std::vector<HRESULTITEM> Component::selectedRows(bool count) const
{
    std::vector<HRESULTITEM> rows;
    RESULTDATAITEM item{};
    item.mask = RDI_STATE;
    item.nIndex = -1;
    for (;;)
    {
        item.nState = LVIS_SELECTED;
        if (m_rows->GetNextItem(&item) != S_OK || item.nIndex < 0)
        {
            break;
        }
        rows.push_back(item.itemID);
    }
    if (count)
    {
        settings().multiSelected = static_cast<int>(rows.size());
    }
    return rows;
}

HRESULT Component::removeRows(Kind kind, MMC_COOKIE cookie)
{
    std::vector<HRESULTITEM> rows;
    HRESULTITEM row = 0;
    if (kind == Kind::rows)
    {
        rows = selectedRows(false);
    }
    else if (m_rows->FindItemByLParam(cookie, &row) == S_OK)
    {
        rows.push_back(row);
    }
    for (const HRESULTITEM each : rows)
    {
        settings().rowsDeleted += SUCCEEDED(m_rows->DeleteItem(each, 0)) ? 1 : 0;
    }
    return S_OK;
}

HRESULT Component::QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES, LPDATAOBJECT* object)
{
    if (cookie == MMC_MULTI_SELECT_COOKIE)
    {
        *object = makeDataObject(Kind::rows, 0, static_cast<int>(selectedRows(true).size()));
        return S_OK;
    }
    *object = makeDataObject(Kind::row, cookie, 1);
    return S_OK;
}

HRESULT Component::GetResultViewType(MMC_COOKIE, LPOLESTR* type, __LONG32* options)
{
    *options = static_cast<__LONG32>(settings().viewOptions);
    if (settings().viewType != nullptr)
    {
        const std::size_t size = (std::wcslen(settings().viewType) + 1) * sizeof(wchar_t);
        *type = static_cast<LPOLESTR>(CoTaskMemAlloc(size));
        std::memcpy(*type, settings().viewType, size);
    }
    return settings().viewOptions == 0 && settings().viewType == nullptr ? S_FALSE : S_OK;
}

HRESULT Component::GetDisplayInfo(RESULTDATAITEM* item)
{
    const bool virtualList = (settings().viewOptions & MMC_VIEW_OPTIONS_OWNERDATALIST) != 0;
    if (settings().misdeed == Misdeed::throwInText)
    {
        throw std::runtime_error("thrown in GetDisplayInfo");
    }
    if ((item->mask & RDI_IMAGE) != 0)
    {
        item->nImage = item->bScopeItem != FALSE ? 0 : 2;
    }
    if ((item->mask & RDI_STR) == 0)
    {
        return S_OK;
    }
    if (settings().misdeed == Misdeed::garbageText)
    {
        item->str = reinterpret_cast<LPOLESTR>(0x1230);
        return S_OK;
    }
    const int last = settings().rows - 1;
    const long long number = !virtualList   ? item->lParam - firstRowCookie
                             : m_descending ? last - item->nIndex
                                            : item->nIndex;
    if (item->bScopeItem != FALSE)
    {
        m_text = item->nCol == 0 ? m_data->childName(item->lParam) : L"";
    }
    else
    {
        m_text = item->nCol == 0   ? settings().rowName + std::to_wstring(number)
                 : item->nCol == 1 ? std::to_wstring(number % 10)
                                   : L"";
    }
    item->str = m_text.data();
    return S_OK;
}

HRESULT Component::CompareObjects(LPDATAOBJECT left, LPDATAOBJECT right)
{
    return m_data->CompareObjects(left, right);
}

HRESULT Component::QueryDispatch(MMC_COOKIE, DATA_OBJECT_TYPES, LPDISPATCH*)
{
    return E_NOTIMPL;
}

HRESULT Component::GetResultViewType2(MMC_COOKIE, PRESULT_VIEW_TYPE_INFO info)
{
    info->pstrPersistableViewDescription = static_cast<LPOLESTR>(CoTaskMemAlloc(2 * sizeof(wchar_t)));
    info->pstrPersistableViewDescription[0] = L'L';
    info->pstrPersistableViewDescription[1] = L'\0';
    info->eViewType = MMC_VIEW_TYPE_LIST;
    const bool several = (settings().viewOptions & MMC_VIEW_OPTIONS_MULTISELECT) != 0;
    const bool virtualList = (settings().viewOptions & MMC_VIEW_OPTIONS_OWNERDATALIST) != 0;
    info->dwListOptions = static_cast<DWORD>((several ? RVTI_LIST_OPTIONS_MULTISELECT : RVTI_LIST_OPTIONS_NONE) |
                                             (virtualList ? RVTI_LIST_OPTIONS_OWNERDATALIST : RVTI_LIST_OPTIONS_NONE));
    return S_OK;
}

HRESULT Component::RestoreResultView(MMC_COOKIE, PRESULT_VIEW_TYPE_INFO)
{
    return S_FALSE;
}

HRESULT Component::CreatePropertyPages(LPPROPERTYSHEETCALLBACK callback, LONG_PTR handle, LPDATAOBJECT)
{
    return addPages(callback, handle);
}

HRESULT Component::QueryPagesFor(LPDATAOBJECT)
{
    return settings().propertyPages ? S_OK : S_FALSE;
}

HRESULT Component::FindItem(LPRESULTFINDINFO what, int* found)
{
    *found = what->nStart;
    return S_OK;
}

HRESULT Component::CacheHint(int, int)
{
    return S_OK;
}

HRESULT Component::SortItems(int, DWORD options, LPARAM)
{
    m_descending = (options & RSI_DESCENDING) != 0;
    return S_OK;
}

HRESULT Component::Compare(LPARAM, MMC_COOKIE left, MMC_COOKIE right, int* result)
{
    if (settings().misdeed == Misdeed::contradictingCompare)
    {
        *result = -1;
        return S_OK;
    }
    // Column 1 by its number; any other by the cookie.
    const long long divisor = *result == 1 ? 10 : 1LL << 32;
    const long long leftKey = (left - firstRowCookie) % divisor;
    const long long rightKey = (right - firstRowCookie) % divisor;
    *result = leftKey < rightKey ? -1 : leftKey > rightKey ? 1 : 0;
    return S_OK;
}

IComponent* makeComponent(ComponentData& data)
{
    return new Component(data);
}

} // namespace Foreign
