#pragma once

#include <cstddef>

namespace orv::test {

// Blocks and bytes in use in all heaps of this process.
struct HeapUse {
    size_t blocks = 0;
    size_t bytes = 0;
    bool operator==(const HeapUse&) const = default;
};
HeapUse heapUse();

} // namespace orv::test
