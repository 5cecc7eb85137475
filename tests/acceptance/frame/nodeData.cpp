#include "frame/nodeData.h"

#include "kit/windows.h"
#include "platform/handles.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

namespace Acceptance
{
namespace
{

constexpr std::size_t enough = 512;

std::vector<unsigned char> answer(IDataObject* object, const wchar_t* format)
{
    std::vector<unsigned char> bytes;
    if (const HRESULT result = dataHere(object, format, enough, bytes); result != S_OK)
    {
        throw std::runtime_error("a data object does not answer " + narrow(format) + ": " + std::to_string(result));
    }
    return bytes;
}

GUID guidAnswer(IDataObject* object, const wchar_t* format)
{
    GUID guid{};
    std::memcpy(&guid, answer(object, format).data(), sizeof guid);
    return guid;
}

std::wstring textAnswer(IDataObject* object, const wchar_t* format)
{
    const auto bytes = answer(object, format);
    std::array<wchar_t, enough / sizeof(wchar_t)> characters{};
    std::memcpy(characters.data(), bytes.data(), bytes.size());
    return {characters.begin(), std::ranges::find(characters, L'\0')};
}

} // namespace

FORMATETC formatOf(const wchar_t* name)
{
    return {static_cast<CLIPFORMAT>(RegisterClipboardFormatW(name)), nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

HRESULT dataHere(IDataObject* object, const wchar_t* format, std::size_t size, std::vector<unsigned char>& bytes)
{
    const platform::GlobalMemory memory(GlobalAlloc(GMEM_FIXED, size));
    std::memset(memory.get(), 0xEE, size);
    FORMATETC wanted = formatOf(format);
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = memory.get();
    const HRESULT result = object->GetDataHere(&wanted, &medium);
    const auto* const begin = static_cast<const unsigned char*>(memory.get());
    bytes.assign(begin, begin + size);
    return result;
}

GUID nodeTypeOf(IDataObject* object)
{
    return guidAnswer(object, L"CCF_NODETYPE");
}

GUID classIdOf(IDataObject* object)
{
    return guidAnswer(object, L"CCF_SNAPIN_CLASSID");
}

std::wstring nodeTypeTextOf(IDataObject* object)
{
    return textAnswer(object, L"CCF_SZNODETYPE");
}

std::wstring displayNameOf(IDataObject* object)
{
    return textAnswer(object, L"CCF_DISPLAY_NAME");
}

std::wstring text(const GUID& guid)
{
    std::array<wchar_t, 40> text{};
    StringFromGUID2(guid, text.data(), static_cast<int>(text.size()));
    return text.data();
}

GUID guid(const std::wstring& text)
{
    GUID guid{};
    if (FAILED(CLSIDFromString(text.c_str(), &guid)))
    {
        throw std::runtime_error("no identifier: " + narrow(text));
    }
    return guid;
}

} // namespace Acceptance
