#pragma once

#include "floor/FloorData.h"

#include <string>
#include <vector>

namespace Bench
{

// The floor in one view: lists what a node's read function gives.
class FloorComponent final : public ComObject<IComponent>
{
  public:
    explicit FloorComponent(FloorData& data) : m_data(data) {}

    HRESULT STDMETHODCALLTYPE Initialize(LPCONSOLE console) override;
    HRESULT STDMETHODCALLTYPE Notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param) override;
    HRESULT STDMETHODCALLTYPE Destroy(MMC_COOKIE cookie) override;
    HRESULT STDMETHODCALLTYPE QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type, LPDATAOBJECT* object) override;
    HRESULT STDMETHODCALLTYPE GetResultViewType(MMC_COOKIE cookie, LPOLESTR* type, __LONG32* options) override;
    HRESULT STDMETHODCALLTYPE GetDisplayInfo(RESULTDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE CompareObjects(LPDATAOBJECT left, LPDATAOBJECT right) override;

  private:
    HRESULT show(const FloorNode& node);
    HRESULT list(const FloorNode& node);
    HRESULT enableRefresh();

    FloorData& m_data; // outlives its views in every console
    Microsoft::WRL::ComPtr<IConsole2> m_console;
    Microsoft::WRL::ComPtr<IHeaderCtrl> m_header;
    Microsoft::WRL::ComPtr<IResultData> m_rows;
    std::vector<std::wstring> m_cells;
    std::size_t m_columns = 1;
};

} // namespace Bench
