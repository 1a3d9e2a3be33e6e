#pragma once

#include <orvfc/ORVFC.h>

namespace gallery {

// A text on a canvas, and the property sheet that changes its looks.
class TextPropertyPage : public CWnd {
public:
    // NULL when there is no window for it. The page deletes itself with its window.
    static TextPropertyPage* make(CWnd& parent, UINT id);

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void PostNcDestroy() override { delete this; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnContent();
    afx_msg void OnProperties();
    DECLARE_MESSAGE_MAP()

private:
    TextPropertyPage() = default;
    void draw(CDC& dc);

    COrvDrawText m_text;
    CFont m_font;
    CStatic m_label;
    CEdit m_content;
    CButton m_properties;
};

} // namespace gallery
