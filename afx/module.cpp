// The module chain and what is looked for along it; the DLL's own entry point.

#include "wndcreate.h"

namespace {

HINSTANCE instanceHandle = NULL;
HINSTANCE resourceHandle = NULL;
CDynLinkLibrary* firstLibrary = NULL;

// Threads may load extension DLLs at the same time as others look for resources.
struct ChainLock {
    static SRWLOCK lock;
    ChainLock() { ::AcquireSRWLockExclusive(&lock); }
    ~ChainLock() { ::ReleaseSRWLockExclusive(&lock); }
};
SRWLOCK ChainLock::lock = SRWLOCK_INIT;

void unlink(CDynLinkLibrary* library) {
    for (CDynLinkLibrary** link = &firstLibrary; *link; link = &(*link)->m_pNextDLL)
        if (*link == library) {
            *link = library->m_pNextDLL;
            return;
        }
}

// The first module of the application and the chain for which found(module) holds, NULL when there is none.
template <class Found>
HINSTANCE findInChain(Found found) {
    HINSTANCE application = AfxGetResourceHandle();
    if (found(application))
        return application;
    ChainLock guard;
    for (CDynLinkLibrary* library = firstLibrary; library; library = library->m_pNextDLL)
        if (library->m_hResource && found(library->m_hResource))
            return library->m_hResource;
    return NULL;
}

// Strings lie in blocks of sixteen.
LPCTSTR stringBlock(UINT id) {
    return MAKEINTRESOURCEA((id >> 4) + 1);
}

bool holdsString(HINSTANCE module, UINT id) {
    // A block may exist for the sake of a neighbour: ask for the string itself.
    LPWSTR text = NULL;
    return ::FindResourceA(module, stringBlock(id), RT_STRING) &&
           ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0) > 0;
}

} // namespace

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return instanceHandle ? instanceHandle : ::GetModuleHandleA(NULL);
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    return resourceHandle ? resourceHandle : AfxGetInstanceHandle();
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) {
    resourceHandle = hInstResource;
}

namespace orvafx {

void setInstanceHandle(HINSTANCE instance) {
    instanceHandle = instance;
}

bool isModuleOfChain(HINSTANCE module) {
    if (module == AfxGetInstanceHandle())
        return true;
    ChainLock guard;
    for (const CDynLinkLibrary* library = firstLibrary; library; library = library->m_pNextDLL)
        if (library->m_hModule == module)
            return true;
    return false;
}

} // namespace orvafx

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (state.bInitialized)
        return state.hModule == hModule;
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll) {
    if (!state.bInitialized)
        return;
    for (;;) {
        CDynLinkLibrary* dying = NULL;
        {
            ChainLock guard;
            for (CDynLinkLibrary* library = firstLibrary; library && !dying; library = library->m_pNextDLL)
                if (bAll || library->m_hModule == state.hModule)
                    dying = library;
        }
        if (!dying)
            break;
        delete dying;
    }
    state.bInitialized = FALSE;
    orvafx::forgetMessageMaps();
    orvafx::unregisterClasses(state.hModule);
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : CDynLinkLibrary(state.hModule, state.hResource) {
    m_bSystem = bSystem;
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_bSystem(FALSE) {
    ChainLock guard;
    m_pNextDLL = firstLibrary;
    firstLibrary = this;
}

CDynLinkLibrary::~CDynLinkLibrary() {
    ChainLock guard;
    unlink(this);
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    HINSTANCE module =
        findInChain([&](HINSTANCE m) { return ::FindResourceA(m, lpszName, lpszType) != NULL; });
    return module ? module : AfxGetResourceHandle();
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID) {
    return findInChain([&](HINSTANCE m) { return holdsString(m, nID); });
}

int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf) {
    if (!lpszBuf || nMaxBuf == 0)
        return 0;
    lpszBuf[0] = '\0';
    CString text;
    if (!text.LoadString(nIDS))
        return 0;
    int length = text.GetLength();
    if (length >= static_cast<int>(nMaxBuf)) {
        // Cut before the character that does not fit whole.
        int end = 0;
        for (int next = 0; next < static_cast<int>(nMaxBuf); next += ::IsDBCSLeadByte(text[next]) ? 2 : 1)
            end = next;
        length = end;
    }
    memcpy(lpszBuf, static_cast<LPCTSTR>(text), length);
    lpszBuf[length] = '\0';
    return length;
}

BOOL CStringA::LoadString(UINT nID) {
    HINSTANCE module = AfxFindStringResourceHandle(nID);
    return module && LoadString(module, nID);
}

BOOL CStringA::LoadString(HINSTANCE hInstance, UINT nID) {
    LPCWSTR wide = NULL;
    int length = ::LoadStringW(hInstance, nID, reinterpret_cast<LPWSTR>(&wide), 0);
    if (length <= 0 || !wide)
        return FALSE;
    int bytes = ::WideCharToMultiByte(CP_ACP, 0, wide, length, NULL, 0, NULL, NULL);
    ::WideCharToMultiByte(CP_ACP, 0, wide, length, GetBufferSetLength(bytes), bytes, NULL, NULL);
    ReleaseBuffer(bytes);
    return TRUE;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID reserved) {
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        return orvafx::allocateThreadSlot();
    case DLL_THREAD_DETACH:
        orvafx::freeThreadState();
        break;
    case DLL_PROCESS_DETACH:
        // At the end of the process the other modules are gone and the system takes the memory back.
        if (!reserved) {
            orvafx::unregisterClasses(NULL);
            orvafx::freeThreadSlot();
        }
        break;
    }
    return TRUE;
}
