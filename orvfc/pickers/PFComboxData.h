#pragma once

// What the items of the line property pickers stand for. Names given as null are empty.

#include "OrvRecordCombo.h"

class COrvMainDrawManage;

// A colour: a swatch and its name.
class ORVFC_API CCmbColorData : public COrvCmbRecord {
public:
    COLORREF m_crColor; // 0x00BBGGRR
    CString m_strName;

    CCmbColorData(COLORREF crColor, CString strName) : m_crColor(crColor), m_strName(strName) {}
    CCmbColorData(const CCmbColorData& other) = default;
    CCmbColorData& operator=(const CCmbColorData& other) = default;

    CString GetName() const override { return m_strName; }
    void DrawItem(CDC* pDC, const CRect& rc, int bSelected) override;
    void Dump(CDumpContext& dc) const override;
};

// A line type: a sample of the line, 80 units long, and its name.
class ORVFC_API CCmbLineStyleData : public COrvCmbRecord {
public:
    int m_nStyle; // a pattern's number; drawn as a GDI pen style where no pattern has it
    CString m_strName;

    CCmbLineStyleData(int nStyle, LPCTSTR lpszName) : m_nStyle(nStyle), m_strName(lpszName) {}
    CCmbLineStyleData(const CCmbLineStyleData& other) = default;
    CCmbLineStyleData& operator=(const CCmbLineStyleData& other) = default;

    CString GetName() const override { return m_strName; }
    // With a manager (may be null) in its pattern and the pattern's own width and colour, else as
    // DrawSpeciaPath draws it; what neither draws is a black GDI line, 1 wide: solid where there is no such
    // pen. The first form has no manager.
    void DrawItem(CDC* pDC, const CRect& rc, int bSelected) override;
    void DrawItem(CDC* pDC, const CRect& rc, int bSelected, COrvMainDrawManage* pManage);
    void Dump(CDumpContext& dc) const override;
};

// A line width: a bar and its name. The bar is as many units high as the number says, at least 1 and at most
// what the row has room for; a width that is no number is 1.
class ORVFC_API CCmbLineWidthData : public COrvCmbRecord {
public:
    double m_dWidth; // in the unit that the name states
    CString m_strName;

    CCmbLineWidthData(double dWidth, LPCTSTR lpszName) : m_dWidth(dWidth), m_strName(lpszName) {}
    CCmbLineWidthData(const CCmbLineWidthData& other) = default;
    CCmbLineWidthData& operator=(const CCmbLineWidthData& other) = default;

    CString GetName() const override { return m_strName; }
    void DrawItem(CDC* pDC, const CRect& rc, int bSelected) override;
    void Dump(CDumpContext& dc) const override;
};

// The figure of a brush: a swatch and its name.
class ORVFC_API CCmbBrushFigureData : public COrvCmbRecord {
public:
    int m_nType; // 0 solid, 1 to 6 hatched
    CString m_strName;
    COLORREF m_crColor;

    CCmbBrushFigureData(int nType, LPCTSTR lpszName, COLORREF crColor)
        : m_nType(nType), m_strName(lpszName), m_crColor(crColor) {}
    CCmbBrushFigureData(const CCmbBrushFigureData& other) = default;
    CCmbBrushFigureData& operator=(const CCmbBrushFigureData& other) = default;

    void SetColor(COLORREF crColor) { m_crColor = crColor; }
    // The brush of type and colour. 0 for a type that there is not, -1 too: it is solid.
    int CreateBrushByType(LOGBRUSH& brush) const;

    CString GetName() const override { return m_strName; }
    void DrawItem(CDC* pDC, const CRect& rc, int bSelected) override;
    void Dump(CDumpContext& dc) const override;
};

// A filling: a sample, 80 units long, and its name.
class ORVFC_API CCmbFillTypeData : public COrvCmbRecord {
public:
    int m_nFillType; // -1 none, 0 solid, 1 to 6 hatched

    CCmbFillTypeData() : m_nFillType(0) {}
    explicit CCmbFillTypeData(int nFillType) : m_nFillType(nFillType) {}
    CCmbFillTypeData(const CCmbFillTypeData& other) = default;
    CCmbFillTypeData& operator=(const CCmbFillTypeData& other) = default;

    // The black brush of the type. 0 for a type that there is not: it is solid.
    int CreateLogBr(LOGBRUSH& brush) const;

    // As brush figures are named; -1 is 无填充.
    CString GetName() const override;
    void DrawItem(CDC* pDC, const CRect& rc, int bSelected) override;
    void Dump(CDumpContext& dc) const override;
};
