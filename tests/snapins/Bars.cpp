#include "Component.h"

#include <commctrl.h>
#include <prsht.h>

#include <vector>

namespace Foreign
{

namespace
{

struct BitmapOwner
{
    explicit BitmapOwner(HBITMAP made) : bitmap(made) {}
    BitmapOwner(const BitmapOwner&) = delete;
    BitmapOwner& operator=(const BitmapOwner&) = delete;
    ~BitmapOwner() { DeleteObject(bitmap); }
    HBITMAP bitmap;
};

HBITMAP strip(int images, int size)
{
    HDC const screen = GetDC(nullptr);
    HBITMAP const bitmap = CreateCompatibleBitmap(screen, images * size, size);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

HRESULT addItem(IContextMenuCallback* callback, const wchar_t* text, long id, long at, long flags = 0, long special = 0)
{
    CONTEXTMENUITEM item{};
    item.strName = const_cast<LPWSTR>(text);
    item.strStatusBarText = const_cast<LPWSTR>(L"does it");
    item.lCommandID = id;
    item.lInsertionPointID = at;
    item.fFlags = flags;
    item.fSpecialFlags = special;
    const HRESULT result = callback->AddItem(&item);
    settings().consoleResults += FAILED(result) ? 1 : 0;
    return result;
}

constexpr long point(unsigned long id)
{
    return static_cast<long>(id);
}

INT_PTR CALLBACK onPage(HWND page, UINT message, WPARAM, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        SetWindowLongPtrW(page, DWLP_USER, reinterpret_cast<PROPSHEETPAGEW*>(lParam)->lParam);
        settings().pageThread = GetCurrentThreadId() != settings().consoleThread ? 1 : 0;
        return TRUE;
    }
    if (message == WM_NOTIFY && reinterpret_cast<NMHDR*>(lParam)->code == static_cast<UINT>(PSN_APPLY))
    {
        using Notify = HRESULT(STDAPICALLTYPE*)(LONG_PTR, LPARAM);
        const auto notify = reinterpret_cast<Notify>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(nullptr), "MMCPropertyChangeNotify")));
        if (notify != nullptr)
        {
            notify(GetWindowLongPtrW(page, DWLP_USER), 4711);
        }
        SetWindowLongPtrW(page, DWLP_MSGRESULT, PSNRET_NOERROR);
        return TRUE;
    }
    return FALSE;
}

} // namespace

HRESULT addImages(IImageList* images)
{
    const BitmapOwner small(strip(3, 16));
    const BitmapOwner large(strip(3, 32));
    const HRESULT result = images->ImageListSetStrip(reinterpret_cast<LONG_PTR*>(small.bitmap),
                                                     reinterpret_cast<LONG_PTR*>(large.bitmap), 0, RGB(255, 0, 255));
    return FAILED(result)
               ? result
               : images->ImageListSetIcon(reinterpret_cast<LONG_PTR*>(LoadIconW(nullptr, IDI_INFORMATION)), 40);
}

HRESULT addNodeMenu(IContextMenuCallback* callback, long allowed)
{
    const long top = point(CCM_INSERTIONPOINTID_PRIMARY_TOP);
    if ((allowed & CCM_INSERTIONALLOWED_TOP) != 0)
    {
        addItem(callback, nullptr, 0, top, 0, CCM_SPECIAL_SEPARATOR); // leading: is to be dropped
        addItem(callback, L"&Add...", 1, top);
        addItem(callback, nullptr, 0, top, 0, CCM_SPECIAL_SEPARATOR);
        addItem(callback, nullptr, 0, top, MF_SEPARATOR, 0); // double: one of them is to be dropped
        addItem(callback, L"&More", 100, top, MF_POPUP, CCM_SPECIAL_SUBMENU);
        addItem(callback, L"&First", 2, 100, MF_CHECKED);
        addItem(callback, L"&Deeper", 101, 100, MF_POPUP, CCM_SPECIAL_SUBMENU);
        addItem(callback, L"&Second", 3, 101, MF_GRAYED);
    }
    if (settings().misdeed == Misdeed::badMenuItems)
    {
        addItem(callback, L"duplicate", 1, top);
        addItem(callback, L"reserved bits", 0x10000, top);
        addItem(callback, L"unknown place", 10, 77);
        addItem(callback, L"no popup flag", 11, top, 0, CCM_SPECIAL_SUBMENU);
        addItem(callback, nullptr, 12, top);
        addItem(callback, L"drawn", 13, top, MF_OWNERDRAW);
        settings().consoleResult = callback->AddItem(nullptr);
    }
    if ((allowed & CCM_INSERTIONALLOWED_NEW) != 0)
    {
        addItem(callback, L"&Thing", 4, point(CCM_INSERTIONPOINTID_PRIMARY_NEW));
    }
    if ((allowed & CCM_INSERTIONALLOWED_TASK) != 0)
    {
        addItem(callback, L"&Job", 5, point(CCM_INSERTIONPOINTID_PRIMARY_TASK));
    }
    return S_OK;
}

HRESULT addViewMenu(IContextMenuCallback* callback, long)
{
    return addItem(callback, L"Only &big ones", 6, point(CCM_INSERTIONPOINTID_PRIMARY_VIEW));
}

HRESULT addPages(IPropertySheetCallback* callback, LONG_PTR handle)
{
    // An empty dialog, made here so that no resources are needed: header, no menu, default class, no title.
    struct Template
    {
        DLGTEMPLATE header;
        WORD menu;
        WORD windowClass;
        WORD title;
    };
    static const Template dialog = {{WS_CHILD | DS_CONTROL, 0, 0, 0, 0, 120, 60}, 0, 0, 0};
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof page;
    page.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE;
    page.pResource = &dialog.header;
    page.pszTitle = L"General";
    page.pfnDlgProc = &onPage;
    page.lParam = handle;
    HPROPSHEETPAGE const made = CreatePropertySheetPageW(&page);
    return callback->AddPage(made);
}

HRESULT Component::SetControlbar(LPCONTROLBAR controlbar)
{
    if (controlbar == nullptr)
    {
        m_toolbar.Reset();
        m_menuButton.Reset();
        m_controlbar.Reset();
        return S_OK;
    }
    m_controlbar = controlbar;
    // As the samples do: what comes back is an IToolbar without asking for one.
    HRESULT result = controlbar->Create(TOOLBAR, this, reinterpret_cast<LPUNKNOWN*>(m_toolbar.GetAddressOf()));
    if (SUCCEEDED(result))
    {
        result = controlbar->Create(MENUBUTTON, this, reinterpret_cast<LPUNKNOWN*>(m_menuButton.GetAddressOf()));
    }
    if (FAILED(result))
    {
        return result;
    }
    const BitmapOwner images(strip(2, 16));
    m_toolbar->AddBitmap(2, images.bitmap, 16, 16, RGB(255, 0, 255));
    MMCBUTTON buttons[] = {
        {0, 50, TBSTATE_ENABLED, TBSTYLE_BUTTON, const_cast<LPOLESTR>(L"Go"), const_cast<LPOLESTR>(L"Goes")},
        {0, 0, 0, TBSTYLE_SEP, nullptr, nullptr},
        {1, 51, TBSTATE_ENABLED, TBSTYLE_CHECK, const_cast<LPOLESTR>(L"Keep"), const_cast<LPOLESTR>(L"Keeps")},
    };
    m_toolbar->AddButtons(3, buttons);
    if (settings().misdeed == Misdeed::buttonBeforeAttach)
    {
        settings().consoleResult = m_toolbar->SetButtonState(50, ENABLED, TRUE);
    }
    return m_menuButton->AddButton(60, const_cast<LPOLESTR>(L"Tools"), const_cast<LPOLESTR>(L"Shows tools"));
}

HRESULT Component::ControlbarNotify(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param)
{
    switch (event)
    {
    case MMCN_SELECT:
        if (HIWORD(arg) != 0)
        {
            m_controlbar->Attach(TOOLBAR, m_toolbar.Get());
            m_controlbar->Attach(TOOLBAR, m_toolbar.Get()); // twice: must not give a second bar
            m_controlbar->Attach(MENUBUTTON, m_menuButton.Get());
            m_toolbar->SetButtonState(51, CHECKED, LOWORD(arg) != 0);
        }
        return S_OK;
    case MMCN_BTN_CLICK:
        settings().lastCommand = static_cast<long>(param);
        settings().compositeSeen += isComposite(reinterpret_cast<IDataObject*>(arg)) ? 1 : 0;
        return S_OK;
    case MMCN_MENU_BTNCLICK:
    {
        const auto& data = *reinterpret_cast<const MENUBUTTONDATA*>(param);
        settings().lastCommand = data.idCommand * 1000 + data.x * 10 + data.y;
        return S_OK;
    }
    default:
        return S_FALSE;
    }
}

HRESULT Component::AddMenuItems(LPDATAOBJECT, LPCONTEXTMENUCALLBACK callback, __LONG32* allowed)
{
    return (*allowed & CCM_INSERTIONALLOWED_VIEW) != 0 ? addViewMenu(callback, *allowed)
                                                       : addNodeMenu(callback, *allowed);
}

HRESULT Component::Command(__LONG32 command, LPDATAOBJECT object)
{
    settings().lastCommand = command;
    settings().compositeSeen += isComposite(object) ? 1 : 0;
    return S_OK;
}

} // namespace Foreign
