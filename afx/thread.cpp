// The message pump, and modal loops over it.

#include "threadstate.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

namespace {

bool isIdleMessage(const MSG& message) {
    const UINT caretTimer = 0x0118; // WM_SYSTIMER
    if (message.message == WM_PAINT || message.message == caretTimer)
        return false;
    if (message.message != WM_MOUSEMOVE && message.message != WM_NCMOUSEMOVE)
        return true;
    // Windows that open under it move a mouse that is at rest.
    MSG& last = orvafx::threadState().lastMouseMessage;
    if (message.message == last.message && message.pt.x == last.pt.x && message.pt.y == last.pt.y)
        return false;
    last = message;
    return true;
}

BOOL preTranslate(MSG* message) {
    const HWND mainWindow = AfxGetMainWnd()->GetSafeHwnd();
    HWND top = message->hwnd;
    while (HWND parent = top && top != mainWindow ? ::GetParent(top) : NULL)
        top = parent;
    if (CWnd::WalkPreTranslateTree(mainWindow, message))
        return TRUE;
    // A window beside the main one's tree: the main window's accelerators hold there too, but for dialogs,
    // which keep their keys. In the tree it has been asked.
    CWnd* main = AfxGetMainWnd();
    return main && top && top != mainWindow && main->PreTranslateMessage(message);
}

BOOL pump(MSG& message) {
    if (!::GetMessageW(&message, NULL, 0, 0))
        return FALSE;
    if (message.message != WM_KICKIDLE && !AfxPreTranslateMessage(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return TRUE;
}

} // namespace

CWinThread::CWinThread() : m_nThreadID(::GetCurrentThreadId()) {}

int CWinThread::Run() {
    bool idle = true;
    LONG idleCount = 0;
    for (;;) {
        MSG waiting;
        while (idle && !::PeekMessageW(&waiting, NULL, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++);
        do {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_msgCur)) {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessageW(&waiting, NULL, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::PumpMessage() {
    return pump(m_msgCur);
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    return preTranslate(pMsg);
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    return isIdleMessage(*pMsg);
}

BOOL CWinThread::OnIdle(LONG lCount) {
    orvafx::ThreadState& state = orvafx::threadState();
    if (lCount > 0 && state.tempLocks == 0)
        state.deleteTemporary();
    return lCount < 1;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    char text[256] = "";
    e->GetErrorMessage(text, sizeof text);
    TRACE("%s left the handler of message %x: %s\n", e->GetRuntimeClass()->m_lpszClassName, pMsg->message,
          text);
    if (pMsg->message == WM_CREATE)
        return -1;
    // Or it would be asked to paint again at once.
    if (pMsg->message == WM_PAINT)
        ::ValidateRect(pMsg->hwnd, NULL);
    return 0;
}

BOOL AFXAPI AfxPumpMessage() {
    CWinThread* thread = AfxGetThread();
    return thread ? thread->PumpMessage() : pump(orvafx::threadState().pumped);
}

BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg) {
    CWinThread* thread = AfxGetThread();
    return thread ? thread->PreTranslateMessage(pMsg) : preTranslate(pMsg);
}

void AFXAPI AfxPostQuitMessage(int nExitCode) {
    ::PostQuitMessage(nExitCode);
}

// --- windows in loops

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND window = pMsg->hwnd; window; window = ::GetParent(window)) {
        CWnd* object = FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(pMsg))
            return TRUE;
        if (window == hWndStop)
            break;
    }
    return FALSE;
}

BOOL CWnd::IsDialogMessage(LPMSG lpMsg) {
    return ::IsDialogMessageW(m_hWnd, lpMsg);
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg) {
    const UINT m = lpMsg->message;
    const bool input = (m >= WM_KEYFIRST && m <= WM_KEYLAST) || (m >= WM_MOUSEFIRST && m <= WM_MOUSELAST);
    return input && IsDialogMessage(lpMsg);
}

int CWnd::RunModalLoop(DWORD dwFlags) {
    orvafx::ThreadState& state = orvafx::threadState();
    // Temporary objects from before belong to whoever is waiting for this loop to end.
    const orvafx::ThreadState::Marks before = state.marks();
    bool show = (dwFlags & MLF_SHOWONIDLE) && !(GetStyle() & WS_VISIBLE);
    auto showNow = [&] {
        if (show && m_hWnd) {
            show = false;
            ShowWindow(SW_SHOWNORMAL);
            UpdateWindow();
        }
    };
    struct Running {
        explicit Running(UINT& f) : flags(f) { flags |= WF_MODALLOOP | WF_CONTINUEMODAL; }
        ~Running() { flags &= ~static_cast<UINT>(WF_MODALLOOP | WF_CONTINUEMODAL); }
        UINT& flags;
    } running(m_nFlags);
    bool idle = true;
    LONG idleCount = 0;
    while (ContinueModal()) {
        MSG waiting;
        while (idle && !::PeekMessageW(&waiting, NULL, 0, 0, PM_NOREMOVE)) {
            showNow();
            HWND parent = m_hWnd ? ::GetParent(m_hWnd) : NULL;
            if (idleCount == 0 && parent && !(dwFlags & MLF_NOIDLEMSG))
                ::SendMessageA(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
            idle = m_hWnd && !(dwFlags & MLF_NOKICKIDLE) &&
                   SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, idleCount++);
            if (!idle && state.tempLocks == 0)
                state.deleteTemporary(before);
            if (!ContinueModal())
                break;
        }
        if (!ContinueModal())
            break;
        do {
            CWinThread* thread = AfxGetThread();
            if (!AfxPumpMessage()) {
                const MSG& quit = thread ? thread->m_msgCur : orvafx::threadState().pumped;
                AfxPostQuitMessage(static_cast<int>(quit.wParam));
                return -1;
            }
            MSG& current = thread ? thread->m_msgCur : orvafx::threadState().pumped;
            if (thread ? thread->IsIdleMessage(&current) : isIdleMessage(current)) {
                idle = true;
                idleCount = 0;
            }
        } while (ContinueModal() && ::PeekMessageW(&waiting, NULL, 0, 0, PM_NOREMOVE));
    }
    return m_nModalResult;
}

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    if (!(m_nFlags & WF_CONTINUEMODAL))
        return;
    m_nFlags &= ~static_cast<UINT>(WF_CONTINUEMODAL);
    if (m_hWnd)
        PostMessage(WM_NULL);
}
