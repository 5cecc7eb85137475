#pragma once

#include "brimlow/system/String.h"

#include <string>

namespace Core::IO
{

// The path in the form that may be longer than MAX_PATH whatever the process says in its manifest; empty when there is
// none.
std::wstring extendedPath(const String& path);

} // namespace Core::IO
