#include "threadstate.h"

#include "afxcmn.h"

namespace orvafx {

namespace {

DWORD slot = TLS_OUT_OF_INDEXES;

void releaseGdiObject(CObject* object) {
    static_cast<CGdiObject*>(object)->m_hObject = NULL;
}

void releaseDeviceContext(CObject* object) {
    auto* dc = static_cast<CDC*>(object);
    dc->m_hDC = NULL;
    dc->m_hAttribDC = NULL;
}

void releaseWindow(CObject* object) {
    static_cast<CWnd*>(object)->m_hWnd = NULL;
}

void releaseMenu(CObject* object) {
    static_cast<CMenu*>(object)->m_hMenu = NULL;
}

void releaseImageList(CObject* object) {
    static_cast<CImageList*>(object)->m_hImageList = NULL;
}

LONG volatile mapGeneration = 0;

} // namespace

void HandleMap::setPermanent(void* handle, CObject* object) {
    // The handle may be known through an earlier temporary object: from now on there is one truth.
    removeTemporary(handle);
    permanent_[handle] = object;
}

void HandleMap::removePermanent(void* handle, const CObject* object) {
    auto it = permanent_.find(handle);
    if (it != permanent_.end() && it->second == object)
        permanent_.erase(it);
}

void HandleMap::removeTemporary(void* handle) {
    auto it = temporary_.find(handle);
    if (it == temporary_.end())
        return;
    CObject* object = it->second.object;
    temporary_.erase(it);
    release_(object);
    delete object;
}

void HandleMap::setTemporary(void* handle, CObject* object) {
    temporary_[handle] = {object, ++made_};
}

void HandleMap::deleteTemporary(unsigned since) {
    for (auto it = temporary_.begin(); it != temporary_.end();) {
        // The counter may wrap: what matters is which side of the mark a number lies on.
        if (since != 0 && static_cast<int>(it->second.number - since) <= 0) {
            ++it;
            continue;
        }
        CObject* object = it->second.object;
        it = temporary_.erase(it);
        release_(object);
        delete object;
    }
}

EntryCache::Slot& EntryCache::slot(const AFX_MSGMAP* map, UINT message) {
    if (generation_ != mapGeneration) {
        memset(slots_, 0, sizeof slots_);
        generation_ = mapGeneration;
    }
    return slots_[((reinterpret_cast<UINT_PTR>(map) >> 4) + message * 7) % 512];
}

void forgetMessageMaps() {
    ::InterlockedIncrement(&mapGeneration);
}

ThreadState::ThreadState()
    : gdiObjects(releaseGdiObject), deviceContexts(releaseDeviceContext), windows(releaseWindow),
      menus(releaseMenu), imageLists(releaseImageList) {}

ThreadState::Marks ThreadState::marks() const {
    return {gdiObjects.countMade(), deviceContexts.countMade(), windows.countMade(), menus.countMade(),
            imageLists.countMade()};
}

void ThreadState::deleteTemporary(const Marks& since) {
    gdiObjects.deleteTemporary(since.gdiObjects);
    deviceContexts.deleteTemporary(since.deviceContexts);
    windows.deleteTemporary(since.windows);
    menus.deleteTemporary(since.menus);
    imageLists.deleteTemporary(since.imageLists);
}

ThreadState* existingThreadState() {
    return slot == TLS_OUT_OF_INDEXES ? nullptr : static_cast<ThreadState*>(::TlsGetValue(slot));
}

void leaveHandle(HandleMap ThreadState::*map, void* handle, const CObject* object) {
    ThreadState* state = handle ? existingThreadState() : NULL;
    if (state)
        (state->*map).removePermanent(handle, object);
}

ThreadState& threadState() {
    if (ThreadState* state = existingThreadState())
        return *state;
    // Static constructors of other modules may come here before our own entry point has run.
    if (slot == TLS_OUT_OF_INDEXES && !allocateThreadSlot())
        AfxThrowResourceException();
    auto* state = new ThreadState;
    ::TlsSetValue(slot, state);
    return *state;
}

bool allocateThreadSlot() {
    if (slot == TLS_OUT_OF_INDEXES)
        slot = ::TlsAlloc();
    return slot != TLS_OUT_OF_INDEXES;
}

void freeThreadState() {
    ThreadState* state = existingThreadState();
    if (!state)
        return;
    ::TlsSetValue(slot, nullptr);
    delete state;
}

void freeThreadSlot() {
    freeThreadState();
    if (slot != TLS_OUT_OF_INDEXES)
        ::TlsFree(slot);
    slot = TLS_OUT_OF_INDEXES;
}

} // namespace orvafx

void AFXAPI AfxLockTempMaps() {
    ++orvafx::threadState().tempLocks;
}

BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps) {
    orvafx::ThreadState& state = orvafx::threadState();
    if (state.tempLocks > 0 && --state.tempLocks > 0)
        return FALSE;
    if (bDeleteTemps)
        state.deleteTemporary();
    return TRUE;
}
