#pragma once

#include "afx.h"

#include <unordered_map>
#include <vector>

// Objects and classes of one archive by number, in the order in which they came. Number 0 is the null
// pointer.
struct OrvArchiveMap {
    struct Entry {
        CObject* pObject;            // NULL for a class, and for an object whose loading failed
        const CRuntimeClass* pClass; // NULL for an object
        UINT nSchema;                // of a class, as it was stored
    };

    std::vector<Entry> entries{Entry{NULL, NULL, 0}};
    std::unordered_map<const void*, DWORD> numbers; // storing

    // 0 when it has none yet.
    DWORD numberOf(const void* p) const {
        const auto found = numbers.find(p);
        return found != numbers.end() ? found->second : 0;
    }
    const Entry* entry(DWORD nIndex) const { return nIndex < entries.size() ? &entries[nIndex] : NULL; }
};
