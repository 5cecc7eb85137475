#include "DataObject.h"

#include "Instance.h"

#include <cstddef>
#include <cstring>

namespace Console
{

namespace
{

FORMATETC formatOf(const wchar_t* format)
{
    return {static_cast<CLIPFORMAT>(RegisterClipboardFormatW(format)), nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

std::vector<BYTE> bytesOf(HGLOBAL memory)
{
    std::vector<BYTE> bytes(GlobalSize(memory));
    if (const void* const start = GlobalLock(memory); start != nullptr)
    {
        std::memcpy(bytes.data(), start, bytes.size());
        GlobalUnlock(memory);
    }
    return bytes;
}

} // namespace

DataObject::~DataObject()
{
    if (m_object != nullptr)
    {
        m_instance->call(0, L"IDataObject::Release", noArguments,
                         [this]
                         {
                             m_object->Release();
                             return S_OK;
                         });
    }
}

std::vector<BYTE> DataObject::dataHere(const wchar_t* format) const
{
    if (m_object == nullptr)
    {
        return {};
    }
    // Snap-ins of every age write strings without asking for the size, so there is room to spare.
    const platform::GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 4096));
    FORMATETC request = formatOf(format);
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = memory.get();
    const HRESULT result = m_instance->call(
        0, L"IDataObject::GetDataHere", [&] { return listOf(L"format", format); },
        [&] { return m_object->GetDataHere(&request, &medium); });
    return SUCCEEDED(result) && memory ? bytesOf(memory.get()) : std::vector<BYTE>();
}

std::vector<BYTE> DataObject::data(const wchar_t* format) const
{
    if (m_object == nullptr)
    {
        return {};
    }
    FORMATETC request = formatOf(format);
    std::vector<BYTE> bytes;
    m_instance->call(
        0, L"IDataObject::GetData", [&] { return listOf(L"format", format); },
        [&]
        {
            platform::StorageMedium medium;
            const HRESULT result = m_object->GetData(&request, medium.get());
            if (result == S_OK && medium->tymed == TYMED_HGLOBAL && medium->hGlobal != nullptr)
            {
                bytes = bytesOf(medium->hGlobal);
            }
            return result;
        });
    return bytes;
}

std::wstring DataObject::text(const wchar_t* format) const
{
    const std::vector<BYTE> bytes = dataHere(format);
    std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
    return text.substr(0, text.find(L'\0'));
}

std::wstring DataObject::displayName() const
{
    return text(CCF_DISPLAY_NAME);
}

std::wstring DataObject::windowTitle() const
{
    return text(CCF_WINDOW_TITLE);
}

std::optional<GUID> DataObject::nodeType() const
{
    const std::vector<BYTE> bytes = dataHere(CCF_NODETYPE);
    if (bytes.size() < sizeof(GUID))
    {
        return std::nullopt;
    }
    GUID type;
    std::memcpy(&type, bytes.data(), sizeof type);
    return type;
}

std::vector<BYTE> DataObject::columnSet() const
{
    const std::vector<BYTE> bytes = data(CCF_COLUMN_SET_ID);
    constexpr std::size_t header = offsetof(SColumnSetID, id);
    if (bytes.size() > header)
    {
        SColumnSetID set;
        std::memcpy(&set, bytes.data(), header);
        if (set.cBytes != 0 && set.cBytes <= bytes.size() - header)
        {
            return {bytes.begin() + header, bytes.begin() + header + static_cast<std::ptrdiff_t>(set.cBytes)};
        }
    }
    const std::optional<GUID> type = nodeType();
    if (!type)
    {
        return {};
    }
    const auto* const start = reinterpret_cast<const BYTE*>(&*type);
    return {start, start + sizeof *type};
}

std::vector<GUID> DataObject::objectTypes() const
{
    const std::vector<BYTE> bytes = data(CCF_OBJECT_TYPES_IN_MULTI_SELECT);
    constexpr std::size_t header = offsetof(SMMCObjectTypes, guid);
    DWORD count = 0;
    if (bytes.size() < header)
    {
        return {};
    }
    std::memcpy(&count, bytes.data(), sizeof count);
    std::vector<GUID> types;
    for (std::size_t at = header; types.size() < count && at + sizeof(GUID) <= bytes.size(); at += sizeof(GUID))
    {
        std::memcpy(&types.emplace_back(), bytes.data() + at, sizeof(GUID));
    }
    return types;
}

} // namespace Console
