// Symbols of plan items and the combo that picks one: an extension DLL that several programs share.

#pragma once

#include <afxext.h>

class AFX_EXT_CLASS CSymbol : public CObject {
    DECLARE_SERIAL(CSymbol)

public:
    virtual LPCTSTR GetLabel() const { return _T("?"); }
    virtual void Draw(CDC* pDC, const CRect& rect) const;
};

class AFX_EXT_CLASS CRoundSymbol : public CSymbol {
    DECLARE_SERIAL(CRoundSymbol)

public:
    LPCTSTR GetLabel() const override { return _T("圆"); }
    void Draw(CDC* pDC, const CRect& rect) const override;
};

class AFX_EXT_CLASS CSquareSymbol : public CSymbol {
    DECLARE_SERIAL(CSquareSymbol)

public:
    LPCTSTR GetLabel() const override { return _T("方"); }
    void Draw(CDC* pDC, const CRect& rect) const override;
};

// To the combo's parent: wParam the combo's id, lParam the index.
extern AFX_EXT_DATA const UINT WM_SYMBOL_PICKED;

class AFX_EXT_CLASS CSymbolCombo : public CComboBox {
    DECLARE_DYNAMIC(CSymbolCombo)

public:
    void Fill();
    CString GetClassOfSelection() const;

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;
    void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) override;

protected:
    void PreSubclassWindow() override;
    afx_msg BOOL OnSelchange();
    DECLARE_MESSAGE_MAP()
};
