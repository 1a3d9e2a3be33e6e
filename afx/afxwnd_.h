#pragma once

// CWnd: a window and the messages it gets.

#include "afxcmdtarget_.h"
#include "afxgdi_.h"

class CDataExchange;
class CDC;
class CFrameWnd;
class CListBox;
class CScrollBar;
struct CCreateContext;

// The states of a modal loop.
#define WF_MODALLOOP 0x0010
#define WF_CONTINUEMODAL 0x0020
// Show the window when the loop is first idle; do not tell the parent about idle time.
#define MLF_NOIDLEMSG 0x0001
#define MLF_NOKICKIDLE 0x0002
#define MLF_SHOWONIDLE 0x0004
// To a window whose modal loop is idle: wParam is how many times in a row; 0 ends the idle time.
#define WM_KICKIDLE 0x036A

// A window handle known to the foundation.
//
// A permanent object (Create, Attach, Subclass...) gets the window's messages through its message map, and
// stays attached until the window is gone (the last call is PostNcDestroy) or Detach. Deleting it destroys
// the window. A temporary object (FromHandle, GetDlgItem, GetParent, ...) belongs to the foundation, gets no
// messages and is gone when the thread is idle: keep the handle, not the pointer.
//
// An exception that leaves a handler is traced and ends there: WM_CREATE then fails, WM_PAINT validates, any
// other message answers 0. Standard controls and dialogs are subclassed as wide windows, so that any text can
// be typed; texts in the records of their raw messages (WM_SETTEXT, CREATESTRUCT) are wide, those of all
// members here are not.
class ORVAFX_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd() = default;
    ~CWnd() override;

    HWND m_hWnd = NULL;

    static const CWnd wndTop, wndBottom, wndTopMost, wndNoTopMost; // for SetWindowPos

    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& wnd) const { return m_hWnd == wnd.m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return m_hWnd != wnd.m_hWnd; }
    // NULL on a null pointer as well: hosts call it on any CWnd*.
    HWND GetSafeHwnd() const;
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongA(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongA(m_hWnd, GWL_EXSTYLE)); }
    // nFlags other than 0: SetWindowPos is called with them too, without moving.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);

    // The permanent object of the handle, else a temporary one; NULL for NULL.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    static void PASCAL DeleteTempMap();
    // TRUE when the handle was taken over. Messages go on to the window's own procedure only.
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    // --- creation and destruction. On failure FALSE, after PostNcDestroy.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = NULL);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = NULL);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = NULL);
    virtual BOOL DestroyWindow();
    // Change cs before the window is made; FALSE: make none. Without a class name it gets the foundation's
    // own.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    // The handle is attached, the procedure is not yet replaced.
    virtual void PreSubclassWindow() {}
    // FALSE when there is no such window, or one of this object's already, or a permanent object has it.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    HWND UnsubclassWindow();
    // Like CreateDlgIndirect of the system: a dialog that is this object.
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst = NULL);
    // Runs the loop until EndModalLoop, and answers its result (-1: the program ends).
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal() { return (m_nFlags & WF_CONTINUEMODAL) != 0; }
    virtual void EndModalLoop(int nResult);

    // --- messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageA(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::PostMessageA(m_hWnd, message, wParam, lParam);
    }
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    // TRUE: the message is done with. Every window from the addressed one up to its top is asked.
    virtual BOOL PreTranslateMessage(MSG*) { return FALSE; }
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    static const MSG* PASCAL GetCurrentMessage();
    // IsDialogMessage of the system, wide.
    BOOL IsDialogMessage(LPMSG lpMsg);

    // --- text
    void SetWindowText(LPCTSTR lpszString) { ::SetWindowTextA(m_hWnd, lpszString); }
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
        return ::GetWindowTextA(m_hWnd, lpszStringBuf, nMaxCount);
    }
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLengthA(m_hWnd); }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;

    // --- geometry, in pixels. Window rectangles are in screen coordinates.
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT r, BOOL bRepaint = TRUE) {
        MoveWindow(r->left, r->top, r->right - r->left, r->bottom - r->top, bRepaint);
    }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
        return ::SetWindowPos(m_hWnd, HandleOf(pWndInsertAfter), x, y, cx, cy, nFlags);
    }
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    // Over pAlternateOwner or the owner, inside the work area.
    void CenterWindow(CWnd* pAlternateOwner = NULL);
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) { return ::SetWindowPlacement(m_hWnd, lpwndpl); }
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
        ::MapWindowPoints(m_hWnd, HandleOf(pwndTo), lpPoint, nCount);
    }
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
        MapWindowPoints(pwndTo, reinterpret_cast<LPPOINT>(lpRect), 2);
    }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }

    // --- painting
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
    // Give it back with ReleaseDC.
    CDC* GetDC();
    CDC* GetWindowDC();
    int ReleaseDC(CDC* pDC);
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL bRedraw = TRUE) { SendMessage(WM_SETREDRAW, bRedraw); }
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, NULL, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE) {
        ::InvalidateRgn(m_hWnd, pRgn ? static_cast<HRGN>(pRgn->m_hObject) : NULL, bErase);
    }
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    BOOL RedrawWindow(LPCRECT lpRectUpdate = NULL, CRgn* prgnUpdate = NULL,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE) {
        return ::RedrawWindow(m_hWnd, lpRectUpdate,
                              prgnUpdate ? static_cast<HRGN>(prgnUpdate->m_hObject) : NULL, flags);
    }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;

    // --- state, focus, input
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer) const {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) const { return ::KillTimer(m_hWnd, nIDEvent); }
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = NULL, UINT nType = MB_OK) {
        return ::MessageBoxA(m_hWnd, lpszText, lpszCaption, nType);
    }
    void DragAcceptFiles(BOOL bAccept = TRUE);
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    CMenu* GetSystemMenu(BOOL bRevert) const;
    void SetIcon(HICON hIcon, BOOL bBigIcon) {
        SendMessage(WM_SETICON, bBigIcon, reinterpret_cast<LPARAM>(hIcon));
    }
    void CreateSolidCaret(int nWidth, int nHeight) { ::CreateCaret(m_hWnd, NULL, nWidth, nHeight); }
    void ShowCaret() { ::ShowCaret(m_hWnd); }
    void HideCaret() { ::HideCaret(m_hWnd); }
    static void PASCAL SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }

    // Tips for the child windows there are now: this window gets TTN_NEEDTEXT with TTF_IDISHWND. One window
    // of a thread at a time has them.
    BOOL EnableToolTips(BOOL bEnable = TRUE);

    // --- relatives
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* GetAncestor(UINT gaFlags) const { return FromHandle(::GetAncestor(m_hWnd, gaFlags)); }
    CWnd* SetParent(CWnd* pWndNewParent) { return FromHandle(::SetParent(m_hWnd, HandleOf(pWndNewParent))); }
    // Who gets this window's notifications; the parent when none was set.
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = HandleOf(pOwnerWnd); }
    CWnd* GetTopLevelParent() const;
    CFrameWnd* GetParentFrame() const;
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, HandleOf(pWnd)); }
    static CWnd* PASCAL FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
        return FromHandle(::FindWindowA(lpszClassName, lpszWindowName));
    }
    static CWnd* PASCAL WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    CWnd* ChildWindowFromPoint(POINT point) const {
        return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
    }

    // --- dialog items
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int nID) { return static_cast<int>(::SetWindowLongPtrA(m_hWnd, GWLP_ID, nID)); }
    void SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemTextA(m_hWnd, nID, lpszString); }
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
        return ::GetDlgItemTextA(m_hWnd, nID, lpStr, nMaxCount);
    }
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE) {
        ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
    }
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = NULL, BOOL bSigned = TRUE) const {
        return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
    }
    void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
    UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton) {
        ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
    }
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const;
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendDlgItemMessageA(m_hWnd, nID, message, wParam, lParam);
    }
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const {
        return FromHandle(::GetNextDlgTabItem(m_hWnd, HandleOf(pWndCtl), bPrevious));
    }

    // --- scrolling
    int GetScrollPos(int nBar) const { return ::GetScrollPos(m_hWnd, nBar); }
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE) {
        return ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw);
    }
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
        ::GetScrollRange(m_hWnd, nBar, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
    }
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, nBar, bShow); }
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH) {
        return ::EnableScrollBar(m_hWnd, nSBFlags, nArrowFlags);
    }
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = NULL, LPCRECT lpClipRect = NULL) {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
    }

    // Exchanges between controls and members (DoDataExchange). FALSE when a value was refused; the user has
    // been told and the field has the focus.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    // --- how messages travel
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // The message in hand to the window's own procedure.
    LRESULT Default();
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // A message that the parent sent back to the control it came from. TRUE: done, the parent needs not go
    // on.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = NULL);
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = NULL);
    // The very last call; the object may delete itself here.
    virtual void PostNcDestroy() {}
    virtual void DoDataExchange(CDataExchange*) {}
    virtual WNDPROC* GetSuperWndProcAddr() { return &m_pfnSuper; }
    BOOL PreTranslateInput(LPMSG lpMsg);

    // --- handlers; those of the base hand the message to the window's own procedure
    afx_msg int OnCreate(LPCREATESTRUCT);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT);
    afx_msg void OnDestroy();
    // Detaches the object behind the window's own procedure, and calls PostNcDestroy.
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*);
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT);
    afx_msg void OnMove(int, int);
    afx_msg void OnSize(UINT, int, int);
    afx_msg void OnSizing(UINT, LPRECT);
    afx_msg void OnMoving(UINT, LPRECT);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO*);
    afx_msg void OnWindowPosChanging(WINDOWPOS*);
    afx_msg void OnWindowPosChanged(WINDOWPOS*);
    afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*);
    afx_msg LRESULT OnNcHitTest(CPoint);
    afx_msg BOOL OnNcActivate(BOOL);
    afx_msg void OnActivate(UINT, CWnd*, BOOL);
    afx_msg void OnActivateApp(BOOL, DWORD);
    afx_msg void OnSetFocus(CWnd*);
    afx_msg void OnKillFocus(CWnd*);
    afx_msg void OnEnable(BOOL);
    afx_msg void OnShowWindow(BOOL, UINT);
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd*);
    afx_msg void OnTimer(UINT_PTR);
    afx_msg void OnChar(UINT, UINT, UINT);
    afx_msg void OnKeyDown(UINT, UINT, UINT);
    afx_msg void OnKeyUp(UINT, UINT, UINT);
    afx_msg void OnSysChar(UINT, UINT, UINT);
    afx_msg void OnSysKeyDown(UINT, UINT, UINT);
    afx_msg void OnSysKeyUp(UINT, UINT, UINT);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnMouseMove(UINT, CPoint);
    afx_msg void OnLButtonDown(UINT, CPoint);
    afx_msg void OnLButtonUp(UINT, CPoint);
    afx_msg void OnLButtonDblClk(UINT, CPoint);
    afx_msg void OnRButtonDown(UINT, CPoint);
    afx_msg void OnRButtonUp(UINT, CPoint);
    afx_msg void OnRButtonDblClk(UINT, CPoint);
    afx_msg void OnMButtonDown(UINT, CPoint);
    afx_msg void OnMButtonUp(UINT, CPoint);
    afx_msg void OnNcMouseMove(UINT, CPoint);
    afx_msg void OnNcLButtonDown(UINT, CPoint);
    afx_msg void OnNcLButtonUp(UINT, CPoint);
    afx_msg void OnNcLButtonDblClk(UINT, CPoint);
    afx_msg void OnMouseLeave();
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint);
    afx_msg int OnMouseActivate(CWnd*, UINT, UINT);
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT);
    afx_msg void OnContextMenu(CWnd*, CPoint);
    afx_msg void OnHScroll(UINT, UINT, CScrollBar*);
    afx_msg void OnVScroll(UINT, UINT, CScrollBar*);
    afx_msg void OnSysCommand(UINT, LPARAM);
    afx_msg void OnInitMenu(CMenu*);
    afx_msg void OnInitMenuPopup(CMenu*, UINT, BOOL);
    afx_msg void OnMenuSelect(UINT, UINT, HMENU);
    afx_msg void OnParentNotify(UINT, LPARAM);
    afx_msg void OnEnterIdle(UINT, CWnd*);
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT);
    afx_msg void OnMeasureItem(int, LPMEASUREITEMSTRUCT);
    afx_msg void OnDeleteItem(int, LPDELETEITEMSTRUCT);
    afx_msg int OnCompareItem(int, LPCOMPAREITEMSTRUCT);
    afx_msg int OnCharToItem(UINT, CListBox*, UINT);
    afx_msg int OnVKeyToItem(UINT, CListBox*, UINT);
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT, LPCTSTR);
    afx_msg void OnStyleChanged(int, LPSTYLESTRUCT);
    afx_msg void OnDropFiles(HDROP);
    afx_msg BOOL OnHelpInfo(HELPINFO*);
    afx_msg void OnPaletteChanged(CWnd*);
    afx_msg BOOL OnQueryNewPalette();

    HWND m_hWndOwner = NULL;
    UINT m_nFlags = 0;
    int m_nModalResult = 0;
    WNDPROC m_pfnSuper = NULL; // the procedure this object stands before

    friend ORVAFX_API LRESULT AFXAPI AfxCallWndProc(CWnd*, HWND, UINT, WPARAM, LPARAM);
    friend ORVAFX_API LRESULT CALLBACK AfxWndProc(HWND, UINT, WPARAM, LPARAM);
    friend struct OrvWndAccess;

    DECLARE_MESSAGE_MAP()

private:
    explicit CWnd(HWND hWnd) : m_hWnd(hWnd) {}
    // GetSafeHwnd would have the compiler warn of a null this where a host writes NULL.
    static HWND HandleOf(const CWnd* pWnd) { return pWnd ? pWnd->m_hWnd : NULL; }
    void TakeProcedure();
    void ReturnProcedure();
    BOOL m_bWide = FALSE;    // the way m_pfnSuper is to be called
    BOOL m_bInChain = FALSE; // the window's messages come through AfxWndProc
};

// Classes are registered for this program and unregistered when the module that made them is unloaded. The
// name is the same for the same arguments, and stays valid.
ORVAFX_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = NULL,
                                              HBRUSH hbrBackground = NULL, HICON hIcon = NULL);
// TRUE also when there is such a class already.
ORVAFX_API BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);
ORVAFX_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
ORVAFX_API LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
