#include "AlignCmb.h"

#include <new>

#include "FontChoice.h"

namespace {

const char* const kFlagNames[] = {"左对齐", "居中",   "右对齐", "分散对齐",
                                  "上对齐", "上对齐", "居中",   "下对齐"};
const int kFlags[] = {0, 1, 2, 3, 5, 6, 7};

} // namespace

CString CCmbFontAlignData::GetFlagString(UINT nFlag) {
    return nFlag < _countof(kFlagNames) ? kFlagNames[nFlag] : "上对齐";
}

void CCmbFontAlignData::DrawItem(CDC* pDC, const CRect& rc, int nState) {
    orv::paintPlainRow(pDC, rc, GetName(), nState);
}

IMPLEMENT_DYNAMIC(CFontAlignCmb, COrvRecordCombo)

CFontAlignCmb::CFontAlignCmb() = default;

void CFontAlignCmb::Init() {
    for (const int nFlag : kFlags)
        AddItem(nFlag);
}

int CFontAlignCmb::AddItem(int nFlag) {
    return InsertRecord(-1, new (std::nothrow) CCmbFontAlignData(static_cast<UINT>(nFlag)));
}

UINT CFontAlignCmb::GetCurrentAlignType() const {
    const auto* pRow = CurrentRecord<CCmbFontAlignData>();
    return pRow ? pRow->GetFlag() : 0;
}

void CFontAlignCmb::SetCurrentAlignType(UINT nFlag) {
    if (!m_hWnd)
        return;
    int nRow = FindRecord<CCmbFontAlignData>(
        [nFlag](const CCmbFontAlignData& row) { return row.GetFlag() == nFlag; });
    if (nRow < 0) {
        DeleteOwnRow();
        nRow = InsertOwnRow(-1, new (std::nothrow) CCmbFontAlignData(nFlag));
    }
    SetCurSel(nRow);
}
