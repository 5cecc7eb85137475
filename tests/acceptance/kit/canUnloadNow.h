#pragma once

#include <windows.h>

namespace Acceptance
{

// What the plug-in's library answers: S_OK when every object of its own is gone and nothing else keeps it. S_OK, too,
// when it is not loaded.
HRESULT canUnloadNow();

} // namespace Acceptance
