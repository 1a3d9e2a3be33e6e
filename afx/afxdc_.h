#pragma once

// Device contexts. Coordinates are logical units unless said otherwise. Functions that select an object
// return the object that was selected before: a permanent object or a temporary one (see
// CGdiObject::FromHandle), NULL on failure.

#include "afxgdi_.h"

class CWnd;

class ORVAFX_API CDC : public CObject {
    DECLARE_DYNCREATE(CDC)

public:
    CDC() = default;
    // Deletes the device context it holds (DeleteDC).
    ~CDC() override;

    HDC m_hDC = NULL;       // drawing goes here
    HDC m_hAttribDC = NULL; // attributes are asked here; the same as m_hDC but for metafiles

    operator HDC() const { return m_hDC; }
    // NULL on a null pointer as well.
    HDC GetSafeHdc() const;
    static CDC* PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HDC hDC);
    HDC Detach();
    virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    virtual void SetOutputDC(HDC hDC) { m_hDC = hDC; }
    virtual void ReleaseAttribDC() { m_hAttribDC = NULL; }
    virtual void ReleaseOutputDC() { m_hDC = NULL; }

    // Creation. pDC may be NULL: compatible with the screen.
    BOOL CreateDC(LPCTSTR lpszDriver, LPCTSTR lpszDevice, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriver, LPCTSTR lpszDevice, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();

    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }
    BOOL IsPrinting() const { return m_bPrinting; }
    CWnd* GetWindow() const;
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);

    // Objects
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    // The kind of region (SIMPLEREGION, ...), not a pointer.
    int SelectObject(CRgn* pRgn);
    CGdiObject* SelectObject(CGdiObject* pObject);
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    CPalette* GetCurrentPalette() const;

    // Attributes
    COLORREF GetNearestColor(COLORREF cr) const { return ::GetNearestColor(m_hAttribDC, cr); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    int GetTextCharacterExtra() const { return ::GetTextCharacterExtra(m_hAttribDC); }
    CPoint GetBrushOrg() const;
    virtual COLORREF SetBkColor(COLORREF crColor);
    int SetBkMode(int nBkMode);
    int SetPolyFillMode(int nPolyFillMode);
    int SetROP2(int nDrawMode);
    int SetStretchBltMode(int nStretchMode);
    virtual COLORREF SetTextColor(COLORREF crColor);
    UINT SetTextAlign(UINT nFlags);
    int SetTextCharacterExtra(int nCharExtra);
    int SetTextJustification(int nBreakExtra, int nBreakCount);
    CPoint SetBrushOrg(int x, int y);
    int SetArcDirection(int nArcDirection);
    int GetArcDirection() const { return ::GetArcDirection(m_hAttribDC); }
    int GetGraphicsMode() const { return ::GetGraphicsMode(m_hDC); }
    int SetGraphicsMode(int iMode) { return ::SetGraphicsMode(m_hDC, iMode); }
    BOOL SetWorldTransform(const XFORM& rXform) { return ::SetWorldTransform(m_hDC, &rXform); }
    BOOL GetWorldTransform(XFORM& rXform) const { return ::GetWorldTransform(m_hDC, &rXform); }
    BOOL ModifyWorldTransform(const XFORM& rXform, DWORD iMode);

    // Mapping
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    CPoint GetViewportOrg() const;
    CSize GetViewportExt() const;
    CPoint GetWindowOrg() const;
    CSize GetWindowExt() const;
    virtual int SetMapMode(int nMapMode);
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const { ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void LPtoDP(LPRECT lpRect) const { ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void LPtoDP(LPSIZE lpSize) const;

    // Clipping (clip regions are in device units)
    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hAttribDC, lpRect); }
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    virtual BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hDC, lpRect); }
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(LPCRECT lpRect);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT r) { return IntersectClipRect(r->left, r->top, r->right, r->bottom); }
    int OffsetClipRgn(int x, int y);

    // Lines and shapes
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Arc(LPCRECT r, POINT s, POINT e) {
        return Arc(r->left, r->top, r->right, r->bottom, s.x, s.y, e.x, e.y);
    }
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL PolylineTo(const POINT* lpPoints, int nCount) { return ::PolylineTo(m_hDC, lpPoints, nCount); }
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount);
    BOOL PolyBezier(const POINT* lpPoints, int nCount) { return ::PolyBezier(m_hDC, lpPoints, nCount); }
    BOOL PolyBezierTo(const POINT* lpPoints, int nCount) { return ::PolyBezierTo(m_hDC, lpPoints, nCount); }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount);
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT r) { return Rectangle(r->left, r->top, r->right, r->bottom); }
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT r) { return Ellipse(r->left, r->top, r->right, r->bottom); }
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    // Both leave the background colour as it was.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);
    BOOL PaintRgn(CRgn* pRgn);

    // Bitmaps
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    BOOL SetPixelV(int x, int y, COLORREF crColor) { return ::SetPixelV(m_hDC, x, y, crColor); }
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop);

    // Text. nCount counts bytes.
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths);
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
    BOOL GetTextExtentExPointA(LPCTSTR lpszString, int nCount, int nMaxExtent, LPINT lpnFit, LPINT alpDx,
                               LPSIZE lpSize) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetricsA(m_hAttribDC, lpMetrics); }
    int GetTextFace(CString& rString) const;
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const;

    // Paths
    BOOL BeginPath() { return ::BeginPath(m_hDC); }
    BOOL EndPath() { return ::EndPath(m_hDC); }
    BOOL AbortPath() { return ::AbortPath(m_hDC); }
    BOOL CloseFigure() { return ::CloseFigure(m_hDC); }
    BOOL FlattenPath() { return ::FlattenPath(m_hDC); }
    BOOL WidenPath() { return ::WidenPath(m_hDC); }
    BOOL StrokePath() { return ::StrokePath(m_hDC); }
    BOOL FillPath() { return ::FillPath(m_hDC); }
    BOOL StrokeAndFillPath() { return ::StrokeAndFillPath(m_hDC); }
    BOOL SelectClipPath(int nMode) { return ::SelectClipPath(m_hDC, nMode); }
    // The number of points of the current path (with nCount 0: only that), -1 without a path or room for it.
    int GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const;
    BOOL SetMiterLimit(float fMiterLimit) { return ::SetMiterLimit(m_hDC, fMiterLimit, NULL); }

    BOOL PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds);

    void Dump(CDumpContext& dc) const override;

protected:
    BOOL m_bPrinting = FALSE;
};

// The client area of a window; with NULL the whole screen. Throws CResourceException when there is no
// context.
class ORVAFX_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

// The whole window, frame included; with NULL the whole screen. Throws CResourceException.
class ORVAFX_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)

public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

// Between BeginPaint and EndPaint of a window that got WM_PAINT. Throws CResourceException.
class ORVAFX_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)

public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};

// Records into an enhanced metafile until CloseEnhanced, whose handle belongs to the caller.
class ORVAFX_API CMetaFileDC : public CDC {
    DECLARE_DYNAMIC(CMetaFileDC)

public:
    CMetaFileDC() = default;
    ~CMetaFileDC() override;

    BOOL CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds, LPCTSTR lpszDescription);
    HENHMETAFILE CloseEnhanced();
};
