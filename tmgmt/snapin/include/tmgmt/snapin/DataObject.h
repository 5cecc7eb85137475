#pragma once

#include "platform/mmc.h"

#include <wrl/client.h>

#include <vector>

#include "brimlow/system/SmartPtr.h"
#include "tmgmt/snapin/CSnapInItem.h"
#include "tmgmt/snapin/ComObject.h"

namespace TMgmt
{

// The nodes that a call is about: one, or with several rows selected all of them.
struct Selection
{
    std::vector<Core::SmartPtr<CSnapInItem>> items;
    DATA_OBJECT_TYPES type = CCT_UNINITIALIZED;
};

// By this interface the module knows its own data objects again. It is private: no other module's object has it.
struct ISnapInSelection : public IUnknown
{
    virtual const Selection& STDMETHODCALLTYPE selection() = 0;
};

// Names one node, or several selected rows, to the console. It keeps them alive while the console holds it.
class SnapInDataObject : public ComObject<IDataObject, ISnapInSelection>
{
  public:
    static Microsoft::WRL::ComPtr<SnapInDataObject> create();

    void select(std::vector<Core::SmartPtr<CSnapInItem>> items, DATA_OBJECT_TYPES type);

    const Selection& STDMETHODCALLTYPE selection() override { return m_selection; }

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override;
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC* format, STGMEDIUM* medium) override;
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override;
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC* in, FORMATETC* out) override;
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC** formats) override;
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override
    {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA** sinks) override;

  private:
    HRESULT fill(const FORMATETC* format, std::vector<std::byte>& data);

    Selection m_selection;
};

} // namespace TMgmt

__CRT_UUID_DECL(TMgmt::ISnapInSelection, 0x6c1f0e52, 0x7a0d, 0x4d3b, 0x9b, 0x6e, 0x2f, 0x8d, 0x51, 0xc4, 0x0a, 0x77)
