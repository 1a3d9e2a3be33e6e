#include <afxwin.h>

#include "OrvFillTypeCmb.h"

#include <new>

#include <orvfc/ORVFC.h>

#include "BrushFigures.h"

IMPLEMENT_DYNAMIC(COrvFillTypeCmb, COrvRecordCombo)

BEGIN_MESSAGE_MAP(COrvFillTypeCmb, COrvRecordCombo)
END_MESSAGE_MAP()

int COrvFillTypeCmb::AddItem(int nFillType) {
    return InsertRecord(-1, new (std::nothrow) CCmbFillTypeData(nFillType));
}

void COrvFillTypeCmb::InitGerFillType() {
    for (int nType = orv::kFirstFigure; nType <= orv::kLastFigure; ++nType)
        AddItem(nType);
}

int COrvFillTypeCmb::GetCurrentFillType() const {
    const auto* pRecord = CurrentRecord<CCmbFillTypeData>();
    return pRecord ? pRecord->m_nFillType : 0;
}

int COrvFillTypeCmb::SetCurrentFillType(int nFillType) {
    int nItem = FindRecord<CCmbFillTypeData>(
        [nFillType](const CCmbFillTypeData& record) { return record.m_nFillType == nFillType; });
    if (nItem < 0 && m_hWnd)
        nItem = AddItem(nFillType);
    return SelectItem(nItem);
}

void COrvFillTypeCmb::OnSelchange() {
    if (CurrentRecord<COrvCmbRecord>())
        PostChoice(WM_FILL_TYPE_CMB_SELCHANGE);
}
