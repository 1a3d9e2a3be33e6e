#pragma once

// Combos for the properties of a line: its colour, type and width, and for the figure of a brush. See
// COrvRecordCombo for what they have in common.
//
// AddItem and InsertItem give the new item's index, or CB_ERR or CB_ERRSPACE; from a set they add one item a
// row, in the set's order, and give their number (0 for null). SetCurrent... selects the first item of the
// value; a value that no item has gets an item of its own, named after it, before the row 其它... if there is
// one, else at the end. It gives 1, or 0 without a window or room. SetCurrent...Name selects the first item
// of that name (byte for byte), or gives 0 and leaves the selection. GetCurrent... gives 0 and an empty name
// when nothing is selected. Selecting in code tells nobody.

#include "OrvCustomRowCombo.h"
#include "PFComboxData.h"

class CColorSet;
class CLineTypeSet;
class CLineWidthSet;
class COrvMainDrawManage;

// Chooses a colour. A choice posts WM_LINE_COLOR_CMB_SELCHANGE. The row 其它... opens the system's colour
// dialog.
class ORVFC_API CColorCmb : public COrvCustomRowCombo {
    DECLARE_DYNAMIC(CColorCmb)

public:
    explicit CColorCmb(CWnd* pMessageWnd = NULL) : COrvCustomRowCombo(pMessageWnd) {}

    int AddItem(COLORREF cr, LPCTSTR lpszName) { return InsertItem(-1, cr, lpszName); }
    int AddItem(COLORREF cr, CString strName) { return InsertItem(-1, cr, strName); }
    int AddItem(CColorSet* pSet);
    // Before the item of that index; -1: at the end.
    int InsertItem(int nIndex, COLORREF cr, CString strName);
    // The built-in colours in place of all items. The selected colour stays selected.
    void ResetColors();

    COLORREF GetCurrentColor() const;
    CString GetCurrentColorName() const { return CurrentName(); }
    int SetCurrentColor(COLORREF cr);
    int SetCurrentColorName(CString strName);

protected:
    int SetCurSel(int nSelect);
    // The items change places; what was selected stays selected. 0 for an index that there is not.
    int SwapColorIndex(int nFirst, int nSecond);
    void SetCustormToBottom() { COrvCustomRowCombo::SetCustormToBottom(); }
    // Of the last row 其它...; -1 without one.
    int GetCustColorIndex() const { return GetCustomIndex(); }
    // The first item's name of that colour, 其它... left aside; else as the built-in colours name it.
    CString GetColorName(COLORREF cr) const;
    // -1 when there is no such item.
    int GetColorNameIndex(CString strName) const { return FindNamed(strName); }

    BOOL AskValue() override;
    UINT GetChoiceMessage() const override;
    DECLARE_MESSAGE_MAP()

private:
    int FindColor(COLORREF cr) const;
};

// Chooses a line type. A choice posts WM_LINE_STYLE_CMB_SELCHANGE.
class ORVFC_API CLineStyleCmb : public COrvRecordCombo {
    DECLARE_DYNAMIC(CLineStyleCmb)

public:
    // The manager that draws the samples may be null and outlives the combo.
    explicit CLineStyleCmb(COrvMainDrawManage* pManage, CWnd* pMessageWnd = NULL)
        : COrvRecordCombo(pMessageWnd), m_pManage(pManage) {}

    int AddItem(int nStyle, LPCTSTR lpszName) { return AddItem(nStyle, CString(lpszName)); }
    int AddItem(int nStyle, CString strName);
    int AddItem(CLineTypeSet* pSet);
    // Adds the types 0 to 5.
    void InitGerStyle();

    int GetCurrentStyle() const;
    CString GetCurrentStyleName() const { return CurrentName(); }
    int SetCurrentStyle(int nStyle);
    int SetCurrentStyleName(CString strName) { return SelectItem(FindNamed(strName)); }

    void Dump(CDumpContext& dc) const override;

protected:
    void DrawRecord(COrvCmbRecord& record, CDC* pDC, const CRect& rc, int nState) override;
    void OnSelchange() override;
    DECLARE_MESSAGE_MAP()

private:
    COrvMainDrawManage* m_pManage;
};

// Chooses a line width. A choice posts WM_LINE_WIDTH_CMB_SELCHANGE. The row 其它... asks for a width in
// millimetres; less than 0 is taken as 1.
class ORVFC_API CLineWidthCmb : public COrvCustomRowCombo {
    DECLARE_DYNAMIC(CLineWidthCmb)

public:
    explicit CLineWidthCmb(CWnd* pMessageWnd = NULL) : COrvCustomRowCombo(pMessageWnd) {}

    int AddItem(double dWidth, LPCTSTR lpszName) { return AddItem(dWidth, CString(lpszName)); }
    int AddItem(double dWidth, CString strName);
    int AddItem(CLineWidthSet* pSet);
    void SetCustormToBottom() { COrvCustomRowCombo::SetCustormToBottom(); }

    double GetCurrentWidth() const;
    CString GetCurrentWidthName() const { return CurrentName(); }
    // Widths closer than 0.000001 are the same. Less than 0, or no finite number: 1.
    int SetCurrentWidth(double dWidth);
    int SetCurrentWidthName(CString strName) { return SelectItem(FindNamed(strName)); }
    // -1 when there is no such item.
    int GetWidthIndex(CString strName) const { return FindNamed(strName); }
    // The first item's name of that width, 其它... left aside; else "0.75毫米".
    CString GetWidthName(double dWidth) const;

protected:
    BOOL AskValue() override;
    UINT GetChoiceMessage() const override;
    DECLARE_MESSAGE_MAP()

private:
    int FindWidth(double dWidth) const;
};

// Chooses the figure of a brush. A choice posts WM_BRUSH_FIGURE_CMB_SELCHANGE.
class ORVFC_API CBrushFigureCmb : public COrvRecordCombo {
    DECLARE_DYNAMIC(CBrushFigureCmb)

public:
    CBrushFigureCmb() = default;

    int AddItem(int nType, LPCTSTR lpszName, COLORREF crColor);
    int AddItem(int nType, CString strName, COLORREF crColor);
    // Adds the figures 0 to 6 in black. 1 and 4 bear one name, 45度斜线.
    void InitGerStyle();
    // Gives every item the colour.
    void ResetColor(COLORREF crColor);

    int GetCurrentStyle() const;
    CString GetCurrentStyleName() const { return CurrentName(); }
    int SetCurrentStyle(int nType);
    int SetCurrentStyleName(CString strName) { return SelectItem(FindNamed(strName)); }

protected:
    void OnSelchange() override;
    DECLARE_MESSAGE_MAP()
};
