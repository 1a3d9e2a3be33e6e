#include "afxwin.h"
#include "threadstate.h"

using orvafx::threadState;

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CMetaFileDC, CDC)

CDC::~CDC() {
    if (m_hDC)
        ::DeleteDC(Detach());
}

HDC CDC::GetSafeHdc() const {
    const CDC* const volatile self = this;
    return self ? self->m_hDC : NULL;
}

CDC* PASCAL CDC::FromHandle(HDC hDC) {
    return threadState().deviceContexts.objectOf<CDC>(hDC, [=] {
        auto* dc = new CDC;
        dc->m_hDC = dc->m_hAttribDC = hDC;
        return dc;
    });
}

void PASCAL CDC::DeleteTempMap() {
    threadState().deviceContexts.deleteTemporary();
}

BOOL CDC::Attach(HDC hDC) {
    ASSERT(m_hDC == NULL);
    if (!hDC)
        return FALSE;
    if (m_hDC)
        ::DeleteDC(Detach());
    m_hDC = hDC;
    threadState().deviceContexts.setPermanent(hDC, this);
    SetAttribDC(hDC);
    m_bPrinting = ::GetDeviceCaps(hDC, TECHNOLOGY) == DT_RASPRINTER;
    return TRUE;
}

HDC CDC::Detach() {
    HDC handle = m_hDC;
    orvafx::leaveHandle(&orvafx::ThreadState::deviceContexts, handle, this);
    m_hDC = m_hAttribDC = NULL;
    return handle;
}

BOOL CDC::CreateDC(LPCTSTR lpszDriver, LPCTSTR lpszDevice, LPCTSTR lpszOutput, const void* lpInitData) {
    return Attach(::CreateDCA(lpszDriver, lpszDevice, lpszOutput, static_cast<const DEVMODEA*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriver, LPCTSTR lpszDevice, LPCTSTR lpszOutput, const void* lpInitData) {
    return Attach(::CreateICA(lpszDriver, lpszDevice, lpszOutput, static_cast<const DEVMODEA*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return Attach(::CreateCompatibleDC(pDC->GetSafeHdc()));
}

BOOL CDC::DeleteDC() {
    HDC handle = Detach();
    return handle && ::DeleteDC(handle);
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

int CDC::SaveDC() {
    if (m_hAttribDC && m_hAttribDC != m_hDC && ::SaveDC(m_hAttribDC) == 0)
        return 0;
    return ::SaveDC(m_hDC);
}

BOOL CDC::RestoreDC(int nSavedDC) {
    BOOL restored = ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC && m_hAttribDC != m_hDC)
        restored = ::RestoreDC(m_hAttribDC, nSavedDC) && restored;
    return restored;
}

namespace {

// Sets an attribute in the output context and, when it is another one (metafiles), in the attribute context,
// whose answer counts.
template <class Setter>
auto onBoth(HDC output, HDC attributes, Setter setter) {
    auto result = setter(output);
    if (attributes && attributes != output)
        result = setter(attributes);
    return result;
}

} // namespace

#define ON_BOTH(call) onBoth(m_hDC, m_hAttribDC, [&](HDC hdc) { return call; })

CGdiObject* CDC::SelectStockObject(int nIndex) {
    HGDIOBJ stock = ::GetStockObject(nIndex);
    return CGdiObject::FromHandle(ON_BOTH(::SelectObject(hdc, stock)));
}

CPen* CDC::SelectObject(CPen* pPen) {
    return static_cast<CPen*>(SelectObject(static_cast<CGdiObject*>(pPen)));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return static_cast<CBrush*>(SelectObject(static_cast<CGdiObject*>(pBrush)));
}

CFont* CDC::SelectObject(CFont* pFont) {
    return static_cast<CFont*>(SelectObject(static_cast<CGdiObject*>(pFont)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, pBitmap->GetSafeHandle())));
}

int CDC::SelectObject(CRgn* pRgn) {
    HGDIOBJ region = pRgn->GetSafeHandle();
    return ON_BOTH(static_cast<int>(reinterpret_cast<INT_PTR>(::SelectObject(hdc, region))));
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    HGDIOBJ object = pObject->GetSafeHandle();
    if (!object)
        return NULL;
    return CGdiObject::FromHandle(ON_BOTH(::SelectObject(hdc, object)));
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground) {
    auto palette = static_cast<HPALETTE>(pPalette->GetSafeHandle());
    return CPalette::FromHandle(::SelectPalette(m_hDC, palette, bForceBackground));
}

CPen* CDC::GetCurrentPen() const {
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const {
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CFont* CDC::GetCurrentFont() const {
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}

CPalette* CDC::GetCurrentPalette() const {
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}

CPoint CDC::GetBrushOrg() const {
    POINT point = {0, 0};
    ::GetBrushOrgEx(m_hDC, &point);
    return point;
}

COLORREF CDC::SetBkColor(COLORREF crColor) {
    return ON_BOTH(::SetBkColor(hdc, crColor));
}
int CDC::SetBkMode(int nBkMode) {
    return ON_BOTH(::SetBkMode(hdc, nBkMode));
}
int CDC::SetPolyFillMode(int nPolyFillMode) {
    return ON_BOTH(::SetPolyFillMode(hdc, nPolyFillMode));
}
int CDC::SetROP2(int nDrawMode) {
    return ON_BOTH(::SetROP2(hdc, nDrawMode));
}
int CDC::SetStretchBltMode(int nStretchMode) {
    return ON_BOTH(::SetStretchBltMode(hdc, nStretchMode));
}
COLORREF CDC::SetTextColor(COLORREF crColor) {
    return ON_BOTH(::SetTextColor(hdc, crColor));
}
UINT CDC::SetTextAlign(UINT nFlags) {
    return ON_BOTH(::SetTextAlign(hdc, nFlags));
}
int CDC::SetTextCharacterExtra(int nCharExtra) {
    return ON_BOTH(::SetTextCharacterExtra(hdc, nCharExtra));
}
int CDC::SetArcDirection(int nArcDirection) {
    return ON_BOTH(::SetArcDirection(hdc, nArcDirection));
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount) {
    return ON_BOTH(::SetTextJustification(hdc, nBreakExtra, nBreakCount));
}

CPoint CDC::SetBrushOrg(int x, int y) {
    POINT old = {0, 0};
    ::SetBrushOrgEx(m_hDC, x, y, &old);
    return old;
}

BOOL CDC::ModifyWorldTransform(const XFORM& rXform, DWORD iMode) {
    return ::ModifyWorldTransform(m_hDC, &rXform, iMode);
}

namespace {

using GetPoint = BOOL(WINAPI*)(HDC, LPPOINT);
using SetPoint = BOOL(WINAPI*)(HDC, int, int, LPPOINT);
using GetSize = BOOL(WINAPI*)(HDC, LPSIZE);
using SetSize = BOOL(WINAPI*)(HDC, int, int, LPSIZE);

CPoint askPoint(GetPoint get, HDC hdc) {
    POINT point = {0, 0};
    get(hdc, &point);
    return point;
}

CSize askSize(GetSize get, HDC hdc) {
    SIZE size = {0, 0};
    get(hdc, &size);
    return size;
}

} // namespace

CPoint CDC::GetViewportOrg() const {
    return askPoint(::GetViewportOrgEx, m_hAttribDC);
}
CSize CDC::GetViewportExt() const {
    return askSize(::GetViewportExtEx, m_hAttribDC);
}
CPoint CDC::GetWindowOrg() const {
    return askPoint(::GetWindowOrgEx, m_hAttribDC);
}
CSize CDC::GetWindowExt() const {
    return askSize(::GetWindowExtEx, m_hAttribDC);
}

int CDC::SetMapMode(int nMapMode) {
    return ON_BOTH(::SetMapMode(hdc, nMapMode));
}

CPoint CDC::SetViewportOrg(int x, int y) {
    POINT old = {0, 0};
    ON_BOTH(::SetViewportOrgEx(hdc, x, y, &old));
    return old;
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight) {
    POINT old = {0, 0};
    ON_BOTH(::OffsetViewportOrgEx(hdc, nWidth, nHeight, &old));
    return old;
}

CSize CDC::SetViewportExt(int cx, int cy) {
    SIZE old = {0, 0};
    ON_BOTH(::SetViewportExtEx(hdc, cx, cy, &old));
    return old;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    POINT old = {0, 0};
    ON_BOTH(::SetWindowOrgEx(hdc, x, y, &old));
    return old;
}

CSize CDC::SetWindowExt(int cx, int cy) {
    SIZE old = {0, 0};
    ON_BOTH(::SetWindowExtEx(hdc, cx, cy, &old));
    return old;
}

// A size is a vector: converted between two points, without sign.
void CDC::DPtoLP(LPSIZE lpSize) const {
    POINT points[2] = {{0, 0}, {lpSize->cx, lpSize->cy}};
    ::DPtoLP(m_hAttribDC, points, 2);
    lpSize->cx = abs(points[1].x - points[0].x);
    lpSize->cy = abs(points[1].y - points[0].y);
}

void CDC::LPtoDP(LPSIZE lpSize) const {
    POINT points[2] = {{0, 0}, {lpSize->cx, lpSize->cy}};
    ::LPtoDP(m_hAttribDC, points, 2);
    lpSize->cx = abs(points[1].x - points[0].x);
    lpSize->cy = abs(points[1].y - points[0].y);
}

int CDC::SelectClipRgn(CRgn* pRgn) {
    auto region = static_cast<HRGN>(pRgn->GetSafeHandle());
    return ON_BOTH(::SelectClipRgn(hdc, region));
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    auto region = static_cast<HRGN>(pRgn->GetSafeHandle());
    return ON_BOTH(::ExtSelectClipRgn(hdc, region, nMode));
}

int CDC::ExcludeClipRect(LPCRECT r) {
    return ON_BOTH(::ExcludeClipRect(hdc, r->left, r->top, r->right, r->bottom));
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return ON_BOTH(::IntersectClipRect(hdc, x1, y1, x2, y2));
}

int CDC::OffsetClipRgn(int x, int y) {
    return ON_BOTH(::OffsetClipRgn(hdc, x, y));
}

CPoint CDC::GetCurrentPosition() const {
    return askPoint(::GetCurrentPositionEx, m_hAttribDC);
}

CPoint CDC::MoveTo(int x, int y) {
    POINT old = {0, 0};
    ON_BOTH(::MoveToEx(hdc, x, y, &old));
    return old;
}

BOOL CDC::LineTo(int x, int y) {
    // The attribute context draws nothing, but keeps the position.
    if (m_hAttribDC && m_hAttribDC != m_hDC)
        ::MoveToEx(m_hAttribDC, x, y, NULL);
    return ::LineTo(m_hDC, x, y);
}

int CDC::GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const {
    return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
}

BOOL CDC::PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds) {
    return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
}

void CDC::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "m_hDC = " << static_cast<const void*>(m_hDC)
       << "\nm_hAttribDC = " << static_cast<const void*>(m_hAttribDC) << "\nm_bPrinting = " << m_bPrinting
       << "\n";
}

namespace {

HDC requireContext(HDC hdc) {
    if (!hdc)
        AfxThrowResourceException();
    return hdc;
}

} // namespace

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    Attach(requireContext(::GetDC(m_hWnd)));
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    Attach(requireContext(::GetWindowDC(m_hWnd)));
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    Attach(requireContext(::BeginPaint(m_hWnd, &m_ps)));
}

CPaintDC::~CPaintDC() {
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CMetaFileDC::~CMetaFileDC() {
    if (m_hDC)
        ::DeleteEnhMetaFile(CloseEnhanced());
}

BOOL CMetaFileDC::CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds,
                                 LPCTSTR lpszDescription) {
    return Attach(::CreateEnhMetaFileA(pDCRef->GetSafeHdc(), lpszFileName, lpBounds, lpszDescription));
}

HENHMETAFILE CMetaFileDC::CloseEnhanced() {
    return ::CloseEnhMetaFile(Detach());
}
