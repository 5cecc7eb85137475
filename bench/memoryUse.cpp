#include "memoryUse.h"

#include <windows.h>

#include <psapi.h>

namespace Bench
{

std::size_t memoryUse()
{
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage; // PrivateUsage is the same on Windows, and 0 under Wine
}

} // namespace Bench
