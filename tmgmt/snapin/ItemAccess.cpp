#include "tmgmt/snapin/ItemAccess.h"

#include "platform/handles.h"

#include <optional>

#include "tmgmt/snapin/ClipboardFormats.h"
#include "tmgmt/snapin/guard.h"

namespace TMgmt
{
namespace
{

std::optional<Selection> ownSelection(IDataObject* object)
{
    Microsoft::WRL::ComPtr<ISnapInSelection> own;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(own.GetAddressOf()))))
    {
        return std::nullopt;
    }
    return own->selection();
}

// Gives medium the object's global memory in that format.
bool getMemory(IDataObject* object, CLIPFORMAT format, platform::StorageMedium& medium)
{
    FORMATETC wanted{format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    return SUCCEEDED(object->GetData(&wanted, medium.get())) && medium->tymed == TYMED_HGLOBAL && medium->hGlobal;
}

std::optional<Selection> selectionOfComposite(IDataObject* object)
{
    platform::StorageMedium medium;
    if (!getMemory(object, clipboardFormats.multiSelectSnapIns, medium))
    {
        return std::nullopt;
    }
    const SIZE_T size = GlobalSize(medium->hGlobal);
    const auto* const parts = static_cast<const SMMCDataObjects*>(GlobalLock(medium->hGlobal));
    if (!parts)
    {
        return std::nullopt;
    }
    constexpr SIZE_T firstPart = offsetof(SMMCDataObjects, lpDataObject);
    // What the memory holds, whatever the count in it claims.
    const SIZE_T room = size < firstPart ? 0 : (size - firstPart) / sizeof(LPDATAOBJECT);
    std::optional<Selection> selection;
    for (SIZE_T i = 0; !selection && i < room && i < parts->count; ++i)
    {
        if (!IS_SPECIAL_DATAOBJECT(parts->lpDataObject[i]))
        {
            selection = ownSelection(parts->lpDataObject[i]);
        }
    }
    GlobalUnlock(medium->hGlobal);
    return selection;
}

} // namespace

Core::SmartPtr<CSnapInItem> itemOfCookie(MMC_COOKIE cookie)
{
    CSnapInItem* const item = Module::instance().nodes().find(cookie);
    if (!item)
    {
        throw ComError(E_INVALIDARG);
    }
    return Core::SmartPtr<CSnapInItem>(item);
}

Selection selectionOf(IDataObject* object)
{
    // The small negative numbers that the console passes for "no object" count as special too, and so does null.
    if (IS_SPECIAL_DATAOBJECT(object))
    {
        throw ComError(E_POINTER);
    }
    if (auto selection = ownSelection(object))
    {
        return *selection;
    }
    if (auto selection = selectionOfComposite(object))
    {
        return *selection;
    }
    throw ComError(E_UNEXPECTED);
}

} // namespace TMgmt
