// The way of a message: window procedure, message map, reflection.

#include "msgdispatch.h"
#include "wndcreate.h"

#include <exception>

using orvafx::threadState;

// What the base does itself with messages, for every window. Everything else goes straight to the window's
// own procedure.
BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
ON_WM_CTLCOLOR()
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
ON_WM_DELETEITEM()
ON_WM_COMPAREITEM()
ON_WM_CHARTOITEM()
ON_WM_VKEYTOITEM()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
END_MESSAGE_MAP()

namespace orvafx {

namespace {

// Names of the window properties that hold a procedure that was left.
const char wideSuper[] = "OrvAfxWideProcedure";
const char narrowSuper[] = "OrvAfxProcedure";

LRESULT askThread(CException* e, const MSG& message) {
    CWinThread* thread = AfxGetThread();
    if (!thread) {
        TRACE("%s left the handler of message %x\n", e->GetRuntimeClass()->m_lpszClassName, message.message);
        return message.message == WM_CREATE ? -1 : 0;
    }
    try {
        return thread->ProcessWndProcException(e, &message);
    } catch (CException* second) {
        // A host that throws on: here it ends all the same.
        TRACE("%s left ProcessWndProcException\n", second->GetRuntimeClass()->m_lpszClassName);
        if (second != e)
            second->Delete();
    } catch (...) {
        TRACE("an exception left ProcessWndProcException\n");
    }
    if (message.message == WM_PAINT)
        ::ValidateRect(message.hwnd, NULL);
    return message.message == WM_CREATE ? -1 : 0;
}

LRESULT callWithoutObject(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const bool wide = ::GetPropA(window, wideSuper) != NULL;
    const auto super = reinterpret_cast<WNDPROC>(
        reinterpret_cast<LONG_PTR>(::GetPropA(window, wide ? wideSuper : narrowSuper)));
    if (!super)
        return ::IsWindowUnicode(window) ? ::DefWindowProcW(window, message, wParam, lParam)
                                         : ::DefWindowProcA(window, message, wParam, lParam);
    if (message == WM_NCDESTROY)
        takeLeftProcedure(window);
    return wide ? ::CallWindowProcW(super, window, message, wParam, lParam)
                : ::CallWindowProcA(super, window, message, wParam, lParam);
}

} // namespace

void leaveProcedure(HWND window, WNDPROC super, BOOL wide) {
    ::SetPropA(window, wide ? wideSuper : narrowSuper,
               reinterpret_cast<HANDLE>(reinterpret_cast<LONG_PTR>(super)));
}

WNDPROC takeLeftProcedure(HWND window, BOOL* wide) {
    HANDLE found = ::RemovePropA(window, wideSuper);
    const BOOL isWide = found != NULL;
    if (!found)
        found = ::RemovePropA(window, narrowSuper);
    if (found && wide)
        *wide = isWide;
    return reinterpret_cast<WNDPROC>(reinterpret_cast<LONG_PTR>(found));
}

LRESULT swallowException(const MSG& message) {
    try {
        throw;
    } catch (CException* e) {
        const LRESULT result = askThread(e, message);
        e->Delete();
        return result;
    } catch (const std::exception& e) {
        TRACE("an exception left the handler of message %x: %s\n", message.message, e.what());
    } catch (...) {
        TRACE("an unknown exception left the handler of message %x\n", message.message);
    }
    if (message.message == WM_PAINT)
        ::ValidateRect(message.hwnd, NULL);
    return message.message == WM_CREATE ? -1 : 0;
}

} // namespace orvafx

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    if (CWnd* window = CWnd::FromHandlePermanent(hWnd))
        return AfxCallWndProc(window, hWnd, nMsg, wParam, lParam);
    return orvafx::callWithoutObject(hWnd, nMsg, wParam, lParam);
}

LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    MSG& inHand = threadState().message;
    const MSG before = inHand;
    inHand = {hWnd, nMsg, wParam, lParam, 0, {}};
    LRESULT result;
    try {
        result = pWnd->WindowProc(nMsg, wParam, lParam);
    } catch (...) {
        // Nothing may unwind through the system's own frames.
        result = orvafx::swallowException({hWnd, nMsg, wParam, lParam, 0, {}});
    }
    // A handler that threw, or forgot its base: the system may give the number to another window, which the
    // object must not be found under.
    if (nMsg == WM_NCDESTROY && CWnd::FromHandlePermanent(hWnd) == pWnd) {
        try {
            pWnd->CWnd::OnNcDestroy();
        } catch (...) {
            orvafx::swallowException({hWnd, nMsg, wParam, lParam, 0, {}});
        }
    }
    inHand = before;
    return result;
}

const MSG* PASCAL CWnd::GetCurrentMessage() {
    return &threadState().message;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    return DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (WNDPROC super = *GetSuperWndProcAddr())
        return m_bWide ? ::CallWindowProcW(super, m_hWnd, message, wParam, lParam)
                       : ::CallWindowProcA(super, m_hWnd, message, wParam, lParam);
    return ::IsWindowUnicode(m_hWnd) ? ::DefWindowProcW(m_hWnd, message, wParam, lParam)
                                     : ::DefWindowProcA(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG& inHand = threadState().message;
    return DefWindowProc(inHand.message, inHand.wParam, inHand.lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    orvafx::ControlColor color;
    // Numbers of the foundation's own making carry its records; sent from outside they mean nothing.
    if ((message == WM_CTLCOLOR || message == WM_CTLCOLOR + WM_REFLECT_BASE) &&
        threadState().message.message == message)
        return FALSE;
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        *pResult = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY)
        return lParam && OnNotify(wParam, lParam, pResult);
    if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) {
        color = {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam), message - WM_CTLCOLORMSGBOX};
        lParam = reinterpret_cast<LPARAM>(&color);
        message = WM_CTLCOLOR;
    }

    const AFX_MSGMAP* map = GetMessageMap();
    orvafx::EntryCache::Slot& slot = threadState().entries.slot(map, message);
    if (slot.map != map || slot.message != message)
        slot = {map, message, orvafx::findMessageEntry(map, message)};
    const AFX_MSGMAP_ENTRY* entry = slot.entry;
    if (entry && (lParam || entry->nMessage >= 0xC000 || !orvafx::wantsRecord(entry->nSig))) {
        const LRESULT result = orvafx::callMessageHandler(this, *entry, wParam, lParam);
        // A control that gives no brush leaves the choice to its parent.
        if (message == WM_CTLCOLOR + WM_REFLECT_BASE && !result)
            return FALSE;
        *pResult = result;
        return TRUE;
    }
    // Controls would send wide notifications to wide windows: hosts expect code page texts.
    if (message == WM_NOTIFYFORMAT && lParam == NF_QUERY) {
        *pResult = NFR_ANSI;
        return TRUE;
    }
    return FALSE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    int code = HIWORD(wParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    if (control) {
        if (threadState().lockedOut == m_hWnd || ReflectLastMsg(control))
            return TRUE;
    } else {
        // From a menu (0) or an accelerator (1); a disabled command does nothing, also from the keyboard.
        class Asked : public CCmdUI {
        public:
            BOOL enabled = TRUE;
            void Enable(BOOL bOn) override { enabled = bOn; }
            void SetCheck(int) override {}
            void SetRadio(BOOL) override {}
            void SetText(LPCTSTR) override {}
        } state;
        state.m_nID = id;
        OnCmdMsg(id, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, NULL);
        if (!state.enabled)
            return TRUE;
        code = CN_COMMAND;
    }
    return id != 0 && OnCmdMsg(id, code, NULL, NULL);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (threadState().lockedOut == m_hWnd || ReflectLastMsg(header->hwndFrom, pResult))
        return TRUE;
    orvafx::Notification notification = {pResult, header};
    return OnCmdMsg(static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom)),
                    static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notification, NULL);
}

// --- reflection

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* child = hWndChild ? FromHandlePermanent(hWndChild) : NULL;
    return child && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    LRESULT ignored = 0;
    const MSG& inHand = threadState().message;
    return OnChildNotify(inHand.message, inHand.wParam, inHand.lParam, pResult ? pResult : &ignored);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_CHARTOITEM:
    case WM_VKEYTOITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);
    case WM_COMMAND:
        if (!OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), NULL, NULL))
            return FALSE;
        *pResult = 1;
        return TRUE;
    case WM_NOTIFY: {
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        orvafx::Notification notification = {pResult, header};
        return OnCmdMsg(0, MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY), &notification, NULL);
    }
    default:
        if (message < WM_CTLCOLORMSGBOX || message > WM_CTLCOLORSTATIC)
            return FALSE;
        orvafx::ControlColor color = {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam),
                                      message - WM_CTLCOLORMSGBOX};
        return CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&color), pResult);
    }
}

// --- the base's own handlers

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT result = 0;
    if (ReflectLastMsg(pWnd->GetSafeHwnd(), &result))
        return reinterpret_cast<HBRUSH>(result);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU || !ReflectLastMsg(lpDrawItemStruct->hwndItem))
        Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    HWND control = NULL;
    if (lpMeasureItemStruct->CtlType != ODT_MENU)
        control = ::GetDlgItem(m_hWnd, static_cast<int>(lpMeasureItemStruct->CtlID));
    if (!ReflectLastMsg(control))
        Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT result = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &result))
        return static_cast<int>(result);
    return static_cast<int>(Default());
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT result = 0;
    if (pListBox && ReflectLastMsg(pListBox->m_hWnd, &result))
        return static_cast<int>(result);
    return static_cast<int>(Default());
}

int CWnd::OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex) {
    return CWnd::OnCharToItem(nKey, pListBox, nIndex);
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!pScrollBar || !ReflectLastMsg(pScrollBar->m_hWnd))
        Default();
}

void CWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    CWnd::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CWnd::OnNcDestroy() {
    CWinThread* thread = AfxGetThread();
    if (thread && thread->m_pMainWnd == this) {
        thread->m_pMainWnd = NULL;
        AfxPostQuitMessage(0);
    }
    orvafx::ThreadState& state = threadState();
    if (state.toolTipFor == m_hWnd)
        EnableToolTips(FALSE);
    if (m_nFlags & WF_CONTINUEMODAL)
        EndModalLoop(IDABORT);
    // An owner-drawn combo deletes its items in here: the object must still be there for it.
    Default();
    ReturnProcedure();
    m_bInChain = FALSE; // nothing is left with a window that ends
    Detach();
    PostNcDestroy();
}
