#pragma once

#include "platform/handles.h"

namespace Core::IO
{

// The security descriptor of a file or folder for administrators and SYSTEM only. Empty when Windows cannot make it:
// then the thread's last error says why.
platform::LocalMemory privateFileAccess();
platform::LocalMemory privateFolderAccess();

} // namespace Core::IO
