#include "gdi_count.h"

#include <windows.h>
#include <winternl.h>

namespace orv::test {

int liveGdiHandles() {
    // The process environment block points to the shared table; 64-bit layout: 24-byte entries, the type word
    // at offset 14, whose low bits are not 0 while the entry is in use.
    constexpr size_t tableOffset = 0xF8, entrySize = 24, typeOffset = 14, entries = 65536;
    auto* block = reinterpret_cast<const BYTE*>(NtCurrentTeb()->ProcessEnvironmentBlock);
    auto* table = *reinterpret_cast<const BYTE* const*>(block + tableOffset);
    int live = 0;
    for (size_t i = 0; i < entries; ++i)
        if (*reinterpret_cast<const WORD*>(table + i * entrySize + typeOffset) & 0x7f)
            ++live;
    return live;
}

} // namespace orv::test
