#include "tmgmt/snapin/MultiSelection.h"

#include <commctrl.h>

#include <algorithm>
#include <cstring>

#include "tmgmt/snapin/ClipboardFormats.h"
#include "tmgmt/snapin/ItemAccess.h"
#include "tmgmt/snapin/guard.h"

namespace TMgmt
{

HRESULT fillMultiSelectionData(const Selection& selection, CLIPFORMAT format, std::vector<std::byte>& data)
{
    if (format != clipboardFormats.objectTypesInMultiSelect)
    {
        return DV_E_CLIPFORMAT;
    }
    std::vector<GUID> types;
    for (const auto& item : selection.items)
    {
        std::vector<std::byte> type;
        GUID nodeType{};
        throwIfFailed(item->FillData(clipboardFormats.nodeType, type));
        std::memcpy(&nodeType, type.data(), sizeof nodeType);
        if (std::find(types.begin(), types.end(), nodeType) == types.end())
        {
            types.push_back(nodeType);
        }
    }
    // SMMCObjectTypes: a count of 32 bits, then the identifiers.
    const auto count = static_cast<DWORD>(types.size());
    data.resize(sizeof count + types.size() * sizeof(GUID));
    std::memcpy(data.data(), &count, sizeof count);
    std::memcpy(data.data() + sizeof count, types.data(), types.size() * sizeof(GUID));
    return S_OK;
}

std::vector<Core::SmartPtr<CSnapInItem>> selectedItems(IConsole& console)
{
    Microsoft::WRL::ComPtr<IResultData> results;
    throwIfFailed(console.QueryInterface(IID_PPV_ARGS(results.GetAddressOf())));
    std::vector<Core::SmartPtr<CSnapInItem>> items;
    RESULTDATAITEM row{};
    row.mask = RDI_STATE;
    row.nState = LVIS_SELECTED;
    row.nIndex = -1;
    while (SUCCEEDED(results->GetNextItem(&row)) && row.nIndex >= 0)
    {
        items.push_back(itemOfCookie(row.lParam));
        row.mask = RDI_STATE;
        row.nState = LVIS_SELECTED;
    }
    return items;
}

} // namespace TMgmt
