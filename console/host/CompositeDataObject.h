#pragma once

#include "Face.h"

#include <objidl.h>

namespace Console
{

// The console's own data object for a selection of several rows: says that it is one, and hands out the snap-in's own
// multi-select object. A list's rows all belong to one snap-in here, so there is always one such object.
class CompositeDataObject final : public Face<IDataObject>
{
  public:
    // Borrows the snap-in's object, which must outlive this one's use.
    CompositeDataObject(const FaceOwner& owner, IDataObject* object)
        : Face(owner, L"a multi-select data object"), m_object(object)
    {
    }

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override;
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return DV_E_FORMATETC; }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override;
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override
    {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

  private:
    IDataObject* m_object;
};

} // namespace Console
