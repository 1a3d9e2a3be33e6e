#pragma once

// Dialogs.

#include "afxwnd_.h"

// A dialog made from a template resource (looked for along the module chain) or from a template in memory.
//
// Modal: construct with the template, DoModal. The owner is disabled; messages pass PreTranslateMessage of
// every window up from the addressed one before the dialog's own keys are looked at. Modeless: Create, and
// delete the object after its window. Ids IDOK and IDCANCEL call OnOK and OnCancel.
class ORVAFX_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog() = default;
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    ~CDialog() override;

    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL,
                                void* lpDialogInit = NULL);
    // The template stays the caller's until the dialog has ended.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL,
                           void* lpDialogInit = NULL);

    // What EndDialog was told; -1 when the dialog cannot be made or the program ends, IDABORT when the window
    // was destroyed from outside.
    virtual INT_PTR DoModal();
    // Lets DoModal return; a modeless dialog is only hidden. From OnInitDialog too: the dialog is then never
    // seen.
    void EndDialog(int nResult);

    void NextDlgCtrl() const { ::SendMessageA(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::SendMessageA(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }
    DWORD GetDefID() const { return static_cast<DWORD>(SendMessage(DM_GETDEFID)); }
    // Dialog units to pixels.
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }

    // The first exchange of data happens here. FALSE: the focus has been set already.
    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    // OK fetches the data and ends the dialog when all of it is accepted.
    virtual void OnOK();
    virtual void OnCancel();

    LPCTSTR m_lpszTemplateName = NULL;
    LPCDLGTEMPLATE m_lpDialogTemplate = NULL;
    CWnd* m_pParentWnd = NULL;

    DECLARE_MESSAGE_MAP()

private:
    LPCDLGTEMPLATE FindTemplate(LPCTSTR lpszTemplateName, HINSTANCE& hInst) const;
    int RunOver(HWND hWndOwner, LPCDLGTEMPLATE lpTemplate, HINSTANCE hInst);
};

ORVAFX_API INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

// One exchange between the controls of a dialog and the members of its object. Fail tells the control that
// was looked at last, and ends the exchange with a CUserException that UpdateData catches.
class ORVAFX_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
        : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}
    CDataExchange(const CDataExchange&) = delete;
    CDataExchange& operator=(const CDataExchange&) = delete;

    BOOL m_bSaveAndValidate; // TRUE: from the controls to the members
    CWnd* m_pDlgWnd;
    HWND m_hWndLastControl = NULL;
    BOOL m_bEditLastControl = FALSE; // its text is marked when it fails

    // A control that is not there ends the exchange with a CNotSupportedException.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    void Fail();
};

// --- exchange. Numbers that cannot be read, or do not fit, are refused with a message box.
ORVAFX_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
ORVAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
ORVAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
ORVAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
ORVAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
ORVAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
ORVAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
ORVAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
ORVAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
ORVAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
ORVAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen);
ORVAFX_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
// The group that begins at nIDC (WS_GROUP); -1: none.
ORVAFX_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
ORVAFX_API void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
ORVAFX_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
ORVAFX_API void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
ORVAFX_API void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
ORVAFX_API void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);

// --- checks, each right behind the exchange of its value. Both limits are allowed values.
ORVAFX_API void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
ORVAFX_API void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
ORVAFX_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
ORVAFX_API void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
ORVAFX_API void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
ORVAFX_API void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
ORVAFX_API void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, float const& value, float minVal, float maxVal);
ORVAFX_API void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal,
                                        double maxVal);
// Also limits what can be typed. Counts bytes.
ORVAFX_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
