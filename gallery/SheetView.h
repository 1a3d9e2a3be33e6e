#pragma once

#include "CanvasWnd.h"
#include "Picture.h"
#include "Sheets.h"

namespace gallery {

// Shows a sheet of the tour and scrolls it: with the wheel, the bars and the keys.
class SheetView : public CanvasWnd {
public:
    // NULL when there is no window for it.
    static SheetView* make(const Sheet& sheet, CWnd& parent, UINT id);

protected:
    void draw(CDC& dc) override;

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    explicit SheetView(const Sheet& sheet) : m_sheet(sheet) {}
    void scroll(int bar, UINT code);
    void scrollTo(int bar, int position);

    Sheet m_sheet;
    Picture m_picture; // the sheet as it was drawn when the page was first seen
    bool m_drawn = false;
};

} // namespace gallery
