#pragma once

// GDI objects. Each object owns its handle and deletes it, unless the handle came through FromHandle.
// Creating into an object that already holds a handle, or attaching to it, is a caller's bug (ASSERT); the
// old handle is deleted first, so that nothing leaks in a release build.

#include <afx.h>
#include <atltypes.h>

class CBitmap;
class CDC;

class ORVAFX_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)

public:
    CGdiObject() = default;
    ~CGdiObject() override;

    HGDIOBJ m_hObject = NULL;

    operator HGDIOBJ() const { return m_hObject; }
    // NULL on a null pointer as well.
    HGDIOBJ GetSafeHandle() const;

    // The permanent object of the handle, else a temporary one of the handle's own class (pen, brush, ...)
    // that lives until the temporary maps are emptied. NULL for NULL.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    // Deletes the temporary objects of this thread.
    static void PASCAL DeleteTempMap();

    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    // FALSE when there is none. A handle that is still selected into a device context is lost to GDI.
    BOOL DeleteObject();

    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObjectA(m_hObject, nCount, lpObject); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

    BOOL operator==(const CGdiObject& obj) const { return m_hObject == obj.m_hObject; }
    BOOL operator!=(const CGdiObject& obj) const { return m_hObject != obj.m_hObject; }

    void Dump(CDumpContext& dc) const override;
};

class ORVAFX_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)

public:
    CPen() = default;
    // These two throw CResourceException when the system gives no pen.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
         const DWORD* lpStyle = NULL);

    static CPen* PASCAL FromHandle(HPEN hPen);
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = NULL);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen);
    // A plain pen only; an extended pen's record is larger (GetExtLogPen).
    int GetLogPen(LOGPEN* pLogPen) const { return GetObject(sizeof(LOGPEN), pLogPen); }
    int GetExtLogPen(EXTLOGPEN* pLogPen) const { return GetObject(sizeof(EXTLOGPEN), pLogPen); }
};

class ORVAFX_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush() = default;
    // These throw CResourceException when the system gives no brush.
    explicit CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);

    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }

    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor) {
        return Attach(::CreateHatchBrush(nIndex, crColor));
    }
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush) { return Attach(::CreateBrushIndirect(lpLogBrush)); }
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    BOOL CreateSysColorBrush(int nIndex) { return Attach(::GetSysColorBrush(nIndex)); }
    int GetLogBrush(LOGBRUSH* pLogBrush) const { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

class ORVAFX_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)

public:
    CFont() = default;

    static CFont* PASCAL FromHandle(HFONT hFont);
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }

    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) { return Attach(::CreateFontIndirectA(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    // nPointSize is in tenths of a point; without pDC the screen's resolution counts.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = NULL);
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = NULL);
    int GetLogFont(LOGFONT* pLogFont) const { return GetObject(sizeof(LOGFONT), pLogFont); }
};

class ORVAFX_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap() = default;

    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }

    // Looked for along the module chain.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCEA(nIDResource)); }
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap) { return Attach(::CreateBitmapIndirect(lpBitmap)); }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits);
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
};

class ORVAFX_API CPalette : public CGdiObject {
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette() = default;

    static CPalette* PASCAL FromHandle(HPALETTE hPalette);
    operator HPALETTE() const { return static_cast<HPALETTE>(m_hObject); }

    BOOL CreatePalette(LPLOGPALETTE lpLogPalette) { return Attach(::CreatePalette(lpLogPalette)); }
    BOOL CreateHalftonePalette(CDC* pDC);
    int GetEntryCount() const;
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const;
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors);
    UINT GetNearestPaletteIndex(COLORREF crColor) const;
    BOOL ResizePalette(UINT nNumEntries);
};

class ORVAFX_API CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn() = default;

    static CRgn* PASCAL FromHandle(HRGN hRgn);
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2) {
        return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
    }
    BOOL CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode);
    // The device context's current path, which is used up.
    BOOL CreateFromPath(CDC* pDC);

    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode);
    int CopyRgn(const CRgn* pRgnSrc) { return CombineRgn(pRgnSrc, NULL, RGN_COPY); }
    BOOL EqualRgn(const CRgn* pRgn) const;
    int OffsetRgn(int x, int y);
    int GetRgnBox(LPRECT lpRect) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL RectInRegion(LPCRECT lpRect) const;
    void SetRectRgn(int x1, int y1, int x2, int y2);
};
