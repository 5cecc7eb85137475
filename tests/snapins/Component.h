#pragma once

#include "ComponentData.h"

#include <set>
#include <vector>

namespace Foreign
{

class Component final : public Object<IComponent2, IExtendContextMenu, IExtendControlbar, IExtendPropertySheet,
                                      IResultOwnerData, IResultDataCompare>
{
  public:
    explicit Component(ComponentData& data) : m_data(&data) {}

    // Some of its interfaces are there only when the settings say so.
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;

    HRESULT STDMETHODCALLTYPE Initialize(LPCONSOLE console) override;
    HRESULT STDMETHODCALLTYPE Notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param) override;
    HRESULT STDMETHODCALLTYPE Destroy(MMC_COOKIE cookie) override;
    HRESULT STDMETHODCALLTYPE QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type, LPDATAOBJECT* object) override;
    HRESULT STDMETHODCALLTYPE GetResultViewType(MMC_COOKIE cookie, LPOLESTR* type, __LONG32* options) override;
    HRESULT STDMETHODCALLTYPE GetDisplayInfo(RESULTDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE CompareObjects(LPDATAOBJECT left, LPDATAOBJECT right) override;

    HRESULT STDMETHODCALLTYPE QueryDispatch(MMC_COOKIE cookie, DATA_OBJECT_TYPES type, LPDISPATCH* dispatch) override;
    HRESULT STDMETHODCALLTYPE GetResultViewType2(MMC_COOKIE cookie, PRESULT_VIEW_TYPE_INFO info) override;
    HRESULT STDMETHODCALLTYPE RestoreResultView(MMC_COOKIE cookie, PRESULT_VIEW_TYPE_INFO info) override;

    HRESULT STDMETHODCALLTYPE AddMenuItems(LPDATAOBJECT object, LPCONTEXTMENUCALLBACK callback,
                                           __LONG32* allowed) override;
    HRESULT STDMETHODCALLTYPE Command(__LONG32 command, LPDATAOBJECT object) override;

    HRESULT STDMETHODCALLTYPE SetControlbar(LPCONTROLBAR controlbar) override;
    HRESULT STDMETHODCALLTYPE ControlbarNotify(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param) override;

    HRESULT STDMETHODCALLTYPE CreatePropertyPages(LPPROPERTYSHEETCALLBACK callback, LONG_PTR handle,
                                                  LPDATAOBJECT object) override;
    HRESULT STDMETHODCALLTYPE QueryPagesFor(LPDATAOBJECT object) override;

    HRESULT STDMETHODCALLTYPE FindItem(LPRESULTFINDINFO what, int* found) override;
    HRESULT STDMETHODCALLTYPE CacheHint(int first, int last) override;
    HRESULT STDMETHODCALLTYPE SortItems(int column, DWORD options, LPARAM user) override;

    HRESULT STDMETHODCALLTYPE Compare(LPARAM user, MMC_COOKIE left, MMC_COOKIE right, int* result) override;

  protected:
    ~Component() override = default;
    void* findMore(REFIID id) override;

  private:
    HRESULT show(bool shown, MMC_COOKIE cookie);
    HRESULT insertRows();
    void select(bool scope, bool several);
    HRESULT removeRows(Kind kind, MMC_COOKIE cookie);
    std::vector<HRESULTITEM> selectedRows(bool count) const;

    Microsoft::WRL::ComPtr<ComponentData> m_data;
    Microsoft::WRL::ComPtr<IConsole2> m_console;
    Microsoft::WRL::ComPtr<IHeaderCtrl> m_header;
    Microsoft::WRL::ComPtr<IResultData> m_rows;
    Microsoft::WRL::ComPtr<IControlbar> m_controlbar;
    Microsoft::WRL::ComPtr<IToolbar> m_toolbar;
    Microsoft::WRL::ComPtr<IMenuButton> m_menuButton;
    std::wstring m_text;
    bool m_descending = false;
};

} // namespace Foreign
