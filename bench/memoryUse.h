#pragma once

#include <cstddef>

namespace Bench
{

// Bytes of memory that this process has for itself now. It grows and shrinks in pages: differences mean something from
// some hundred KiB on.
std::size_t memoryUse();

} // namespace Bench
