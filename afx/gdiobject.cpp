#include "afxwin.h"
#include "threadstate.h"

using orvafx::threadState;

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace {

CGdiObject* newObjectOfKind(HGDIOBJ handle) {
    switch (::GetObjectType(handle)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return new CPen;
    case OBJ_BRUSH:
        return new CBrush;
    case OBJ_FONT:
        return new CFont;
    case OBJ_BITMAP:
        return new CBitmap;
    case OBJ_PAL:
        return new CPalette;
    case OBJ_REGION:
        return new CRgn;
    default:
        return new CGdiObject;
    }
}

// The object when it is of the class asked for. A handle that was freed and used again for another kind of
// object may still be known under its old class: such an entry is dropped.
template <class T>
T* typedFromHandle(HGDIOBJ handle) {
    CGdiObject* object = CGdiObject::FromHandle(handle);
    T* typed = DYNAMIC_DOWNCAST(T, object);
    if (object && !typed) {
        threadState().gdiObjects.removeTemporary(handle);
        typed = DYNAMIC_DOWNCAST(T, CGdiObject::FromHandle(handle));
    }
    return typed;
}

void throwUnless(BOOL created) {
    if (!created)
        AfxThrowResourceException();
}

} // namespace

CGdiObject::~CGdiObject() {
    DeleteObject();
}

// Compilers may take "this" for never null in a member; the volatile copy keeps the test that hosts rely on.
HGDIOBJ CGdiObject::GetSafeHandle() const {
    const CGdiObject* const volatile self = this;
    return self ? self->m_hObject : NULL;
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject) {
    return threadState().gdiObjects.objectOf<CGdiObject>(hObject, [=] {
        CGdiObject* object = newObjectOfKind(hObject);
        object->m_hObject = hObject;
        return object;
    });
}

void PASCAL CGdiObject::DeleteTempMap() {
    threadState().gdiObjects.deleteTemporary();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    if (!hObject)
        return FALSE;
    ASSERT(m_hObject == NULL);
    if (m_hObject)
        DeleteObject();
    m_hObject = hObject;
    threadState().gdiObjects.setPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    HGDIOBJ handle = m_hObject;
    orvafx::leaveHandle(&orvafx::ThreadState::gdiObjects, handle, this);
    m_hObject = NULL;
    return handle;
}

BOOL CGdiObject::DeleteObject() {
    HGDIOBJ handle = Detach();
    return handle && ::DeleteObject(handle);
}

void CGdiObject::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "m_hObject = " << static_cast<const void*>(m_hObject) << "\n";
}

CPen* PASCAL CPen::FromHandle(HPEN hPen) {
    return typedFromHandle<CPen>(hPen);
}
CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush) {
    return typedFromHandle<CBrush>(hBrush);
}
CFont* PASCAL CFont::FromHandle(HFONT hFont) {
    return typedFromHandle<CFont>(hFont);
}
CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap) {
    return typedFromHandle<CBitmap>(hBitmap);
}
CPalette* PASCAL CPalette::FromHandle(HPALETTE hPalette) {
    return typedFromHandle<CPalette>(hPalette);
}
CRgn* PASCAL CRgn::FromHandle(HRGN hRgn) {
    return typedFromHandle<CRgn>(hRgn);
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    throwUnless(CreatePen(nPenStyle, nWidth, crColor));
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle) {
    throwUnless(CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle) {
    return Attach(::ExtCreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen) {
    return Attach(::CreatePenIndirect(lpLogPen));
}

CBrush::CBrush(COLORREF crColor) {
    throwUnless(CreateSolidBrush(crColor));
}
CBrush::CBrush(int nIndex, COLORREF crColor) {
    throwUnless(CreateHatchBrush(nIndex, crColor));
}
CBrush::CBrush(CBitmap* pBitmap) {
    throwUnless(CreatePatternBrush(pBitmap));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
    return Attach(::CreatePatternBrush(static_cast<HBITMAP>(pBitmap->GetSafeHandle())));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename) {
    return Attach(::CreateFontA(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                                cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality,
                                nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
    LOGFONT font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    lstrcpynA(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

// lfHeight comes in tenths of a point and is turned into logical units of pDC, downwards from its window
// origin.
BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC) {
    HDC hdc = pDC ? pDC->m_hAttribDC : ::GetDC(NULL);
    LOGFONT font = *lpLogFont;
    POINT origin = {0, 0};
    POINT height = {0, ::MulDiv(::GetDeviceCaps(hdc, LOGPIXELSY), font.lfHeight, 720)};
    ::DPtoLP(hdc, &height, 1);
    ::DPtoLP(hdc, &origin, 1);
    font.lfHeight = -abs(height.y - origin.y);
    if (!pDC)
        ::ReleaseDC(NULL, hdc);
    return CreateFontIndirect(&font);
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
    return Attach(::LoadBitmapA(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits) {
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits) {
    return ::SetBitmapBits(*this, dwCount, lpBits);
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
    return ::GetBitmapBits(*this, dwCount, lpBits);
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC) {
    return Attach(::CreateHalftonePalette(pDC ? pDC->m_hAttribDC : NULL));
}

int CPalette::GetEntryCount() const {
    WORD count = 0;
    return GetObject(sizeof(count), &count) ? count : 0;
}

UINT CPalette::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const {
    return ::GetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) {
    return ::SetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::GetNearestPaletteIndex(COLORREF crColor) const {
    return ::GetNearestPaletteIndex(*this, crColor);
}

BOOL CPalette::ResizePalette(UINT nNumEntries) {
    return ::ResizePalette(*this, nNumEntries);
}

BOOL CRgn::CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode) {
    return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
}

BOOL CRgn::CreateFromPath(CDC* pDC) {
    return Attach(::PathToRegion(pDC->m_hDC));
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, static_cast<HRGN>(pRgn1->GetSafeHandle()),
                        static_cast<HRGN>(pRgn2->GetSafeHandle()), nCombineMode);
}

BOOL CRgn::EqualRgn(const CRgn* pRgn) const {
    return ::EqualRgn(*this, *pRgn);
}
int CRgn::OffsetRgn(int x, int y) {
    return ::OffsetRgn(*this, x, y);
}
int CRgn::GetRgnBox(LPRECT lpRect) const {
    return ::GetRgnBox(*this, lpRect);
}
BOOL CRgn::PtInRegion(int x, int y) const {
    return ::PtInRegion(*this, x, y);
}
BOOL CRgn::RectInRegion(LPCRECT lpRect) const {
    return ::RectInRegion(*this, lpRect);
}
void CRgn::SetRectRgn(int x1, int y1, int x2, int y2) {
    ::SetRectRgn(*this, x1, y1, x2, y2);
}
