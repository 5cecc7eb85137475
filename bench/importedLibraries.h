#pragma once

#include <windows.h>

#include <vector>

namespace Bench
{

// The names of the libraries that a mapped one imports from; they belong to it.
std::vector<const char*> importedLibraries(HMODULE module);

} // namespace Bench
