// The drawing half of CDC: shapes, bitmaps and text.

#include "afxwin.h"

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount) {
    return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, nCount);
}

BOOL CDC::PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount) {
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) {
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FillRect(m_hDC, lpRect, static_cast<HBRUSH>(pBrush->GetSafeHandle()));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FrameRect(m_hDC, lpRect, static_cast<HBRUSH>(pBrush->GetSafeHandle()));
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    COLORREF old = ::SetBkColor(m_hDC, clr);
    ::ExtTextOutA(m_hDC, 0, 0, ETO_OPAQUE, lpRect, NULL, 0, NULL);
    ::SetBkColor(m_hDC, old);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    FillSolidRect(CRect(x, y, x + cx, y + cy), clr);
}

void CDC::Draw3dRect(LPCRECT r, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    const int width = r->right - r->left, height = r->bottom - r->top;
    FillSolidRect(r->left, r->top, width - 1, 1, clrTopLeft);
    FillSolidRect(r->left, r->top, 1, height - 1, clrTopLeft);
    FillSolidRect(r->right - 1, r->top, 1, height, clrBottomRight);
    FillSolidRect(r->left, r->bottom - 1, width, 1, clrBottomRight);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush) {
    return ::FillRgn(m_hDC, *pRgn, *pBrush);
}

BOOL CDC::PaintRgn(CRgn* pRgn) {
    return ::PaintRgn(m_hDC, *pRgn);
}

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth, nSrcHeight,
                        dwRop);
}

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    return ::TextOutA(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths) {
    return ::ExtTextOutA(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths) {
    return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawTextA(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}

namespace {

CSize textExtent(HDC hdc, LPCTSTR text, int count) {
    SIZE size = {0, 0};
    ::GetTextExtentPoint32A(hdc, text, count, &size);
    return size;
}

} // namespace

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    return textExtent(m_hAttribDC, lpszString, nCount);
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const {
    return textExtent(m_hDC, lpszString, nCount);
}

BOOL CDC::GetTextExtentExPointA(LPCTSTR lpszString, int nCount, int nMaxExtent, LPINT lpnFit, LPINT alpDx,
                                LPSIZE lpSize) const {
    return ::GetTextExtentExPointA(m_hDC, lpszString, nCount, nMaxExtent, lpnFit, alpDx, lpSize);
}

int CDC::GetTextFace(CString& rString) const {
    int size = ::GetTextFaceA(m_hAttribDC, 0, NULL);
    ::GetTextFaceA(m_hAttribDC, size, rString.GetBuffer(size));
    rString.ReleaseBuffer();
    return rString.GetLength();
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
    return ::GetCharWidthA(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
}
