#include "tmgmt/snapin/ComponentDataBase.h"

#include "tmgmt/snapin/ItemAccess.h"
#include "tmgmt/snapin/guard.h"
#include "tmgmt/snapin/notifyItems.h"

using Microsoft::WRL::ComPtr;

namespace TMgmt
{

HRESULT ComponentDataBase::Initialize(IUnknown* console)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!console)
            {
                return E_POINTER;
            }
            ComPtr<IConsole> found;
            throwIfFailed(console->QueryInterface(IID_PPV_ARGS(found.GetAddressOf())));
            onInitialize(*found.Get());
            m_console = found;
            return S_OK;
        });
}

HRESULT ComponentDataBase::CreateComponent(IComponent** component)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!component)
            {
                return E_POINTER;
            }
            *component = nullptr;
            *component = newComponent();
            return S_OK;
        });
}

HRESULT ComponentDataBase::Notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!isDispatched(event))
            {
                return E_NOTIMPL;
            }
            const ComPtr<IUnknown> self(static_cast<IComponentData*>(this));
            const Selection selection = selectionOf(object);
            Console caller = console();
            return notifyItems(selection, event, arg, param, caller);
        });
}

HRESULT ComponentDataBase::Destroy()
{
    m_console.Reset();
    return S_OK;
}

HRESULT ComponentDataBase::QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type, IDataObject** object)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!object)
            {
                return E_POINTER;
            }
            *object = nullptr;
            *object = item(cookie)->GetDataObject(type).Detach();
            return S_OK;
        });
}

HRESULT ComponentDataBase::GetDisplayInfo(SCOPEDATAITEM* item)
{
    return guard([&]() -> HRESULT { return item ? this->item(item->lParam)->GetScopePaneInfo(*item) : E_POINTER; });
}

HRESULT ComponentDataBase::CompareObjects(IDataObject* a, IDataObject* b)
{
    return guard([&] { return compareObjects(a, b); });
}

HRESULT ComponentDataBase::AddMenuItems(IDataObject* object, IContextMenuCallback* menu, LONG* allowed)
{
    return guard([&] { return addMenuItems(object, menu, allowed); });
}

HRESULT ComponentDataBase::Command(LONG command, IDataObject* object)
{
    return guard(
        [&]
        {
            const ComPtr<IUnknown> self(static_cast<IComponentData*>(this));
            const Selection selection = selectionOf(object);
            Console caller = console();
            return selection.items.front()->Command(command, caller, selection.type);
        });
}

Core::SmartPtr<CSnapInItem> ComponentDataBase::item(MMC_COOKIE cookie)
{
    return cookie == 0 ? Core::SmartPtr<CSnapInItem>(&staticNode()) : itemOfCookie(cookie);
}

} // namespace TMgmt
