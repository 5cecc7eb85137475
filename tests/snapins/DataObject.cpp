#include "Object.h"

#include <cstring>
#include <string>

namespace Foreign
{

namespace
{

constexpr wchar_t privateFormat[] = L"ForeignSnapInPrivate";

struct Facts
{
    Kind kind;
    MMC_COOKIE cookie;
    int count;
};

bool isFormat(const FORMATETC& format, const wchar_t* name)
{
    return format.cfFormat == RegisterClipboardFormatW(name);
}

HRESULT write(HGLOBAL memory, const void* bytes, std::size_t size)
{
    if (GlobalSize(memory) < size)
    {
        return STG_E_MEDIUMFULL;
    }
    std::memcpy(GlobalLock(memory), bytes, size);
    GlobalUnlock(memory);
    return S_OK;
}

HRESULT give(STGMEDIUM& medium, const void* bytes, std::size_t size)
{
    medium.tymed = TYMED_HGLOBAL;
    medium.pUnkForRelease = nullptr;
    medium.hGlobal = GlobalAlloc(GMEM_MOVEABLE, size);
    return write(medium.hGlobal, bytes, size);
}

class DataObject final : public Object<IDataObject>
{
  public:
    explicit DataObject(const Facts& facts) : m_facts(facts) {}

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override
    {
        if (isFormat(*format, privateFormat))
        {
            return give(*medium, &m_facts, sizeof m_facts);
        }
        if (isFormat(*format, CCF_OBJECT_TYPES_IN_MULTI_SELECT) && m_facts.kind == Kind::rows)
        {
            const SMMCObjectTypes types{1, {rowType}};
            return give(*medium, &types, sizeof types);
        }
        return DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC* format, STGMEDIUM* medium) override
    {
        const GUID& type = m_facts.kind == Kind::node ? nodeType : rowType;
        if (isFormat(*format, CCF_NODETYPE) && m_facts.kind != Kind::rows)
        {
            return write(medium->hGlobal, &type, sizeof type);
        }
        if (isFormat(*format, CCF_SNAPIN_CLASSID))
        {
            return write(medium->hGlobal, &snapInClass, sizeof snapInClass);
        }
        if (isFormat(*format, CCF_DISPLAY_NAME))
        {
            const std::wstring name = m_facts.cookie == 0 ? L"Foreign root" : L"Foreign thing";
            return write(medium->hGlobal, name.c_str(), (name.size() + 1) * sizeof(wchar_t));
        }
        return DV_E_CLIPFORMAT;
    }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }

  private:
    Facts m_facts;
};

template <class Read>
bool readFormat(IDataObject* object, const wchar_t* name, Read&& read)
{
    FORMATETC format{static_cast<CLIPFORMAT>(RegisterClipboardFormatW(name)), nullptr, DVASPECT_CONTENT, -1,
                     TYMED_HGLOBAL};
    STGMEDIUM medium{};
    if (IS_SPECIAL_DATAOBJECT(object) || object->GetData(&format, &medium) != S_OK)
    {
        return false;
    }
    read(GlobalLock(medium.hGlobal));
    GlobalUnlock(medium.hGlobal);
    ReleaseStgMedium(&medium);
    return true;
}

} // namespace

IDataObject* makeDataObject(Kind kind, MMC_COOKIE cookie, int count)
{
    return new DataObject({kind, cookie, count});
}

bool isComposite(IDataObject* object)
{
    DWORD composite = 0;
    return readFormat(object, CCF_MMC_MULTISELECT_DATAOBJECT,
                      [&](const void* data) { std::memcpy(&composite, data, sizeof composite); }) &&
           composite != 0;
}

bool readDataObject(IDataObject* object, Kind& kind, MMC_COOKIE& cookie, int& count)
{
    Facts facts{};
    bool found = false;
    if (isComposite(object))
    {
        readFormat(object, CCF_MULTI_SELECT_SNAPINS,
                   [&](const void* data)
                   {
                       const auto& objects = *static_cast<const SMMCDataObjects*>(data);
                       found = objects.count == 1 && readDataObject(objects.lpDataObject[0], kind, cookie, count);
                   });
        return found;
    }
    found = readFormat(object, privateFormat, [&](const void* data) { std::memcpy(&facts, data, sizeof facts); });
    kind = facts.kind;
    cookie = facts.cookie;
    count = facts.count;
    return found;
}

} // namespace Foreign
