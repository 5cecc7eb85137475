#pragma once

#include "platform/mmc.h"

namespace TMgmt
{

// Adds the popups of a menu resource to a context menu: the first one at its top, the second under New, the third
// under All Tasks, the fourth under View, each only where allowed (CCM_INSERTIONALLOWED_ bits) has it. Separators and
// the popups' own captions are left out. Throws ComError.
void addMenuResource(UINT menu, IContextMenuCallback& target, LONG allowed);

} // namespace TMgmt
