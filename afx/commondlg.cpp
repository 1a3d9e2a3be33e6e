// The system's dialogs for colours, fonts and files.

#include "wndcreate.h"

#include "afxdlgs.h"
#include "dbcs.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

CCommonDialog::~CCommonDialog() = default;

HWND CCommonDialog::Owner() const {
    return orvafx::modalOwner(m_pParentWnd);
}

// --- colours

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd) {
    memset(&m_cc, 0, sizeof m_cc);
    m_cc.lStructSize = sizeof m_cc;
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.Flags = dwFlags;
    m_cc.rgbResult = clrInit;
    if (clrInit)
        m_cc.Flags |= CC_RGBINIT;
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors() {
    static COLORREF colors[16] = {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                  0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                  0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF};
    return colors;
}

INT_PTR CColorDialog::DoModal() {
    m_cc.hwndOwner = Owner();
    return ::ChooseColorA(&m_cc) ? IDOK : IDCANCEL;
}

// --- fonts

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd) {
    memset(&m_cf, 0, sizeof m_cf);
    memset(&m_lf, 0, sizeof m_lf);
    memset(m_szStyleName, 0, sizeof m_szStyleName);
    m_cf.lStructSize = sizeof m_cf;
    m_cf.Flags = dwFlags;
    m_cf.lpszStyle = m_szStyleName;
    m_cf.lpLogFont = &m_lf;
    if (lplfInitial) {
        m_lf = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter) {
        m_cf.hDC = pdcPrinter->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

INT_PTR CFontDialog::DoModal() {
    m_cf.hwndOwner = Owner();
    return ::ChooseFontA(&m_cf) ? IDOK : IDCANCEL;
}

// --- files

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD, BOOL)
    : CCommonDialog(pParentWnd), m_bOpenFileDialog(bOpenFileDialog), m_strFilter(lpszFilter),
      m_strDefExt(lpszDefExt) {
    memset(&m_ofn, 0, sizeof m_ofn);
    memset(m_szFileName, 0, sizeof m_szFileName);
    memset(m_szFileTitle, 0, sizeof m_szFileTitle);
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.Flags = dwFlags | OFN_EXPLORER;
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = MAX_PATH;
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = MAX_PATH;
    if (lpszDefExt)
        m_ofn.lpstrDefExt = m_strDefExt;
    if (lpszFileName)
        memcpy(
            m_szFileName, lpszFileName,
            static_cast<size_t>(orvafx::wholeCharBytes(lpszFileName, lstrlenA(lpszFileName), MAX_PATH - 1)));
    if (lpszFilter) {
        // The system separates by zeros and ends with two.
        m_strFilter += "|";
        char* text = m_strFilter.GetBuffer();
        for (; *text; text += ::IsDBCSLeadByte(static_cast<BYTE>(*text)) && text[1] ? 2 : 1)
            if (*text == '|')
                *text = '\0';
        m_ofn.lpstrFilter = m_strFilter;
    }
}

INT_PTR CFileDialog::DoModal() {
    m_ofn.hwndOwner = Owner();
    const BOOL chosen = m_bOpenFileDialog ? ::GetOpenFileNameA(&m_ofn) : ::GetSaveFileNameA(&m_ofn);
    return chosen ? IDOK : IDCANCEL;
}

CString CFileDialog::GetPathName() const {
    return m_ofn.lpstrFile;
}

CString CFileDialog::GetFileName() const {
    const CString path = GetPathName();
    return path.Mid(path.ReverseFind('\\') + 1);
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFolderPath() const {
    const CString path = GetPathName();
    const int last = path.ReverseFind('\\');
    return last < 0 ? CString() : path.Left(last);
}

POSITION CFileDialog::GetStartPosition() const {
    return reinterpret_cast<POSITION>(m_ofn.lpstrFile);
}

// Several names are stored as the folder and the bare names, each behind its zero; one as its path alone.
CString CFileDialog::GetNextPathName(POSITION& pos) const {
    const char* at = reinterpret_cast<const char*>(pos);
    const char* start = m_ofn.lpstrFile;
    pos = NULL;
    if (!at)
        return CString();
    const CString folder = start;
    const char* names = start + folder.GetLength() + 1;
    const bool several = (m_ofn.Flags & OFN_ALLOWMULTISELECT) != 0 && *names != '\0';
    if (!several)
        return folder;
    const char* name = at == start ? names : at;
    const CString bare = name;
    const char* next = name + bare.GetLength() + 1;
    if (*next != '\0')
        pos = reinterpret_cast<POSITION>(const_cast<char*>(next));
    return folder + (folder.Right(1) == "\\" ? "" : "\\") + bare;
}
