#pragma once

#include <afxwin.h>

#include <orvfc/pickers/FontShape.h>

// A button that switches a shape of a font on and off. Attach it to a button with BS_OWNERDRAW; every click,
// by mouse or with the space bar, turns its state, and the parent gets its BN_CLICKED behind that.
//
// It shows the letter of its shape in that shape: I, U or B. Its text, "斜体" say, is what a screen reader
// reads, and what is shown for any other shape code.
class ORVFC_API CFontShapeButton : public CButton {
    DECLARE_DYNAMIC(CFontShapeButton)

public:
    CFontShapeButton();

    // 0 means on: the button is pushed in. 1 means off, as a new button is.
    int GetPushState() const { return m_nPushState; }
    void SetPushState(int nState, int bRedraw);
    UINT GetFontShape() const { return m_nShape; } // an OrvFontShape
    void SetFontShape(UINT nShape, int bRedraw);

    // How the button is drawn: the font of the device context with the shape, and the letter. A null record
    // gives the interface's font.
    LOGFONT GetDrawFont(DRAWITEMSTRUCT* pDrawItem) const;
    CString GetDrawText() const;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

    void Dump(CDumpContext& dc) const override;

protected:
    afx_msg BOOL OnClicked();
    // A quick second click is a click like any other.
    afx_msg BOOL OnDoubleclicked();
    DECLARE_MESSAGE_MAP()

private:
    int m_nPushState;
    UINT m_nShape;
};
