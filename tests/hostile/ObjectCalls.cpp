#include "Mischief.h"

#include "kit/ConsoleTest.h"
#include "platform/handles.h"

#include <array>

using Microsoft::WRL::ComPtr;

// The calls to data objects and to the objects that a console makes without a tree.
namespace Hostile
{
namespace
{

// Interfaces that the plug-in has, and some that it does not have.
const std::array interfaces{__uuidof(IUnknown),
                            __uuidof(IComponentData),
                            __uuidof(IComponent),
                            __uuidof(IExtendContextMenu),
                            __uuidof(IExtendControlbar),
                            __uuidof(IExtendPropertySheet),
                            __uuidof(IExtendPropertySheet2),
                            __uuidof(IResultDataCompare),
                            __uuidof(IResultOwnerData),
                            __uuidof(ISnapinAbout),
                            __uuidof(ISnapinHelp2),
                            __uuidof(IDataObject),
                            __uuidof(IClassFactory),
                            __uuidof(IPersistStream),
                            __uuidof(IPersistStorage),
                            GUID{}};

constexpr std::array formats{L"CCF_NODETYPE",
                             L"CCF_SZNODETYPE",
                             L"CCF_DISPLAY_NAME",
                             L"CCF_SNAPIN_CLASSID",
                             L"CCF_NODEID2",
                             L"CCF_COLUMN_SET_ID",
                             L"CCF_SNAPIN_PRELOADS",
                             L"CCF_WINDOW_TITLE",
                             L"CCF_OBJECT_TYPES_IN_MULTI_SELECT",
                             L"CCF_MULTI_SELECT_SNAPINS",
                             L"CCF_MMC_MULTISELECT_DATAOBJECT"};

} // namespace

FORMATETC Mischief::anyFormat()
{
    const auto known = static_cast<CLIPFORMAT>(RegisterClipboardFormatW(m_whim.oneOf(formats)));
    const auto other = static_cast<CLIPFORMAT>(m_whim.below(0x10000));
    return {m_whim.oneIn(4) ? other : known, nullptr, static_cast<DWORD>(m_whim.below(9)),
            static_cast<LONG>(m_whim.below(3)) - 1,
            m_whim.oneIn(4) ? static_cast<DWORD>(m_whim.below(0x100)) : DWORD{TYMED_HGLOBAL}};
}

HRESULT Mischief::getData()
{
    const auto object = anyInstance()->object(anyCookie());
    if (!object)
    {
        return S_FALSE;
    }
    FORMATETC format = anyFormat();
    platform::StorageMedium medium;
    return object->GetData(m_whim.oneIn(16) ? nullptr : &format, m_whim.oneIn(16) ? nullptr : medium.get());
}

HRESULT Mischief::getDataHere()
{
    const auto object = anyInstance()->object(anyCookie());
    if (!object)
    {
        return S_FALSE;
    }
    FORMATETC format = anyFormat();
    constexpr std::array<SIZE_T, 4> sizes{1, 16, 78, 512};
    platform::StorageMedium medium;
    medium->tymed = m_whim.oneIn(8) ? DWORD{TYMED_NULL} : DWORD{TYMED_HGLOBAL};
    medium->hGlobal =
        medium->tymed == TYMED_NULL || m_whim.oneIn(8) ? nullptr : GlobalAlloc(GMEM_MOVEABLE, m_whim.oneOf(sizes));
    return object->GetDataHere(m_whim.oneIn(16) ? nullptr : &format, m_whim.oneIn(16) ? nullptr : medium.get());
}

HRESULT Mischief::queryGetData()
{
    const auto object = anyInstance()->object(anyCookie());
    FORMATETC format = anyFormat();
    return object ? object->QueryGetData(m_whim.oneIn(16) ? nullptr : &format) : S_FALSE;
}

HRESULT Mischief::otherDataMethods()
{
    const auto object = anyInstance()->object(anyCookie());
    if (!object)
    {
        return S_FALSE;
    }
    FORMATETC format = anyFormat();
    FORMATETC canonical{};
    platform::StorageMedium medium;
    ComPtr<IEnumFORMATETC> enumerated;
    ComPtr<IEnumSTATDATA> sinks;
    DWORD connection = 0;
    switch (m_whim.below(6))
    {
    case 0:
        return object->GetCanonicalFormatEtc(m_whim.oneIn(4) ? nullptr : &format,
                                             m_whim.oneIn(4) ? nullptr : &canonical);
    case 1:
        return object->SetData(&format, medium.get(), FALSE);
    case 2:
        return object->EnumFormatEtc(DATADIR_GET, m_whim.oneIn(4) ? nullptr : enumerated.GetAddressOf());
    case 3:
        return object->DAdvise(&format, 0, nullptr, m_whim.oneIn(4) ? nullptr : &connection);
    case 4:
        return object->DUnadvise(static_cast<DWORD>(m_whim.below(3)));
    default:
        return object->EnumDAdvise(m_whim.oneIn(4) ? nullptr : sinks.GetAddressOf());
    }
}

HRESULT Mischief::queryInterface()
{
    const Seat seat = anySeat();
    Object owner = seat.instance->object(0);
    const std::array<IUnknown*, 3> objects{seat.instance->data.Get(), seat.view->component.Get(), owner.Get()};
    ComPtr<IUnknown> found;
    return m_whim.oneOf(objects)->QueryInterface(
        m_whim.oneOf(interfaces), m_whim.oneIn(8) ? nullptr : reinterpret_cast<void**>(found.GetAddressOf()));
}

HRESULT Mischief::about()
{
    ComPtr<ISnapinAbout> about;
    const HRESULT created =
        CoCreateInstance(Acceptance::aboutClass, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(about.GetAddressOf()));
    if (FAILED(created))
    {
        return created;
    }
    const bool withNull = m_whim.oneIn(4);
    platform::TaskString text;
    LPOLESTR* const out = withNull ? nullptr : text.put();
    HICON icon = nullptr;
    HBITMAP pictures[3]{};
    COLORREF mask = 0;
    switch (m_whim.below(5))
    {
    case 0:
        return about->GetSnapinDescription(out);
    case 1:
        return about->GetProvider(out);
    case 2:
        return about->GetSnapinVersion(out);
    case 3:
        return about->GetSnapinImage(withNull ? nullptr : &icon);
    default:
        return about->GetStaticFolderImage(&pictures[0], &pictures[1], withNull ? nullptr : &pictures[2], &mask);
    }
}

HRESULT Mischief::classFactory()
{
    ComPtr<IClassFactory> factory;
    const HRESULT got = CoGetClassObject(m_whim.oneIn(2) ? Acceptance::snapInClass : Acceptance::aboutClass,
                                         CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(factory.GetAddressOf()));
    if (FAILED(got))
    {
        return got;
    }
    ComPtr<IUnknown> made;
    switch (m_whim.below(4))
    {
    case 0:
        return factory->CreateInstance(nullptr, IID_IUnknown, nullptr);
    case 1:
        return factory->CreateInstance(factory.Get(), IID_IUnknown, &made);
    case 2:
        factory->LockServer(TRUE);
        return factory->LockServer(FALSE);
    default:
        return factory->CreateInstance(nullptr, __uuidof(IResultOwnerData),
                                       reinterpret_cast<void**>(made.GetAddressOf()));
    }
}

} // namespace Hostile
