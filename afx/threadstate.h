#pragma once

// What the foundation keeps per thread: handle maps, the message in hand, the window being made. Internal to
// orvafx.dll.

#include "afxwin.h"

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

    CObject* permanent(void* handle) const {
        auto it = permanent_.find(handle);
        return it == permanent_.end() ? nullptr : it->second;
    }
    CObject* temporary(void* handle) const {
        auto it = temporary_.find(handle);
        return it == temporary_.end() ? nullptr : it->second.object;
    }
    // What FromHandle answers: the handle's object of either kind, or else a temporary one from make. NULL
    // for no handle.
    template <class Object, class Make>
    Object* objectOf(void* handle, Make make) {
        if (!handle)
            return NULL;
        CObject* known = permanent(handle);
        if (!known)
            known = temporary(handle);
        if (known)
            return static_cast<Object*>(known);
        Object* object = make();
        setTemporary(handle, object);
        return object;
    }
    void setPermanent(void* handle, CObject* object);
    void removePermanent(void* handle, const CObject* object);
    void setTemporary(void* handle, CObject* object);
    void removeTemporary(void* handle);
    // Only those made since a mark that countMade gave; all by default.
    void deleteTemporary(unsigned since = 0);
    unsigned countMade() const { return made_; }
    size_t permanentCount() const { return permanent_.size(); }
    size_t temporaryCount() const { return temporary_.size(); }

private:
    using Map = std::unordered_map<void*, CObject*>;
    struct Temporary {
        CObject* object;
        unsigned number; // in the order of making
    };

    Map permanent_;
    std::unordered_map<void*, Temporary> temporary_;
    unsigned made_ = 0;
    Release release_;
};

// The entry that a class's map has for a message, remembered: most messages have none, and every base is
// asked.
class EntryCache {
public:
    struct Slot {
        const AFX_MSGMAP* map;
        UINT message;
        const AFX_MSGMAP_ENTRY* entry;
    };
    // The slot for the pair; it is filled when its map and message are these. Emptied when a module is
    // unloaded.
    Slot& slot(const AFX_MSGMAP* map, UINT message);

private:
    Slot slots_[512] = {};
    LONG generation_ = 0;
};
// From now on no thread trusts what it remembers of message maps.
void forgetMessageMaps();

struct ThreadState {
    ThreadState();

    HandleMap gdiObjects;
    HandleMap deviceContexts;
    HandleMap windows;
    HandleMap menus;
    HandleMap imageLists;
    int tempLocks = 0;

    MSG pumped = {}; // the last one of a loop without a thread object
    MSG lastMouseMessage = {};
    MSG message = {};    // the message in hand
    CWnd* making = NULL; // gets the next window that is made
    HHOOK makingHook = NULL;
    HWND lockedOut = NULL; // its controls' notifications are not heard: an exchange of data is going on
    HWND toolTip = NULL;   // of EnableToolTips
    HWND toolTipFor = NULL;
    EntryCache entries;

    struct Marks {
        unsigned gdiObjects = 0, deviceContexts = 0, windows = 0, menus = 0, imageLists = 0;
    };
    Marks marks() const;
    void deleteTemporary(const Marks& since);
    void deleteTemporary() { deleteTemporary(Marks{}); }
};

// This thread's state, made at its first use and freed when the thread or the DLL ends.
ThreadState& threadState();
// The same, null when the thread has none: destructors that run late must not make one.
ThreadState* existingThreadState();
// The permanent object leaves its handle, if it has one. It may be such a late one.
void leaveHandle(HandleMap ThreadState::*map, void* handle, const CObject* object);

// Called by the DLL's entry point.
bool allocateThreadSlot();
void freeThreadState();
void freeThreadSlot();

} // namespace orvafx
