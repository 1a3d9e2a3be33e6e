// Window classes of the foundation and its hosts.

#include "wndcreate.h"

#include <list>
#include <string>

namespace {

struct RegisteredClass {
    std::string name;
    HINSTANCE instance;
};

// Threads may register at the same time. Never destroyed: windows may be made in static destructors.
struct Classes {
    SRWLOCK lock = SRWLOCK_INIT;
    std::list<RegisteredClass> list;
};

Classes& registered() {
    static Classes& classes = *new Classes;
    return classes;
}

struct Lock {
    Lock() : all(registered()) { ::AcquireSRWLockExclusive(&all.lock); }
    ~Lock() { ::ReleaseSRWLockExclusive(&all.lock); }
    Classes& all;
};

} // namespace

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass) {
    Lock lock;
    WNDCLASSA known;
    if (::GetClassInfoA(lpWndClass->hInstance, lpWndClass->lpszClassName, &known))
        return TRUE;
    if (!::RegisterClassA(lpWndClass)) {
        TRACE("AfxRegisterClass: the system refuses %s\n", lpWndClass->lpszClassName);
        return FALSE;
    }
    lock.all.list.push_back({lpWndClass->lpszClassName, lpWndClass->hInstance});
    return TRUE;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    CString name;
    name.Format("Afx:%p:%x:%p:%p:%p", static_cast<const void*>(AfxGetInstanceHandle()), nClassStyle,
                static_cast<const void*>(hCursor), static_cast<const void*>(hbrBackground),
                static_cast<const void*>(hIcon));
    WNDCLASSA wc = {};
    wc.style = nClassStyle;
    wc.lpfnWndProc = ::DefWindowProcA;
    wc.hInstance = AfxGetInstanceHandle();
    wc.hCursor = hCursor;
    wc.hbrBackground = hbrBackground;
    wc.hIcon = hIcon;
    wc.lpszClassName = name;
    if (!AfxRegisterClass(&wc))
        AfxThrowResourceException();
    // The text that lives as long as the class.
    Lock lock;
    for (const RegisteredClass& c : lock.all.list)
        if (c.instance == wc.hInstance && name == c.name.c_str())
            return c.name.c_str();
    AfxThrowResourceException();
}

namespace orvafx {

void unregisterClasses(HINSTANCE module) {
    Lock lock;
    lock.all.list.remove_if([=](const RegisteredClass& c) {
        return (!module || c.instance == module) && ::UnregisterClassA(c.name.c_str(), c.instance);
    });
}

} // namespace orvafx
