#pragma once

#include "frame/doubles/ComDouble.h"

#include <map>
#include <string>
#include <vector>

namespace Acceptance
{

// A data object of somebody else: of another snap-in, or the console's own for a selection of several rows. GetData
// answers with copies of what it was given.
class DataObjectDouble final : public ComDouble<IDataObject>
{
  public:
    // Several data objects as the console puts them together. count: what it claims to hold; size: of the memory.
    void answerComposite(const std::vector<IDataObject*>& parts, DWORD count, std::size_t size);
    void answerComposite(const std::vector<IDataObject*>& parts);

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override;
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return DV_E_FORMATETC; }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC*) override { return DV_E_FORMATETC; }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }

  private:
    std::map<CLIPFORMAT, std::vector<unsigned char>> m_answers;
};

} // namespace Acceptance
