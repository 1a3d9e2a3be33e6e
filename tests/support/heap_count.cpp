#include "heap_count.h"

#include <windows.h>

namespace orv::test {

HeapUse heapUse() {
    HANDLE heaps[64];
    const DWORD count = ::GetProcessHeaps(64, heaps);
    HeapUse use;
    for (DWORD i = 0; i < count && i < 64; ++i) {
        PROCESS_HEAP_ENTRY entry = {};
        ::HeapLock(heaps[i]);
        while (::HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) {
                ++use.blocks;
                use.bytes += entry.cbData;
            }
        ::HeapUnlock(heaps[i]);
    }
    return use;
}

} // namespace orv::test
