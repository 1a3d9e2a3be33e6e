#include "FontShape.h"

#include <new>

#include "FontChoice.h"
#include "ShapedFont.h"

namespace {

const char* const kShapeNames[] = {"常规", "斜体", "下划线", "黑体"};

} // namespace

CString CCmbFontShapeData::GetName() const {
    return kShapeNames[m_nShape < _countof(kShapeNames) ? m_nShape : 0];
}

void CCmbFontShapeData::DrawItem(CDC* pDC, const CRect& rc, int nState) {
    const LOGFONT lf = orv::shaped(orv::fontOf(pDC), m_nShape);
    CFont font;
    font.CreateFontIndirect(&lf);
    orv::paintPlainRow(pDC, rc, GetName(), nState, &font);
}

IMPLEMENT_DYNAMIC(CFontShapeCmb, COrvRecordCombo)

CFontShapeCmb::CFontShapeCmb() = default;

void CFontShapeCmb::Init() {
    for (UINT nShape = 0; nShape < _countof(kShapeNames); ++nShape)
        AddItem(nShape);
}

int CFontShapeCmb::AddItem(UINT nShape) {
    return InsertRecord(-1, new (std::nothrow) CCmbFontShapeData(nShape));
}

UINT CFontShapeCmb::GetCurrentShape() const {
    const auto* pRow = CurrentRecord<CCmbFontShapeData>();
    return pRow ? pRow->GetShape() : static_cast<UINT>(ORVSHAPE_REGULAR);
}

void CFontShapeCmb::SetCurrentShape(UINT nShape) {
    if (m_hWnd)
        SetCurSel(FindRecord<CCmbFontShapeData>(
            [nShape](const CCmbFontShapeData& row) { return row.GetShape() == nShape; }));
}
