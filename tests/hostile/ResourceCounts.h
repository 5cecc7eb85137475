#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace Hostile
{

// What this process has of the system, by what it is: "handles: File", "GDI: font", "windows", …
using ResourceCounts = std::map<std::string, std::size_t>;

// Counting takes some ten milliseconds.
ResourceCounts countResources();

// Fails the test for each kind of which there is more than before.
void expectNoMore(const ResourceCounts& before, const ResourceCounts& after);

} // namespace Hostile
