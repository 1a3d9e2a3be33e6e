#pragma once

// The window of a colour picker's palette, while it is open.

#include <afxwin.h>
#include <afxcmn.h>

#include <vector>

#include "ColorSet.h"
#include "PaletteGrid.h"
#include "TypedText.h"

class CColorPicker;

namespace orv {

class ColorPalette {
public:
    // Copies the rows: the set may change or go. The cell of the picker's colour is marked.
    ColorPalette(CColorPicker& picker, const CColorSet& colors);
    // Closes the window.
    ~ColorPalette();
    ColorPalette(const ColorPalette&) = delete;
    ColorPalette& operator=(const ColorPalette&) = delete;

    HWND window() const { return m_hWnd; }
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    // The picker's keys. False: none of the palette's.
    bool key(UINT nKey);
    // A character for the picker: names are searched.
    void typed(UINT nChar);

private:
    bool open();
    void hover(int nCell);
    void paint(CDC* pDC); // null: nothing
    void paintCell(CDC& dc, int nCell);
    TOOLINFO tipTool() const;
    void showTip();
    // Both end this object.
    void choose(int nCell);
    void close();

    CColorPicker& m_picker;
    bool m_bOwn = false;
    std::vector<ColorSetStruct> m_rows; // the colours; behind them, when there is one, the user's own
    PaletteGrid m_grid;
    int m_nHot = -1;
    CPoint m_ptMouse; // on the screen: opening under the resting mouse is no movement
    int m_nSelected = -1;
    HWND m_hWnd = NULL;
    CToolTipCtrl m_tip;
    COrvTypedText m_typed;
};

} // namespace orv
