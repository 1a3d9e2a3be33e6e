// The combo of colours.

#include <afxwin.h>

#include "PFCombox.h"

#include <afxdlgs.h>
#include <new>

#include <orvfc/ORVFC.h>

#include "ColorSet.h"

IMPLEMENT_DYNAMIC(CColorCmb, COrvCustomRowCombo)

BEGIN_MESSAGE_MAP(CColorCmb, COrvCustomRowCombo)
END_MESSAGE_MAP()

int CColorCmb::InsertItem(int nIndex, COLORREF cr, CString strName) {
    return InsertRecord(nIndex, new (std::nothrow) CCmbColorData(cr, strName));
}

int CColorCmb::AddItem(CColorSet* pSet) {
    return AddRows(pSet, [this](const ColorSetStruct& row) { return AddItem(row.crColor, row.strName); });
}

void CColorCmb::ResetColors() {
    if (!m_hWnd)
        return;
    const auto* pRecord = CurrentRecord<CCmbColorData>();
    const COLORREF cr = pRecord ? pRecord->m_crColor : 0;
    ResetContent();
    CColorSet colors;
    AddItem(&colors);
    if (pRecord) // gone by now
        SetCurrentColor(cr);
}

// --- the current colour

COLORREF CColorCmb::GetCurrentColor() const {
    const auto* pRecord = CurrentRecord<CCmbColorData>();
    return pRecord ? pRecord->m_crColor : 0;
}

int CColorCmb::FindColor(COLORREF cr) const {
    return FindRecord<CCmbColorData>(
        [cr](const CCmbColorData& record) { return record.m_crColor == cr && !IsCustom(record); });
}

int CColorCmb::SetCurrentColor(COLORREF cr) {
    int nItem = FindColor(cr);
    if (nItem < 0 && m_hWnd)
        nItem = InsertBeforeCustom(new (std::nothrow) CCmbColorData(cr, GetColorName(cr)));
    return SelectItem(nItem);
}

int CColorCmb::SetCurrentColorName(CString strName) {
    return SelectItem(FindNamed(strName));
}

CString CColorCmb::GetColorName(COLORREF cr) const {
    const int nItem = FindColor(cr);
    return nItem < 0 ? CColorSet().GetColorName(cr) : GetRecord(nItem)->GetName();
}

// --- order

int CColorCmb::SetCurSel(int nSelect) {
    return COrvCustomRowCombo::SetCurSel(nSelect);
}

int CColorCmb::SwapColorIndex(int nFirst, int nSecond) {
    auto* pFirst = static_cast<CCmbColorData*>(GetRecord(nFirst));
    auto* pSecond = static_cast<CCmbColorData*>(GetRecord(nSecond));
    if (!pFirst || !pSecond)
        return 0;
    if (pFirst == pSecond)
        return 1;
    const int nSelected = GetCurSel();
    const int nLow = nFirst < nSecond ? nFirst : nSecond;
    const int nHigh = nFirst < nSecond ? nSecond : nFirst;
    COrvCmbRecord* pHigh = TakeRecord(nHigh);
    COrvCmbRecord* pLow = TakeRecord(nLow);
    InsertRecord(nLow, pHigh);
    InsertRecord(nHigh, pLow);
    if (nSelected >= 0)
        SetCurSel(nSelected == nFirst ? nSecond : nSelected == nSecond ? nFirst : nSelected);
    return 1;
}

// --- choices

UINT CColorCmb::GetChoiceMessage() const {
    return WM_LINE_COLOR_CMB_SELCHANGE;
}

BOOL CColorCmb::AskValue() {
    const auto* pCurrent = static_cast<const CCmbColorData*>(GetRecord(GetRememberedItem()));
    const HWND hWnd = m_hWnd;
    CColorDialog dialog(pCurrent ? pCurrent->m_crColor : 0, CC_FULLOPEN, this);
    const BOOL bChosen = dialog.DoModal() == IDOK;
    if (bChosen && FromHandlePermanent(hWnd) == this)
        SetCurrentColor(dialog.GetColor());
    return bChosen;
}
