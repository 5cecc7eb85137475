#pragma once

#include "platform/mmc.h"

#include <wrl/client.h>

#include <memory>

#include "tmgmt/snapin/ComponentDataBase.h"
#include "tmgmt/snapin/ControlbarSite.h"
#include "tmgmt/snapin/ViewRows.h"

namespace TMgmt
{

// The component object of one console view: finds the node that a call is about, hands the call to it, and knows what
// the view shows.
class ComponentBase : public ComObject<IComponent, IExtendContextMenu, IExtendControlbar>
{
  public:
    // IComponent
    HRESULT STDMETHODCALLTYPE Initialize(IConsole* console) override;
    HRESULT STDMETHODCALLTYPE Notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param) override;
    HRESULT STDMETHODCALLTYPE Destroy(MMC_COOKIE cookie) override;
    HRESULT STDMETHODCALLTYPE QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type, IDataObject** object) override;
    HRESULT STDMETHODCALLTYPE GetResultViewType(MMC_COOKIE cookie, LPOLESTR* viewType, LONG* options) override;
    HRESULT STDMETHODCALLTYPE GetDisplayInfo(RESULTDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE CompareObjects(IDataObject* a, IDataObject* b) override;

    // IExtendContextMenu
    HRESULT STDMETHODCALLTYPE AddMenuItems(IDataObject* object, IContextMenuCallback* menu, LONG* allowed) override;
    HRESULT STDMETHODCALLTYPE Command(LONG command, IDataObject* object) override;

    // IExtendControlbar
    HRESULT STDMETHODCALLTYPE SetControlbar(IControlbar* controlbar) override;
    HRESULT STDMETHODCALLTYPE ControlbarNotify(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param) override;

  protected:
    explicit ComponentBase(ComponentDataBase& data) : m_data(&data) {}

  private:
    Console console();
    HRESULT onShow(const Selection& selection, LPARAM selecting, LPARAM scopeItem, Console& console);
    bool isConcernedBy(const CSnapInItem& changed) const noexcept;

    Microsoft::WRL::ComPtr<ComponentDataBase> m_data;
    Microsoft::WRL::ComPtr<IConsole> m_console;
    std::shared_ptr<ViewRows> m_rows = std::make_shared<ViewRows>();
    ControlbarSite m_controlbar{*this};
};

} // namespace TMgmt
