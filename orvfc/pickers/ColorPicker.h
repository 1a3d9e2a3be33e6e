#pragma once

#include <afxwin.h>
#include <orvfc/OrvApi.h>

class CColorSet;

namespace orv {
class ColorPalette;
}

// A button that shows a colour and opens a palette to choose another. Attach it to a dialog's button or
// create it; it becomes owner-drawn by itself, and its parent must be a window of the foundation.
//
// A press of the mouse, Space, F4 or Alt+Down opens the palette. There the mouse (also in one stroke: press,
// move, let go), the arrow keys, Home, End and typing the beginning of a name lead to a colour, whose name a
// tip shows; a click, Enter or Space chooses, Esc or a click elsewhere closes. The row 其它... opens the
// system's colour dialog.
class ORVFC_API CColorPicker : public CButton {
    DECLARE_DYNAMIC(CColorPicker)

public:
    CColorPicker();
    ~CColorPicker() override;

    BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    COLORREF GetColor() const { return m_crColor; }
    // "#FF0000" for red.
    void GetColor(CString& str) const;
    // Keeps the colour, posts WM_COMMAND with the button's identifier (code 0, as of a click) to the parent,
    // and gives the buddy the text of GetColor. A button without window only keeps it.
    void SetColor(COLORREF cr);
    // The window that shows the colour as text from the next SetColor on; NULL: none. It may go any time.
    void SetBuddy(HWND hWndBuddy) { m_hWndBuddy = hWndBuddy; }
    // The colours of palettes opened from now on; NULL: the built-in ones. Not owned, read while one opens.
    void SetColorSet(const CColorSet* pSet) { m_pSet = pSet; }

    // Does nothing when it is open, or when the button has no window or is disabled.
    void CreatePaletteWindow();
    void DestroyPaletteWindow();
    // NULL while it is closed.
    HWND GetPaletteWindow() const;
    // Of the class "ColorPalette".
    static LRESULT CALLBACK PaletteWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void Dump(CDumpContext& dc) const override;

protected:
    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    friend class orv::ColorPalette;
    // By the system's dialog, when the palette has closed.
    void ChooseOwn();
    BOOL OnKey(UINT nKey);

    COLORREF m_crColor;
    HWND m_hWndBuddy;
    const CColorSet* m_pSet;
    orv::ColorPalette* m_pPalette; // while it is open
};
