#pragma once

#include <orvfc/ORVFC.h>

#include "CanvasPage.h"

namespace gallery {

// A text on a canvas, and the property sheet that changes its looks.
class TextPropertyPage : public CanvasPage {
public:
    // NULL when there is no window for it. The page deletes itself with its window.
    static TextPropertyPage* make(CWnd& parent, UINT id);

protected:
    void draw(CDC& dc) override;
    CWnd& firstControl() override { return m_content; }
    CWnd& lastControl() override { return m_properties; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnContent();
    afx_msg void OnProperties();
    DECLARE_MESSAGE_MAP()

private:
    TextPropertyPage() = default;

    COrvDrawText m_text;
    CFont m_font;
    CStatic m_label;
    CEdit m_content;
    CButton m_properties;
};

} // namespace gallery
