#pragma once

#include "brimlow/system/String.h"

namespace Core
{

// Writes one error to the system's log, if it can.
void writeErrorLog(const String& text);

} // namespace Core
