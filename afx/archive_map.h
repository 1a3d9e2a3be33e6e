#pragma once

#include "afx.h"

#include <new>
#include <unordered_map>
#include <vector>

// Objects and classes of one archive by number, in the order in which they came. Number 0 is the null
// pointer.
struct OrvArchiveMap {
    static void* operator new(size_t nSize) { return OrvAlloc(nSize); }
    static void operator delete(void* p) { OrvFree(p); }

    struct Entry {
        CObject* pObject;            // NULL for a class, and for an object whose loading failed
        const CRuntimeClass* pClass; // NULL for an object
        UINT nSchema;                // of a class, as it was stored
    };

    std::vector<Entry> entries;                     // loading, from number 1 on
    ULONGLONG nReferences = 0;                      // loading: how often a known object was given out again
    std::unordered_map<const void*, DWORD> numbers; // storing

    // 0 when it has none yet.
    DWORD numberOf(const void* p) const {
        const auto found = numbers.find(p);
        return found != numbers.end() ? found->second : 0;
    }
    // Loading: the next number.
    void add(const Entry& entry) {
        try {
            entries.push_back(entry);
        } catch (const std::bad_alloc&) {
            AfxThrowMemoryException();
        }
    }
    // Storing: the next number, unless it has one.
    void number(const void* p) {
        try {
            numbers.emplace(p, (DWORD)numbers.size() + 1);
        } catch (const std::bad_alloc&) {
            AfxThrowMemoryException();
        }
    }
    const Entry* entry(DWORD nIndex) const {
        return nIndex - 1 < entries.size() ? &entries[nIndex - 1] : NULL;
    }
    // The objects from this place on are known no more. Failures come from the inside out: what the last one
    // has done is not done again.
    void forgetObjects(size_t nFrom) {
        const size_t nEnd = entries.size() == nForgottenEnd ? nForgotten : entries.size();
        for (size_t i = nFrom; i < nEnd; i++)
            entries[i].pObject = NULL;
        nForgotten = nFrom;
        nForgottenEnd = entries.size();
    }

private:
    size_t nForgotten = 0, nForgottenEnd = 0;
};
