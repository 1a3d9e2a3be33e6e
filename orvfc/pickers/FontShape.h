#pragma once

#include <orvfc/pickers/OrvRecordCombo.h>

// The shapes of a font, in the order of their codes.
enum OrvFontShape : UINT {
    ORVSHAPE_REGULAR = 0,
    ORVSHAPE_ITALIC = 1,
    ORVSHAPE_UNDERLINE = 2,
    ORVSHAPE_BOLD = 3,
};

class ORVFC_API CCmbFontShapeData : public COrvCmbRecord {
public:
    explicit CCmbFontShapeData(UINT nShape = ORVSHAPE_REGULAR) : m_nShape(nShape) {}
    CCmbFontShapeData(const CCmbFontShapeData&) = default;
    CCmbFontShapeData& operator=(const CCmbFontShapeData&) = default;
    CString GetName() const override; // "常规", "斜体", "下划线", "黑体"; an unknown code is regular
    void DrawItem(CDC* pDC, const CRect& rc, int nState) override; // the name in its shape

    UINT GetShape() const { return m_nShape; }

private:
    UINT m_nShape;
};

// The picker of one shape: a drop-down list that tells its parent of choices by CBN_SELCHANGE alone. Shapes
// that combine take a CFontShapeButton each.
class ORVFC_API CFontShapeCmb : public COrvRecordCombo {
    DECLARE_DYNAMIC(CFontShapeCmb)

public:
    CFontShapeCmb();

    void Init(); // adds the four shapes
    int AddItem(UINT nShape);
    UINT GetCurrentShape() const; // ORVSHAPE_REGULAR when nothing is selected
    // A shape that no row has selects nothing.
    void SetCurrentShape(UINT nShape);

protected:
    void OnSelchange() override {}
};
