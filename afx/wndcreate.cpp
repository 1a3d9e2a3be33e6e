#include "wndcreate.h"

using orvafx::existingThreadState;
using orvafx::threadState;

namespace orvafx {

namespace {

void removeHook(ThreadState& state) {
    if (state.makingHook)
        ::UnhookWindowsHookEx(state.makingHook);
    state.makingHook = NULL;
}

LRESULT CALLBACK creationFilter(int code, WPARAM wParam, LPARAM lParam) {
    ThreadState& state = threadState();
    const auto window = reinterpret_cast<HWND>(wParam);
    // The system makes its input-method window in between.
    if (code != HCBT_CREATEWND || !state.making || (::GetClassLongA(window, GCL_STYLE) & CS_IME))
        return ::CallNextHookEx(state.makingHook, code, wParam, lParam);
    CWnd* object = state.making;
    // Other hooks see every window too, and may refuse it. What they make themselves is not the object's.
    state.making = NULL;
    const LRESULT refused = ::CallNextHookEx(state.makingHook, code, wParam, lParam);
    removeHook(state);
    if (refused) {
        state.making = object;
        return refused;
    }
    try {
        OrvWndAccess::take(object, window);
        return 0;
    } catch (...) {
        // The window is not made, and the object has missed it.
        swallowException({window, WM_NCCREATE, 0, 0, 0, {}});
        object->Detach();
        state.making = object;
        return 1;
    }
}

void setHook(ThreadState& state, CWnd* object) {
    state.making = object;
    state.makingHook = ::SetWindowsHookExW(WH_CBT, creationFilter, NULL, ::GetCurrentThreadId());
}

// The system's own controls have a procedure for either kind of text, and only the wide one gets typed
// characters of every kind. Classes of programs keep the code page procedure that they were written for, as
// does a control that has no other: for those the system hands out a mark instead of a wide procedure's
// address.
bool wantsWideMessages(HWND window) {
    if (::IsWindowUnicode(window))
        return true;
    const bool codePageOnly = (::GetClassLongPtrW(window, GCLP_WNDPROC) >> 16) == 0xFFFF;
    return !codePageOnly &&
           !isModuleOfChain(reinterpret_cast<HINSTANCE>(::GetClassLongPtrA(window, GCLP_HMODULE)));
}

} // namespace

CreationHook::CreationHook(CWnd* object) : object_(object) {
    ThreadState& state = threadState();
    outerObject_ = state.making;
    outerHook_ = state.makingHook;
    setHook(state, object);
}

CreationHook::~CreationHook() {
    ThreadState& state = threadState();
    if (state.making == object_)
        removeHook(state);
    state.making = outerObject_;
    state.makingHook = outerHook_;
}

void hookNextDialog(CWnd* object) {
    ThreadState& state = threadState();
    removeHook(state);
    setHook(state, object);
}

} // namespace orvafx

void OrvWndAccess::take(CWnd* object, HWND hWnd) {
    object->Attach(hWnd);
    object->PreSubclassWindow();
    object->TakeProcedure();
}

void CWnd::TakeProcedure() {
    if (m_bInChain)
        return;
    m_bInChain = TRUE;
    m_bWide = orvafx::wantsWideMessages(m_hWnd);
    const auto ours = reinterpret_cast<LONG_PTR>(AfxWndProc);
    const LONG_PTR before = m_bWide ? ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, ours)
                                    : ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, ours);
    WNDPROC* super = GetSuperWndProcAddr();
    if (before != ours)
        *super = reinterpret_cast<WNDPROC>(before);
}

void CWnd::ReturnProcedure() {
    WNDPROC* super = GetSuperWndProcAddr();
    const auto ours = reinterpret_cast<LONG_PTR>(AfxWndProc);
    // Somebody who came later keeps his place, and goes on calling us.
    if (*super && (m_bWide ? ::GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC)
                           : ::GetWindowLongPtrA(m_hWnd, GWLP_WNDPROC)) == ours) {
        const auto before = reinterpret_cast<LONG_PTR>(*super);
        if (m_bWide)
            ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, before);
        else
            ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, before);
        *super = NULL;
        m_bInChain = FALSE;
    }
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == NULL)
        cs.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorA(NULL, IDC_ARROW),
                                reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return cs.lpszClass != NULL;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    ASSERT(m_hWnd == NULL);
    CREATESTRUCTA cs = {};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (m_hWnd || !PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    HWND made;
    bool missed;
    {
        orvafx::CreationHook hook(this);
        made =
            ::CreateWindowExA(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x,
                              cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
        missed = hook.missed();
    }
    // Once attached, WM_NCDESTROY has made the call that is due here.
    if (missed)
        PostNcDestroy();
    return made != NULL;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    CRect(rect).Width(), CRect(rect).Height(), pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext) {
    ASSERT(pParentWnd != NULL && (dwStyle & WS_POPUP) == 0);
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst) {
    ASSERT(m_hWnd == NULL);
    if (m_hWnd || !lpDialogTemplate)
        return FALSE;
    HWND made;
    bool missed;
    {
        orvafx::CreationHook hook(this);
        made = ::CreateDialogIndirectParamW(hInst ? hInst : AfxGetInstanceHandle(), lpDialogTemplate,
                                            pParentWnd->GetSafeHwnd(), AfxDlgProc, 0);
        missed = hook.missed();
    }
    if (missed)
        PostNcDestroy();
    return ::IsWindow(made);
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    ASSERT(m_hWnd == NULL);
    if (m_hWnd || !::IsWindow(hWnd) || FromHandlePermanent(hWnd))
        return FALSE;
    try {
        OrvWndAccess::take(this, hWnd);
    } catch (...) {
        Detach(); // half a subclassing is none
        throw;
    }
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    return SubclassWindow(::GetDlgItem(pParent->GetSafeHwnd(), static_cast<int>(nID)));
}

HWND CWnd::UnsubclassWindow() {
    ASSERT(::IsWindow(m_hWnd));
    if (m_hWnd)
        ReturnProcedure();
    return Detach();
}

BOOL CWnd::DestroyWindow() {
    const HWND window = m_hWnd;
    if (!window)
        return FALSE;
    const bool permanent = FromHandlePermanent(window) == this;
    const BOOL destroyed = ::DestroyWindow(window);
    // This object may be gone by now; only its address is looked at, unless it was attached without getting
    // messages.
    if (permanent && destroyed && FromHandlePermanent(window) == this)
        Detach();
    return destroyed;
}

CWnd::~CWnd() {
    if (!m_hWnd)
        return;
    const auto* state = existingThreadState();
    if (state && state->windows.permanent(m_hWnd) == this && ::IsWindow(m_hWnd)) {
        TRACE("~CWnd destroys its window: OnDestroy and PostNcDestroy of the derived class are not called\n");
        CWnd::DestroyWindow();
    }
    Detach();
}
