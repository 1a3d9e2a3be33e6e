#pragma once

// The standard controls. Attach them to dialog items (DDX_Control, SubclassDlgItem) or create them; without a
// style of theirs nothing is added to dwStyle. Indexes count from 0; texts are code page bytes, positions in
// the text of an edit control are characters, as the system counts them.

#include "afxwnd_.h"

class ORVAFX_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic() = default;
    ~CStatic() override;
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xFFFF);
    HICON SetIcon(HICON hIcon) {
        return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(hIcon)));
    }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(
            SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }

    // Of SS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class ORVAFX_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    CButton() = default;
    ~CButton() override;
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, bHighlight); }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, nCheck); }
    UINT GetButtonStyle() const { return GetStyle() & 0xFF; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(
            SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }
    HICON SetIcon(HICON hIcon) {
        return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(hIcon)));
    }

    // Of BS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class ORVAFX_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit() = default;
    ~CEdit() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const { return static_cast<BOOL>(SendMessage(EM_CANUNDO)); }
    BOOL Undo() { return static_cast<BOOL>(SendMessage(EM_UNDO)); }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    // At most nMaxLength bytes, no closing zero.
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int LineIndex(int nLine = -1) const { return static_cast<int>(SendMessage(EM_LINEINDEX, nLine)); }
    int LineLength(int nLine = -1) const { return static_cast<int>(SendMessage(EM_LINELENGTH, nLine)); }
    int LineFromChar(int nIndex = -1) const { return static_cast<int>(SendMessage(EM_LINEFROMCHAR, nIndex)); }
    void LineScroll(int nLines, int nChars = 0) { SendMessage(EM_LINESCROLL, nChars, nLines); }
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, bModified); }
    // LOWORD: start, HIWORD: end.
    DWORD GetSel() const { return static_cast<DWORD>(SendMessage(EM_GETSEL)); }
    void GetSel(int& nStartChar, int& nEndChar) const;
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        SendMessage(EM_REPLACESEL, bCanUndo, reinterpret_cast<LPARAM>(lpszNewText));
    }
    // 0: as many as the system takes.
    void SetLimitText(UINT nMax) { SendMessage(EM_SETLIMITTEXT, nMax); }
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, nChars); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, bReadOnly));
    }
    void SetPasswordChar(TCHAR ch) { SendMessage(EM_SETPASSWORDCHAR, static_cast<BYTE>(ch)); }
    void GetRect(LPRECT lpRect) const { SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(lpRect)); }
    void SetRect(LPCRECT lpRect) { SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(lpRect)); }
    void SetMargins(UINT nLeft, UINT nRight) {
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
    }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
};

// LB_ERR and LB_ERRSPACE tell of failures.
class ORVAFX_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox() = default;
    ~CListBox() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return static_cast<int>(SendMessage(LB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(LB_GETCURSEL)); }
    // -1: none is selected, and the answer is LB_ERR.
    int SetCurSel(int nSelect) { return static_cast<int>(SendMessage(LB_SETCURSEL, nSelect)); }
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, nIndex));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return static_cast<int>(SendMessage(LB_SETITEMDATA, nIndex, dwItemData));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    int GetTopIndex() const { return static_cast<int>(SendMessage(LB_GETTOPINDEX)); }
    int SetTopIndex(int nIndex) { return static_cast<int>(SendMessage(LB_SETTOPINDEX, nIndex)); }
    int AddString(LPCTSTR lpszItem) {
        return static_cast<int>(SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)));
    }
    int InsertString(int nIndex, LPCTSTR lpszItem) {
        return static_cast<int>(SendMessage(LB_INSERTSTRING, nIndex, reinterpret_cast<LPARAM>(lpszItem)));
    }
    int DeleteString(UINT nIndex) { return static_cast<int>(SendMessage(LB_DELETESTRING, nIndex)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    // From the item after nStartAfter on, around the end; case does not count.
    int FindString(int nStartAfter, LPCTSTR lpszItem) const {
        return static_cast<int>(SendMessage(LB_FINDSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszItem)));
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return static_cast<int>(
            SendMessage(LB_FINDSTRINGEXACT, nIndexStart, reinterpret_cast<LPARAM>(lpszFind)));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszItem) {
        return static_cast<int>(
            SendMessage(LB_SELECTSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszItem)));
    }
    int GetTextLen(int nIndex) const { return static_cast<int>(SendMessage(LB_GETTEXTLEN, nIndex)); }
    // lpszBuffer takes GetTextLen(nIndex) + 1 bytes; the CString form is empty for a wrong index.
    int GetText(int nIndex, LPTSTR lpszBuffer) const {
        return static_cast<int>(SendMessage(LB_GETTEXT, nIndex, reinterpret_cast<LPARAM>(lpszBuffer)));
    }
    void GetText(int nIndex, CString& rString) const;
    int GetSel(int nIndex) const { return static_cast<int>(SendMessage(LB_GETSEL, nIndex)); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) {
        return static_cast<int>(SendMessage(LB_SETSEL, bSelect, nIndex));
    }
    int GetSelCount() const { return static_cast<int>(SendMessage(LB_GETSELCOUNT)); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const {
        return static_cast<int>(SendMessage(LB_GETSELITEMS, nMaxItems, reinterpret_cast<LPARAM>(rgIndex)));
    }
    int GetCaretIndex() const { return static_cast<int>(SendMessage(LB_GETCARETINDEX)); }
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE) {
        return static_cast<int>(SendMessage(LB_SETCARETINDEX, nIndex, bScroll));
    }
    int GetItemHeight(int nIndex) const { return static_cast<int>(SendMessage(LB_GETITEMHEIGHT, nIndex)); }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return static_cast<int>(SendMessage(LB_SETITEMHEIGHT, nIndex, cyItemHeight));
    }
    int GetItemRect(int nIndex, LPRECT lpRect) const {
        return static_cast<int>(SendMessage(LB_GETITEMRECT, nIndex, reinterpret_cast<LPARAM>(lpRect)));
    }
    // The item nearest to the point; bOutside tells whether the point is outside the client area.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    void SetHorizontalExtent(int cxExtent) { SendMessage(LB_SETHORIZONTALEXTENT, cxExtent); }
    void SetColumnWidth(int cxWidth) { SendMessage(LB_SETCOLUMNWIDTH, cxWidth); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops) {
        return static_cast<BOOL>(
            SendMessage(LB_SETTABSTOPS, nTabStops, reinterpret_cast<LPARAM>(rgTabStops)));
    }

    // Of the owner-drawn styles, reflected from the parent. CompareItem: -1, 0 or 1 as the first item is
    // sorted before, with or behind the second. DeleteItem comes for every item, also while the window is
    // being destroyed.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

    // LBS_WANTKEYBOARDINPUT: -1 the list acts itself, -2 everything is done, else the item to move to.
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

// CB_ERR and CB_ERRSPACE tell of failures.
class ORVAFX_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox() = default;
    ~CComboBox() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return static_cast<int>(SendMessage(CB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    // -1: none is selected, and the answer is CB_ERR.
    int SetCurSel(int nSelect) { return static_cast<int>(SendMessage(CB_SETCURSEL, nSelect)); }
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, nIndex));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return static_cast<int>(SendMessage(CB_SETITEMDATA, nIndex, dwItemData));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    int GetTopIndex() const { return static_cast<int>(SendMessage(CB_GETTOPINDEX)); }
    int SetTopIndex(int nIndex) { return static_cast<int>(SendMessage(CB_SETTOPINDEX, nIndex)); }
    int AddString(LPCTSTR lpszItem) {
        return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)));
    }
    int InsertString(int nIndex, LPCTSTR lpszItem) {
        return static_cast<int>(SendMessage(CB_INSERTSTRING, nIndex, reinterpret_cast<LPARAM>(lpszItem)));
    }
    int DeleteString(UINT nIndex) { return static_cast<int>(SendMessage(CB_DELETESTRING, nIndex)); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    // From the item after nStartAfter on, around the end; case does not count.
    int FindString(int nStartAfter, LPCTSTR lpszItem) const {
        return static_cast<int>(SendMessage(CB_FINDSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszItem)));
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return static_cast<int>(
            SendMessage(CB_FINDSTRINGEXACT, nIndexStart, reinterpret_cast<LPARAM>(lpszFind)));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszItem) {
        return static_cast<int>(
            SendMessage(CB_SELECTSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszItem)));
    }
    int GetLBTextLen(int nIndex) const { return static_cast<int>(SendMessage(CB_GETLBTEXTLEN, nIndex)); }
    // lpszText takes GetLBTextLen(nIndex) + 1 bytes; the CString form is empty for a wrong index.
    int GetLBText(int nIndex, LPTSTR lpszText) const {
        return static_cast<int>(SendMessage(CB_GETLBTEXT, nIndex, reinterpret_cast<LPARAM>(lpszText)));
    }
    void GetLBText(int nIndex, CString& rString) const;
    // Of the text in the field.
    DWORD GetEditSel() const { return static_cast<DWORD>(SendMessage(CB_GETEDITSEL)); }
    BOOL SetEditSel(int nStartChar, int nEndChar) {
        return static_cast<BOOL>(SendMessage(CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar)));
    }
    BOOL LimitText(int nMaxChars) { return static_cast<BOOL>(SendMessage(CB_LIMITTEXT, nMaxChars)); }
    // nIndex -1: the field.
    int GetItemHeight(int nIndex) const { return static_cast<int>(SendMessage(CB_GETITEMHEIGHT, nIndex)); }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return static_cast<int>(SendMessage(CB_SETITEMHEIGHT, nIndex, cyItemHeight));
    }
    void ShowDropDown(BOOL bShowIt = TRUE) { SendMessage(CB_SHOWDROPDOWN, bShowIt); }
    BOOL GetDroppedState() const { return static_cast<BOOL>(SendMessage(CB_GETDROPPEDSTATE)); }
    // In screen coordinates.
    void GetDroppedControlRect(LPRECT lprect) const {
        SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(lprect));
    }
    int GetDroppedWidth() const { return static_cast<int>(SendMessage(CB_GETDROPPEDWIDTH)); }
    int SetDroppedWidth(UINT nWidth) { return static_cast<int>(SendMessage(CB_SETDROPPEDWIDTH, nWidth)); }
    BOOL GetExtendedUI() const { return static_cast<BOOL>(SendMessage(CB_GETEXTENDEDUI)); }
    int SetExtendedUI(BOOL bExtended = TRUE) {
        return static_cast<int>(SendMessage(CB_SETEXTENDEDUI, bExtended));
    }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const { return ::GetComboBoxInfo(m_hWnd, pcbi); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }

    // Of the owner-drawn styles, reflected from the parent. CompareItem: -1, 0 or 1 as the first item is
    // sorted before, with or behind the second. DeleteItem comes for every item, also while the window is
    // being destroyed.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

// A scroll bar that is a window of its own.
class ORVAFX_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar() = default;
    ~CScrollBar() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const {
        ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL) {
        return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
    }
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE) {
        return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
    }
};
