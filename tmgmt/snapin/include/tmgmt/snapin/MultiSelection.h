#pragma once

#include "tmgmt/snapin/DataObject.h"

namespace TMgmt
{

// The answer of a data object that stands for several rows: the kinds of node among them, each once, where the console
// asks for CCF_OBJECT_TYPES_IN_MULTI_SELECT. DV_E_CLIPFORMAT for every other format.
HRESULT fillMultiSelectionData(const Selection& selection, CLIPFORMAT format, std::vector<std::byte>& data);

// The rows of one console view that are selected now. Throws ComError.
std::vector<Core::SmartPtr<CSnapInItem>> selectedItems(IConsole& console);

} // namespace TMgmt
