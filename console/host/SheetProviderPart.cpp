#include "SheetProviderPart.h"

#include "ViewState.h"

namespace Console
{

using Microsoft::WRL::ComPtr;

namespace
{

bool sameObject(IUnknown* left, IUnknown* right)
{
    ComPtr<IUnknown> leftIdentity;
    ComPtr<IUnknown> rightIdentity;
    return left != nullptr && right != nullptr && SUCCEEDED(left->QueryInterface(IID_PPV_ARGS(&leftIdentity))) &&
           SUCCEEDED(right->QueryInterface(IID_PPV_ARGS(&rightIdentity))) && leftIdentity.Get() == rightIdentity.Get();
}

} // namespace

Instance* SheetProviderPart::instanceOf(IUnknown* extension) const
{
    HostState& host = *m_whole.owner().host;
    for (const std::unique_ptr<SnapIn>& snapIn : host.snapIns)
    {
        Instance& instance = snapIn->instance();
        if (!instance.ready())
        {
            continue;
        }
        if (sameObject(extension, instance.data()))
        {
            return &instance;
        }
        for (const ViewState* view : host.views)
        {
            const Component* const component = view->componentOf(instance);
            if (component != nullptr && sameObject(extension, component->get()))
            {
                return &instance;
            }
        }
    }
    return m_whole.owner().instance;
}

void SheetProviderPart::discard()
{
    if (m_object != nullptr)
    {
        m_object->Release();
        m_object = nullptr;
    }
    m_pages = {};
    m_begun = false;
    m_instance = nullptr;
}

HRESULT SheetProviderPart::CreatePropertySheet(LPCWSTR title, boolean type, MMC_COOKIE cookie, LPDATAOBJECT object,
                                               DWORD options)
{
    return m_whole.answer(
        L"IPropertySheetProvider::CreatePropertySheet",
        [&] { return listOf(L"title", title, L"type", static_cast<int>(type), L"cookie", cookie, L"object", object); },
        [&]
        {
            if (title == nullptr)
            {
                return E_POINTER;
            }
            discard();
            m_begun = true;
            m_options = {title, options, type == FALSE, 0};
            if (!IS_SPECIAL_DATAOBJECT(object))
            {
                m_object = object;
                m_object->AddRef();
            }
            return S_OK;
        });
}

HRESULT SheetProviderPart::FindPropertySheet(MMC_COOKIE cookie, LPCOMPONENT component, LPDATAOBJECT object)
{
    return m_whole.answer(
        L"IPropertySheetProvider::FindPropertySheet",
        [&] { return listOf(L"cookie", cookie, L"component", component, L"object", object); },
        [&]
        {
            for (const std::unique_ptr<SnapIn>& snapIn : m_whole.owner().host->snapIns)
            {
                Instance& instance = snapIn->instance();
                const bool asked = component == nullptr || instanceOf(component) == &instance;
                if (instance.ready() && asked &&
                    m_whole.owner().host->sheets->bringToFront(instance, component, object))
                {
                    return S_OK;
                }
            }
            return S_FALSE;
        });
}

HRESULT SheetProviderPart::AddPrimaryPages(LPUNKNOWN extension, WINBOOL createHandle, HWND notifyWindow,
                                           WINBOOL scopePane)
{
    return m_whole.answer(
        L"IPropertySheetProvider::AddPrimaryPages",
        [&] { return listOf(L"extension", extension, L"createHandle", createHandle, L"notify", notifyWindow); },
        [&]
        {
            if (extension == nullptr)
            {
                return E_POINTER;
            }
            m_instance = instanceOf(extension);
            if (!m_begun || m_instance == nullptr)
            {
                return m_begun ? E_INVALIDARG : E_UNEXPECTED;
            }
            return m_whole.owner().host->sheets->collect(*m_instance, m_whole.owner().view, extension, m_object,
                                                         createHandle != FALSE, scopePane != FALSE, m_pages);
        });
}

HRESULT SheetProviderPart::AddExtensionPages()
{
    // No snap-in extends another one in this console.
    return m_whole.answer(L"IPropertySheetProvider::AddExtensionPages", noArguments,
                          [&] { return m_begun ? S_OK : E_UNEXPECTED; });
}

HRESULT SheetProviderPart::Show(LONG_PTR window, int page)
{
    return m_whole.answer(
        L"IPropertySheetProvider::Show", [&] { return listOf(L"window", window, L"page", page); },
        [&]
        {
            if (!m_begun)
            {
                return E_UNEXPECTED;
            }
            if (window == -1 || m_pages.empty() || m_instance == nullptr)
            {
                const HRESULT result = window == -1 ? S_OK : E_UNEXPECTED;
                discard();
                return result;
            }
            m_options.startPage = page;
            DataObject object = m_object == nullptr ? DataObject() : DataObject(*m_instance, m_object);
            m_object = nullptr;
            Instance& instance = *m_instance;
            PropertyPages pages = std::move(m_pages);
            discard();
            m_whole.owner().host->sheets->show(instance, m_whole.owner().view, m_options, std::move(pages),
                                               std::move(object), reinterpret_cast<HWND>(window));
            return S_OK;
        });
}

} // namespace Console
