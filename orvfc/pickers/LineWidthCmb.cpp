// The combo of line widths.

#include <afxwin.h>

#include "PFCombox.h"

#include <math.h>
#include <new>

#include <orvfc/ORVFC.h>

#include "ValueInputDlg.h"

IMPLEMENT_DYNAMIC(CLineWidthCmb, COrvCustomRowCombo)

BEGIN_MESSAGE_MAP(CLineWidthCmb, COrvCustomRowCombo)
END_MESSAGE_MAP()

namespace {

constexpr double kSameWidth = 0.000001;
constexpr double kOtherwise = 1.0; // for what is no width

double takenWidth(double dWidth) {
    return isfinite(dWidth) && dWidth >= 0 ? dWidth : kOtherwise;
}

} // namespace

int CLineWidthCmb::AddItem(double dWidth, CString strName) {
    return InsertRecord(-1, new (std::nothrow) CCmbLineWidthData(dWidth, strName));
}

int CLineWidthCmb::AddItem(CLineWidthSet* pSet) {
    return AddRows(pSet, [this](const LineWidthStruct& row) { return AddItem(row.dValue, row.strName); });
}

double CLineWidthCmb::GetCurrentWidth() const {
    const auto* pRecord = CurrentRecord<CCmbLineWidthData>();
    return pRecord ? pRecord->m_dWidth : 0;
}

int CLineWidthCmb::FindWidth(double dWidth) const {
    return FindRecord<CCmbLineWidthData>([dWidth](const CCmbLineWidthData& record) {
        return fabs(record.m_dWidth - dWidth) < kSameWidth && !IsCustom(record);
    });
}

int CLineWidthCmb::SetCurrentWidth(double dWidth) {
    dWidth = takenWidth(dWidth);
    int nItem = FindWidth(dWidth);
    if (nItem < 0 && m_hWnd)
        nItem = InsertBeforeCustom(new (std::nothrow) CCmbLineWidthData(dWidth, GetWidthName(dWidth)));
    return SelectItem(nItem);
}

CString CLineWidthCmb::GetWidthName(double dWidth) const {
    const int nItem = FindWidth(dWidth);
    if (nItem >= 0)
        return GetRecord(nItem)->GetName();
    CString strName;
    strName.Format(_T("%.10g毫米"), dWidth);
    return strName;
}

UINT CLineWidthCmb::GetChoiceMessage() const {
    return WM_LINE_WIDTH_CMB_SELCHANGE;
}

BOOL CLineWidthCmb::AskValue() {
    const auto* pCurrent = static_cast<const CCmbLineWidthData*>(GetRecord(GetRememberedItem()));
    const HWND hWnd = m_hWnd;
    CValueInputDlg dialog(_T("线宽毫米值："), pCurrent ? pCurrent->m_dWidth : kOtherwise, this);
    const BOOL bChosen = dialog.DoModal() == IDOK;
    if (bChosen && FromHandlePermanent(hWnd) == this)
        SetCurrentWidth(dialog.m_dValue);
    return bChosen;
}
