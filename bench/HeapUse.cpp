#include "HeapUse.h"

#include <windows.h>

namespace Bench
{

std::size_t heapUse()
{
    const HANDLE heap = GetProcessHeap(); // malloc of this program and of the plug-in take from it
    std::size_t used = 0;
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
    {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
        {
            used += entry.cbData + entry.cbOverhead;
        }
    }
    HeapUnlock(heap);
    return used;
}

} // namespace Bench
