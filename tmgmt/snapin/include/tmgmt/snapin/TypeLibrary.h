#pragma once

#include "tmgmt/snapin/Registrar.h"

namespace TMgmt
{

// Enters the type library that is resource 1 of this module in the registry, or removes it. Throws ComError.
void registerTypeLibrary(Registration registration);

} // namespace TMgmt
