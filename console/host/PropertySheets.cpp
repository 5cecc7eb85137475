#include "PropertySheets.h"

#include "CallGuard.h"
#include "PropertyNotify.h"
#include "SheetCallbackFace.h"
#include "ViewState.h"

#include <process.h>

#include <algorithm>
#include <atomic>

namespace Console
{

namespace
{

constexpr wchar_t windowClass[] = L"ConsolePropertySheets";
constexpr UINT sheetEndedMessage = WM_APP + 3;

PROPSHEETHEADERW headerOf(const SheetOptions& options, std::vector<HPROPSHEETPAGE>& pages, HWND owner)
{
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.hwndParent = owner;
    header.pszCaption = options.title.c_str();
    header.nPages = static_cast<UINT>(pages.size());
    header.phpage = pages.data();
    header.nStartPage = static_cast<UINT>(std::clamp(options.startPage, 0, static_cast<int>(pages.size()) - 1));
    if (options.wizard)
    {
        header.dwFlags = (options.options & MMC_PSO_NEWWIZARDTYPE) != 0 ? PSH_WIZARD97 : PSH_WIZARD;
    }
    else if ((options.options & MMC_PSO_NO_PROPTITLE) == 0)
    {
        header.dwFlags |= PSH_PROPTITLE;
    }
    header.dwFlags |= (options.options & MMC_PSO_NOAPPLYNOW) != 0 ? PSH_NOAPPLYNOW : 0;
    header.dwFlags |= (options.options & MMC_PSO_HASHELP) != 0 ? PSH_HASHELP : 0;
    return header;
}

// The sheet that the present thread is about to open; the window's callback is told nothing else of it.
thread_local std::atomic<HWND>* t_opening = nullptr;

} // namespace

struct PropertySheets::Sheet
{
    Instance* instance = nullptr;
    DataObject object;
    SheetOptions options;
    std::vector<HPROPSHEETPAGE> pages;
    std::atomic<HWND> window = nullptr;
    HWND host = nullptr;
    platform::KernelHandle thread;
};

PropertyPages::~PropertyPages()
{
    for (HPROPSHEETPAGE page : m_pages)
    {
        DestroyPropertySheetPage(page);
    }
}

bool PropertyPages::add(HPROPSHEETPAGE page)
{
    if (page == nullptr || std::find(m_pages.begin(), m_pages.end(), page) != m_pages.end())
    {
        return false;
    }
    m_pages.push_back(page);
    return true;
}

bool PropertyPages::remove(HPROPSHEETPAGE page)
{
    return std::erase(m_pages, page) != 0;
}

PropertySheets::PropertySheets(HostState& host) : m_host(host)
{
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = &PropertySheets::onMessage;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = windowClass;
    RegisterClassExW(&description); // fails for a second host in the process, which finds it registered
    m_window =
        CreateWindowExW(0, windowClass, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, description.hInstance, nullptr);
    SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    setPropertyNotifyWindow(m_window);
}

PropertySheets::~PropertySheets()
{
    setPropertyNotifyWindow(nullptr);
    DestroyWindow(m_window);
}

LRESULT CALLBACK PropertySheets::onMessage(HWND window, UINT message, WPARAM handle, LPARAM value)
{
    auto* const sheets = reinterpret_cast<PropertySheets*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    switch (message)
    {
    case sheetEndedMessage:
        sheets->ended();
        return 0;
    case propertyChangedMessage:
        sheets->propertyChanged(static_cast<LONG_PTR>(handle), value);
        return 0;
    case propertyHandleFreedMessage:
        sheets->m_notify.erase(static_cast<LONG_PTR>(handle));
        return 0;
    default:
        return DefWindowProcW(window, message, handle, value);
    }
}

void PropertySheets::propertyChanged(LONG_PTR handle, LPARAM value)
{
    const auto found = m_notify.find(handle);
    if (found == m_notify.end())
    {
        return;
    }
    const NotifyTarget target = found->second;
    if (target.view == 0)
    {
        target.instance->notify(nullptr, MMCN_PROPERTY_CHANGE, target.scope, value);
        return;
    }
    for (ViewState* view : std::vector(m_host.views))
    {
        Component* const component = view->componentOf(*target.instance);
        if (view->number() == target.view && component != nullptr)
        {
            component->notify(nullptr, MMCN_PROPERTY_CHANGE, target.scope, value);
        }
    }
}

HRESULT PropertySheets::collect(Instance& instance, unsigned view, IUnknown* extension, LPDATAOBJECT object,
                                bool withHandle, bool scope, PropertyPages& pages)
{
    const HRESULT asked = instance.callOn<IExtendPropertySheet>(
        view, extension, L"IExtendPropertySheet::QueryPagesFor", [&] { return listOf(L"object", object); },
        [&](IExtendPropertySheet& sheet) { return sheet.QueryPagesFor(object); });
    if (asked != S_OK)
    {
        return FAILED(asked) ? asked : S_FALSE;
    }
    const LONG_PTR handle = withHandle ? ++m_lastNotify : 0;
    if (withHandle)
    {
        m_notify[handle] = {&instance, view, scope};
    }
    const Microsoft::WRL::ComPtr<SheetCallbackFace> callback(
        new SheetCallbackFace({&m_host, &instance, instance.number(), view}, pages));
    const HRESULT created = instance.callOn<IExtendPropertySheet>(
        view, extension, L"IExtendPropertySheet::CreatePropertyPages",
        [&] { return listOf(L"handle", handle, L"object", object); },
        [&](IExtendPropertySheet& sheet) { return sheet.CreatePropertyPages(callback.Get(), handle, object); });
    callback->disconnect();
    if (FAILED(created))
    {
        m_notify.erase(handle); // the snap-in frees it in every other case
        pages = {};
        return created;
    }
    return pages.empty() ? S_FALSE : S_OK;
}

bool PropertySheets::open(Instance& instance, Component* component, ViewState& view)
{
    CommandObject object = CommandObject::of(view);
    IUnknown* const extension =
        component == nullptr ? static_cast<IUnknown*>(instance.data()) : static_cast<IUnknown*>(component->get());
    if (bringToFront(instance, component == nullptr ? nullptr : component->get(), object.get()))
    {
        return true;
    }
    PropertyPages pages;
    const unsigned number = component == nullptr ? 0 : view.number();
    if (collect(instance, number, extension, object.get(), true, component == nullptr, pages) != S_OK)
    {
        return false;
    }
    DataObject kept = view.selection.object();
    SheetOptions options;
    options.title = kept.displayName();
    if (options.title.empty())
    {
        const std::vector<int> rows = view.selection.selectedRows();
        options.title = rows.empty() ? m_host.tree.text(view.node()) : view.rowText(rows.front(), 0);
    }
    show(instance, number, options, std::move(pages), std::move(kept), m_host.frame);
    return true;
}

void PropertySheets::show(Instance& instance, unsigned view, const SheetOptions& options, PropertyPages pages,
                          DataObject object, HWND owner)
{
    std::vector<HPROPSHEETPAGE> released = pages.release();
    if (options.wizard)
    {
        PROPSHEETHEADERW header = headerOf(options, released, owner);
        instance.call(
            view, L"PropertySheet", [&] { return listOf(L"title", options.title.c_str()); },
            [&]
            {
                PropertySheetW(&header);
                return S_OK;
            });
        return;
    }
    auto sheet = std::make_unique<Sheet>();
    sheet->instance = &instance;
    sheet->object = std::move(object);
    sheet->options = options;
    sheet->pages = std::move(released);
    sheet->host = m_window;
    const uintptr_t thread = _beginthreadex(nullptr, 0, &PropertySheets::run, sheet.get(), 0, nullptr);
    if (thread == 0)
    {
        for (HPROPSHEETPAGE page : sheet->pages)
        {
            DestroyPropertySheetPage(page);
        }
        m_host.complain(instance.number(), L"There is no memory for another property sheet.");
        return;
    }
    sheet->thread.reset(reinterpret_cast<HANDLE>(thread));
    m_sheets.push_back(std::move(sheet));
}

unsigned __stdcall PropertySheets::run(void* parameter)
{
    Sheet& sheet = *static_cast<Sheet*>(parameter);
    const HRESULT initialized = OleInitialize(nullptr);
    PROPSHEETHEADERW header = headerOf(sheet.options, sheet.pages, nullptr);
    header.dwFlags |= PSH_USECALLBACK;
    header.pfnCallback = &PropertySheets::onSheet;
    t_opening = &sheet.window;
    guarded([&] { PropertySheetW(&header); });
    sheet.window = nullptr;
    if (SUCCEEDED(initialized))
    {
        OleUninitialize();
    }
    PostMessageW(sheet.host, sheetEndedMessage, 0, 0);
    return 0;
}

int CALLBACK PropertySheets::onSheet(HWND window, UINT message, LPARAM)
{
    if (message == PSCB_INITIALIZED)
    {
        *t_opening = window;
    }
    return 0;
}

void PropertySheets::ended()
{
    const HostState::Operation operation(m_host);
    std::vector<std::unique_ptr<Sheet>> gone;
    for (auto& sheet : m_sheets)
    {
        // Its message comes from the thread's last breath, so the wait is short.
        if (sheet->window == nullptr && WaitForSingleObject(sheet->thread.get(), 100) == WAIT_OBJECT_0)
        {
            gone.push_back(std::move(sheet));
        }
    }
    std::erase(m_sheets, nullptr);
}

bool PropertySheets::bringToFront(Instance& instance, IComponent* component, LPDATAOBJECT object)
{
    for (const auto& sheet : m_sheets)
    {
        if (sheet->instance != &instance || !sheet->object)
        {
            continue;
        }
        const HRESULT same = instance.call(
            0, component == nullptr ? L"IComponentData::CompareObjects" : L"IComponent::CompareObjects",
            [&] { return listOf(L"a", object, L"b", sheet->object.get()); },
            [&]
            {
                return component == nullptr ? instance.data()->CompareObjects(object, sheet->object.get())
                                            : component->CompareObjects(object, sheet->object.get());
            });
        if (same == S_OK)
        {
            SetForegroundWindow(sheet->window);
            return true;
        }
    }
    return false;
}

void PropertySheets::closeOf(const Instance& instance)
{
    const ULONGLONG deadline = GetTickCount64() + 10000;
    for (auto& sheet : m_sheets)
    {
        while (sheet->instance == &instance && sheet->thread)
        {
            // It may only be on its way to the screen, so it is asked again until it hears.
            PostMessageW(sheet->window, WM_CLOSE, 0, 0);
            HANDLE const thread = sheet->thread.get();
            const DWORD woken = MsgWaitForMultipleObjects(1, &thread, FALSE, 50, QS_SENDMESSAGE);
            MSG message;
            PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE); // lets sent messages in
            if (woken == WAIT_OBJECT_0)
            {
                sheet->thread.reset();
            }
            else if (GetTickCount64() > deadline)
            {
                m_host.complain(instance.number(), L"A property sheet did not close.");
                // Given up, not deleted: its thread still uses it.
                [[maybe_unused]] const auto* const abandoned = sheet.release();
                break;
            }
            if (sheet == nullptr)
            {
                break;
            }
        }
    }
    std::erase_if(m_sheets, [&](const auto& sheet) { return sheet == nullptr || sheet->instance == &instance; });
    std::erase_if(m_notify, [&](const auto& target) { return target.second.instance == &instance; });
}

} // namespace Console
