#pragma once

// What the foundation keeps per thread: the handle maps. Internal to orvafx.dll.

#include <afx.h>

#include <unordered_map>

namespace orvafx {

// Handles to objects. Permanent objects own themselves; temporary ones belong to the map.
class HandleMap {
public:
    // Takes the handle out of a temporary object before it is deleted, so that the object does not free it.
    using Release = void (*)(CObject*);
    explicit HandleMap(Release release) : release_(release) {}
    ~HandleMap() { deleteTemporary(); }
    HandleMap(const HandleMap&) = delete;
    HandleMap& operator=(const HandleMap&) = delete;

    CObject* permanent(void* handle) const { return find(permanent_, handle); }
    CObject* temporary(void* handle) const { return find(temporary_, handle); }
    void setPermanent(void* handle, CObject* object);
    void removePermanent(void* handle, const CObject* object);
    void setTemporary(void* handle, CObject* object) { temporary_[handle] = object; }
    void removeTemporary(void* handle);
    void deleteTemporary();

private:
    using Map = std::unordered_map<void*, CObject*>;
    static CObject* find(const Map& map, void* handle);

    Map permanent_;
    Map temporary_;
    Release release_;
};

struct ThreadState {
    ThreadState();

    HandleMap gdiObjects;
    HandleMap deviceContexts;
    HandleMap windows;
    int tempLocks = 0;
};

// This thread's state, made at its first use and freed when the thread or the DLL ends.
ThreadState& threadState();
// The same, null when the thread has none: destructors that run late must not make one.
ThreadState* existingThreadState();

// Called by the DLL's entry point.
bool allocateThreadSlot();
void freeThreadState();
void freeThreadSlot();

} // namespace orvafx
