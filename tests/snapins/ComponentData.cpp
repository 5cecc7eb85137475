#include "ComponentData.h"

#include <cwchar>

namespace Foreign
{

namespace
{

IConsole* theLeakedConsole = nullptr;

void callLeakedConsole()
{
    HWND window = nullptr;
    settings().consoleResult = theLeakedConsole->GetMainWindow(&window);
    theLeakedConsole->Release();
    theLeakedConsole = nullptr;
}

} // namespace

HRESULT ComponentData::Initialize(LPUNKNOWN console)
{
    if (settings().misdeed == Misdeed::failInitialize)
    {
        return E_ACCESSDENIED;
    }
    settings().consoleThread = GetCurrentThreadId();
    if (FAILED(console->QueryInterface(__uuidof(IConsole2), reinterpret_cast<void**>(m_console.GetAddressOf()))) ||
        FAILED(console->QueryInterface(__uuidof(IConsoleNameSpace2),
                                       reinterpret_cast<void**>(m_nameSpace.GetAddressOf()))))
    {
        return E_NOINTERFACE;
    }
    settings().dataConsole = m_console.Get();
    if (settings().misdeed == Misdeed::wrongSide)
    {
        Microsoft::WRL::ComPtr<IResultData> rows;
        settings().consoleResult =
            console->QueryInterface(__uuidof(IResultData), reinterpret_cast<void**>(rows.GetAddressOf()));
    }
    Microsoft::WRL::ComPtr<IImageList> images;
    const HRESULT result = m_console->QueryScopeImageList(&images);
    return FAILED(result) ? result : addImages(images.Get());
}

HRESULT ComponentData::CreateComponent(LPCOMPONENT* component)
{
    if (settings().misdeed == Misdeed::failCreateComponent)
    {
        return E_FAIL;
    }
    *component = makeComponent(*this);
    return S_OK;
}

HRESULT ComponentData::Destroy()
{
    const Misdeed misdeed = settings().misdeed;
    if (misdeed == Misdeed::leakConsole || misdeed == Misdeed::callAfterDestroy)
    {
        theLeakedConsole = m_console.Get();
        theLeakedConsole->AddRef();
        settings().lateCall = &callLeakedConsole;
    }
    settings().dataConsole = nullptr;
    m_nameSpace.Reset();
    m_console.Reset();
    return S_OK;
}

HRESULT ComponentData::insertChild(MMC_COOKIE cookie, HSCOPEITEM relative, DWORD position)
{
    SCOPEDATAITEM item{};
    item.mask = SDI_STR | SDI_PARAM | SDI_IMAGE | SDI_OPENIMAGE | SDI_CHILDREN | position;
    std::wstring text = L"own text";
    item.displayname = settings().misdeed == Misdeed::textInInsert ? text.data() : platform::askForText();
    item.lParam = cookie;
    item.nImage = 0;
    item.nOpenImage = 1;
    item.cChildren = cookie == firstChildCookie ? 1 : 0;
    item.relativeID = relative;
    const HRESULT result = m_nameSpace->InsertItem(&item);
    settings().consoleResults += FAILED(result) ? 1 : 0;
    if (SUCCEEDED(result))
    {
        m_handles[cookie] = item.ID;
    }
    return result;
}

void ComponentData::tryBadHandles()
{
    const auto refused = [](HRESULT result) { settings().consoleResults += FAILED(result) ? 1 : 0; };
    HSCOPEITEM found = 0;
    MMC_COOKIE cookie = 0;
    for (const auto handle : {reinterpret_cast<HSCOPEITEM>(this), HSCOPEITEM{0}, HSCOPEITEM{1}, HSCOPEITEM{-1}})
    {
        refused(m_nameSpace->GetChildItem(handle, &found, &cookie));
        refused(m_nameSpace->DeleteItem(handle, TRUE));
        refused(m_nameSpace->Expand(handle));
        refused(m_console->SelectScopeItem(handle));
        SCOPEDATAITEM item{};
        item.mask = SDI_STR | SDI_PARAM;
        item.displayname = platform::askForText();
        item.relativeID = handle;
        refused(m_nameSpace->InsertItem(&item));
    }
}

HRESULT ComponentData::expand(HSCOPEITEM item, MMC_COOKIE cookie)
{
    m_handles[cookie] = item;
    if (settings().misdeed == Misdeed::crashInExpand)
    {
        crash();
    }
    if (cookie != 0)
    {
        return S_FALSE;
    }
    if (settings().misdeed == Misdeed::badHandles)
    {
        tryBadHandles();
    }
    for (int child = 0; child < settings().children; ++child)
    {
        insertChild(firstChildCookie + child, item, SDI_PARENT);
    }
    return S_OK;
}

HRESULT ComponentData::Notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param)
{
    Kind kind{};
    MMC_COOKIE cookie = 0;
    int count = 0;
    if (event == MMCN_PROPERTY_CHANGE)
    {
        settings().propertyChange = param;
        return S_OK;
    }
    if (!readDataObject(object, kind, cookie, count))
    {
        return settings().unhandled;
    }
    switch (event)
    {
    case MMCN_EXPANDSYNC:
        if (settings().handleExpandSync)
        {
            auto& sync = *reinterpret_cast<MMC_EXPANDSYNC_STRUCT*>(param);
            sync.bHandled = TRUE;
            return expand(sync.hItem, cookie);
        }
        return settings().unhandled;
    case MMCN_EXPAND:
        return arg != FALSE ? expand(static_cast<HSCOPEITEM>(param), cookie) : S_OK;
    case MMCN_DELETE:
        return m_nameSpace->DeleteItem(handleOf(cookie), TRUE);
    case MMCN_RENAME:
        if (param == 0 || *reinterpret_cast<LPOLESTR>(param) == L'!')
        {
            return S_FALSE;
        }
        m_names[cookie] = reinterpret_cast<LPOLESTR>(param);
        std::wcsncpy(settings().renamedTo, reinterpret_cast<LPOLESTR>(param), 63);
        return S_OK;
    default:
        return settings().unhandled;
    }
}

std::wstring ComponentData::childName(MMC_COOKIE cookie) const
{
    const auto renamed = m_names.find(cookie);
    return renamed != m_names.end() ? renamed->second : L"Child " + std::to_wstring(cookie - firstChildCookie);
}

HSCOPEITEM ComponentData::handleOf(MMC_COOKIE cookie) const
{
    const auto found = m_handles.find(cookie);
    return found == m_handles.end() ? 0 : found->second;
}

HRESULT ComponentData::QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES, LPDATAOBJECT* object)
{
    *object = makeDataObject(Kind::node, cookie, 1);
    return S_OK;
}

HRESULT ComponentData::GetDisplayInfo(SCOPEDATAITEM* item)
{
    if ((item->mask & SDI_STR) != 0)
    {
        if (settings().misdeed == Misdeed::garbageText)
        {
            item->displayname = reinterpret_cast<LPOLESTR>(0x1230);
            return S_OK;
        }
        m_text = childName(item->lParam); // one buffer for all, as samples do
        item->displayname = m_text.data();
    }
    return S_FALSE; // a success all the same
}

HRESULT ComponentData::CompareObjects(LPDATAOBJECT left, LPDATAOBJECT right)
{
    Kind leftKind{};
    Kind rightKind{};
    MMC_COOKIE leftCookie = 0;
    MMC_COOKIE rightCookie = 0;
    int count = 0;
    const bool both =
        readDataObject(left, leftKind, leftCookie, count) && readDataObject(right, rightKind, rightCookie, count);
    return both && leftKind == rightKind && leftCookie == rightCookie ? S_OK : S_FALSE;
}

HRESULT ComponentData::AddMenuItems(LPDATAOBJECT, LPCONTEXTMENUCALLBACK callback, __LONG32* allowed)
{
    return addNodeMenu(callback, *allowed);
}

HRESULT ComponentData::Command(__LONG32 command, LPDATAOBJECT object)
{
    settings().lastCommand = command;
    settings().compositeSeen += isComposite(object) ? 1 : 0;
    return S_OK;
}

HRESULT ComponentData::CreatePropertyPages(LPPROPERTYSHEETCALLBACK callback, LONG_PTR handle, LPDATAOBJECT)
{
    return addPages(callback, handle);
}

HRESULT ComponentData::QueryPagesFor(LPDATAOBJECT)
{
    return settings().propertyPages ? S_OK : S_FALSE;
}

IUnknown* makeComponentData()
{
    return static_cast<IComponentData*>(new ComponentData);
}

} // namespace Foreign
