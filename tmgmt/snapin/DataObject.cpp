#include "tmgmt/snapin/DataObject.h"

#include "platform/com.h"
#include "platform/handles.h"

#include <cstring>

#include "tmgmt/snapin/ClipboardFormats.h"
#include "tmgmt/snapin/MultiSelection.h"
#include "tmgmt/snapin/guard.h"

namespace TMgmt
{

Microsoft::WRL::ComPtr<SnapInDataObject> SnapInDataObject::create()
{
    return platform::takeReference(new SnapInDataObject);
}

void SnapInDataObject::select(std::vector<Core::SmartPtr<CSnapInItem>> items, DATA_OBJECT_TYPES type)
{
    m_selection.items = std::move(items);
    m_selection.type = type;
}

HRESULT SnapInDataObject::fill(const FORMATETC* format, std::vector<std::byte>& data)
{
    if (!format)
    {
        return E_POINTER;
    }
    if (!(format->tymed & TYMED_HGLOBAL))
    {
        return DV_E_TYMED;
    }
    if (m_selection.items.size() == 1)
    {
        return m_selection.items.front()->FillData(format->cfFormat, data);
    }
    return fillMultiSelectionData(m_selection, format->cfFormat, data);
}

HRESULT SnapInDataObject::GetData(FORMATETC* format, STGMEDIUM* medium)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!medium)
            {
                return E_POINTER;
            }
            *medium = {};
            std::vector<std::byte> data;
            const HRESULT result = fill(format, data);
            if (FAILED(result))
            {
                return result;
            }
            platform::GlobalMemory memory(GlobalAlloc(GMEM_FIXED, data.size()));
            if (!memory)
            {
                return E_OUTOFMEMORY;
            }
            std::memcpy(memory.get(), data.data(), data.size());
            medium->tymed = TYMED_HGLOBAL;
            medium->hGlobal = memory.release();
            return S_OK;
        });
}

HRESULT SnapInDataObject::GetDataHere(FORMATETC* format, STGMEDIUM* medium)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!medium)
            {
                return E_POINTER;
            }
            std::vector<std::byte> data;
            const HRESULT result = fill(format, data);
            if (FAILED(result))
            {
                return result;
            }
            if (medium->tymed != TYMED_HGLOBAL || !medium->hGlobal)
            {
                return DV_E_TYMED;
            }
            // The memory is the caller's and must not be moved to make it larger.
            if (GlobalSize(medium->hGlobal) < data.size())
            {
                return STG_E_MEDIUMFULL;
            }
            void* const memory = GlobalLock(medium->hGlobal);
            if (!memory)
            {
                return STG_E_INVALIDHANDLE;
            }
            std::memcpy(memory, data.data(), data.size());
            GlobalUnlock(medium->hGlobal);
            return S_OK;
        });
}

HRESULT SnapInDataObject::QueryGetData(FORMATETC* format)
{
    return guard(
        [&]
        {
            std::vector<std::byte> data;
            return fill(format, data);
        });
}

HRESULT SnapInDataObject::GetCanonicalFormatEtc(FORMATETC* in, FORMATETC* out)
{
    if (!in || !out)
    {
        return E_POINTER;
    }
    *out = *in;
    out->ptd = nullptr;
    return DATA_S_SAMEFORMATETC;
}

HRESULT SnapInDataObject::EnumFormatEtc(DWORD, IEnumFORMATETC** formats)
{
    if (!formats)
    {
        return E_POINTER;
    }
    *formats = nullptr;
    return E_NOTIMPL;
}

HRESULT SnapInDataObject::EnumDAdvise(IEnumSTATDATA** sinks)
{
    if (!sinks)
    {
        return E_POINTER;
    }
    *sinks = nullptr;
    return OLE_E_ADVISENOTSUPPORTED;
}

} // namespace TMgmt
