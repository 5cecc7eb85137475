#include "CompositeDataObject.h"

#include "platform/handles.h"
#include "platform/mmc.h"

#include <cstring>

namespace Console
{

namespace
{

bool isFormat(const FORMATETC& format, const wchar_t* name)
{
    return format.cfFormat == RegisterClipboardFormatW(name) && (format.tymed & TYMED_HGLOBAL) != 0;
}

template <class Value>
HRESULT give(const Value& value, STGMEDIUM& medium)
{
    platform::GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof value));
    void* const start = memory ? GlobalLock(memory.get()) : nullptr;
    if (start == nullptr)
    {
        return E_OUTOFMEMORY;
    }
    std::memcpy(start, &value, sizeof value);
    GlobalUnlock(memory.get());
    medium = {};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = memory.release();
    return S_OK;
}

} // namespace

HRESULT CompositeDataObject::GetData(FORMATETC* format, STGMEDIUM* medium)
{
    return answer(L"IDataObject::GetData", noArguments,
                  [&]
                  {
                      if (format == nullptr || medium == nullptr)
                      {
                          return E_POINTER;
                      }
                      if (isFormat(*format, CCF_MMC_MULTISELECT_DATAOBJECT))
                      {
                          return give(DWORD{1}, *medium);
                      }
                      if (isFormat(*format, CCF_MULTI_SELECT_SNAPINS))
                      {
                          // The objects in it are the reader's only as long as the medium.
                          return give(SMMCDataObjects{1, {m_object}}, *medium);
                      }
                      return DV_E_FORMATETC;
                  });
}

HRESULT CompositeDataObject::QueryGetData(FORMATETC* format)
{
    return answer(L"IDataObject::QueryGetData", noArguments,
                  [&]
                  {
                      if (format == nullptr)
                      {
                          return E_POINTER;
                      }
                      const bool known = isFormat(*format, CCF_MMC_MULTISELECT_DATAOBJECT) ||
                                         isFormat(*format, CCF_MULTI_SELECT_SNAPINS);
                      return known ? S_OK : DV_E_FORMATETC;
                  });
}

} // namespace Console
