#include "afxwin.h"
#include "threadstate.h"

using orvafx::threadState;

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)
IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

CWnd::~CWnd() {
    Detach();
}

HWND CWnd::GetSafeHwnd() const {
    const CWnd* const volatile self = this;
    return self ? self->m_hWnd : NULL;
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) {
    return static_cast<CWnd*>(threadState().windows.permanent(hWnd));
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) {
    if (!hWnd)
        return NULL;
    orvafx::HandleMap& map = threadState().windows;
    if (CObject* known = map.permanent(hWnd))
        return static_cast<CWnd*>(known);
    if (CObject* known = map.temporary(hWnd))
        return static_cast<CWnd*>(known);
    auto* window = new CWnd;
    window->m_hWnd = hWnd;
    map.setTemporary(hWnd, window);
    return window;
}

CWnd* PASCAL CWnd::GetDesktopWindow() {
    return FromHandle(::GetDesktopWindow());
}

BOOL CWnd::Attach(HWND hWndNew) {
    ASSERT(m_hWnd == NULL);
    if (!hWndNew)
        return FALSE;
    Detach();
    m_hWnd = hWndNew;
    threadState().windows.setPermanent(hWndNew, this);
    return TRUE;
}

HWND CWnd::Detach() {
    HWND handle = m_hWnd;
    if (handle)
        if (auto* state = orvafx::existingThreadState())
            state->windows.removePermanent(handle, this);
    m_hWnd = NULL;
    return handle;
}

void CWnd::GetClientRect(LPRECT lpRect) const {
    ::GetClientRect(m_hWnd, lpRect);
}
void CWnd::GetWindowRect(LPRECT lpRect) const {
    ::GetWindowRect(m_hWnd, lpRect);
}
