#pragma once

#include "brimlow/system/String.h"

#include <string_view>

namespace Security
{

// Writes a file as AtomicFile does. One that was not there is for administrators and SYSTEM only, from its first moment
// on; it does not stay when it cannot be written. Throws Core::IOException.
void writePrivately(const Core::String& path, std::string_view content);

} // namespace Security
