#include "tmgmt/snapin/itemData.h"

#include "platform/handles.h"

#include <span>

#include "tmgmt/snapin/ClipboardFormats.h"
#include "tmgmt/snapin/guard.h"

namespace TMgmt
{
namespace
{

void put(const GUID& guid, std::vector<std::byte>& data)
{
    const auto bytes = std::as_bytes(std::span(&guid, 1));
    data.assign(bytes.begin(), bytes.end());
}

// With its terminating zero: the console reads up to it.
void put(const std::wstring& text, std::vector<std::byte>& data)
{
    const auto bytes = std::as_bytes(std::span(text.c_str(), text.size() + 1));
    data.assign(bytes.begin(), bytes.end());
}

// "{XXXXXXXX-…}" with braces.
std::wstring guidText(const GUID& guid)
{
    platform::TaskString text;
    throwIfFailed(StringFromIID(guid, text.put()));
    return text.get();
}

} // namespace

HRESULT fillItemData(CLIPFORMAT format, const ItemData& item, std::vector<std::byte>& data)
{
    if (format == clipboardFormats.nodeType)
    {
        put(item.nodeType, data);
    }
    else if (format == clipboardFormats.nodeTypeText)
    {
        put(guidText(item.nodeType), data);
    }
    else if (format == clipboardFormats.displayName)
    {
        put(item.displayName, data);
    }
    else if (format == clipboardFormats.snapInClassId)
    {
        put(item.snapInClassId, data);
    }
    else
    {
        return DV_E_CLIPFORMAT;
    }
    return S_OK;
}

} // namespace TMgmt
