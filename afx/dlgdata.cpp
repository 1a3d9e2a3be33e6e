// Exchange of data between controls and members.

#include "threadstate.h"

#include "dbcs.h"

#include <float.h>
#include <limits.h>
#include <math.h>
#include <stdlib.h>

using orvafx::threadState;

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange exchange(this, bSaveAndValidate);
    // What the controls report meanwhile is this exchange's own doing.
    HWND& lockedOut = threadState().lockedOut;
    const HWND before = lockedOut;
    lockedOut = m_hWnd;
    BOOL done = FALSE;
    try {
        DoDataExchange(&exchange);
        done = TRUE;
    } catch (CUserException* e) {
        e->Delete(); // the user has been told
    } catch (CException* e) {
        TRACE("UpdateData: %s\n", e->GetRuntimeClass()->m_lpszClassName);
        e->Delete();
    } catch (...) {
        threadState().lockedOut = before;
        throw;
    }
    threadState().lockedOut = before;
    return done;
}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (!control) {
        TRACE("data exchange: there is no control %d\n", nIDC);
        AfxThrowNotSupportedException();
    }
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_hWndLastControl) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessageA(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

namespace {

CString textOf(HWND control) {
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    return text;
}

void setText(HWND control, const CString& text) {
    // The same text again would move the caret and lose the mark.
    if (textOf(control) != text)
        ::SetWindowTextA(control, text);
}

void refuse(CDataExchange* exchange, const CString& prompt) {
    // The message box belongs to the dialog and gives the focus back to it.
    AfxMessageBox(prompt, MB_ICONEXCLAMATION);
    exchange->Fail();
}

// The whole text as a number between the limits; refuses anything else.
LONGLONG wholeNumber(CDataExchange* exchange, HWND control, LONGLONG low, LONGLONG high) {
    CString text = textOf(control);
    text.Trim();
    char* end = NULL;
    errno = 0;
    const LONGLONG value = strtoll(text, &end, 10);
    if (text.IsEmpty() || *end || errno || value < low || value > high) {
        CString prompt;
        prompt.Format("请键入 %I64d 到 %I64d 之间的整数。", low, high);
        refuse(exchange, prompt);
    }
    return value;
}

template <class INTEGER>
void exchangeInteger(CDataExchange* exchange, int id, INTEGER& value, LONGLONG low, LONGLONG high) {
    HWND control = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        value = static_cast<INTEGER>(wholeNumber(exchange, control, low, high));
    } else {
        CString text;
        text.Format("%I64d", static_cast<LONGLONG>(value));
        setText(control, text);
    }
}

template <class REAL>
void exchangeReal(CDataExchange* exchange, int id, REAL& value, double largest, int digits) {
    HWND control = exchange->PrepareEditCtrl(id);
    CString text;
    if (!exchange->m_bSaveAndValidate) {
        text.Format("%.*g", digits, static_cast<double>(value));
        setText(control, text);
        return;
    }
    text = textOf(control);
    text.Trim();
    char* end = NULL;
    const double number = strtod(text, &end);
    if (text.IsEmpty() || *end || !isfinite(number) || fabs(number) > largest)
        refuse(exchange, "请键入一个数。");
    value = static_cast<REAL>(number);
}

template <class NUMBER>
void checkRange(CDataExchange* exchange, NUMBER value, NUMBER low, NUMBER high, const char* format) {
    if (value >= low && value <= high)
        return;
    // Members out of range are the program's affair; the user hears of it when he confirms.
    if (!exchange->m_bSaveAndValidate) {
        TRACE("data exchange: a value is out of its range\n");
        return;
    }
    CString prompt;
    prompt.Format(format, low, high);
    refuse(exchange, prompt);
}

const char wholeRange[] = "请键入 %I64d 到 %I64d 之间的整数。";
const char realRange[] = "请键入 %g 到 %g 之间的数。";

void checkWhole(CDataExchange* exchange, LONGLONG value, LONGLONG low, LONGLONG high) {
    checkRange(exchange, value, low, high, wholeRange);
}

} // namespace

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd)
        return;
    ASSERT(!pDX->m_bSaveAndValidate);
    if (!rControl.SubclassWindow(pDX->PrepareCtrl(nIDC)))
        AfxThrowNotSupportedException();
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
    exchangeInteger(pDX, nIDC, value, 0, UCHAR_MAX);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value) {
    exchangeInteger(pDX, nIDC, value, SHRT_MIN, SHRT_MAX);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    exchangeInteger(pDX, nIDC, value, INT_MIN, INT_MAX);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    exchangeInteger(pDX, nIDC, value, 0, UINT_MAX);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
    exchangeInteger(pDX, nIDC, value, LONG_MIN, LONG_MAX);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) {
    exchangeInteger(pDX, nIDC, value, 0, ULONG_MAX);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value) {
    exchangeReal(pDX, nIDC, value, FLT_MAX, FLT_DIG);
}
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value) {
    exchangeReal(pDX, nIDC, value, DBL_MAX, DBL_DIG);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = textOf(control);
    else
        setText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen) {
    HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate && nMaxLen > 0) {
        const CString text = textOf(control);
        const int bytes = orvafx::wholeCharBytes(text, text.GetLength(), nMaxLen - 1);
        memcpy(value, static_cast<LPCTSTR>(text), static_cast<size_t>(bytes));
        value[bytes] = '\0';
    } else if (!pDX->m_bSaveAndValidate)
        setText(control, value);
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessageA(control, BM_GETCHECK, 0, 0));
    else
        ::SendMessageA(control, BM_SETCHECK, value < 0 || value > 2 ? 0 : value, 0);
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    ASSERT(::GetWindowLongA(control, GWL_STYLE) & WS_GROUP);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int button = 0;
    do {
        if (::SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) {
            if (!pDX->m_bSaveAndValidate)
                ::SendMessageA(control, BM_SETCHECK, button == value, 0);
            else if (::SendMessageA(control, BM_GETCHECK, 0, 0))
                value = button;
            ++button;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control && !(::GetWindowLongA(control, GWL_STYLE) & WS_GROUP));
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    auto* list = static_cast<CListBox*>(CWnd::FromHandle(pDX->PrepareCtrl(nIDC)));
    if (!pDX->m_bSaveAndValidate)
        list->SelectString(-1, value);
    else if (const int selected = list->GetCurSel(); selected >= 0)
        list->GetText(selected, value);
    else
        value.Empty();
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessageA(control, LB_GETCURSEL, 0, 0));
    else
        ::SendMessageA(control, LB_SETCURSEL, index, 0);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = textOf(control);
        return;
    }
    const LRESULT found = ::SendMessageA(control, CB_FINDSTRINGEXACT, -1,
                                         reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(value)));
    ::SendMessageA(control, CB_SETCURSEL, found, 0);
    // An edit field shows also what the list does not hold.
    if (found == CB_ERR)
        setText(control, value);
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessageA(control, CB_GETCURSEL, 0, 0));
    else
        ::SendMessageA(control, CB_SETCURSEL, index, 0);
}

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal) {
    checkWhole(pDX, value, minVal, maxVal);
}
void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal) {
    checkWhole(pDX, value, minVal, maxVal);
}
void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
    checkWhole(pDX, value, minVal, maxVal);
}
void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal) {
    checkWhole(pDX, value, minVal, maxVal);
}
void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
    checkWhole(pDX, value, minVal, maxVal);
}
void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    checkWhole(pDX, value, minVal, maxVal);
}
void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, float const& value, float minVal, float maxVal) {
    checkRange<double>(pDX, value, minVal, maxVal, realRange);
}
void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal) {
    checkRange(pDX, value, minVal, maxVal, realRange);
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars) {
    if (!pDX->m_bSaveAndValidate) {
        if (pDX->m_hWndLastControl && pDX->m_bEditLastControl)
            ::SendMessageA(pDX->m_hWndLastControl, EM_LIMITTEXT, nChars, 0);
        return;
    }
    if (value.GetLength() <= nChars)
        return;
    CString prompt;
    prompt.Format("请最多键入 %d 个字符。", nChars);
    refuse(pDX, prompt);
}
