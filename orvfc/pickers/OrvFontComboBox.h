#pragma once

#include <afxwin.h>

#include <orvfc/OrvApi.h>

// How the names of a COrvFontComboBox are shown.
enum OrvFontComboStyle {
    ORVFONTS_OWN_FACE = 0,  // each in its own face, as CFontObj
    ORVFONTS_INTERFACE = 1, // all in the combo's font
};

// The plain picker of font faces: a drop-down list of the system's TrueType fonts, each item with the LOGFONT
// that the system gave for it as its data, which the combo owns. Attached to a dialog's combo
// (CBS_OWNERDRAWFIXED, CBS_HASSTRINGS; CBS_SORT for the alphabet) or created, it fills itself when the
// message loop first runs; call InitFonts to have it filled at once. Without the first two styles it stays
// empty. It tells its parent of choices by CBN_SELCHANGE.
class ORVFC_API COrvFontComboBox : public CComboBox {
    DECLARE_DYNAMIC(COrvFontComboBox)

public:
    COrvFontComboBox();
    explicit COrvFontComboBox(OrvFontComboStyle nStyle);
    ~COrvFontComboBox() override;

    // Text and background of selected and of other rows; the system's until they are set.
    void SetHilightColors(COLORREF crText, COLORREF crBack);
    void SetNormalColors(COLORREF crText, COLORREF crBack);

    void InitFonts(); // empties the list and fills it
    void FillFonts(); // adds the system's fonts; a face that is there already is not added again
    // The selected row's LOGFONT. FALSE, and lf stays, when none is selected.
    int GetSelFont(LOGFONT& lf) const;
    // For EnumFontFamiliesEx, lThis being the combo: adds a font of type 4, TrueType and nothing else.
    static int CALLBACK EnumFontProc(const LOGFONT* plf, const TEXTMETRIC* ptm, DWORD nFontType,
                                     LPARAM lThis);

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override; // 18 pixels, more for a high font
    void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) override;
    void Dump(CDumpContext& dc) const override;

protected:
    // The name of the row, in its own face or in the combo's font. The row's background is drawn.
    virtual void DrawFont(CDC* pDC, const CRect& rc, const LOGFONT& lf);
    virtual void DrawDefault(CDC* pDC, const CRect& rc, const LOGFONT& lf);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg LRESULT OnInitFonts(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    void Attached();
    BOOL OwnsFonts() const;

    OrvFontComboStyle m_nStyle;
    COLORREF m_crHilightText, m_crHilightBack, m_crNormalText, m_crNormalBack;
    BOOL m_bFilled; // this window's list has been filled
};
