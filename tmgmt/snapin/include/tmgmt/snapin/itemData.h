#pragma once

#include <windows.h>

#include <objidl.h>

#include <cstddef>
#include <string>
#include <vector>

namespace TMgmt
{

// What the console may ask a data object about the node that it stands for.
struct ItemData
{
    const GUID& nodeType;
    const std::wstring& displayName;
    const CLSID& snapInClassId;
};

// Puts the answer in that clipboard format into data. DV_E_CLIPFORMAT: there is none.
HRESULT fillItemData(CLIPFORMAT format, const ItemData& item, std::vector<std::byte>& data);

} // namespace TMgmt
