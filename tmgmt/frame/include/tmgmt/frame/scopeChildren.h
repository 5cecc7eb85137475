#pragma once

#include "platform/mmc.h"

#include <span>

#include "brimlow/system/SmartPtr.h"
#include "tmgmt/snapin/CSnapInItem.h"
#include "tmgmt/snapin/Console.h"

namespace TMgmt
{

// A node of the tree was expanded or collapsed. What an earlier expansion inserted below it goes; on an expansion the
// children are inserted in that order. node remembers the handle that the console now has for it, each child the one
// it gets. Throws ComError, and Core::NullPointerException for a child that is missing.
HRESULT expandChildren(CSnapInItem& node, std::span<const Core::SmartPtr<CSnapInItem>> children, bool expanding,
                       HSCOPEITEM handle, Console& console);

// The node has these children from now on. The console learns whether there are any, and where the node was expanded
// before, they come in the place of those that are shown. Throws as expandChildren does.
HRESULT replaceChildren(CSnapInItem& node, std::span<const Core::SmartPtr<CSnapInItem>> children, Console& console);

} // namespace TMgmt
