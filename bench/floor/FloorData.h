#pragma once

#include "floor/ComObject.h"
#include "floor/FloorNode.h"

#include <wrl/client.h>

namespace Bench
{

// The floor in a console: inserts the nodes of its tree. Cookies of nodes are their addresses, 0 is the root.
class FloorData final : public ComObject<IComponentData>
{
  public:
    explicit FloorData(const FloorNode& root) : m_root(root) {}

    const FloorNode& nodeOf(MMC_COOKIE cookie) const;

    HRESULT STDMETHODCALLTYPE Initialize(LPUNKNOWN console) override;
    HRESULT STDMETHODCALLTYPE CreateComponent(LPCOMPONENT* component) override;
    HRESULT STDMETHODCALLTYPE Notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param) override;
    HRESULT STDMETHODCALLTYPE Destroy() override;
    HRESULT STDMETHODCALLTYPE QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type, LPDATAOBJECT* object) override;
    HRESULT STDMETHODCALLTYPE GetDisplayInfo(SCOPEDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE CompareObjects(LPDATAOBJECT left, LPDATAOBJECT right) override;

  private:
    const FloorNode& m_root;
    Microsoft::WRL::ComPtr<IConsoleNameSpace2> m_nameSpace;
};

} // namespace Bench
