#include "OrvValueCombo.h"

#include <memory>

#include "FontChoice.h"
#include "TypedNumber.h"

IMPLEMENT_DYNAMIC(COrvValueCombo, COrvRecordCombo)

BEGIN_MESSAGE_MAP(COrvValueCombo, COrvRecordCombo)
ON_WM_KEYDOWN()
ON_CONTROL_REFLECT_EX(CBN_EDITCHANGE, &COrvValueCombo::OnEditchange)
ON_CONTROL_REFLECT_EX(CBN_KILLFOCUS, &COrvValueCombo::OnKillfocus)
END_MESSAGE_MAP()

void COrvCmbValueRecord::DrawItem(CDC* pDC, const CRect& rc, int nState) {
    orv::paintPlainRow(pDC, rc, GetName(), nState);
}

COrvValueCombo::COrvValueCombo(double dLow, double dHigh)
    : m_dLow(dLow), m_dHigh(dHigh), m_dCurrent(0), m_pOwnRow(NULL) {}

BOOL COrvValueCombo::PreCreateWindow(CREATESTRUCT& cs) {
    if (!(cs.style & CBS_DROPDOWNLIST))
        cs.style |= CBS_DROPDOWN;
    return COrvRecordCombo::PreCreateWindow(cs);
}

// --- rows

void COrvValueCombo::AddValue(double dValue) {
    InsertRecord(-1, NewRecord(dValue));
}

int COrvValueCombo::FindValue(double dValue) const {
    return FindRecord<COrvCmbValueRecord>(
        [dValue](const COrvCmbValueRecord& row) { return orv::sameValue(row.GetValue(), dValue); });
}

int COrvValueCombo::SelectRow(int nIndex) {
    return CComboBox::SetCurSel(nIndex);
}

int COrvValueCombo::SetCurSel(int nSelect) {
    const int nResult = m_hWnd ? SelectRow(nSelect) : CB_ERR;
    if (nResult != CB_ERR)
        TakeChosenRow();
    return nResult;
}

BOOL COrvValueCombo::TakeChosenRow() {
    const auto* pRow = CurrentRecord<COrvCmbValueRecord>();
    if (pRow == NULL)
        return FALSE;
    m_dCurrent = pRow->GetValue();
    ShowCurrent();
    return TRUE;
}

void COrvValueCombo::DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (lpDeleteItemStruct->itemData == reinterpret_cast<ULONG_PTR>(m_pOwnRow))
        m_pOwnRow = NULL;
    COrvRecordCombo::DeleteItem(lpDeleteItemStruct);
}

// --- the current value

int COrvValueCombo::SetCurrent(double dValue) {
    if (!m_hWnd || !(dValue >= m_dLow && dValue <= m_dHigh))
        return FALSE;
    m_dCurrent = dValue;
    int nRow = FindValue(dValue);
    if (nRow < 0 && !orv::hasField(*this)) {
        DeleteRecord(m_pOwnRow);
        nRow = InsertRecord(-1, NewRecord(dValue));
        m_pOwnRow = GetRecord(nRow);
    }
    SelectRow(nRow);
    ShowCurrent();
    return TRUE;
}

void COrvValueCombo::ShowCurrent() {
    const std::unique_ptr<COrvCmbValueRecord> row(NewRecord(m_dCurrent));
    orv::showInField(*this, row->GetName());
}

// --- typing

BOOL COrvValueCombo::OnEditchange() {
    CString text;
    GetWindowText(text);
    orv::parseTyped(static_cast<LPCTSTR>(text), m_dLow, m_dHigh, m_dCurrent);
    return FALSE;
}

int COrvValueCombo::TakeTypedText() {
    if (!m_hWnd || !orv::hasField(*this))
        return FALSE;
    CString text;
    GetWindowText(text);
    const std::unique_ptr<COrvCmbValueRecord> row(NewRecord(m_dCurrent));
    if (text == row->GetName())
        return TRUE; // as it was put there: the value behind it may be finer than its text
    double dTyped = m_dCurrent;
    const bool good = orv::parseTyped(static_cast<LPCTSTR>(text), m_dLow, m_dHigh, dTyped);
    m_dCurrent = dTyped;
    SelectRow(FindValue(m_dCurrent));
    ShowCurrent();
    return good;
}

BOOL COrvValueCombo::OnKillfocus() {
    TakeTypedText();
    return FALSE;
}

void COrvValueCombo::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (nChar == VK_RETURN)
        TakeTypedText();
    COrvRecordCombo::OnKeyDown(nChar, nRepCnt, nFlags);
}

void COrvValueCombo::Dump(CDumpContext& dc) const {
    COrvRecordCombo::Dump(dc);
    dc << "current value = " << m_dCurrent << " of " << m_dLow << " to " << m_dHigh << "\n";
}
