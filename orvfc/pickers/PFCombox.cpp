// The combos of line types and of brush figures.

#include <afxwin.h>

#include "PFCombox.h"

#include <new>

#include <orvfc/ORVFC.h>

#include "BrushFigures.h"

// --- line types

IMPLEMENT_DYNAMIC(CLineStyleCmb, COrvRecordCombo)

BEGIN_MESSAGE_MAP(CLineStyleCmb, COrvRecordCombo)
END_MESSAGE_MAP()

int CLineStyleCmb::AddItem(int nStyle, CString strName) {
    return InsertRecord(-1, new (std::nothrow) CCmbLineStyleData(nStyle, strName));
}

int CLineStyleCmb::AddItem(CLineTypeSet* pSet) {
    return AddRows(pSet, [this](const LineTypeStruct& row) {
        return AddItem(static_cast<int>(row.nValue), row.strName);
    });
}

void CLineStyleCmb::InitGerStyle() {
    const CLineTypeSet types;
    for (int nStyle = PS_SOLID; nStyle <= PS_NULL; ++nStyle)
        AddItem(nStyle, types.GetLineName(static_cast<unsigned>(nStyle)));
}

int CLineStyleCmb::GetCurrentStyle() const {
    const auto* pRecord = CurrentRecord<CCmbLineStyleData>();
    return pRecord ? pRecord->m_nStyle : 0;
}

int CLineStyleCmb::SetCurrentStyle(int nStyle) {
    int nItem = FindRecord<CCmbLineStyleData>(
        [nStyle](const CCmbLineStyleData& record) { return record.m_nStyle == nStyle; });
    if (nItem < 0 && m_hWnd)
        nItem = AddItem(nStyle, CLineTypeSet().GetLineName(static_cast<unsigned>(nStyle)));
    return SelectItem(nItem);
}

void CLineStyleCmb::DrawRecord(COrvCmbRecord& record, CDC* pDC, const CRect& rc, int nState) {
    static_cast<CCmbLineStyleData&>(record).DrawItem(pDC, rc, nState, m_pManage);
}

void CLineStyleCmb::OnSelchange() {
    if (CurrentRecord<COrvCmbRecord>())
        PostChoice(WM_LINE_STYLE_CMB_SELCHANGE);
}

void CLineStyleCmb::Dump(CDumpContext& dc) const {
    COrvRecordCombo::Dump(dc);
    dc << "manager = " << static_cast<const void*>(m_pManage) << "\n";
}

// --- brush figures

IMPLEMENT_DYNAMIC(CBrushFigureCmb, COrvRecordCombo)

BEGIN_MESSAGE_MAP(CBrushFigureCmb, COrvRecordCombo)
END_MESSAGE_MAP()

int CBrushFigureCmb::AddItem(int nType, LPCTSTR lpszName, COLORREF crColor) {
    return AddItem(nType, CString(lpszName), crColor);
}

int CBrushFigureCmb::AddItem(int nType, CString strName, COLORREF crColor) {
    return InsertRecord(-1, new (std::nothrow) CCmbBrushFigureData(nType, strName, crColor));
}

void CBrushFigureCmb::InitGerStyle() {
    LOGBRUSH brush;
    for (int nType = 0; nType <= orv::kLastFigure; ++nType)
        AddItem(nType, orv::brushFigure(nType, 0, brush), 0);
}

void CBrushFigureCmb::ResetColor(COLORREF crColor) {
    const int nCount = m_hWnd ? GetCount() : 0;
    for (int i = 0; i < nCount; ++i)
        if (auto* pRecord = static_cast<CCmbBrushFigureData*>(GetRecord(i)))
            pRecord->SetColor(crColor);
    if (m_hWnd)
        Invalidate();
}

int CBrushFigureCmb::GetCurrentStyle() const {
    const auto* pRecord = CurrentRecord<CCmbBrushFigureData>();
    return pRecord ? pRecord->m_nType : 0;
}

int CBrushFigureCmb::SetCurrentStyle(int nType) {
    int nItem = FindRecord<CCmbBrushFigureData>(
        [nType](const CCmbBrushFigureData& record) { return record.m_nType == nType; });
    if (nItem < 0 && m_hWnd) {
        LOGBRUSH brush;
        CString strName;
        if (CCmbBrushFigureData(nType, "", 0).CreateBrushByType(brush))
            strName = orv::brushFigure(nType, 0, brush);
        else
            strName.Format(_T("自定义图案 %d "), nType);
        nItem = AddItem(nType, strName, 0);
    }
    return SelectItem(nItem);
}

void CBrushFigureCmb::OnSelchange() {
    if (CurrentRecord<COrvCmbRecord>())
        PostChoice(WM_BRUSH_FIGURE_CMB_SELCHANGE);
}
