#include "FontShapeButton.h"

#include "RowPaint.h"
#include "ShapedFont.h"

IMPLEMENT_DYNAMIC(CFontShapeButton, CButton)

BEGIN_MESSAGE_MAP(CFontShapeButton, CButton)
ON_CONTROL_REFLECT_EX(BN_CLICKED, &CFontShapeButton::OnClicked)
ON_CONTROL_REFLECT_EX(BN_DOUBLECLICKED, &CFontShapeButton::OnDoubleclicked)
END_MESSAGE_MAP()

CFontShapeButton::CFontShapeButton() : m_nPushState(1), m_nShape(ORVSHAPE_REGULAR) {}

void CFontShapeButton::SetPushState(int nState, int bRedraw) {
    m_nPushState = nState != 0;
    if (bRedraw && m_hWnd != NULL)
        Invalidate(FALSE);
}

void CFontShapeButton::SetFontShape(UINT nShape, int bRedraw) {
    m_nShape = nShape;
    if (bRedraw && m_hWnd != NULL)
        Invalidate(FALSE);
}

// --- drawing

LOGFONT CFontShapeButton::GetDrawFont(DRAWITEMSTRUCT* pDrawItem) const {
    return orv::shaped(orv::fontOf(pDrawItem ? CDC::FromHandle(pDrawItem->hDC) : NULL), m_nShape);
}

CString CFontShapeButton::GetDrawText() const {
    static const char kLetters[] = {'I', 'U', 'B'};
    if (m_nShape >= ORVSHAPE_ITALIC && m_nShape <= ORVSHAPE_BOLD)
        return CString(kLetters[m_nShape - ORVSHAPE_ITALIC]);
    CString text;
    if (m_hWnd != NULL)
        GetWindowText(text);
    return text;
}

void CFontShapeButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    if (pDC == NULL)
        return;
    const LOGFONT lf = GetDrawFont(lpDrawItemStruct);
    CFont font; // outlives the selection
    font.CreateFontIndirect(&lf);
    const orv::SavedDC saved(pDC);
    CRect rc(lpDrawItemStruct->rcItem);
    const bool on = m_nPushState == 0;
    const bool pressed = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
    const bool disabled = (lpDrawItemStruct->itemState & ODS_DISABLED) != 0;
    pDC->DrawFrameControl(&rc, DFC_BUTTON,
                          DFCS_BUTTONPUSH | (on ? DFCS_CHECKED : 0) | (pressed ? DFCS_PUSHED : 0));
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(::GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
    pDC->SelectObject(&font);
    CRect rcText(rc);
    if (on || pressed)
        rcText.OffsetRect(1, 1);
    pDC->DrawText(GetDrawText(), &rcText, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    if (lpDrawItemStruct->itemState & ODS_FOCUS) {
        rc.DeflateRect(3, 3);
        pDC->SetTextColor(::GetSysColor(COLOR_BTNTEXT));
        pDC->DrawFocusRect(&rc);
    }
}

// --- clicks

BOOL CFontShapeButton::OnClicked() {
    SetPushState(!m_nPushState, TRUE);
    return FALSE; // on to the parent's own handler
}

BOOL CFontShapeButton::OnDoubleclicked() {
    if (const HWND hParent = ::GetParent(m_hWnd))
        ::SendMessage(hParent, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), BN_CLICKED),
                      reinterpret_cast<LPARAM>(m_hWnd));
    return TRUE;
}

void CFontShapeButton::Dump(CDumpContext& dc) const {
    CButton::Dump(dc);
    dc << "m_nPushState = " << m_nPushState << ", m_nShape = " << m_nShape << "\n";
}
