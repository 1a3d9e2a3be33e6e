#pragma once

// Common controls, image lists and the rich edit control.

#include <afxwin.h>
#include <commctrl.h>
#include <richedit.h>

#include <afxdlgs.h>

// A list of pictures of one size. The object owns its handle and destroys it, unless the handle came through
// FromHandle.
class ORVAFX_API CImageList : public CObject {
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList() = default;
    ~CImageList() override;

    HIMAGELIST m_hImageList = NULL;

    operator HIMAGELIST() const { return m_hImageList; }
    // NULL on a null pointer as well.
    HIMAGELIST GetSafeHandle() const;
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();

    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    // A bitmap of pictures side by side, found along the module chain.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL DeleteImageList();
    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    BOOL GetIconSize(int* cx, int* cy) const { return ::ImageList_GetIconSize(m_hImageList, cx, cy); }
    // The index of the first new picture, -1 on failure.
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon) { return ::ImageList_AddIcon(m_hImageList, hIcon); }
    BOOL Remove(int nImage) { return ::ImageList_Remove(m_hImageList, nImage); }
    COLORREF SetBkColor(COLORREF cr) { return ::ImageList_SetBkColor(m_hImageList, cr); }
    COLORREF GetBkColor() const { return ::ImageList_GetBkColor(m_hImageList); }
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const {
        return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
    }
    // The caller destroys the icon.
    HICON ExtractIcon(int nImage) { return ::ImageList_GetIcon(m_hImageList, nImage, 0); }

    // The picture that follows the mouse while something is dragged.
    BOOL BeginDrag(int nImage, CPoint ptHotSpot) {
        return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
    }
    static void PASCAL EndDrag() { ::ImageList_EndDrag(); }
    static BOOL PASCAL DragMove(CPoint pt) { return ::ImageList_DragMove(pt.x, pt.y); }
    static BOOL PASCAL DragShowNolock(BOOL bShow) { return ::ImageList_DragShowNolock(bShow); }
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* pWndLock);
};

// A tool-tip window. Tools are windows, or rectangles of windows; the owner hands its mouse messages over
// with RelayEvent.
class ORVAFX_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl() = default;
    ~CToolTipCtrl() override;
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    void Activate(BOOL bActivate) { SendMessage(TTM_ACTIVATE, bActivate); }
    // Without rectangle the whole window pWnd is the tool. LPSTR_TEXTCALLBACK: the window is asked.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACKA, LPCRECT lpRectTool = NULL,
                 UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = NULL, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const { return static_cast<int>(SendMessage(TTM_GETTOOLCOUNT)); }
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    // nDelay in milliseconds.
    void SetDelayTime(UINT nDelay) { SendMessage(TTM_SETDELAYTIME, TTDT_AUTOMATIC, nDelay); }
    void SetDelayTime(DWORD dwDuration, int iTime) {
        SendMessage(TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
    }
    int SetMaxTipWidth(int iWidth) { return static_cast<int>(SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth)); }
    void RelayEvent(LPMSG lpMsg) { SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg)); }
    void Pop() { SendMessage(TTM_POP); }
};

class ORVAFX_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    CProgressCtrl() = default;
    ~CProgressCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper) { SetRange32(nLower, nUpper); }
    void SetRange32(int nLower, int nUpper) { SendMessage(PBM_SETRANGE32, nLower, nUpper); }
    int SetPos(int nPos) { return static_cast<int>(SendMessage(PBM_SETPOS, nPos)); }
    int GetPos() const { return static_cast<int>(SendMessage(PBM_GETPOS)); }
    int SetStep(int nStep) { return static_cast<int>(SendMessage(PBM_SETSTEP, nStep)); }
    int StepIt() { return static_cast<int>(SendMessage(PBM_STEPIT)); }
};

class ORVAFX_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl() = default;
    ~CTabCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const { return static_cast<int>(SendMessage(TCM_GETITEMCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(TCM_GETCURSEL)); }
    int SetCurSel(int nItem) { return static_cast<int>(SendMessage(TCM_SETCURSEL, nItem)); }
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const {
        return static_cast<BOOL>(SendMessage(TCM_GETITEMA, nItem, reinterpret_cast<LPARAM>(pTabCtrlItem)));
    }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const {
        return static_cast<BOOL>(SendMessage(TCM_GETITEMRECT, nItem, reinterpret_cast<LPARAM>(lpRect)));
    }
    BOOL DeleteItem(int nItem) { return static_cast<BOOL>(SendMessage(TCM_DELETEITEM, nItem)); }
};

// Loads the rich edit control's DLL, which stays loaded. TRUE when it is there.
ORVAFX_API BOOL AFXAPI AfxInitRichEdit2();

// The rich edit control RichEdit20A; its text is code page bytes.
class ORVAFX_API CRichEditCtrl : public CWnd {
    DECLARE_DYNAMIC(CRichEditCtrl)

public:
    CRichEditCtrl() = default;
    ~CRichEditCtrl() override;
    // Loads the control's DLL itself.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    long GetTextLength() const { return GetWindowTextLength(); }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, bModified); }
    void GetSel(long& nStartChar, long& nEndChar) const;
    void SetSel(long nStartChar, long nEndChar);
    CString GetSelText() const;
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    void LimitText(long nChars = 0) { SendMessage(EM_EXLIMITTEXT, 0, nChars); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, bReadOnly));
    }
    COLORREF SetBackgroundColor(BOOL bSysColor, COLORREF cr) {
        return static_cast<COLORREF>(SendMessage(EM_SETBKGNDCOLOR, bSysColor, cr));
    }
    DWORD SetEventMask(DWORD dwEventMask) {
        return static_cast<DWORD>(SendMessage(EM_SETEVENTMASK, 0, dwEventMask));
    }
    // cf.cbSize is set here.
    DWORD GetSelectionCharFormat(CHARFORMAT& cf) const { return GetFormat(SCF_SELECTION, cf); }
    DWORD GetDefaultCharFormat(CHARFORMAT& cf) const { return GetFormat(0, cf); }
    BOOL SetSelectionCharFormat(CHARFORMAT& cf) { return SetFormat(SCF_SELECTION, cf); }
    BOOL SetDefaultCharFormat(CHARFORMAT& cf) { return SetFormat(SCF_DEFAULT, cf); }
    BOOL SetWordCharFormat(CHARFORMAT& cf) { return SetFormat(SCF_SELECTION | SCF_WORD, cf); }
    DWORD GetParaFormat(PARAFORMAT& pf) const;
    BOOL SetParaFormat(PARAFORMAT& pf);
    BOOL CanUndo() const { return static_cast<BOOL>(SendMessage(EM_CANUNDO)); }
    BOOL Undo() { return static_cast<BOOL>(SendMessage(EM_UNDO)); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }

protected:
    // The control itself would take the two bytes of a character for two.
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);

    DECLARE_MESSAGE_MAP()

private:
    BYTE m_chLead = 0; // waits for its trail byte
    DWORD GetFormat(WPARAM nWhat, CHARFORMAT& cf) const;
    BOOL SetFormat(WPARAM nWhat, CHARFORMAT& cf);
};
