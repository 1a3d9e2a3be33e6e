#include "ColorPicker.h"

#include <afxdlgs.h>

#include "ColorPalette.h"
#include "RowPaint.h"

IMPLEMENT_DYNAMIC(CColorPicker, CButton)

BEGIN_MESSAGE_MAP(CColorPicker, CButton)
ON_WM_ERASEBKGND()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_SETCURSOR()
END_MESSAGE_MAP()

CColorPicker::CColorPicker() : m_crColor(0), m_hWndBuddy(NULL), m_pSet(NULL), m_pPalette(NULL) {}

CColorPicker::~CColorPicker() {
    DestroyPaletteWindow();
    if (m_hWnd)
        DestroyWindow();
}

BOOL CColorPicker::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    dwStyle = (dwStyle & ~static_cast<DWORD>(BS_TYPEMASK)) | BS_OWNERDRAW;
    return CButton::Create(lpszCaption, dwStyle, rect, pParentWnd, nID);
}

void CColorPicker::PreSubclassWindow() {
    CButton::PreSubclassWindow();
    ModifyStyle(BS_TYPEMASK, BS_OWNERDRAW);
}

// --- the colour

void CColorPicker::GetColor(CString& str) const {
    str.Format(_T("#%02X%02X%02X"), static_cast<UINT>(GetRValue(m_crColor)),
               static_cast<UINT>(GetGValue(m_crColor)), static_cast<UINT>(GetBValue(m_crColor)));
}

void CColorPicker::SetColor(COLORREF cr) {
    m_crColor = cr;
    if (m_hWnd) {
        Invalidate(FALSE);
        if (const HWND hParent = ::GetParent(m_hWnd))
            ::PostMessage(hParent, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), 0),
                          reinterpret_cast<LPARAM>(m_hWnd));
    }
    if (!m_hWndBuddy || !::IsWindow(m_hWndBuddy))
        return;
    CString str;
    GetColor(str);
    ::SetWindowText(m_hWndBuddy, str);
}

void CColorPicker::ChooseOwn() {
    const HWND hWnd = m_hWnd;
    CColorDialog dialog(m_crColor, CC_FULLOPEN, this);
    if (dialog.DoModal() == IDOK && FromHandlePermanent(hWnd) == this)
        SetColor(dialog.GetColor());
}

// --- the palette

void CColorPicker::CreatePaletteWindow() {
    if (m_pPalette || !m_hWnd || !IsWindowEnabled())
        return;
    const CColorSet builtIn;
    m_pPalette = new orv::ColorPalette(*this, m_pSet ? *m_pSet : builtIn);
    if (!m_pPalette->window())
        DestroyPaletteWindow();
    Invalidate(FALSE);
}

void CColorPicker::DestroyPaletteWindow() {
    // Closing brings messages that close again.
    orv::ColorPalette* pPalette = m_pPalette;
    m_pPalette = NULL;
    delete pPalette;
    if (pPalette && m_hWnd)
        Invalidate(FALSE);
}

HWND CColorPicker::GetPaletteWindow() const {
    return m_pPalette ? m_pPalette->window() : NULL;
}

LRESULT CALLBACK CColorPicker::PaletteWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* pPalette = reinterpret_cast<orv::ColorPalette*>(::GetWindowLongPtr(hWnd, GWLP_USERDATA));
    if (!pPalette)
        return ::DefWindowProc(hWnd, message, wParam, lParam);
    try {
        return pPalette->handle(message, wParam, lParam);
    } catch (CException* e) {
        // Nothing may unwind through the system's frames.
        e->Delete();
    } catch (...) {
        TRACE0("an exception left a message of the palette\n");
    }
    return 0;
}

// --- what the user does

void CColorPicker::OnLButtonDown(UINT, CPoint) {
    SetFocus();
    CreatePaletteWindow();
}

// A click by itself is no choice: the button's own procedure would tell the parent of one.
void CColorPicker::OnLButtonUp(UINT, CPoint) {}

BOOL CColorPicker::OnSetCursor(CWnd*, UINT, UINT) {
    ::SetCursor(::LoadCursor(NULL, IDC_HAND));
    return TRUE;
}

BOOL CColorPicker::OnKey(UINT nKey) {
    if (m_pPalette) {
        if (nKey != VK_TAB)
            return m_pPalette->key(nKey);
        DestroyPaletteWindow();
        ::SendMessage(::GetParent(m_hWnd), WM_NEXTDLGCTL, ::GetKeyState(VK_SHIFT) < 0, FALSE);
        return TRUE;
    }
    if (nKey != VK_SPACE && nKey != VK_F4)
        return FALSE;
    CreatePaletteWindow();
    return TRUE;
}

LRESULT CColorPicker::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETDLGCODE:
        // While the palette is open its keys are not the dialog's.
        if (m_pPalette)
            return DLGC_WANTALLKEYS | DLGC_BUTTON;
        break;
    case WM_KEYDOWN:
        if (OnKey(static_cast<UINT>(wParam)))
            return 0;
        break;
    case WM_CHAR:
        if (m_pPalette)
            m_pPalette->typed(static_cast<UINT>(wParam));
        return 0;
    case WM_KEYUP:
        if (wParam == VK_SPACE)
            return 0;
        break;
    case WM_SYSKEYDOWN:
        if (wParam != VK_DOWN && wParam != VK_UP)
            break;
        if (m_pPalette)
            DestroyPaletteWindow();
        else
            CreatePaletteWindow();
        return 0;
    case WM_LBUTTONDBLCLK:
        return SendMessage(WM_LBUTTONDOWN, wParam, lParam);
    case WM_KILLFOCUS:
    case WM_CANCELMODE:
    case WM_ENABLE:
    case WM_SHOWWINDOW:
    case WM_DESTROY:
        DestroyPaletteWindow();
        break;
    default:
        break;
    }
    return CButton::DefWindowProc(message, wParam, lParam);
}

// --- painting

BOOL CColorPicker::OnEraseBkgnd(CDC*) {
    return TRUE; // the whole button is drawn
}

void CColorPicker::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    if (!pDC)
        return;
    const orv::SavedDC saved(pDC);
    const UINT nState = lpDrawItemStruct->itemState;
    const bool bDown = m_pPalette || (nState & ODS_SELECTED);
    const bool bDisabled = (nState & ODS_DISABLED) != 0;
    CRect rc(lpDrawItemStruct->rcItem);
    pDC->DrawFrameControl(&rc, DFC_BUTTON, DFCS_BUTTONPUSH | (bDown ? DFCS_PUSHED : 0));
    rc.DeflateRect(3, 3);
    if (nState & ODS_FOCUS)
        pDC->DrawFocusRect(&rc);
    rc.DeflateRect(1, 1);
    if (bDown)
        rc.OffsetRect(1, 1);
    // The colour, and at the right the arrow of what drops down.
    constexpr int kArrow = 12;
    const COLORREF crInk = ::GetSysColor(bDisabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
    CRect rcSwatch(rc.left, rc.top, rc.right - kArrow, rc.bottom);
    CBrush frame(crInk);
    pDC->FillSolidRect(&rcSwatch, bDisabled ? ::GetSysColor(COLOR_BTNFACE) : m_crColor & 0xFFFFFF);
    pDC->FrameRect(&rcSwatch, &frame);
    const CPoint tip(rc.right - kArrow / 2, rc.CenterPoint().y + 1);
    for (int i = 0; i < 4; ++i)
        pDC->FillSolidRect(tip.x - i, tip.y - i, 2 * i + 1, 1, crInk);
}

void CColorPicker::Dump(CDumpContext& dc) const {
    CButton::Dump(dc);
    CString str;
    GetColor(str);
    dc << "colour = " << str << ", buddy = " << static_cast<const void*>(m_hWndBuddy)
       << ", palette = " << static_cast<const void*>(GetPaletteWindow()) << "\n";
}
