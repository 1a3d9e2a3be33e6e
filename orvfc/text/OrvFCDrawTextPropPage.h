#pragma once

#include <afxcmn.h>
#include <afxdlgs.h>

#include <orvfc/pickers/AlignCmb.h>
#include <orvfc/pickers/CharSpaceCmb.h>
#include <orvfc/pickers/FontAslope.h>
#include <orvfc/pickers/FontCombox.h>
#include <orvfc/pickers/FontShapeButton.h>
#include <orvfc/pickers/FontSizeCmb.h>
#include <orvfc/pickers/PFCombox.h>
#include <orvfc/text/FontAppFile.h>
#include <orvfc/text/TextPageIds.h>

// Which controls of the page are enabled when it opens.
enum OrvTextPageEnable : DWORD {
    ORVTEXT_FACE = 0x1,
    ORVTEXT_SHAPE = 0x2, // the three buttons
    ORVTEXT_COLOR = 0x4,
    ORVTEXT_SIZE = 0x8,
    ORVTEXT_SLOPE = 0x10,
    ORVTEXT_ROW_ALIGN = 0x20,
    ORVTEXT_COLUMN_ALIGN = 0x40,
    ORVTEXT_AUTO_BOUND = 0x80,
    ORVTEXT_BORDER = 0x100,
    ORVTEXT_CLIP = 0x200,
    ORVTEXT_ROW_SPACE = 0x400,
    ORVTEXT_LINE_FEED = 0x800,
    ORVTEXT_SHADE = 0x1000,
    ORVTEXT_FONT_LINE = 0x2000,
    ORVTEXT_CHAR_SPACE = 0x4000,
    ORVTEXT_SAMPLE = 0x8000,
    ORVTEXT_ALL = 0xFFFFFFFF,
};

// The page on which a user edits a COrvDrawText: fonts, alignment, spacing and the ways to show it, over a
// live sample of its content. It stands in a property sheet, or alone: Create(IDD_ORV_TEXT_PAGE, pParent).
// Alone it sees to its Tab and arrow keys, unless its parent is a dialog. It loads the rich edit control
// itself.
//
// The page edits a copy. A control that the user leaves alone leaves its member alone, to the last bit, also
// where the control could not show it exactly, or only the nearest end of what it can show: a member changes
// only when its control's value does. What each control edits:
//   face, underline, bold, italic, size   the font. The size shown is GetFontSize() where the font's height
//                                         was made for it, else the points of its height; it is taken in
//                                         whole points.
//   slope                                 the rectangle's angle, in degrees: the font's own angle follows it
//                                         whenever the text is drawn
//   colour                                the text colour
//   横, 纵                                row and column alignment
//   spacings                              row and character distance: shown in points of the screen's
//                                         resolution, kept in pixels, rounded to the nearest
//   check boxes                           auto bound, border, auto clip, auto line feed, shade, font line
class ORVFC_API COrvFCDrawTextPropPage : public CPropertyPage {
    DECLARE_DYNCREATE(COrvFCDrawTextPropPage)

public:
    COrvFCDrawTextPropPage();
    ~COrvFCDrawTextPropPage() override;

    COrvDrawText m_DrawText; // the page's copy
    DWORD m_dwEnable;        // OrvTextPageEnable bits; all of them at first. Looked at when the page opens.

    // save 0: the page's copy takes *p, and its controls, when it has them, show it. Otherwise *p takes the
    // page's copy, in which every change of a control already stands. Null: nothing happens.
    void ExchangeData(COrvDrawText* p, int save);
    // UpdateData: 0 from the copy into the controls, otherwise from the controls into the copy. FALSE without
    // a window.
    int ExchangeData(int save);
    // The sample takes the look that the controls show. FALSE without a sample field (asserted).
    int InvalidText();

    BOOL OnInitDialog() override;
    // Enter in a field of a combo closes its list and takes what was typed there, and does not press a
    // button. The commands that the face and size combos post behind their messages end here: as command 1 a
    // dialog would take them for OK.
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;

    afx_msg void OnClose();
    afx_msg void OnSelchangeComboFontName();
    afx_msg void OnEditchangeComboFontName();
    afx_msg void OnSelchangeComboFontSize();
    afx_msg void OnEditchangeComboFontSize();
    afx_msg void OnSelchangeComboFontAslope();
    afx_msg void OnEditchangeComboFontAslope();
    afx_msg void OnSelchangeComboFontColor();
    afx_msg void OnSelchangeComboRowAlign();
    afx_msg void OnSelchangeComboColAlign();
    afx_msg void OnSelchangeComboCharSpace();
    afx_msg void OnSelchangeComboRowSpace();
    afx_msg void OnButtonFontUnderline();
    afx_msg void OnButtonFontBold();
    afx_msg void OnButtonFontItalic();
    afx_msg void OnCheckAutoCacu();
    afx_msg void OnCheckFontAutoEnter();
    afx_msg void OnCheckFontBorderShade();
    afx_msg void OnCheckFontBorder();
    afx_msg void OnCheckFontClip();
    afx_msg void OnCheckFontLine();

    CFontCombo m_FontNameCmb;
    CFontSizeCmb m_FontSizeCmb;
    CFontAslopeCmb m_FontAslopeCmb;
    CColorCmb m_FontColorCmb;
    CFontAlignCmb m_RowAlignCmb;
    CFontAlignCmb m_ColAlignCmb;
    CCharSpaceCmb m_CharSpaceCmb;
    CCharSpaceCmb m_RowSpaceCmb;
    CFontShapeButton m_UnderlineBtn;
    CFontShapeButton m_BoldBtn;
    CFontShapeButton m_ItalicBtn;
    CRichEditCtrl m_SampleEdit;

    DECLARE_MESSAGE_MAP()

private:
    // What the controls showed last; a difference from it is the user's.
    struct Values {
        CString strFace;
        double dSize, dSlope, dRowSpace, dCharSpace;
        COLORREF crText;
        UINT nRowAlign, nColAlign;
        int bUnderline, bBold, bItalic;
        BOOL bChecked[6]; // in the order of the table of check boxes
        bool operator==(const Values&) const = default;
    };
    void SubclassControls();
    void FillControls();
    void EnableControls();
    void ShowText();
    COLORREF ChosenColor() const;
    Values ReadControls();
    void TakeControls();
    void TakeFont(const Values& now);
    void TakeFields();
    void Changed();
    BOOL IsCommandOfPicker(LPARAM lParam) const;

    Values m_shown = {};
    BOOL m_bShown = FALSE; // the controls of this window show the copy

    COrvFCDrawTextPropPage(const COrvFCDrawTextPropPage&) = delete;
    COrvFCDrawTextPropPage& operator=(const COrvFCDrawTextPropPage&) = delete;
};
