#pragma once

#include "Object.h"

#include <map>
#include <string>

namespace Foreign
{

class ComponentData final : public Object<IComponentData, IExtendContextMenu, IExtendPropertySheet>
{
  public:
    HRESULT STDMETHODCALLTYPE Initialize(LPUNKNOWN console) override;
    HRESULT STDMETHODCALLTYPE CreateComponent(LPCOMPONENT* component) override;
    HRESULT STDMETHODCALLTYPE Notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param) override;
    HRESULT STDMETHODCALLTYPE Destroy() override;
    HRESULT STDMETHODCALLTYPE QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type, LPDATAOBJECT* object) override;
    HRESULT STDMETHODCALLTYPE GetDisplayInfo(SCOPEDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE CompareObjects(LPDATAOBJECT left, LPDATAOBJECT right) override;

    HRESULT STDMETHODCALLTYPE AddMenuItems(LPDATAOBJECT object, LPCONTEXTMENUCALLBACK callback,
                                           __LONG32* allowed) override;
    HRESULT STDMETHODCALLTYPE Command(__LONG32 command, LPDATAOBJECT object) override;

    HRESULT STDMETHODCALLTYPE CreatePropertyPages(LPPROPERTYSHEETCALLBACK callback, LONG_PTR handle,
                                                  LPDATAOBJECT object) override;
    HRESULT STDMETHODCALLTYPE QueryPagesFor(LPDATAOBJECT object) override;

    std::wstring childName(MMC_COOKIE cookie) const;
    HSCOPEITEM handleOf(MMC_COOKIE cookie) const;
    IConsoleNameSpace2* nameSpace() const { return m_nameSpace.Get(); }
    IConsole* console() const { return m_console.Get(); }
    HRESULT insertChild(MMC_COOKIE cookie, HSCOPEITEM relative, DWORD position);

  private:
    HRESULT expand(HSCOPEITEM item, MMC_COOKIE cookie);
    void tryBadHandles();

    Microsoft::WRL::ComPtr<IConsole2> m_console;
    Microsoft::WRL::ComPtr<IConsoleNameSpace2> m_nameSpace;
    std::map<MMC_COOKIE, HSCOPEITEM> m_handles;
    std::map<MMC_COOKIE, std::wstring> m_names;
    std::wstring m_text;
};

} // namespace Foreign
