#pragma once

#include "platform/mmc.h"

#include <wrl/client.h>

#include "tmgmt/snapin/ComObject.h"
#include "tmgmt/snapin/Console.h"
#include "tmgmt/snapin/DataObject.h"

namespace TMgmt
{

// The component-data object of a plug-in whose tree hangs below one static node. It finds the node that a call is
// about and hands the call to it; what the tree is, the derived class knows.
class ComponentDataBase : public ComObject<IComponentData, IExtendContextMenu>
{
  public:
    // IComponentData
    HRESULT STDMETHODCALLTYPE Initialize(IUnknown* console) override;
    HRESULT STDMETHODCALLTYPE CreateComponent(IComponent** component) override;
    HRESULT STDMETHODCALLTYPE Notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param) override;
    HRESULT STDMETHODCALLTYPE Destroy() override;
    HRESULT STDMETHODCALLTYPE QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type, IDataObject** object) override;
    HRESULT STDMETHODCALLTYPE GetDisplayInfo(SCOPEDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE CompareObjects(IDataObject* a, IDataObject* b) override;

    // IExtendContextMenu
    HRESULT STDMETHODCALLTYPE AddMenuItems(IDataObject* object, IContextMenuCallback* menu, LONG* allowed) override;
    HRESULT STDMETHODCALLTYPE Command(LONG command, IDataObject* object) override;

    // The node of that cookie; 0 is the static node. Throws ComError.
    Core::SmartPtr<CSnapInItem> item(MMC_COOKIE cookie);
    // The console that the tree belongs to; null before Initialize and after Destroy.
    const Microsoft::WRL::ComPtr<IConsole>& treeConsole() const noexcept { return m_console; }

  protected:
    virtual CSnapInItem& staticNode() = 0;
    // The console has been met: time to give it the tree's pictures. Throws what Initialize shall answer.
    virtual void onInitialize(IConsole& console) = 0;
    // A new view's component, with one reference for the caller.
    virtual IComponent* newComponent() = 0;

  private:
    Console console() { return Console(m_console); }

    Microsoft::WRL::ComPtr<IConsole> m_console;
};

} // namespace TMgmt
