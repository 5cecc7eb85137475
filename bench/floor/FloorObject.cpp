#include "floor/FloorObject.h"

#include <cstring>

namespace Bench
{

const CLSID floorClass{0x0E0A5F5D, 0x6C5B, 0x4B0C, {0x9D, 0x5A, 0x8C, 0x53, 0x1B, 0x52, 0x7E, 0x11}};

namespace
{

constexpr GUID nodeType{0x2B6A7E43, 0x91D1, 0x4F6A, {0xA3, 0x31, 0x5C, 0x0E, 0x66, 0x0F, 0x42, 0x90}};

HRESULT put(HGLOBAL memory, const void* bytes, std::size_t size)
{
    if (GlobalSize(memory) < size)
    {
        return STG_E_MEDIUMFULL;
    }
    std::memcpy(GlobalLock(memory), bytes, size);
    GlobalUnlock(memory);
    return S_OK;
}

} // namespace

HRESULT FloorObject::GetDataHere(FORMATETC* format, STGMEDIUM* medium)
{
    static const UINT typeFormat = RegisterClipboardFormatW(CCF_NODETYPE);
    static const UINT classFormat = RegisterClipboardFormatW(CCF_SNAPIN_CLASSID);
    static const UINT nameFormat = RegisterClipboardFormatW(CCF_DISPLAY_NAME);
    if (format->cfFormat == typeFormat)
    {
        return put(medium->hGlobal, &nodeType, sizeof nodeType);
    }
    if (format->cfFormat == classFormat)
    {
        return put(medium->hGlobal, &floorClass, sizeof floorClass);
    }
    if (format->cfFormat == nameFormat && m_node)
    {
        return put(medium->hGlobal, m_node->name.c_str(), (m_node->name.size() + 1) * sizeof(wchar_t));
    }
    return DV_E_FORMATETC;
}

} // namespace Bench
