#include "afxwin.h"
#include "threadstate.h"

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

} // namespace

CObject* HandleMap::find(const Map& map, void* handle) {
    auto it = map.find(handle);
    return it == map.end() ? nullptr : it->second;
}

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
    CObject* object = it->second;
    temporary_.erase(it);
    release_(object);
    delete object;
}

void HandleMap::deleteTemporary() {
    Map dying;
    dying.swap(temporary_);
    for (auto& entry : dying) {
        release_(entry.second);
        delete entry.second;
    }
}

ThreadState::ThreadState()
    : gdiObjects(releaseGdiObject), deviceContexts(releaseDeviceContext), windows(releaseWindow) {}

ThreadState* existingThreadState() {
    return slot == TLS_OUT_OF_INDEXES ? nullptr : static_cast<ThreadState*>(::TlsGetValue(slot));
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
    if (bDeleteTemps) {
        state.gdiObjects.deleteTemporary();
        state.deviceContexts.deleteTemporary();
        state.windows.deleteTemporary();
    }
    return TRUE;
}
