#pragma once

#include <cstddef>

namespace Bench
{

// Bytes that everybody in this process holds on its heap now, with the heap's own cost for each block. Unlike the
// process's memory it shrinks with every free, so a difference is exactly what was kept.
std::size_t heapUse();

} // namespace Bench
