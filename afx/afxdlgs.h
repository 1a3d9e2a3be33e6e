#pragma once

// Property sheets and the common dialogs.

#include <afxwin.h>
#include <commctrl.h>
#include <commdlg.h>
#include <dlgs.h>

class CPropertySheet;
class CTabCtrl;

// One page: a dialog template, whose caption is the tab's text unless another is given. Add it to a sheet;
// its window is made when it is first shown. The exchange of data runs when the page loses the active place
// (OnKillActive) and when it gets it (OnSetActive).
class ORVAFX_API CPropertyPage : public CDialog {
    DECLARE_DYNCREATE(CPropertyPage)

public:
    CPropertyPage();
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0,
                           DWORD dwSize = sizeof(PROPSHEETPAGE));
    ~CPropertyPage() override;

    PROPSHEETPAGE m_psp; // dwFlags, pszTitle and pszIcon may be changed before the page is shown

    void Construct(UINT nIDTemplate, UINT nIDCaption = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);
    CPropertySheet* GetParentSheet();

    void CancelToClose();
    // Enables the sheet's Apply button.
    void SetModified(BOOL bChanged = TRUE);
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    // FALSE: the page stays what it is (OnSetActive: not shown; OnKillActive, OnApply: not left).
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    virtual BOOL OnApply();
    virtual BOOL OnQueryCancel() { return TRUE; }
    virtual void OnReset() { OnCancel(); }
    void OnOK() override {}
    void OnCancel() override {}
    // 0: on to the next page, -1: stay, else the template number of the page to go to (none such: stay).
    virtual LRESULT OnWizardBack() { return 0; }
    virtual LRESULT OnWizardNext() { return 0; }
    virtual BOOL OnWizardFinish() { return TRUE; }

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;
    LRESULT MapWizardResult(LRESULT lToMap);

private:
    friend class CPropertySheet;
    friend struct OrvPageAccess;
    CString m_strCaption;
};

// The sheet over the system's. Modal: DoModal; modeless: Create, and delete it after its window.
class ORVAFX_API CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet();
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    ~CPropertySheet() override;

    PROPSHEETHEADER m_psh; // dwFlags may be changed before the sheet is made

    // The pages stay the caller's.
    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);

    // IDOK or IDCANCEL; -1 when there is no page or no window. In a wizard ID_WIZFINISH for the Finish
    // button.
    virtual INT_PTR DoModal();
    BOOL Create(CWnd* pParentWnd = NULL, DWORD dwStyle = static_cast<DWORD>(-1), DWORD dwExStyle = 0);
    void EndDialog(int nEndID);

    CTabCtrl* GetTabControl() const;
    int GetPageCount() const { return static_cast<int>(m_pages.GetSize()); }
    CPropertyPage* GetPage(int nPage) const;
    int GetPageIndex(CPropertyPage* pPage) const;
    int GetActiveIndex() const;
    CPropertyPage* GetActivePage() const { return GetPage(GetActiveIndex()); }
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);
    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);
    BOOL PressButton(int nButton) { return static_cast<BOOL>(SendMessage(PSM_PRESSBUTTON, nButton)); }
    void SetWizardMode() { m_psh.dwFlags |= PSH_WIZARD; }
    void SetWizardButtons(DWORD dwFlags) { PostMessage(PSM_SETWIZBUTTONS, 0, dwFlags); }
    void SetFinishText(LPCTSTR lpszText);
    BOOL IsWizard() const { return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97)) != 0; }
    BOOL IsModeless() const { return m_bModeless; }

    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL ContinueModal() override;
    BOOL DestroyWindow() override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;
    afx_msg void OnClose();

    CPtrArray m_pages;
    CString m_strCaption;
    CWnd* m_pParentWnd = NULL;
    BOOL m_bModeless = FALSE;

    DECLARE_MESSAGE_MAP()

private:
    void CommonConstruct(CWnd* pParentWnd, UINT iSelectPage);
    BOOL MakeSheet(HWND hWndOwner);
    int RunOver(HWND hWndOwner);
    BOOL m_bInitialised = FALSE;
};

// Base of the common dialogs. The system runs them; they are not subclassed.
class ORVAFX_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd) : CDialog(0u, pParentWnd) {}
    ~CCommonDialog() override;

protected:
    // The window that is disabled meanwhile.
    HWND Owner() const;
};

class ORVAFX_API CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)

public:
    // clrInit is shown when it is not 0 or dwFlags has CC_RGBINIT.
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = NULL);

    CHOOSECOLOR m_cc;

    INT_PTR DoModal() override;
    COLORREF GetColor() const { return m_cc.rgbResult; }
    // The sixteen custom colours, kept while the program runs.
    static COLORREF* PASCAL GetSavedCustomColors();
};

class ORVAFX_API CFontDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFontDialog)

public:
    explicit CFontDialog(LPLOGFONT lplfInitial = NULL, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* pdcPrinter = NULL, CWnd* pParentWnd = NULL);

    CHOOSEFONT m_cf;
    LOGFONT m_lf;

    INT_PTR DoModal() override;
    void GetCurrentFont(LPLOGFONT lplf) { *lplf = m_lf; }
    CString GetFaceName() const { return m_lf.lfFaceName; }
    CString GetStyleName() const { return m_szStyleName; }
    int GetSize() const { return m_cf.iPointSize; } // tenths of a point
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return m_lf.lfWeight; }
    BOOL IsItalic() const { return m_lf.lfItalic != 0; }
    BOOL IsUnderline() const { return m_lf.lfUnderline != 0; }
    BOOL IsStrikeOut() const { return m_lf.lfStrikeOut != 0; }
    BOOL IsBold() const { return m_lf.lfWeight > FW_NORMAL; }

protected:
    TCHAR m_szStyleName[64];
};

class ORVAFX_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)

public:
    // lpszFilter: pairs of name and pattern, separated by '|', "||" at the end. lpszDefExt is added to a name
    // without extension.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = NULL, LPCTSTR lpszFileName = NULL,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = NULL,
                         CWnd* pParentWnd = NULL, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);

    OPENFILENAME m_ofn; // dwFlags, lpstrTitle, lpstrInitialDir and a larger lpstrFile may be set before

    INT_PTR DoModal() override;
    OPENFILENAME& GetOFN() { return m_ofn; }
    // Of the name chosen: "C:\a\b.c" gives "C:\a\b.c", "b.c", "c", "b", "C:\a".
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;
    CString GetFolderPath() const;
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }
    // Of OFN_ALLOWMULTISELECT.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

protected:
    BOOL m_bOpenFileDialog;
    CString m_strFilter;
    CString m_strDefExt;
    TCHAR m_szFileName[MAX_PATH];
    TCHAR m_szFileTitle[MAX_PATH];
};
