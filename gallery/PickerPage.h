#pragma once

#include <orvfc/ORVFC.h>

#include "CanvasPage.h"
#include "LineStyles.h"

namespace gallery {

// The pickers of line and area properties over a canvas that shows what they say.
class PickerPage : public CanvasPage {
public:
    // NULL when there is no window for it. The page deletes itself with its window.
    static PickerPage* make(CWnd& parent, UINT id);

    // For the sheet of the tour.
    CColorCmb m_color;
    COrvMainDrawManage m_patterns{CString()};
    CLineStyleCmb m_style{&m_patterns};
    CLineWidthCmb m_width;
    CBrushFigureCmb m_figure;
    COrvFillTypeCmb m_fill;
    CColorPicker m_picker;

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void draw(CDC& dc) override;
    CWnd& firstControl() override { return m_color; }
    CWnd& lastControl() override { return m_buddy; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg LRESULT OnChosen(WPARAM wParam, LPARAM lParam);
    afx_msg void OnFigureColor();
    DECLARE_MESSAGE_MAP()

private:
    PickerPage() = default;
    void fill();
    CRect canvas() const;

    CFont m_font;
    CStatic m_labels[7];
    CEdit m_buddy;
    LineStyles m_lines;
};

} // namespace gallery
