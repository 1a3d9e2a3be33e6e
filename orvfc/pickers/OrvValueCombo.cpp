#include "OrvValueCombo.h"

#include <memory>

#include "FontChoice.h"
#include "TypedNumber.h"

IMPLEMENT_DYNAMIC(COrvValueCombo, COrvRecordCombo)

BEGIN_MESSAGE_MAP(COrvValueCombo, COrvRecordCombo)
ON_WM_KEYDOWN()
ON_CONTROL_REFLECT_EX(CBN_EDITCHANGE, &COrvValueCombo::OnEditchange)
ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &COrvValueCombo::OnDropdown)
ON_CONTROL_REFLECT_EX(CBN_KILLFOCUS, &COrvValueCombo::OnKillfocus)
END_MESSAGE_MAP()

void COrvCmbValueRecord::DrawItem(CDC* pDC, const CRect& rc, int nState) {
    orv::paintPlainRow(pDC, rc, GetName(), nState);
}

COrvValueCombo::COrvValueCombo(double dLow, double dHigh) : m_dLow(dLow), m_dHigh(dHigh), m_dCurrent(0) {}

BOOL COrvValueCombo::PreCreateWindow(CREATESTRUCT& cs) {
    if (!(cs.style & CBS_DROPDOWNLIST))
        cs.style |= CBS_DROPDOWN;
    return COrvRecordCombo::PreCreateWindow(cs);
}

// --- rows

void COrvValueCombo::AddValue(double dValue) {
    if (InRange(dValue))
        InsertRecord(-1, NewRecord(dValue));
}

int COrvValueCombo::FindValue(double dValue) const {
    return FindRecord<COrvCmbValueRecord>(
        [dValue](const COrvCmbValueRecord& row) { return orv::sameValue(row.GetValue(), dValue); });
}

int COrvValueCombo::SetCurSel(int nSelect) {
    return m_hWnd ? CComboBox::SetCurSel(nSelect) : CB_ERR;
}

BOOL COrvValueCombo::TakeChosenRow() {
    const auto* pRow = CurrentRecord<COrvCmbValueRecord>();
    if (pRow == NULL)
        return FALSE;
    m_dCurrent = pRow->GetValue();
    ShowCurrent();
    return TRUE;
}

// --- the current value

int COrvValueCombo::SetCurrent(double dValue) {
    if (!m_hWnd || !InRange(dValue))
        return FALSE;
    int nRow = FindValue(dValue);
    if (nRow < 0 && !orv::hasField(*this)) {
        DeleteOwnRow();
        nRow = InsertOwnRow(-1, NewRecord(dValue));
    }
    SetCurSel(nRow);
    m_dCurrent = dValue; // the row's may differ a little
    ShowCurrent();
    return TRUE;
}

CString COrvValueCombo::FieldText() const {
    CString text;
    GetWindowText(text);
    return text;
}

CString COrvValueCombo::CurrentText() const {
    const std::unique_ptr<COrvCmbValueRecord> row(NewRecord(m_dCurrent));
    return row ? row->GetName() : CString();
}

void COrvValueCombo::ShowCurrent() {
    orv::showInField(*this, CurrentText());
}

// --- typing

BOOL COrvValueCombo::OnEditchange() {
    const CString text = FieldText();
    // As it was put there: the value behind it may be finer than its text.
    if (text != CurrentText())
        orv::parseTyped(static_cast<LPCTSTR>(text), m_dLow, m_dHigh, m_dCurrent);
    return FALSE;
}

// An opening list takes the first row that begins with the field's text, and tells nobody: 1 becomes 10.00.
BOOL COrvValueCombo::OnDropdown() {
    TakeTypedText();
    return FALSE;
}

int COrvValueCombo::TakeTypedText() {
    if (!m_hWnd || !orv::hasField(*this))
        return FALSE;
    const CString text = FieldText();
    if (text == CurrentText())
        return TRUE;
    double dTyped = m_dCurrent;
    const bool good = orv::parseTyped(static_cast<LPCTSTR>(text), m_dLow, m_dHigh, dTyped);
    SetCurSel(FindValue(dTyped));
    m_dCurrent = dTyped;
    ShowCurrent();
    return good;
}

BOOL COrvValueCombo::OnKillfocus() {
    TakeTypedText();
    // The field would go on showing its selection.
    if (orv::hasField(*this))
        SetEditSel(-1, 0);
    return FALSE;
}

BOOL COrvValueCombo::PreTranslateMessage(MSG* pMsg) {
    if (orv::confirmsField(*this, *pMsg))
        TakeTypedText();
    return COrvRecordCombo::PreTranslateMessage(pMsg);
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
